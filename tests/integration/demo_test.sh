#!/usr/bin/env bash
# The demonstration on a virtual display, in a folder of its own below the build folder given.
set -euo pipefail
build=$1
for program in Xvfb xdotool import convert; do
  command -v "$program" >/dev/null || {
    echo "$program is not installed (packages xvfb, xdotool, imagemagick)"
    exit 77
  }
done
unset DISPLAY WAYLAND_DISPLAY
export ZEPRIL_DEMO_FOLDER=$build/demo ZEPRIL_SCREENSHOT=$build/demo.png ZEPRIL_DEMO_RATE=60
# Font and display libraries keep what they allocate once.
export ASAN_OPTIONS=detect_leaks=0
exec "$(dirname "${BASH_SOURCE[0]}")/../../scripts/demo" "$build"
