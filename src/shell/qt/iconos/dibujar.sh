#!/usr/bin/env bash
# Redraws every PNG of this folder from its sources: the eight button pictures and the
# 32 x 32 window icon are pixel art drawn by dibujar.py; the 48 and 128 pixel application
# icons are eeprog.svg rendered with librsvg (rsvg-convert, or svgapng.py without it).
set -euo pipefail
cd "$(dirname "$0")"

python3 dibujar.py

svgapng() {
    if command -v rsvg-convert >/dev/null 2>&1; then
        rsvg-convert -w "$2" -h "$2" -o "$3" "$1"
    else
        python3 svgapng.py "$1" "$2" "$3"
    fi
}

svgapng eeprog.svg 48 eeprog-48.png
svgapng eeprog.svg 128 eeprog-128.png
