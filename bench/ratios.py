"""Runs the benchmarks and prints their ratios: ratios.py [--check] BUILD_FOLDER DOCUMENT..."""
import json
import os
import pathlib
import re
import statistics
import subprocess
import sys
import tempfile

import olefile

arguments = sys.argv[1:]
check = arguments[:1] == ["--check"]
folder, *documents = arguments[1:] if check else arguments
programs = pathlib.Path(folder) / "bench"
scratch_folder = tempfile.TemporaryDirectory(prefix="vqk_bench_")
scratch = pathlib.Path(scratch_folder.name)
missed = []


def medians(documents, what, repetitions):
    """The median time of each benchmark, all of them taking turns."""
    out = scratch / "times.json"
    subprocess.run(
        [programs / "vqk_bench", f"--benchmark_filter={what}", "--benchmark_min_time=0.02",
         f"--benchmark_repetitions={repetitions}", "--benchmark_enable_random_interleaving=true",
         "--benchmark_out_format=json", f"--benchmark_out={out}", *documents],
        check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    rows = json.loads(out.read_text())["benchmarks"]
    return {row["run_name"].removesuffix("/real_time"): row for row in rows
            if row.get("aggregate_name") == "median"}


def show(name, ratio, target="", met=True):
    print(f"{name:58} {ratio:9.2f}  {target}{'' if met else '  MISSED'}", flush=True)
    if not met:
        missed.append(name)


def at_most(name, ratio, limit=None):
    if limit is None:
        show(name, ratio)
    else:
        show(name, ratio, f"<= {limit}", ratio <= limit)


def at_least(name, ratio, limit):
    show(name, ratio, f">= {limit}", ratio >= limit)


def compare(times, ours, theirs, median_limit=None, worst_limit=None):
    pairs = {name.split("/")[1]: times[name]["real_time"] / times[theirs + name.removeprefix(ours)]["real_time"]
             for name in times if name.startswith(ours + "/")}
    for name, ratio in pairs.items():
        show(f"{ours} / {theirs}: {name}", ratio)
    middle = f"{ours} / {theirs}: median"
    worst = f"{ours} / {theirs}: worst"
    at_most(middle, statistics.median(pairs.values()), median_limit)
    at_most(worst, max(pairs.values()), worst_limit)


def load_in_new_process(document):
    """The nanoseconds that the load took, and the most memory that the process had."""
    process = subprocess.Popen([programs / "load_once", document], stdout=subprocess.DEVNULL,
                               stderr=subprocess.PIPE, text=True)
    marks = process.stderr.read()
    _, status, usage = os.wait4(process.pid, 0)
    process.returncode = status
    if status:
        raise SystemExit(f"{document} was not loaded")
    return int(marks.split()[-1]), usage.ru_maxrss * 1024


def runs(offsets):
    return sum(1 for i, sector in enumerate(offsets) if i == 0 or sector != offsets[i - 1] + 1)


def contiguous_runs(document):
    """Of the tables and the stream, read by somebody else's reader."""
    with olefile.OleFileIO(document) as ole:
        def chain(table, sector):
            result = []
            while sector < 0xFFFFFFFA:
                result.append(sector)
                sector = table[sector]
            return result
        entry = next(e for e in ole.direntries if e and e.name == "Maps")
        header = pathlib.Path(document).read_bytes()[:512]
        fat_sectors = [int.from_bytes(header[i:i + 4], "little") for i in range(0x4C, 512, 4)]
        total = runs([s for s in fat_sectors if s != 0xFFFFFFFF])
        total += runs(chain(ole.fat, ole.first_dir_sector))
        if entry.size >= ole.minisectorcutoff:
            return total + runs(chain(ole.fat, entry.isectStart))
        ole.loadminifat()
        total += runs(chain(ole.fat, ole.first_mini_fat_sector))
        return total + runs(chain(ole.minifat, entry.isectStart))


def system_calls(document):
    trace = subprocess.run(["strace", "-f", programs / "load_once", document], check=True,
                           stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True).stderr
    inside = trace.split('write(2, "load\\n", 5')[1].split('write(2, "done ')[0]
    return len(re.findall(r"^\w+\(", inside, re.MULTILINE))


print(f"{'what':58} {'ratio':>9}  target")
times = medians(documents, "^(load|gsf|gsf_mapped)/", 9)
compare(times, "load", "gsf", 1.0, 1.5)
compare(times, "load", "gsf_mapped")

# The search works on the bytes of the last one.
documents.sort(key=os.path.getsize)
times = medians(documents, "^(pass|sum|memchr|naive)/", 5)
for data in "random", "document":
    speed = {name.split("/")[0]: row["bytes_per_second"] for name, row in times.items()
             if name.endswith("/" + data)}
    show(f"class ids: GB/s, {data} bytes", speed["pass"] / 1e9)
    at_least(f"class ids: speed / sum, {data} bytes", speed["pass"] / speed["sum"], 0.3)
    show(f"class ids: speed / memchr, {data} bytes", speed["pass"] / speed["memchr"])
    at_least(f"class ids: speed / naive, {data} bytes", speed["pass"] / speed["naive"], 100)

times = medians(documents, "^(save|fwrite|pugixml)/", 9)
compare(times, "save", "fwrite", 2.0)
compare(times, "save", "pugixml", 1.0)

large = {}
for megabytes in 1, 4, 16, 64:
    large[megabytes] = str(scratch / f"{megabytes}MB.mxd")
    subprocess.run([programs / "make_large_document", documents[-1], str(megabytes), large[megabytes]], check=True)
# Each in a process of its own: one that loads again has memory at hand, but not for the largest.
loads = {size: [load_in_new_process(large[size]) for _ in range(9)] for size in large}
per_byte = {size: statistics.median(time for time, _ in loads[size]) / size for size in large}
for size in large:
    at_most(f"{size} MB: time a byte / that of 4 MB", per_byte[size] / per_byte[4],
            1.2 if size == 64 else None)
for size in large:
    at_most(f"{size} MB: peak memory / stream", max(memory for _, memory in loads[size]) / (size << 20),
            8 if size == 64 else None)

for document in documents:
    limit = 20 + 2 * contiguous_runs(document)
    calls = system_calls(document)
    show(f"system calls: {pathlib.Path(document).stem}", calls, f"<= {limit}", calls <= limit)

if check:
    print("missed: " + ", ".join(missed) if missed else "all targets are met")
    sys.exit(1 if missed else 0)
