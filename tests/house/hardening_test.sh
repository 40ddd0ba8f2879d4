#!/usr/bin/env bash
# A built program is guarded, and tells nothing of the machine that built it.
#
#   hardening_test.sh PROGRAM SOURCE_FOLDER
set -euo pipefail
program=$1
sources=$2
command -v readelf >/dev/null || {
  echo "readelf is not installed (package binutils)"
  exit 77
}

bad=0
expect() { # expect WHAT COMMAND...
  local what=$1
  shift
  "$@" || {
    echo "FAILED: $program: $what"
    bad=1
  }
}
header() { readelf -hW "$program" | grep >/dev/null 'Type:.*DYN'; }
dynamic() { readelf -dW "$program" | grep -E >/dev/null '\(FLAGS_1\).*NOW|BIND_NOW'; }
relro() { readelf -lW "$program" | grep >/dev/null GNU_RELRO; }
stack() { readelf --dyn-syms -W "$program" | grep >/dev/null __stack_chk_fail; }
fortified() { readelf --dyn-syms -W "$program" | grep -E >/dev/null '__[a-z]+_chk'; }
# The mark of the whole program would need every object of the system to have it too.
jumps() { objdump -d --no-show-raw-insn "$program" | grep -c endbr64 | grep -qE '^[0-9]{4,}$'; }
no_path() { ! LC_ALL=C grep -aqF "$sources" "$program"; }
no_rpath() { ! readelf -dW "$program" | grep -E >/dev/null 'RPATH|RUNPATH'; }

expect "is not position independent" header
expect "binds its names late" dynamic
expect "leaves its tables writable" relro
expect "has no guarded stacks" stack
expect "has no checked copies" fortified
[ "$(uname -m)" != x86_64 ] || expect "has no control-flow protection" jumps
expect "names the folder of its sources" no_path
expect "searches libraries in folders of its own" no_rpath
[ $bad = 0 ] && echo "$program: fine"
exit $bad
