#!/usr/bin/env bash
# Decodes the same packets with zepril-tool and with decode_aprs (Debian package direwolf), five times
# each in turn, and prints the best times and their ratio.
# usage: bench/compare_decode.sh BUILD_FOLDER [LINES]
set -eu
build=${1:?build folder}
lines=${2:-100000}
input=$(mktemp)
trap 'rm -f "$input"' EXIT
"$build/bench/tnc2_lines" "$lines" > "$input"
best() {  # seconds of the faster of two figures
  awk -v a="$1" -v b="$2" 'BEGIN { print (a < b) ? a : b }'
}
seconds() {
  local start end
  start=$(date +%s%N)
  "$@" < "$input" > /dev/null 2>&1
  end=$(date +%s%N)
  awk -v n=$((end - start)) 'BEGIN { printf "%.4f", n / 1e9 }'
}
ours=999 theirs=999
for _ in 1 2 3 4 5; do
  ours=$(best "$ours" "$(seconds "$build/src/tool/zepril-tool" decode --tnc2 --now 2024-01-15T12:34)")
  theirs=$(best "$theirs" "$(seconds decode_aprs)")
done
awk -v o="$ours" -v t="$theirs" -v n="$lines" \
  'BEGIN { printf "%d packets: zepril-tool %.3f s, decode_aprs %.3f s, %.1f times as fast\n", n, o, t, t / o }'
