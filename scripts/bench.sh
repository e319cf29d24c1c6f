#!/usr/bin/env bash
# Builds the benchmark program (Release, in build-bench/) and runs it. Every
# case times the library against a baseline doing the same observable work;
# the program ends with a table of library/baseline ratios, their targets and
# PASS or MISS. The raw figures go to build-bench/bench-results.json.
#
# Usage: scripts/bench.sh [benchmark options], for example
#   scripts/bench.sh --benchmark_filter='Key|Hex'
# Takes five to seven minutes on two cores (the heavy classes alone three
# and a half to four and a half).
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/deps.sh

jobs=$(nproc 2>/dev/null || echo 2)
cmake -S . -B build-bench -DCMAKE_BUILD_TYPE=Release -DDBGDATA_BENCH=ON \
  -DDBGDATA_TESTS=OFF >/dev/null
cmake --build build-bench -j "$jobs" --target dbgdata_bench

echo "== machine: $(nproc) CPUs," \
  "$(grep -m1 'model name' /proc/cpuinfo | cut -d: -f2- | sed 's/^ *//')," \
  "$(${CXX:-c++} --version | head -n1)"
results=build-bench/bench-results.json
# Five repetitions in random order, so that a busy moment of the machine
# does not fall on one side of a comparison only; the summary compares the
# fastest repetition of each side.
build-bench/bench/dbgdata_bench \
  --benchmark_min_time=0.3 \
  --benchmark_repetitions=5 \
  --benchmark_enable_random_interleaving=true \
  --benchmark_report_aggregates_only=true \
  --benchmark_out="$results" --benchmark_out_format=json \
  "$@"
echo "Raw results: $results"
