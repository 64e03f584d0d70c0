#!/usr/bin/env bash
# Builds eeprog in Release and runs every benchmark. Not part of CI: the figures depend on
# the machine, and the targets are read from them by hand.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/deps.sh
cmake -S . -B build-bench -G Ninja -DCMAKE_BUILD_TYPE=Release
cmake --build build-bench
for banco in build-bench/bin/*_bench; do
  "$banco"
done
