#!/usr/bin/env bash
# Installs what is missing, builds eeprog and starts it.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/deps.sh
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=Release -DEEPROG_TESTS=OFF -DEEPROG_BENCH=OFF
cmake --build build
exec build/bin/eeprog "$@"
