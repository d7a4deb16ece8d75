#!/bin/sh
# SPDX-License-Identifier: MIT
# Runs the tests (without Qt) and shows which lines of src/ they reach: a table on standard output, and every
# line in build/coverage/report/index.html.
set -eu
cd "$(dirname "$0")/.."
. tools/setup.sh
install $build_packages $test_packages $proof_packages
cmake --preset coverage >/dev/null
cmake --build build/coverage
find build/coverage -name '*.gcda' -delete
# Not the kills: a program killed while it writes its counts spoils those of the others.
ctest --test-dir build/coverage -E Kills --output-on-failure -j "$(nproc)" >build/coverage/ctest.log || { cat build/coverage/ctest.log; exit 1; }
mkdir -p build/coverage/report
gcovr --root . --filter src/ --exclude-throw-branches --gcov-ignore-parse-errors --object-directory build/coverage build/coverage \
  --html-details build/coverage/report/index.html --print-summary --txt
