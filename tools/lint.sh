#!/bin/sh
# SPDX-License-Identifier: MIT
# Runs clang-tidy over the sources of the programs and tools: tools/lint.sh [PATTERN OF FULL PATHS]
set -eu
cd "$(dirname "$0")/.."
build=build/lint
pattern=${1:-$PWD/(src|tools)/.*\.cpp$}
cmake --preset lint >/dev/null
run=$(command -v run-clang-tidy || command -v run-clang-tidy-14)
"$run" -quiet -p $build -j "$(nproc)" "$pattern" >$build/lint.log 2>&1 && exit 0
grep -E 'warning:|error:' $build/lint.log | sort -u || tail $build/lint.log
exit 1
