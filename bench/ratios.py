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
    """The median row of each benchmark. The runs of all benchmarks are interleaved."""
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


def compare(times, ours, theirs, median_limit=None, largest=None, largest_limit=None, other_limit=None):
    """Shows the ratio of each document, the median, and the worst; the largest document may have its own limit."""
    pairs = {name.split("/")[1]: times[name]["real_time"] / times[theirs + name.removeprefix(ours)]["real_time"]
             for name in times if name.startswith(ours + "/")}
    for name, ratio in pairs.items():
        show(f"{ours} / {theirs}: {name}", ratio)
    at_most(f"{ours} / {theirs}: median", statistics.median(pairs.values()), median_limit)
    if largest in pairs:
        at_most(f"{ours} / {theirs}: largest document", pairs.pop(largest), largest_limit)
    if pairs:
        at_most(f"{ours} / {theirs}: worst of the others", max(pairs.values()), other_limit)


def load_in_new_process(document):
    """The time of the load in nanoseconds and the peak memory of the process in bytes."""
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
    """The number of contiguous sector runs in tables and stream, by an independent reader."""
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
# The search benchmarks use the bytes of the last document.
documents.sort(key=os.path.getsize)
largest = pathlib.Path(documents[-1]).stem
compare(times, "load", "gsf", 1.0, largest, 1.8, 1.3)
compare(times, "load", "gsf_mapped", largest=largest)

times = medians(documents, "^(pass|sum|memchr|naive)/", 5)
for data in "random", "document":
    speed = {name.split("/")[0]: row["bytes_per_second"] for name, row in times.items()
             if name.endswith("/" + data)}
    show(f"class ids: GB/s, {data} bytes", speed["pass"] / 1e9)
    at_least(f"class ids: speed / sum, {data} bytes", speed["pass"] / speed["sum"], 0.3)
    show(f"class ids: speed / memchr, {data} bytes", speed["pass"] / speed["memchr"])
    at_least(f"class ids: speed / naive, {data} bytes", speed["pass"] / speed["naive"], 100)

times = medians(documents, "^(save|fwrite|pugixml)/", 9)
compare(times, "save", "fwrite")
compare(times, "save", "pugixml", 1.0)

large = {}
for megabytes in 1, 4, 16, 64:
    large[megabytes] = str(scratch / f"{megabytes}MB.mxd")
    subprocess.run([programs / "make_large_document", documents[-1], str(megabytes), large[megabytes]], check=True)
# A process per load: a second load in one process would reuse memory, but not for the largest size.
loads = {size: [load_in_new_process(large[size]) for _ in range(9)] for size in large}
per_byte = {size: statistics.median(time for time, _ in loads[size]) / size for size in large}
for size in large:
    at_most(f"{size} MB: time per byte / that of 4 MB", per_byte[size] / per_byte[4],
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
