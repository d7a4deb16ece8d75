#!/bin/sh
# SPDX-License-Identifier: MIT
# Runs clang-tidy over the sources of a configured build folder: tools/lint.sh BUILD_FOLDER [PATTERN]
set -eu
build=$1
pattern=${2:-$PWD/src/.*\.cpp$}
python=$(command -v run-clang-tidy || command -v run-clang-tidy-14)
"$python" -quiet -extra-arg=-Wno-unknown-warning-option -p "$build" -j "$(nproc)" "$pattern" >"$build/lint.log" 2>&1 && exit 0
grep -E 'warning:|error:' "$build/lint.log" | sort -u
exit 1
