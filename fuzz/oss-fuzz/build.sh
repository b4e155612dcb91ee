#!/bin/bash -eu
# Builds the fuzz targets with their seeds and dictionary into $OUT; run from the top of the sources.
# OSS-Fuzz sets CC, CXX, CFLAGS, CXXFLAGS, LIB_FUZZING_ENGINE, WORK and OUT. By hand:
#   export CC=clang CXX=clang++ CFLAGS='-O1 -gline-tables-only -fsanitize=address,fuzzer-no-link'
#   CXXFLAGS=$CFLAGS LIB_FUZZING_ENGINE=-fsanitize=fuzzer WORK=/tmp/work OUT=/tmp/out fuzz/oss-fuzz/build.sh
mkdir -p "$WORK" "$OUT"
# The system's libfmt is built for another C++ standard library than the one OSS-Fuzz uses.
cmake -S . -B "$WORK/build" -G Ninja -DCMAKE_BUILD_TYPE=None -DVQK_BUILD_FUZZERS=ON -DVQK_HARDENING=OFF \
  -DVQK_FMT_HEADER_ONLY=ON
cmake --build "$WORK/build" --target make_seeds fuzz_targets
"$WORK/build/fuzz/make_seeds" "$WORK/seeds"
for target in "$WORK"/build/fuzz/fuzz_*; do
  [ -f "$target" ] || continue
  name=$(basename "$target")
  cp "$target" "$OUT/"
  cp "$WORK/seeds/dictionary.txt" "$OUT/$name.dict"
  seeds=$WORK/seeds/${name#fuzz_}
  [ ! -d "$seeds" ] || (cd "$seeds" && python3 -m zipfile -c "$OUT/${name}_seed_corpus.zip" .)
done
