#!/usr/bin/env bash
# Builds the three fuzzers with clang in a build folder of their own and runs each for a while
# from the seed corpus. A finding (crash, sanitizer report, timeout, running out of memory)
# fails the run, and the file that reproduces it is named.
# Usage: fuzz/smoke.sh [SECONDS_EACH] [BUILD_FOLDER]     (60 seconds, build-fuzz/)
set -euo pipefail
src=$(cd "$(dirname "$0")/.." && pwd)
seconds=${1:-60}
build=${2:-$src/build-fuzz}

# clang and its sanitizer and libFuzzer runtimes (Debian packages).
"$src/tools/need_packages.sh" clang libclang-rt-14-dev

launcher=()
command -v ccache >/dev/null && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache -DCMAKE_C_COMPILER_LAUNCHER=ccache)
cmake -S "$src" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
      -DCMAKE_C_COMPILER=clang -DCMAKE_CXX_COMPILER=clang++ "${launcher[@]}" \
      -DVRN2_FUZZ=ON -DVRN2_TESTS=OFF -DVRN2_BENCH=OFF >/dev/null
cmake --build "$build" -j"$(nproc)" --target dxf_fuzzer dcl_fuzzer lisp_fuzzer fuzz_seeds

export ASAN_OPTIONS=abort_on_error=1:strict_string_checks=1
export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
failed=0
for name in dxf dcl lisp; do
  # Each fuzzer runs in a scratch folder (AutoLISP may write files in the current folder);
  # what it learns goes to corpus/, its findings beside it.
  run="$build/fuzz/run/$name"
  rm -rf "$run" && mkdir -p "$run/corpus"
  args=(-max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 -print_final_stats=1
        -artifact_prefix="$run/")
  [ -f "$build/fuzz/seeds/$name.dict" ] && args+=(-dict="$build/fuzz/seeds/$name.dict")
  echo "== ${name}_fuzzer, $seconds s"
  if ! (cd "$run" && "$build/fuzz/${name}_fuzzer" "${args[@]}" corpus "$build/fuzz/seeds/$name" \
          >"$run/log.txt" 2>&1); then
    failed=1
    tail -n 60 "$run/log.txt"
  fi
  grep -E '^stat::number_of_executed_units|^stat::peak_rss_mb|^#[0-9]+ *DONE' "$run/log.txt" || true
  for finding in "$run"/crash-* "$run"/timeout-* "$run"/oom-* "$run"/leak-*; do
    [ -e "$finding" ] || continue
    failed=1
    echo "FINDING of ${name}_fuzzer: $finding"
    echo "  reproduce: $build/fuzz/${name}_fuzzer $finding"
  done
done
exit $failed
