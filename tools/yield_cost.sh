#!/bin/sh
# SPDX-License-Identifier: MIT
# What asking at every step whether to go on costs when puzzles are made and rated, in processor instructions, which
# do not depend on what else the machine does: counts them for the program as it is, and with the question taken out.
set -eu
cd "$(dirname "$0")/.."
. tools/setup.sh
install $build_packages $proof_packages
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# instructions FOLDER: builds the sources there and counts for 3,000 puzzles.
instructions() {
  cmake -S "$1" -B "$1/build/cost" -G Ninja -DCMAKE_BUILD_TYPE=Release -DKESTREL_QT=OFF -DKESTREL_TESTS=OFF >/dev/null
  cmake --build "$1/build/cost" --target kestrel-sudoku-cli >/dev/null
  valgrind --tool=callgrind --callgrind-out-file="$work/counts" \
    "$1/build/cost/bin/kestrel-sudoku-cli" generate --count 3000 --seed 5 --jobs 1 >"$work/$2" 2>/dev/null
  sed -n 's/^summary: //p' "$work/counts"
}

git ls-files | tar -c -T - | tar -x -C "$work"
with=$(instructions "$work" with)
sed -i 's/!yield_*\.KeepGoing()/false/' "$work"/src/generator/*.cpp "$work"/src/solver/*.cpp
without=$(instructions "$work" without)
cmp "$work/with" "$work/without"
echo "$with $without" | awk '{ printf "%d instructions, %d without asking: %.2f %%\n", $1, $2, ($1 / $2 - 1) * 100 }'
