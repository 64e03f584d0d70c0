#!/usr/bin/env bash
# Installs what eeprog needs to build, run and test, on Debian 12, if it is missing.
# Run by run.sh, test.sh and bench/run.sh, as root (or with sudo at hand); extra packages
# may be named as arguments.
set -euo pipefail

paquetes=(
  cmake ninja-build g++ pkg-config
  qt6-base-dev qt6-serialport-dev libqt6serialport6 qt6-qpa-plugins
  qt6-translations-l10n  # Qt's own dialog buttons in Spanish
  libgtest-dev libgmock-dev libbenchmark-dev
  binutils srecord  # objcopy and srec_cat: the tests open the files they make
  fonts-liberation2 fonts-dejavu-core
  dpkg-dev file  # cpack -G DEB: dpkg-shlibdeps, and file to find the programs in the package
  gcc-avr avr-libc binutils-avr  # the board's firmware
  simavr libsimavr-dev libelf-dev  # the simulated board that runs it
)
# What a caller needs besides, such as the X server of the benchmarks.
paquetes+=("$@")

faltan=()
for paquete in "${paquetes[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$paquete" 2>/dev/null | grep -q 'install ok installed'; then
    faltan+=("$paquete")
  fi
done

if ((${#faltan[@]})); then
  como=()
  if [ "$(id -u)" -ne 0 ]; then como=(sudo); fi
  echo "Instalando: ${faltan[*]}"
  "${como[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -q
  "${como[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "${faltan[@]}"
fi
