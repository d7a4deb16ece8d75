#!/bin/sh
# SPDX-License-Identifier: MIT
# Installs what is missing, builds everything and runs every test. Arguments go to ctest.
set -eu
cd "$(dirname "$0")"
mkdir -p build
. tools/setup.sh
install_with_window $build_packages $test_packages
# shellcheck disable=SC2086  # options, meant to be split
configure -DKESTREL_TESTS=ON ${KESTREL_CMAKE_OPTIONS:-}
cmake --build build/release
QT_QPA_PLATFORM=offscreen ctest --test-dir build/release --output-on-failure -j "$(nproc)" "$@"
