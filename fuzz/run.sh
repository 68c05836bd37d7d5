#!/usr/bin/env bash
# Builds the fuzz targets with clang and runs each for SECONDS, one after the other.
#   fuzz/run.sh SECONDS [TARGET...]
# New inputs go to build-fuzz/corpus/<target>/ (the seeds in fuzz/corpus/ stay as they
# are); a crash, a leak, undefined behaviour or an input slower than 10 s stops the run
# with the input saved as build-fuzz/artifacts/<target>/crash-*.
set -euo pipefail
seconds=${1:?usage: fuzz/run.sh SECONDS [TARGET...]}
shift
here=$(cd "$(dirname "$0")/.." && pwd)
build=${TESSARINE_FUZZ_BUILD:-$here/build-fuzz}
jobs=${TESSARINE_FUZZ_JOBS:-1}

CC=clang CXX=clang++ cmake -S "$here/fuzz" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
if [ $# -gt 0 ]; then targets=("$@"); else mapfile -t targets <"$build/fuzz-targets.txt"; fi
cmake --build "$build" -j"$jobs" --target "${targets[@]/#/fuzz_}"

status=0
for t in "${targets[@]}"; do
  mkdir -p "$build/corpus/$t" "$build/artifacts/$t"
  echo "== $t: $seconds s"
  if ! ASAN_OPTIONS=detect_leaks=1:allocator_may_return_null=1 UBSAN_OPTIONS=print_stacktrace=1 \
    "$build/fuzz_$t" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 -max_len=65536 \
      -print_final_stats=1 -artifact_prefix="$build/artifacts/$t/" \
      "$build/corpus/$t" "$here/fuzz/corpus/$t" 2>"$build/$t.log"; then
    echo "!! $t failed; see $build/$t.log and $build/artifacts/$t/"
    tail -n 40 "$build/$t.log"
    status=1
  else
    grep -E '^stat::number_of_executed_units' "$build/$t.log" || true
  fi
done
exit $status
