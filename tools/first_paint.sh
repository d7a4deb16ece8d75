#!/bin/bash
# SPDX-License-Identifier: MIT
# Which is on the screen first, the game or Debian's sgt-solo: tools/first_paint.sh [TURNS] [GAME]
#   TURNS  20 when left out; in each both are started, one after the other, first the one and in the next turn the other
#   GAME   the program, build/release/bin/kestrel-sudoku when left out; built when it is not there
# Measures from the start of a program until its picture is on a screen of its own with a window manager, for a home
# with settings and without a session bus. Prints the times in the middle and how often the game was first. Compare
# only figures of one run, and of a machine that does nothing else. Needs paint_packages of tools/packages.sh.
set -eu
cd "$(dirname "$0")/.."
turns=${1:-20}
game=${2:-build/release/bin/kestrel-sudoku}
case $turns in
  0 | *[!0-9]*)
    echo "usage: tools/first_paint.sh [TURNS] [GAME]" >&2
    exit 2
    ;;
esac
if [ ! -x "$game" ]; then
  cmake --preset release -DKESTREL_QT=ON >/dev/null
  cmake --build build/release --target kestrel-sudoku >/dev/null
fi
work=$(mktemp -d)
started=()
trap 'for pid in "${started[@]}"; do kill "$pid" 2>/dev/null || true; done; rm -rf "$work"' EXIT
c++ -std=c++20 -O2 -o "$work/first-paint" tools/window/first_paint.cpp $(pkg-config --cflags --libs xcb)
mkdir "$work/home"
printf '[Options]\nLevel="3"\n[View]\nColours="Light"\nSize="100"\n' >"$work/home/settings.ini"
export HOME=$work XDG_CONFIG_HOME=$work/config XDG_RUNTIME_DIR=$work # nothing of who measures
export DBUS_SESSION_BUS_ADDRESS=disabled: NO_AT_BRIDGE=1
unset WAYLAND_DISPLAY QT_QPA_PLATFORM

# The server says which number it got.
Xvfb -displayfd 3 -screen 0 1280x1000x24 3>"$work/number" >/dev/null 2>&1 &
started+=($!)
while [ ! -s "$work/number" ]; do sleep 0.1; done
DISPLAY=:$(cat "$work/number")
export DISPLAY
metacity >/dev/null 2>&1 &
started+=($!)
sleep 2

game_once() { "$work/first-paint" "$game" --home "$work/home"; }
solo_once() { "$work/first-paint" /usr/games/sgt-solo; }

game_once >/dev/null # into memory
solo_once >/dev/null
for turn in $(seq "$turns"); do
  if ((turn % 2)); then
    ours=$(game_once) solo=$(solo_once)
  else
    solo=$(solo_once) ours=$(game_once)
  fi
  echo "$ours $solo"
done >"$work/times"

middle() { cut -d' ' -f"$1" "$work/times" | sort -n | awk '{ t[NR] = $1 } END { print t[int((NR + 1) / 2)] }'; }
echo "kestrel-sudoku   painted after $(middle 1) ms in the middle of $turns"
echo "sgt-solo         painted after $(middle 2) ms"
awk '$1 < $2 { first++ } END { printf "kestrel-sudoku first in %d of %d turns\n", first, NR }' "$work/times"
