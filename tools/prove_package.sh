#!/bin/bash
# SPDX-License-Identifier: MIT
# Proves the Debian package of what is committed, and prints a table: tools/prove_package.sh [NAME]
# To be run as root, with lintian, autopkgtest and debootstrap. Builds in two folders, compares the bytes, asks lintian and
# autopkgtest, and, in a fresh root of bookworm: plays as a user, upgrades to the next version, plays on, purges. Everything
# stays in build/package. NAME goes on with the packages of a run before, and does that step only.
# shellcheck disable=SC2154  # names from the sourced files
set -uo pipefail
cd "$(dirname "$0")/.." || exit
. tools/setup.sh
[ "$(id -u)" = 0 ] || { echo "debootstrap needs root" >&2; exit 2; }
install debootstrap lintian autopkgtest debhelper $build_packages || exit 1
. tools/roots.sh
out=$PWD/build/package
root=package-bookworm
one=$out/one/kestrel-sudoku two=$out/another-folder/of-a-longer-name/kestrel-sudoku
commit=$(git rev-parse HEAD)
version=$(cat VERSION)
higher=${version%.*}.$((${version##*.} + 1))
failed=0

# step NAME TITLE: runs step_NAME and prints its row.
step() {
  if (step_"$1") >"$out/$1.log" 2>&1; then echo "| $2 | passed |"; else echo "| $2 | FAILED, see build/package/$1.log |"; failed=1; fi
}

# build FOLDER: a clean export, built; the package lies beside the folder.
build() {
  rm -rf "${1%/*}"
  mkdir -p "$1" && git archive "$commit" | tar -x -C "$1" && (cd "$1" && DEB_BUILD_OPTIONS=nocheck dpkg-buildpackage -us -uc -b)
}

step_build() { build "$one" && build "$two"; }
step_bytes() { (cd "$two/.." && sha256sum ./*_"$version"_*.deb) | (cd "$one/.." && sha256sum -c --strict); }
step_lintian() { lintian --allow-root -i -I --pedantic --fail-on error,warning "$one"/../*_"$version"_*.changes; }

# In the first folder, where only what knows the version is compiled again.
step_next() {
  cd "$one" || return 1
  echo "$higher" >VERSION
  sed -i "1s/(.*)/($higher)/" debian/changelog
  rm -f debian/debhelper-build-stamp
  DEB_BUILD_OPTIONS=nocheck dpkg-buildpackage -nc -us -uc -b
}

step_autopkgtest() {
  autopkgtest "$one"/../kestrel-sudoku_"$version"_*.deb "$one" -- chroot "$roots/$root"
}

# play NAME: the script on standard input, as the user does it, with what is in the player's home; says what is printed.
play() {
  chroot "$roots/$root" setpriv --reuid player --regid player --init-groups env -i HOME=/srv/player PATH=/usr/bin:/bin \
    sh -c 'cd && kestrel-sudoku-script --home .' | tee "$out/$1.transcript"
}

# install_package VERSION
install_package() {
  cp "$one"/../kestrel-sudoku_"$1"_*.deb "$roots/$root/tmp/"
  chroot "$roots/$root" sh -c 'DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends /tmp/kestrel-sudoku_*.deb' &&
    rm "$roots/$root"/tmp/*.deb
}

# What a player has: the stock with the best times, and every setting.
kept() {
  (cd "$roots/$root/srv/player" && find . -name '.?*' -prune -o -type f -exec sha256sum {} + | sort)
}

step_upgrade() {
  chroot "$roots/$root" useradd --home-dir /srv/player --create-home player
  install_package "$version" || return 1
  local solution
  solution=$(printf 'press OptionType(2)\npress CommandOpen\nanswer 1\nsolution\n' | play first | sed -n 's/^solution = //p')
  [ ${#solution} = 81 ] || return 1
  {
    printf 'clock 10:00:00\npress cmdPlayers\npress KnopNieuweSpeler\ntype NaamInvoerveld Ann\nkey NaamInvoerveld enter\npress KnopOK\n'
    printf 'press OptionType(2)\npress CommandOpen\nanswer 1\n'
    for ((cell = 0; cell < 81; ++cell)); do [ $cell != 40 ] || printf 'clock 10:01:40\ntick\n'; echo "mark $cell ${solution:$cell:1}"; done
    printf 'answer OK\nrecord 2 1\n'
  } | play solved
  kept >"$out/before.sums"
  grep -q 'Ann' "$roots/$root/srv/player/settings.ini" || return 1
  install_package "$higher" || return 1
  chroot "$roots/$root" dpkg-query -W -f='${Version}\n' kestrel-sudoku | grep -Fx "$higher" || return 1
  chroot "$roots/$root" kestrel-sudoku-cli --version | grep -F "$higher" || return 1
  kept | diff "$out/before.sums" - || return 1
  printf 'record 2 1\nvar PlayerCount\nvar SelectedLevel\nvar CurrentPlayer\npress CommandOpen\nanswer 2\n' | play later
  local record
  record=$(grep '^record' "$out/solved.transcript")
  # Minutes, seconds and player of the best time, and the same record after the upgrade.
  [ "$(echo "$record" | cut -d' ' -f8-10)" = "1 40 1" ] && grep -Fx "$record" "$out/later.transcript" &&
    grep -x 'PlayerCount = 1' "$out/later.transcript" && grep -x 'SelectedLevel = 2' "$out/later.transcript"
}

step_purge() {
  chroot "$roots/$root" dpkg -L kestrel-sudoku >"$out/files" || return 1
  chroot "$roots/$root" apt-get purge -y kestrel-sudoku || return 1
  ! (cd "$roots/$root" && find . -xdev \( -ipath '*kestrel*' -o -ipath '*grendale*' \) ! -path './home/*' ! -path './srv/*' \
    ! -path './var/log/*' ! -path './var/lib/apt/*' ! -path './var/cache/*' | grep .) || return 1
  kept | grep -q sudstock.kpz
}

mkdir -p "$out"
trap 'leave "$root"' EXIT
titles=(
  "build:built in two folders (\`dpkg-buildpackage -b\`)" "bytes:the same bytes from both"
  "lintian:lintian: no error, no warning" "autopkgtest:\`autopkgtest\` in a fresh root" "next:the next version built"
  "upgrade:best times, players, settings kept by an upgrade"
  "purge:nothing of the package left by a purge, the player's files still there")
printf '| package %s of %s | |\n|---|---|\n' "$version" "${commit:0:7}"
for each in "${titles[@]}"; do
  name=${each%%:*}
  [ $# = 0 ] || [ "$1" = "$name" ] || continue
  case $name in
    autopkgtest | upgrade)
      leave "$root"
      new_root bookworm "$root" && enter "$root" root && chroot "$roots/$root" apt-get update -qq || exit 1
      ;;
  esac
  step "$name" "${each#*:}"
done
exit $failed
