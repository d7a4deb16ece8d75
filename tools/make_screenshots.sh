#!/bin/sh
# SPDX-License-Identifier: MIT
# Pictures of the windows: tools/make_screenshots.sh PROGRAMS [FOLDER]
#   PROGRAMS  the folder of the built programs, such as build/release/bin
#   FOLDER    takes every screen in every size and palette, to be looked at: SCREEN-PALETTE-SIZE.png
# Without FOLDER, the two pictures of the README are taken, off screen. With it, the game is played by pointer on
# a screen of its own; needs Xvfb, metacity, xdotool and import (imagemagick), and takes some minutes.
set -eu
cd "$(dirname "$0")/.."
bin=${1:-build/release/bin}
folder=${2:-}
work=$(mktemp -d)
started=""
trap 'for pid in $started; do kill "$pid" 2>/dev/null || true; done; rm -rf "$work"' EXIT

# settings PALETTE SIZE GUIDE: a new home.
settings() {
  rm -rf "$work/home"
  mkdir "$work/home"
  printf '[Options]\nLevel="3"\n[View]\nColours="%s"\nSize="%s"\nGuide="%s"\n' "$1" "$2" "$3" >"$work/home/settings.ini"
}

if [ -z "$folder" ]; then
  for palette in Light Dark; do
    settings $palette 100 False
    QT_QPA_PLATFORM=offscreen "$bin/kestrel-sudoku" --home "$work/home" \
      --screenshot "docs/pictures/main_window_$(echo $palette | tr LD ld).png"
  done
  exit 0
fi

# click X Y [BUTTON]: in pixels of the main window at 100 per cent.
click() {
  xdotool mousemove --window "$window" $(($1 * size / 100)) $(($2 * size / 100))
  sleep 0.1
  xdotool click "${3:-1}"
  sleep 0.5
}

# take SCREEN: the whole screen, so that tooltips and dialogs are on it. A window that closes meanwhile ends import
# with an error: once more.
take() {
  sleep "${2:-0.3}"
  for _ in 1 2; do
    import -window root -trim +repage "$folder/$1-$palette-$size.png" && return
  done
  return 1
}

play() {
  settings "$palette" "$size" True
  "$bin/kestrel-sudoku" --home "$work/home" &
  game=$!
  started="$started $game"
  window=$(timeout 30 xdotool search --sync --onlyvisible --pid $game --name 'Kestrel Sudoku -' | head -1)
  take start 1
  click 732 169
  take view_menu
  xdotool key Escape
  click 320 337 # the card's Next
  take play
  click 475 612 # Hint
  click 25 95   # row A and column 1: the cell for Reset Cell
  click 90 25
  xdotool mousemove --window "$window" $((320 * size / 100)) $((320 * size / 100))
  take hint_and_lens 0.8
  xdotool mousemove --window "$window" $((96 * size / 100)) $((610 * size / 100))
  take tooltip 1.5
  click 555 612 # Solution
  take solution
  click 732 25
  take players
  xdotool key Escape
  click 155 612
  take open
  xdotool key Escape
  click 645 612
  take print 1
  xdotool key Escape
  click 550 645 # the level's best time
  take records 1
  xdotool key Escape
  click 724 146 # renew Very Hard
  take question
  xdotool key Escape
  click 725 612
  take help 1.5
  kill $game
  wait $game 2>/dev/null || true
}

mkdir -p "$folder"
DISPLAY=:${KESTREL_DISPLAY:-97}
export DISPLAY
Xvfb "$DISPLAY" -screen 0 1800x1440x24 >/dev/null 2>&1 &
started="$started $!"
sleep 1
metacity >/dev/null 2>&1 &
started="$started $!"
sleep 1
for palette in Light Dark High_Contrast; do
  for size in 75 100 125 150 200; do play; done
done
