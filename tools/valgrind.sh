#!/bin/sh
# SPDX-License-Identifier: MIT
# Runs the tests (without Qt) under valgrind; any error or lost memory fails. tools/valgrind.sh [TEST_PROGRAM...]
# Left out are those that only repeat a thing many times, and what needs the program's own speed or death.
set -eu
cd "$(dirname "$0")/.."
. tools/setup.sh
install $build_packages $test_packages $proof_packages
cmake --preset headless >/dev/null
cmake --build build/headless
[ $# -gt 0 ] || set -- build/headless/bin/*_test
for program in "$@"; do
  echo "== $program"
  valgrind --quiet --error-exitcode=9 --leak-check=full --show-leak-kinds=definite,indirect,possible \
    "$program" --gtest_brief=1 --gtest_filter='-*DeathTest*:Kills.*:Faults.*'
done
