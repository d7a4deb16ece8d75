#!/bin/sh
# SPDX-License-Identifier: MIT
# What the help pages show and lead to is installed with them: installed_help_is_whole.sh BUILD_FOLDER
set -eu
prefix=$(mktemp -d)
trap 'rm -rf "$prefix"' EXIT
cmake --install "$1" --prefix "$prefix" >/dev/null
cd "$prefix/share/kestrel-sudoku/help"
cat ./*.html | grep -oE '(src|href)="[^":#]+' | cut -d'"' -f2 | sort -u >"$prefix/wanted"
grep -q '[.]svg$' "$prefix/wanted"
while read -r file; do
  [ -f "$file" ] || { echo "$file is not installed"; exit 1; }
done <"$prefix/wanted"
