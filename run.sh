#!/bin/sh
# SPDX-License-Identifier: MIT
# Installs what is missing, builds the game and starts it. Arguments go to the game.
set -eu
cd "$(dirname "$0")"
mkdir -p build
. tools/setup.sh
window=build/release/bin/kestrel-sudoku
# A window that was built once is only brought up to date; all else waits until that does not work.
if [ ! -x $window ] || ! cmake --build build/release --target kestrel-sudoku; then
  install_with_window $build_packages
  [ -z "${WAYLAND_DISPLAY:-}" ] || install $wayland_packages || true
  configure -DKESTREL_TESTS=OFF
  if ! grep -q '^build bin/kestrel-sudoku:' build/release/build.ninja; then
    cmake --build build/release --target kestrel-sudoku-cli
    echo "No window in this build: the engine at work on the stock of 500 puzzles."
    ./build/release/bin/kestrel-sudoku-cli stock verify --stock data/sudstock.kpz
    ./build/release/bin/kestrel-sudoku-cli stock export --stock data/sudstock.kpz - | tail -n 1 |
      ./build/release/bin/kestrel-sudoku-cli solve --steps
    exit 0
  fi
  cmake --build build/release --target kestrel-sudoku
fi
if [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  picture=build/kestrel-sudoku.png
  echo "There is no display: the window is opened off screen and its picture saved as $picture."
  QT_QPA_PLATFORM=offscreen $window --home build/home --screenshot $picture "$@"
  exit 0
fi
exec $window "$@"
