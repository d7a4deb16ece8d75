#!/bin/sh
# SPDX-License-Identifier: MIT
# Builds the fuzzers, beside the tests under the sanitizers, and runs each: tools/fuzz.sh [SECONDS [NAME...]]
# New inputs go to build/fuzz/corpus, and those that fail to build/fuzz/failed-NAME-*; give such a file to
# build/asan/bin/fuzz-NAME to run it again.
set -eu
cd "$(dirname "$0")/.."
. tools/setup.sh
install $build_packages $check_packages
seconds=${1:-5}
[ $# -gt 0 ] && shift
[ $# -gt 0 ] || set -- stock settings script cli

cmake --preset asan >/dev/null
# Short stacks of allocations and a small store of freed memory: what a failed input says is printed in full when it is
# run again.
export ASAN_OPTIONS=malloc_context_size=2:quarantine_size_mb=16
export LSAN_OPTIONS=suppressions=$PWD/tests/support/leaks.supp
for name in "$@"; do
  cmake --build build/asan --target "fuzz-$name"
done
for name in "$@"; do
  mkdir -p "build/fuzz/corpus/$name"
  case $name in
    stock) longest=446 ;;  # the choice and two records
    settings) longest=1024 ;;
    *) longest=768 ;;
  esac
  dictionary=fuzz/$name.dict
  [ -f "$dictionary" ] && set -- -dict="$dictionary" || set --
  echo "== $name, $seconds s"
  ./build/asan/bin/fuzz-"$name" -max_total_time="$seconds" -timeout=60 -max_len=$longest -entropic=0 -print_final_stats=1 \
    -artifact_prefix="build/fuzz/failed-$name-" "$@" "build/fuzz/corpus/$name" "fuzz/corpus/$name" \
    >"build/fuzz/$name.log" 2>&1 || { tail -n 60 "build/fuzz/$name.log"; exit 1; }
  grep -E '^#.*DONE|number_of_executed_units|average_exec' "build/fuzz/$name.log"
done
