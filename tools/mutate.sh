#!/bin/sh
# SPDX-License-Identifier: MIT
# Do the tests notice a wrong line? Plants one small fault at a time in a copy of the sources, builds what it can reach,
# runs those tests until one fails, and lists the faults that none noticed: tools/mutate.sh [COUNT [SEED [PATTERN]]]
# PATTERN limits the files, for example src/ui/qt. The list stays in build/mutate/survivors.txt, a table by folder beside
# it. tools/mutate.sh again FILE plants those of such a list again. A run that was broken off goes on where it was.
# WORKERS=1 leaves processors for other work.
set -eu
cd "$(dirname "$0")/.."
. tools/setup.sh
install $build_packages $window_packages $test_packages $proof_packages
export CCACHE_NOHASHDIR=1 CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
export CCACHE_BASEDIR="$PWD/build/mutate" QT_QPA_PLATFORM=offscreen
exec python3 tools/mutate.py "${1:-200}" "${2:-1}" "${3:-src/}"
