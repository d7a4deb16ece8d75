#!/bin/sh
# SPDX-License-Identifier: MIT
# Takes the README's picture of the main window, off screen: tools/make_screenshot.sh [FOLDER OF THE PROGRAMS]
set -eu
cd "$(dirname "$0")/.."
bin=${1:-build/release/bin}
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
printf '[Options]\nLevel="3"\n' >"$home/settings.ini"
QT_QPA_PLATFORM=offscreen "$bin/kestrel-sudoku" --home "$home" --screenshot docs/pictures/main_window.png
