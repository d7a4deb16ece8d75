#!/bin/bash
# SPDX-License-Identifier: MIT
# Builds for other processors and runs the tests there under QEMU, and prints a table:
# tools/prove_processors.sh [--keep] [ARCHITECTURE...]     arm64 and s390x, whose bytes stand the other way round
# To be run as root. In a fresh bookworm root, build/platforms/processors, with Debian's cross compilers, libraries of those
# architectures and GoogleTest from its source package: everything but the window. After the tests, puzzles, a renewed
# stock, an explained puzzle and a played game are made there and here, and compared byte for byte. --keep goes on with
# the root that a run before left. What failed stays in build/platforms/*.log.
set -uo pipefail
cd "$(dirname "$0")/.." || exit
. tools/setup.sh
[ "$(id -u)" = 0 ] || { echo "debootstrap needs root" >&2; exit 2; }
keep=no
[ "${1:-}" != --keep ] || { keep=yes; shift; }
[ $# -gt 0 ] || set -- arm64 s390x
install $release_packages || exit 1
. tools/roots.sh
failed=0

# What CMake, Debian's triplets and QEMU call it.
names_of() {
  case $1 in
    amd64) processor=x86_64 triplet=x86_64-linux-gnu ;;
    arm64) processor=aarch64 triplet=aarch64-linux-gnu ;;
    *) processor=$1 triplet=$1-linux-gnu ;;
  esac
}

# The programs are started by tests and by each other: what stands in their place runs them under QEMU, with the same
# process number. unwrap puts them back.
wrap() {
  local bin=$roots/processors/srv/kestrel/build/$1/bin real=$roots/processors/srv/kestrel/build/$1/real
  mkdir -p "$real"
  for program in $(cd "$bin" && ls | grep -v _test); do
    mv "$bin/$program" "$real/"
    printf '#!/bin/sh\nexec qemu-%s-static %s/%s "$@"\n' "$processor" "/srv/kestrel/build/$1/real" "$program" >"$bin/$program"
    chmod +x "$bin/$program"
  done
}

unwrap() {
  local build=$roots/processors/srv/kestrel/build/$1
  [ ! -d "$build/real" ] || { mv "$build"/real/* "$build/bin/" && rmdir "$build/real"; }
}

# build ARCHITECTURE TARGET: configured once, for this processor or another one.
build() {
  local options="-DCMAKE_BUILD_TYPE=Release -DKESTREL_WERROR=ON -DKESTREL_QT=OFF"
  names_of "$1"
  if [ "$1" = "$(dpkg --print-architecture)" ]; then
    options="$options -DKESTREL_TESTS=OFF"
  else
    options="$options -DCMAKE_SYSTEM_NAME=Linux -DCMAKE_SYSTEM_PROCESSOR=$processor -DCMAKE_LIBRARY_ARCHITECTURE=$triplet"
    options="$options -DCMAKE_CXX_COMPILER=$triplet-g++ -DCMAKE_CROSSCOMPILING_EMULATOR=/usr/bin/qemu-$processor-static"
    inside processors root "[ -f /opt/$1/lib/libgtest.a ] || { cmake -S /usr/src/googletest -B /opt/$1/build -G Ninja \
      $options -DCMAKE_INSTALL_PREFIX=/opt/$1 -DCMAKE_INSTALL_LIBDIR=lib && cmake --build /opt/$1/build --target install; }" || return
    options="$options -DCMAKE_PREFIX_PATH=/opt/$1"
  fi
  inside processors root "cmake -S . -B build/$1 -G Ninja $options && cmake --build build/$1 --target $2" \
    PKG_CONFIG_LIBDIR=/usr/lib/$triplet/pkgconfig:/usr/share/pkgconfig
}

# What a program makes from a seed, into build/ARCHITECTURE/made.
make_things() {
  inside processors root "rm -rf build/$1/made && mkdir build/$1/made && cd build/$1/made &&
    ../bin/kestrel-sudoku-cli generate --count 20 --seed 7 >puzzles &&
    ../bin/kestrel-sudoku-cli generate --count 3 --level 5 --seed 7 >>puzzles &&
    ../bin/kestrel-sudoku-cli rate --solutions puzzles >rated &&
    cp /srv/kestrel/data/sudstock.kpz . &&
    ../bin/kestrel-sudoku-cli stock renew --level 3 --seed 5 --stock sudstock.kpz &&
    ../bin/kestrel-sudoku-cli stock verify --stock sudstock.kpz >verified &&
    head -n 3 puzzles | ../bin/kestrel-sudoku-cli explain --output explained.html &&
    mkdir home && printf 'press CommandNew\\npress RenewLevel(1)\\nanswer OK\\nrenew 100000\\npress CommandSolution\\nboard\\n' |
      ../bin/kestrel-sudoku-script --home home --seed 3 >transcript"
}

prove() {
  local log=build/platforms/processors-$1.log start=$SECONDS result=passed
  local tests="ctest --test-dir build/$1 --output-on-failure --timeout 3600" hardened=build.programs_are_hardened
  { unwrap "$1" && build "$1" all && inside processors root "$tests -R $hardened" && wrap "$1" &&
    inside processors root "$tests -E $hardened"; } >"$log" 2>&1 || { result="FAILED, see $log"; failed=1; }
  if grep -q 'warning:' "$log"; then result="WARNS, see $log"; failed=1; fi
  local made=same
  if ! { make_things "$1" && diff -r "$roots/processors/srv/kestrel/build/$1/made" "$roots/processors/srv/kestrel/build/$here/made"; } \
    >>"$log" 2>&1; then
    made="DIFFERS, see $log"
    failed=1
  fi
  printf '| %s | %s | %s | %s | %d s |\n' "$1" "$result" \
    "$(awk '/ tests? (passed|failed).* out of / {sum += $NF} END {print sum}' "$log")" "$made" $((SECONDS - start))
}

leave processors
if [ $keep = no ] || [ ! -d "$roots/processors/srv/kestrel" ]; then new_root bookworm processors || exit 1; fi
trap 'leave processors' EXIT
enter processors root yes || exit 1
here=$(dpkg --print-architecture)
foreign=
for each in "$@"; do
  names_of "$each"
  chroot "$roots/processors" dpkg --add-architecture "$each"
  foreign="$foreign g++-$triplet libcairo2-dev:$each libpugixml-dev:$each libsndfile1-dev:$each"
done
add_packages processors g++ cmake ninja-build pkg-config qemu-user-static googletest libcli11-dev nlohmann-json3-dev \
  libpugixml-dev libcairo2-dev libsndfile1-dev fonts-liberation poppler-utils $foreign || { echo "packages: see $roots/processors.packages.log" >&2; exit 1; }
{ build "$here" "kestrel-sudoku-cli kestrel-sudoku-script" && make_things "$here"; } >"$roots/processors-$here.log" 2>&1 ||
  { echo "here: see build/platforms/processors-$here.log" >&2; exit 1; }
printf '| processor | tests | of them | made from seeds | time |\n|---|---|---|---|---|\n'
for each in "$@"; do prove "$each"; done
exit $failed
