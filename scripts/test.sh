#!/usr/bin/env bash
# Builds and runs every test through CTest twice: a plain build in build/,
# and an AddressSanitizer + UndefinedBehaviorSanitizer build (leak detection
# on) in build-asan/; then runs both fuzzers for 30 seconds each
# (scripts/fuzz.sh). Exits non-zero on any failure.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/deps.sh

jobs=$(nproc 2>/dev/null || echo 2)

run() {
  local dir=$1; shift
  echo "== $dir: configure and build"
  cmake -S . -B "$dir" -DCMAKE_BUILD_TYPE=RelWithDebInfo "$@" >/dev/null
  cmake --build "$dir" -j "$jobs"
  echo "== $dir: test"
  ctest --test-dir "$dir" --output-on-failure -j "$jobs"
}

run build
ASAN_OPTIONS=detect_leaks=1:abort_on_error=0 \
UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
  run build-asan -DDBGDATA_SANITIZE=ON
# Both fuzzers, 30 seconds each, on a clang build with the sanitizers.
bash scripts/fuzz.sh 30
echo "All tests passed in the plain and the sanitizer build, and the fuzzers found nothing."
