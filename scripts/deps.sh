#!/usr/bin/env bash
# Installs the Debian packages the project needs, only when one is missing.
# Usage: scripts/deps.sh [extra-package ...]
set -euo pipefail

packages=(cmake g++ make pkg-config clang-format libxerces-c-dev libpugixml-dev libgtest-dev libbenchmark-dev "$@")
missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "Installing missing packages: ${missing[*]}"
if [ "$(id -u)" -eq 0 ]; then sudo=(); else sudo=(sudo); fi
export DEBIAN_FRONTEND=noninteractive
"${sudo[@]}" apt-get update -qq
"${sudo[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
