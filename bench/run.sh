#!/usr/bin/env bash
# Builds eeprog in Release and runs every benchmark. Not part of CI: the figures depend on
# the machine. They run under Xvfb, where the window's paced read paints on a real X server
# at what painting costs on a desktop; the others keep to Qt's offscreen platform. A benchmark that misses its target says so on the error
# output; the others still run, and the script then ends with a failure.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/deps.sh xvfb xauth
cmake -S . -B build-bench -G Ninja -DCMAKE_BUILD_TYPE=Release
cmake --build build-bench
fallidos=()
for banco in build-bench/bin/*_bench; do
  xvfb-run -a -s "-screen 0 1280x1024x24" "$banco" || fallidos+=("$(basename "$banco")")
done
if ((${#fallidos[@]})); then
  echo "Fuera de objetivo: ${fallidos[*]}" >&2
  exit 1
fi
