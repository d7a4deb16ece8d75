#!/bin/sh
# SPDX-License-Identifier: MIT
# Pictures of all help pages, to be looked at after a change: tools/picture_help.sh BUILD_FOLDER FOLDER
# In the help window (520 and 1280 pixels, light, dark, high contrast) and, where chromium is installed, in a browser
# (360 and 1200 pixels, light and dark). With imagemagick, also sheets with many pages on each: sheet-*.png.
set -eu
cd "$(dirname "$0")/.."
build=$1
out=$2
cmake --build "$build" --target picture-help
for scheme in light dark contrast; do
  for size in 520x700 1280x765; do
    width=${size%x*}
    mkdir -p "$out/window-$scheme-$width"
    QT_QPA_PLATFORM=offscreen "$build/bin/picture-help" data/help "$out/window-$scheme-$width" \
      "$width" "${size#*x}" $scheme
  done
done
if command -v chromium >/dev/null; then
  for width in 360 1200; do
    for scheme in light dark; do
      folder="$out/browser-$scheme-$width"
      mkdir -p "$folder"
      dark=""
      [ $scheme = light ] || dark="--blink-settings=preferredColorScheme=0"
      for page in data/help/*.html; do
        chromium --headless --no-sandbox --hide-scrollbars $dark --window-size=$width,4000 \
          --screenshot="$folder/$(basename "$page" .html).png" "file://$PWD/$page" >/dev/null 2>&1
      done
    done
  done
fi
command -v montage >/dev/null || exit 0
for folder in "$out"/*-*-*/; do
  name=$(basename "$folder")
  montage "$folder"*.png -tile 6x -geometry 400x1200+4+4 -gravity north "$out/sheet-$name.png"
done
