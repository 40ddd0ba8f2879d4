#!/usr/bin/env bash
# The installed tree, moved away from where it was installed: the tool runs, the program starts and
# lives in its own folder, also where no file may grow.
#
#   installed_test.sh CMAKE BUILD_FOLDER
set -euo pipefail
cmake=$1
build=$(cd "$2" && pwd)

work=$(mktemp -d)
program=
clean_up() {
  [ -z "$program" ] || kill -KILL "$program" 2>/dev/null || true
  wait 2>/dev/null || true
  rm -rf "$work"
}
trap clean_up EXIT
trap 'exit 130' INT TERM

fail() {
  echo "FAILED: $*"
  cat "$work"/*.log 2>/dev/null || true
  exit 1
}
# until_true SECONDS COMMAND...: waits for the command to succeed.
until_true() {
  local end=$((SECONDS + $1))
  shift
  until "$@"; do
    [ $SECONDS -lt $end ] || return 1
    sleep 0.1
  done
}

"$cmake" --install "$build" --prefix "$work/first" >"$work/install.log" 2>&1 || fail "nothing was installed"
mv "$work/first" "$work/moved"
folder=$work/moved
mkdir -m 700 "$work/home" "$work/drive" "$work/run"
cd "$work/home"
unset DISPLAY WAYLAND_DISPLAY TEMP
export HOME=$work/home ZEPRIL_DRIVE_C=$work/drive XDG_RUNTIME_DIR=$work/run QT_QPA_PLATFORM=offscreen
# Font and display libraries keep what they allocate once.
export ASAN_OPTIONS=detect_leaks=0

# ---- The tool
line=$(echo "13.4 52.5" | "$folder/zepril-tool" coords --zone 33)
[ "$(wc -w <<<"$line")" -ge 12 ] || fail "zepril-tool coords printed: $line"
packet='QX7KB-9>APRS,QX0DIG*:=5405.12N/01208.40E>test'
record=$(echo "$packet" | "$folder/zepril-tool" decode --tnc2 --now 2024-01-15T12:34)
case $record in
  *QX7KB-9*) ;;
  *) fail "zepril-tool decode printed: $record" ;;
esac

# ---- The program: started, seen to draw its maps, asked to end as at log-out.
"$folder/zepril" >"$work/program.log" 2>&1 </dev/null &
program=$!
has_begun() { [ -e "$folder/ZEPRIL.RUN" ] && [ -n "$(find "$folder" -name '*.BMP' -path '*NEW~*' -print -quit)" ]; }
has_begun_or_gone() { has_begun || ! kill -0 "$program" 2>/dev/null; }
until_true 60 has_begun_or_gone || fail "the program did not begin"
kill -0 "$program" 2>/dev/null || fail "the program ended by itself"
kill -TERM "$program"
gone() { ! kill -0 "$program" 2>/dev/null; }
until_true 30 gone || fail "the program did not end when it was asked to"
wait "$program" || fail "the program ended with status $?"
program=

[ -s "$folder/WINDOW.TXT" ] || fail "the program did not keep its windows in its folder"
[ -z "$(ls -A "$work/drive")" ] || fail "the program wrote outside of its folder: $(ls -A "$work/drive")"
# ---- Started again where no file may grow: one that can't be written is not the program's end.
find "$folder" -name 'NEW~*' -prune -exec rm -rf {} +
(ulimit -f 0; exec "$folder/zepril") >/dev/null 2>&1 </dev/null &
program=$!
has_begun() { [ -n "$(find "$folder" -name 'NEW~*' -print -quit)" ]; }
until_true 60 has_begun_or_gone || fail "the program did not begin where no file may grow"
kill -TERM "$program" 2>/dev/null || true
until_true 30 gone || fail "the program did not end where no file may grow"
wait "$program" || fail "where no file may grow the program ended with status $?"
program=

echo "installed: fine"
