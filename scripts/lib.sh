# Shared by ./run and ./test: what a fresh Debian machine needs, and where things are.
# shellcheck shell=bash

jobs=$(nproc 2>/dev/null || echo 2)

say() { printf '== %s\n' "$*" >&2; }
fail() {
  printf '%s: %s\n' "$(basename "$0")" "$*" >&2
  exit 1
}

# need PACKAGE...: installs those that are missing.
need() {
  local missing=() package
  command -v dpkg-query >/dev/null || return 0 # another system: what is missing shows soon enough
  for package in "$@"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' ||
      missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  say "installing ${missing[*]}"
  local root=()
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || fail "needs sudo to install: ${missing[*]}"
    root=(sudo)
  fi
  # A package list that is too old names files that are gone: it is fetched anew first.
  "${root[@]}" apt-get update -qq </dev/null >&2 || say "package lists could not be refreshed"
  "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq \
    --no-install-recommends "${missing[@]}" </dev/null >&2 ||
    fail "could not install: ${missing[*]}"
}

build_packages=(g++ cmake ninja-build ccache qt6-base-dev qt6-multimedia-dev qt6-serialport-dev libgtest-dev libgmock-dev libbenchmark-dev)

# configure PRESET [cmake arguments]: writes build/PRESET, loud only when it fails.
configure() {
  local preset=$1 log
  shift
  log=build/$preset-configure.log
  mkdir -p build
  # Another checkout of the same sources profits from what was compiled here.
  export CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1
  command -v ccache >/dev/null || set -- -DCMAKE_CXX_COMPILER_LAUNCHER= "$@"
  cmake --preset "$preset" "$@" >"$log" 2>&1 </dev/null || {
    cat "$log" >&2
    fail "configuring $preset failed"
  }
}

# build PRESET [targets...]
build() {
  local preset=$1
  shift
  local targets=()
  [ $# -gt 0 ] && targets=(--target "$@")
  cmake --build "build/$preset" -j "$jobs" "${targets[@]}" </dev/null >&2 ||
    fail "building $preset failed"
}

# built FOLDER NAME: the path of a program built there, the newest of that name.
built() {
  local found
  found=$(find "$1" -type f -name "$2" -perm -u+x -printf '%T@ %p\n' | sort -rn | sed -n '1s/^[^ ]* //p')
  [ -n "$found" ] || fail "$2 was not built"
  printf '%s\n' "$found"
}
