#!/usr/bin/env bash
# Builds the file intake fuzzer with clang in build-fuzz and runs it for a minute (or for
# the seconds given as the first argument). Not part of CI. A crash, a sanitizer report or a
# hang ends the run with a non-zero status and leaves the input in build-fuzz/.
set -euo pipefail
cd "$(dirname "$0")/.."
segundos="${1:-60}"

if ! command -v clang++ >/dev/null; then
  como=()
  if [ "$(id -u)" -ne 0 ]; then como=(sudo); fi
  "${como[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -q
  "${como[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -q clang libclang-rt-dev
fi

cmake -S . -B build-fuzz -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_COMPILER=clang++ \
  -DEEPROG_FUZZ=ON -DEEPROG_TESTS=OFF -DEEPROG_BENCH=OFF
cmake --build build-fuzz --target intake_fuzz

# Seeds: small files of both formats as other tools write them, CR LF and LF alone, a full
# chip in Intel HEX, and files of both formats too long for the record buffer, which the
# intakes cut short.
semillas=build-fuzz/semillas
mkdir -p "$semillas" build-fuzz/corpus

# lineahex ADDRESS BYTE... : one Intel HEX data line into $linea, checksum included, no line
# end. printf -v rather than $(...), so that a thousand lines take no thousand processes.
lineahex() {
  local direccion=$1 suma byte
  shift
  suma=$(($# + (direccion >> 8) + (direccion & 255)))
  printf -v linea ':%02X%04X00' $# "$direccion"
  for byte in "$@"; do
    printf -v linea '%s%02X' "$linea" "$byte"
    suma=$((suma + byte))
  done
  printf -v linea '%s%02X' "$linea" $(((256 - suma % 256) % 256))
}

# lineas1 ADDRESS BYTE... : one S1 line into $linea, checksum included, no line end.
lineas1() {
  local direccion=$1 suma byte
  shift
  suma=$(($# + 3 + (direccion >> 8) + (direccion & 255)))
  printf -v linea 'S1%02X%04X' $(($# + 3)) "$direccion"
  for byte in "$@"; do
    printf -v linea '%s%02X' "$linea" "$byte"
    suma=$((suma + byte))
  done
  printf -v linea '%s%02X' "$linea" $((255 - suma % 256))
}

datos=(2 12 34 56 120 171 205 239 0 1 127 128 254 255 16 32)
{
  lineahex 0 "${datos[@]}" && printf '%s\r\n' "$linea"
  lineahex 16 "${datos[@]:0:8}" && printf '%s\r\n' "$linea"
  printf ':00000001FF\r\n'
} >"$semillas/corto.hex"
{
  lineahex 8176 "${datos[@]}" && printf '%s\n' "$linea"
  lineahex 256 65 66 67 && printf '%s\n' "$linea"
  printf ':00000001FF\n'
} >"$semillas/lf.hex"
{
  printf 'S00600004844521B\r\n'
  lineas1 0 "${datos[@]}" && printf '%s\r\n' "$linea"
  lineas1 16 "${datos[@]:0:8}" && printf '%s\r\n' "$linea"
  printf 'S9030000FC\r\n'
} >"$semillas/corto.obj"
{
  lineas1 8176 "${datos[@]}" && printf '%s\n' "$linea"
  lineas1 512 1 2 3 && printf '%s\n' "$linea"
  printf 'S9030000FC\n'
} >"$semillas/lf.obj"
{
  for ((direccion = 0; direccion < 8192; direccion += 16)); do
    lineahex "$direccion" "${datos[@]}" && printf '%s\r\n' "$linea"
  done
  printf ':00000001FF\r\n'
} >"$semillas/lleno.hex"
# 1500 lines of 22 entries each: more than the buffer holds.
for ((direccion = 0; direccion < 1500 * 16; direccion += 16)); do
  lineahex "$direccion" "${datos[@]}" && printf '%s\r\n' "$linea" >&3
  lineas1 "$direccion" "${datos[@]}" && printf '%s\r\n' "$linea" >&4
done 3>"$semillas/tope.hex" 4>"$semillas/tope.obj"

# max_len keeps whole the seeds that overfill the record buffer (32767 entries, two
# characters each); a single input taking 10 s is taken for a hang.
build-fuzz/bin/intake_fuzz build-fuzz/corpus "$semillas" -max_total_time="$segundos" -max_len=70000 \
  -timeout=10 -artifact_prefix=build-fuzz/ -print_final_stats=1
