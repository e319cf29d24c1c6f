#!/usr/bin/env bash
# The main job: installs missing packages, builds the library and the
# dbgdata tool into build/, and runs `dbgdata selfcheck`, which prints one
# line per data class and per full key. Exits with the self-check's status
# (0 when every check passed). The build's own output is shown only when the
# build fails.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/deps.sh

jobs=$(nproc 2>/dev/null || echo 2)
log=$(mktemp)
trap 'rm -f "$log"' EXIT
if ! { cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo &&
       cmake --build build -j "$jobs" --target dbgdata-tool; } >"$log" 2>&1; then
  cat "$log" >&2
  echo "selfcheck.sh: the build failed" >&2
  exit 2
fi
build/dbgdata selfcheck
