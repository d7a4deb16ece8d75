#!/bin/sh
# SPDX-License-Identifier: MIT
# Runs clang-tidy over the sources of the programs and tools: tools/lint.sh [PATTERN OF FULL PATHS]
# Without a pattern all but the analyzer reads a dozen files of a folder as one, so that the libraries' headers are gone
# through once: names in unnamed namespaces differ within a folder. The analyzer looks at each file alone, and at up to
# 75,000 states of a function instead of 225,000; where it needs more, these take two thirds of its time.
set -eu
cd "$(dirname "$0")/.."
build=build/lint
cmake --preset lint -DCMAKE_UNITY_BUILD=OFF >/dev/null

# lint BUILD PATTERN CHECKS [OPTION...]: the window's files take longest; last they would leave the other processors idle.
lint() {
  in=$1 pattern=$2 checks=$3
  shift 3
  files=$(sed -n 's/^ *"file": "\(.*\)",\{0,1\}$/\1/p' "$in/compile_commands.json" | grep -E "$pattern" | grep -v autogen | sort -u)
  { echo "$files" | grep /ui/qt/; echo "$files" | grep -v /ui/qt/; } |
    xargs -P "$(nproc)" -n 1 clang-tidy -quiet -checks="$checks" -p "$in" --extra-arg=-Wreserved-identifier "$@" >"$build/lint.log" 2>&1 && return 0
  grep -E 'warning:|error:' "$build/lint.log" | sort -u || tail "$build/lint.log"
  return 1
}

if [ $# -gt 0 ]; then
  lint $build "$1" ''
else
  cmake --preset lint -B $build-joined -DCMAKE_UNITY_BUILD=ON -DCMAKE_UNITY_BUILD_BATCH_SIZE=12 >/dev/null
  # That a source includes another is tools/check_includes.sh's to find.
  lint $build-joined "/Unity/|^$PWD/(src|tools)/" '-clang-analyzer-*,-bugprone-suspicious-include'
  others='-bugprone-*,-clang-diagnostic-*,-cppcoreguidelines-*,-misc-*,-modernize-*,-performance-*,-readability-*'
  lint $build "$PWD/(src|tools)/.*\.cpp\$" "$others" --extra-arg=-Xclang --extra-arg=-analyzer-config \
    --extra-arg=-Xclang --extra-arg=max-nodes=75000
fi
