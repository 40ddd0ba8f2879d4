#!/usr/bin/env bash
# Every layer over the sample maps, painted by the companion tool: each changes the map in its own
# colour, and nothing else of it.
#
#   layers_test.sh BUILD-FOLDER
set -euo pipefail
build=$1
command -v convert >/dev/null || {
  echo "convert is not installed (package imagemagick)"
  exit 77
}
unset DISPLAY WAYLAND_DISPLAY
export QT_QPA_PLATFORM=offscreen
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
tool=$(find "$build" -name zepril-tool -type f -perm -u+x | head -1)
make_maps=$(find "$build" -name make_sample_maps -type f -perm -u+x | head -1)
work=$build/layers
rm -rf "$work"
mkdir -p "$work/U33/UTMPICS"
mkdir -m 700 "$work/run"
export XDG_RUNTIME_DIR=$work/run
"$make_maps" data/maps "$work/U33" >/dev/null
: >"$work/U33/UTMPICS/60000300.JPG"
printf '\xfe 6010.000  320.000  HUT\r\n' >"$work/one.poi"
for point in 0 1 2 3 4 5 6 7 8 9; do
  printf '\xfe 59%d0.000  3%d0.000 20260714 120%d\r\n' "$point" "$point" "$point"
done >"$work/one.trk"

failures=0
fail() {
  echo "layers: $*"
  failures=$((failures + 1))
}

# paint NAME SWITCH...: a picture of the Mecklenburg Bight.
paint() {
  local name=$1
  shift
  "$tool" render --folder "$work" --fonts data/fonts --centre 6000,310 --tile 200 --size 900x700 \
    --level 0 --at 2026-06-21T12:00 -o "$work/$name.png" "$@"
}

# pixels NAME COLOUR: how many pixels of the picture have the colour.
pixels() {
  convert "$work/$1.png" -fill '#010203' +opaque "$2" -fill white -opaque "$2" -fill black \
    -opaque '#010203' -format '%[fx:round(mean*w*h)]' info:
}

# changed NAME: how many pixels differ from the bare map.
changed() {
  { compare -metric AE "$work/bare.png" "$work/$1.png" null: 2>&1 || true; } | sed 's/[^0-9e+.].*//'
}

# layer NAME COLOUR LEAST MOST SWITCH...: at least LEAST pixels of the colour that the bare map has
# not, and at most MOST pixels changed in all.
layer() {
  local name=$1 colour=$2 least=$3 most=$4 seen all
  shift 4
  paint "$name" "$@"
  seen=$(($(pixels "$name" "$colour") - $(pixels bare "$colour")))
  all=$(printf '%.0f' "$(changed "$name")")
  [ "$seen" -ge "$least" ] || fail "$name: $seen pixels of $colour, expected $least"
  [ "$all" -le "$most" ] || fail "$name: $all pixels changed, expected at most $most"
  [ "$all" -ge "$least" ] || fail "$name: only $all pixels changed"
}

paint bare
# The sample maps are there: no grey of a missing tile.
[ "$(pixels bare '#505050')" -eq 0 ] || fail "the sample maps are not on the picture"
layer grid-utm '#E8E8E8' 5000 40000 --grid utm
layer grid-geo '#E0E000' 1500 40000 --grid geo
layer grid-gk '#FFC0FF' 3000 40000 --grid gk
layer grid-utmpos '#00E0FF' 3000 40000 --grid utmpos
layer grid-rt90 '#00F000' 3000 40000 --grid rt90
layer circles '#000000' 3000 80000 --circles
layer detailed '#000000' 3000 90000 --circles --fopt-detailed
layer pictures '#FFFFFF' 40 600 --pictures
layer places '#FFE000' 60 3000 --poi "$work/one.poi" --poi-level 2
layer track '#00FFFF' 500 20000 --track "$work/one.trk"
cmp -s "$work/circles.png" "$work/detailed.png" && fail "three values look like Fopt"
[ "$failures" -eq 0 ] && echo "layers: all seen"
exit "$failures"
