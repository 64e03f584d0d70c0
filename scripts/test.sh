#!/usr/bin/env bash
# Installs what is missing, builds eeprog with AddressSanitizer and UndefinedBehaviorSanitizer,
# and runs every test. GUI tests draw on Qt's offscreen platform: no display is needed.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/deps.sh
cmake -S . -B build-test -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DEEPROG_SANITIZE=ON
cmake --build build-test
cd build-test
ctest --output-on-failure --timeout 300 -j "$(nproc)"
