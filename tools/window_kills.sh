#!/bin/sh
# SPDX-License-Identifier: MIT
# The real window, played with mouse and keys under Xvfb and killed at random moments: nothing may be lost.
# tools/window_kills.sh [KILLS [SEED]]     about 10 s each on a busy machine
set -eu
cd "$(dirname "$0")/.."
. tools/setup.sh
install $build_packages $window_packages $kill_packages
cmake --preset release -DKESTREL_QT=ON >/dev/null
cmake --build build/release --target kestrel-sudoku kestrel-sudoku-cli
xvfb-run -a -s '-screen 0 1280x1024x24 -noreset' python3 tools/window_kills.py build/release "${1:-500}" "${2:-1}"
