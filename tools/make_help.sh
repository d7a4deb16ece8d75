#!/bin/sh
# SPDX-License-Identifier: MIT
# Makes the help pages and their pictures again: tools/make_help.sh BUILD_FOLDER
# Needs a build of make-help, and rsvg-convert (librsvg2-bin), pngquant, optipng and fonts-liberation for the
# pictures. Only pictures that changed are rendered.
set -eu
make_help=$(realpath "$1")/bin/make-help
cd "$(dirname "$0")/.."
"$make_help" .
cd data/help/pictures
for svg in *.svg; do
  name=${svg%.svg}
  for zoom in 1 2; do
    png=$name.png
    [ $zoom = 1 ] || png=$name@${zoom}x.png
    if [ ! -e "$png" ] || [ "$svg" -nt "$png" ]; then
      rsvg-convert -z $zoom "$svg" | pngquant --speed 1 --strip 32 - >"$png"
      optipng -quiet -o2 "$png"
    fi
  done
done
