#!/bin/sh
# SPDX-License-Identifier: MIT
# The long form of the tests that nothing is lost: every system call fails or is the last one, and the real
# program is killed at random moments. tools/reliability.sh [KILLS [SEED]]
set -eu
cd "$(dirname "$0")/.."
. tools/setup.sh
install $build_packages $test_packages
cmake --preset headless >/dev/null
cmake --build build/headless --target reliability_test
export KESTREL_LONG=1 KESTREL_KILLS="${1:-600}" KESTREL_SEED="${2:-1}"
./build/headless/bin/reliability_test
