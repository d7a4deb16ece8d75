#!/bin/sh
# SPDX-License-Identifier: MIT
# Installs what is missing, builds the game and starts it. Arguments go to the game.
set -eu
cd "$(dirname "$0")"
mkdir -p build
. tools/setup.sh
install $build_packages || true
configure -DKESTREL_TESTS=OFF
cmake --build build/release --target help | grep -q '^kestrel-sudoku:' && window=yes || window=no
if [ $window = no ]; then
  cmake --build build/release --target kestrel-sudoku-cli
  echo "No window in this build: the engine at work on the stock of 500 puzzles."
  ./build/release/bin/kestrel-sudoku-cli stock verify --stock data/sudstock.kpz
  ./build/release/bin/kestrel-sudoku-cli stock export --stock data/sudstock.kpz - | tail -n 1 |
    ./build/release/bin/kestrel-sudoku-cli solve --steps
  exit 0
fi
cmake --build build/release --target kestrel-sudoku
if [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  picture=build/kestrel-sudoku.png
  echo "There is no display: the window is opened off screen and its picture saved as $picture."
  QT_QPA_PLATFORM=offscreen ./build/release/bin/kestrel-sudoku --home build/home --screenshot $picture "$@"
  exit 0
fi
exec ./build/release/bin/kestrel-sudoku "$@"
