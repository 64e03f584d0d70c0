#!/usr/bin/env bash
# Vuelve a hacer Eeprog.bmp desde Eeprog.svg con ImageMagick (con su lector de
# SVG propio). Sale un BMP de 16 colores (4 bits por punto, sin comprimir).
set -euo pipefail
cd "$(dirname "$0")"
convert Eeprog.svg +dither -colors 16 -type Palette -compress None BMP3:Eeprog.bmp
