#!/bin/sh
# SPDX-License-Identifier: MIT
# A release build's programs: position-independent, all symbols bound before they run, stack and string functions
# guarded, containers checked, and no word of where they were built.
# programs_are_hardened.sh SOURCE_FOLDER PROGRAM...
set -eu
export LC_ALL=C
source=$1
shift
bad=0
for program in "$@"; do
  [ -n "$program" ] || continue  # no window in this build
  facts=$(readelf -hldW "$program"; readelf -sW --dyn-syms "$program")
  for fact in 'Type: *DYN' 'GNU_RELRO' 'FLAGS_1.* NOW.* PIE' '__stack_chk_fail' '__[a-z]*_chk@' '__glibcxx_assert_fail'; do
    echo "$facts" | grep -q "$fact" || { echo "$program lacks $fact"; bad=1; }
  done
  if grep -qF "$source/" "$program"; then echo "$program tells that it was built in $source"; bad=1; fi
done
exit $bad
