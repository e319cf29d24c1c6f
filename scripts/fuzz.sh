#!/usr/bin/env bash
# Builds the libFuzzer targets with clang, AddressSanitizer and
# UndefinedBehaviorSanitizer (library included) in build-fuzz/, and runs each
# for SECONDS (default 60): fuzz_xml on a corpus seeded with one document per
# data class, fuzz_xmltext (the XML text reader and writers) on the seeds of
# fuzz/corpus/xmltext, then fuzz_texts. Exits non-zero on any finding; the
# failing input is left as build-fuzz/<target>.log's artifact
# (build-fuzz/crash-*), to be replayed with build-fuzz/fuzz/<target> FILE.
#
# Usage: scripts/fuzz.sh [SECONDS]
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/deps.sh clang libclang-rt-14-dev

seconds=${1:-60}
jobs=$(nproc 2>/dev/null || echo 2)
dir=build-fuzz
CXX=clang++ cmake -S . -B "$dir" -DCMAKE_BUILD_TYPE=RelWithDebInfo \
  -DDBGDATA_FUZZ=ON -DDBGDATA_SANITIZE=ON -DDBGDATA_TESTS=OFF >/dev/null
cmake --build "$dir" -j "$jobs" --target fuzz_xml fuzz_xmltext fuzz_texts make_xml_corpus

export ASAN_OPTIONS=detect_leaks=1
export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
corpus=$dir/corpus-xml
mkdir -p "$corpus" "$dir/corpus-texts" "$dir/corpus-xmltext"
"$dir/fuzz/make_xml_corpus" "$corpus"

# A document of up to 64 KiB may not make any single allocation above 64 MiB
# nor the process grow beyond 2 GiB: counts read from outside are bounded by
# the text that backs them.
limits=(-max_len=65536 -malloc_limit_mb=64 -rss_limit_mb=2048 -timeout=20)
run() {
  local name=$1 log=$dir/$1.log
  shift
  echo "== $name for ${seconds}s"
  if ! "$dir/fuzz/$name" "${limits[@]}" -max_total_time="$seconds" \
      -artifact_prefix="$dir/" -print_final_stats=1 "$@" >"$log" 2>&1; then
    cat "$log"
    echo "$name: finding (log in $log)" >&2
    exit 1
  fi
  grep -E '^#[0-9]+.*DONE|^stat::number_of_executed_units|cov:' "$log" | tail -n 2
}
run fuzz_xml "$corpus"
# New inputs go to the first directory; the checked-in seeds are only read.
run fuzz_xmltext -dict=fuzz/xmltext.dict "$dir/corpus-xmltext" fuzz/corpus/xmltext
run fuzz_texts "$dir/corpus-texts"
