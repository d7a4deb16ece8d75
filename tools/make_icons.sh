#!/bin/sh
# SPDX-License-Identifier: MIT
# Renders the icons and the logo of data/icons from their drawings: tools/make_icons.sh
# Needs rsvg-convert (librsvg2-bin) and optipng. Up to 32 pixels the icon has a drawing of its own, without the
# details that would blur there.
set -eu
cd "$(dirname "$0")/../data/icons"
for size in 16 22 24 32; do
  rsvg-convert -w $size -h $size kestrel-sudoku-small.svg -o kestrel-sudoku-$size.png
done
for size in 48 64 128 256; do
  rsvg-convert -w $size -h $size kestrel-sudoku.svg -o kestrel-sudoku-$size.png
done
rsvg-convert logo.svg -o logo.png
rsvg-convert -z 2 logo.svg -o logo@2x.png
rsvg-convert -z 3 logo.svg -o logo@3x.png
optipng -quiet -strip all ./*.png
