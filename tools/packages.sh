# SPDX-License-Identifier: MIT
# Debian packages, by what they are needed for. Sourced by tools/setup.sh; nothing else lists packages.
build_packages="g++ cmake ninja-build libcli11-dev nlohmann-json3-dev libpugixml-dev libcairo2-dev libsndfile1-dev fonts-liberation"
window_packages="qt6-base-dev libcups2-dev libfontconfig-dev qt6-multimedia-dev qt6-svg-dev"
wayland_packages="qt6-wayland"
test_packages="libgtest-dev poppler-utils xvfb dbus at-spi2-core python3-gi gir1.2-atspi-2.0 appstream desktop-file-utils mandoc tidy"
check_packages="clang clang-format clang-tidy libclang-rt-dev"
proof_packages="gcovr valgrind python3 ccache"
kill_packages="xvfb xauth xdotool python3"
# What dpkg-buildpackage, lintian and the roots of tools/prove_platforms.sh need.
release_packages="debhelper dpkg-dev lintian debootstrap"
bench_packages="libbenchmark-dev qqwing"
paint_packages="xvfb metacity sgt-puzzles libxcb1-dev pkg-config"
