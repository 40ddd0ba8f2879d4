#!/usr/bin/env bash
# A session of the real program on a virtual display: START by Enter, stations of an engine in the
# log, the engine is killed and comes back on the same port, the system asks the program to end.
#
#   xvfb_session.sh BUILD_FOLDER
#
# Ends with 77 when the machine lacks what it needs.
set -euo pipefail
build=$(cd "$1" && pwd)
sources=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)

for program in Xvfb xdotool; do
  command -v "$program" >/dev/null || {
    echo "$program is not installed (packages xvfb, xdotool)"
    exit 77
  }
done

built() { find "$build" -type f -name "$1" -perm -u+x -print -quit; }
program=$(built zepril)
tool=$(built zepril-tool)
[ -n "$program" ] && [ -n "$tool" ] || {
  echo "zepril and zepril-tool are not built"
  exit 1
}

work=$(mktemp -d)
pids=()
clean_up() {
  local pid
  for pid in "${pids[@]}"; do kill -KILL "$pid" 2>/dev/null || true; done
  wait 2>/dev/null || true
  rm -rf "$work"
}
trap clean_up EXIT
trap 'exit 130' INT TERM

fail() {
  echo "FAILED: $*"
  sed 's/^/program: /' "$work/program.log" 2>/dev/null || true
  tail -5 "$records" 2>/dev/null || true
  exit 1
}
# until_true SECONDS COMMAND...: waits for the command to succeed.
until_true() {
  local end=$((SECONDS + $1))
  shift
  until "$@"; do
    [ $SECONDS -lt $end ] || return 1
    sleep 0.2
  done
}

# ---- A program folder of its own, with no map but an empty one: that keeps the start short.
folder=$work/ZEPRIL
settings=$folder/ZEPRIL.INI
records=$folder/U33/LOG/_LOGL_.TXT
mkdir -p "$folder/U33/M0050" "$folder/TEMP"

engine_log=$work/engine.log
traffic=$work/traffic.txt
for number in 1 2 3 4 5 6 7 8 9; do
  printf 'QX%dAB>APRS,QX0DIG*:=58%02d.00N/01324.00E>station %d\n' "$number" "$number" "$number"
done >"$traffic"

# start_engine PORT: 0 takes any free one.
start_engine() {
  : >"$engine_log"
  "$tool" air --agw "$1" --play "$traffic" --rate 4 --repeat >"$engine_log" 2>&1 </dev/null &
  engine=$!
  pids+=("$engine")
  until_true 10 grep -q '^READY ' "$engine_log" || {
    cat "$engine_log"
    fail "the engine did not start"
  }
  port=$(sed -n 's/^READY //p' "$engine_log")
}
start_engine 0

printf '%s\r\n' LANG=1 USER=QX7KB MSYS=U33 'UMAPS=C:\ZEPRIL\U33' 'TEMP=C:\ZEPRIL\TEMP' MODEM=3 \
  HOSTC=127.0.0.1 "HOSTP=$port" HBAUD=1200 CALL=QX7KB-9 DISA=0 LOGS=1 IONA=0 UTN=6444.500 \
  UTE=400.250 UUN=5817.860 UUE=391.394 >"$settings"

# ---- A display and the program on it.
Xvfb -displayfd 3 -screen 0 1280x800x24 -nolisten tcp 3>"$work/display" >/dev/null 2>&1 </dev/null &
pids+=($!)
until_true 20 test -s "$work/display" || fail "the virtual display did not start"
DISPLAY=:$(cat "$work/display")
unset WAYLAND_DISPLAY
export DISPLAY QT_QPA_PLATFORM=xcb QT_SCALE_FACTOR=1 ZEPRIL_DRIVE_C=$work
# Font and display libraries keep what they allocate once.
export ASAN_OPTIONS=detect_leaks=0

"$program" >"$work/program.log" 2>&1 </dev/null &
zepril=$!
pids+=("$zepril")
lives() { kill -0 "$zepril" 2>/dev/null; }
gone() { ! lives; }
has_window() { xdotool search --onlyvisible --name "$1" >/dev/null 2>&1; }
has_main_window() { has_window '^ZEP' && ! has_window '^ZEP RIL  START'; }

# ---- START by Enter.
until_true 30 has_window '^ZEP RIL  START' || fail "the start window did not open"
press_enter() {
  xdotool search --onlyvisible --name '^ZEP RIL  START' windowfocus --sync key Return 2>/dev/null || true
  sleep 0.5
  has_main_window
}
until_true 30 press_enter || fail "Enter did not start the program"

# ---- Stations come into the log.
calls() {
  [ -f "$records" ] || return 0
  LC_ALL=C cut -b 33-41 "$records" | tr -d '\r' | sed 's/ *$//' | LC_ALL=C sort -u | sed '/^$/d'
}
count_calls() { [ "$(calls | wc -l)" -ge "$1" ]; }
until_true 60 count_calls 3 || fail "fewer than 3 stations in the log"
echo "heard: $(calls | tr '\n' ' ')"

# ---- The engine dies. The program lives on and shows no box.
kill -KILL "$engine"
wait "$engine" 2>/dev/null || true
sleep 3
lives || fail "the program ended with its engine"
has_window 'TCP/IP AGWPE' && fail "a box about the lost engine"
records_before=$(wc -l <"$records")
engine_port=$port

# ---- The engine comes back with other stations: they arrive without any help.
for number in 1 2 3; do
  printf 'QX%dNEW>APRS:=57%02d.00N/01324.00E>back again\n' "$number" "$number"
done >"$traffic"
start_engine "$engine_port"
[ "$port" = "$engine_port" ] || fail "the engine came back on another port"
heard_again() { calls | grep -q 'NEW$'; }
until_true 60 heard_again || fail "nothing was heard after the engine came back"
echo "records: $records_before before the engine died, $(wc -l <"$records") now"

index_files() { find "$folder/TEMP" -iname '*.DIR' | wc -l; }
[ "$(index_files)" -gt 0 ] || fail "no index files while the program runs"

# ---- The system ends the program.
kill -TERM "$zepril"
until_true 20 gone || fail "the program did not end when asked to"
status=0
wait "$zepril" || status=$?
[ "$status" -eq 0 ] || fail "the program ended with status $status"
left=$(index_files)
[ "$left" -eq 0 ] || fail "$left index files are left"
grep -q $'^UTN=6444\.5\r*$' "$settings" || fail "UTN is not kept: $(grep ^UTN "$settings")"
grep -q $'^UTE=400\.25\r*$' "$settings" || fail "UTE is not kept: $(grep ^UTE "$settings")"
echo "session: fine"
