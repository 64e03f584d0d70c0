#!/usr/bin/env bash
# Builds eeprog in Release and runs every benchmark. Not part of CI: the figures depend on
# the machine. A benchmark that misses its target shows an error; the others still run, and
# the script then ends with a failure.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/deps.sh
cmake -S . -B build-bench -G Ninja -DCMAKE_BUILD_TYPE=Release
cmake --build build-bench
fallidos=()
for banco in build-bench/bin/*_bench; do
  "$banco" || fallidos+=("$(basename "$banco")")
done
if ((${#fallidos[@]})); then
  echo "Fuera de objetivo: ${fallidos[*]}" >&2
  exit 1
fi
