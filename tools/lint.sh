#!/bin/sh
# SPDX-License-Identifier: MIT
# Runs clang-tidy over the sources of the programs and tools: tools/lint.sh [PATTERN OF FULL PATHS]
set -eu
cd "$(dirname "$0")/.."
build=build/lint
pattern=${1:-$PWD/(src|tools)/.*\.cpp$}
cmake --preset lint >/dev/null
# The window's files take longest; last they would leave the other processors idle.
sed -n 's/^ *"file": "\(.*\)",\{0,1\}$/\1/p' $build/compile_commands.json | grep -E "$pattern" | sort -u >$build/files
{ grep /ui/qt/ $build/files; grep -v /ui/qt/ $build/files; } |
  xargs -P "$(nproc)" -n 1 clang-tidy -quiet -p $build >$build/lint.log 2>&1 && exit 0
grep -E 'warning:|error:' $build/lint.log | sort -u || tail $build/lint.log
exit 1
