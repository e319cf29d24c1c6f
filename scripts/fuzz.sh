#!/usr/bin/env bash
# Builds the libFuzzer targets with clang, AddressSanitizer and
# UndefinedBehaviorSanitizer (in build-fuzz/) and runs one of them.
#
# Usage: scripts/fuzz.sh [TARGET [SECONDS [libFuzzer options]]]
#   TARGET   fuzz_xmltext (the default: the XML text reader and writers) or
#            fuzz_texts (full keys, value texts and the hex codec)
#   SECONDS  how long to run (default 60)
# New inputs that reach new code are kept in build-fuzz/corpus-TARGET/ (the
# checked-in seeds of fuzz/corpus/ are read, never written); an input that
# fails is left as build-fuzz/crash-* for replaying with
#   build-fuzz/fuzz/TARGET build-fuzz/crash-...
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/deps.sh clang

target=${1:-fuzz_xmltext}
seconds=${2:-60}
shift $(( $# < 2 ? $# : 2 ))

jobs=$(nproc 2>/dev/null || echo 2)
CXX=clang++ cmake -S . -B build-fuzz -DCMAKE_BUILD_TYPE=RelWithDebInfo \
  -DDBGDATA_FUZZ=ON -DDBGDATA_SANITIZE=ON -DDBGDATA_TESTS=OFF >/dev/null
cmake --build build-fuzz -j "$jobs" --target "$target"

corpus=build-fuzz/corpus-$target
mkdir -p "$corpus"
seeds=()
options=()
case $target in
  fuzz_xmltext)
    seeds=(fuzz/corpus/xmltext)
    options=(-dict=fuzz/xmltext.dict -max_len=16384)
    ;;
esac
ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
  "build-fuzz/fuzz/$target" -max_total_time="$seconds" \
  -artifact_prefix=build-fuzz/ -print_final_stats=1 "${options[@]}" "$@" \
  "$corpus" "${seeds[@]}"
