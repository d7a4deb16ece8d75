#!/bin/sh
# SPDX-License-Identifier: MIT
# Makes the six pictures that the print dialog shows, data/PRN1.GIF to data/PRN4S.GIF, by printing:
# tools/make_previews.sh BUILD_FOLDER
# Needs pdftoppm (poppler-utils) and convert (imagemagick). To be run again when the page layout has changed or
# data/sudstock.kpz holds other puzzles.
set -eu
cli=$1/bin/kestrel-sudoku-cli
data=$(dirname "$0")/../data
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# The picture's place in the dialog is 200 x 280 pixels; this is twice that, for a scale up to 2.
# Lines thinner than a dot come out grey; the gamma keeps them visible when the picture is shown in half its size.
preview() {
  picture=$1
  shift
  "$cli" print --stock "$data/sudstock.kpz" --level 3 "$@" --output "$work/page.pdf"
  pdftoppm -r 480 -gray -singlefile "$work/page.pdf" "$work/page"
  convert "$work/page.pgm" -filter Box -resize '394x558!' -gamma 0.6 -bordercolor '#9AA3AD' -border 1 \
    +dither -colors 32 "$data/$picture"
}

for count in 1 2 4; do
  preview "PRN$count.GIF" --per-page $count --no-solutions
  preview "PRN${count}S.GIF" --per-page $count
done
