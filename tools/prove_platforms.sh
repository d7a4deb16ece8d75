#!/bin/bash
# SPDX-License-Identifier: MIT
# Builds and tests in fresh roots of Debian's releases by the README's commands, and prints a table:
# tools/prove_platforms.sh [--keep] [--ccache] [RELEASE...]     bookworm and trixie when left out
# To be run as root. For each release and user (one with sudo, and root) a root is made in build/platforms, where ./test.sh
# and ./run.sh install, build with warnings as errors, test and start; the other locales test again what was built there.
# --keep goes on with the roots, and what was built in them, that a run before left; --ccache shares compiled files
# between the roots. KESTREL_USERS and KESTREL_LANGS take a part of the table ("unset" is no LANG at all). What failed
# stays in build/platforms/*.log.
set -uo pipefail
cd "$(dirname "$0")/.." || exit
. tools/setup.sh
[ "$(id -u)" = 0 ] || { echo "debootstrap needs root" >&2; exit 2; }
keep=no cache=no
while [ $# -gt 0 ]; do
  case $1 in
    --keep) keep=yes ;;
    --ccache) cache=yes ;;
    -*) echo "unknown option $1" >&2; exit 2 ;;
    *) break ;;
  esac
  shift
done
[ $# -gt 0 ] || set -- bookworm trixie
install $release_packages || exit 1
. tools/roots.sh
failed=0

prepare() {
  local name=$1-$2
  if [ $keep = no ] || [ ! -d "$roots/$name/srv/kestrel" ]; then
    new_root "$1" "$name" || return
    echo 'tr_TR.UTF-8 UTF-8' >"$roots/$name/etc/locale.gen"
    chroot "$roots/$name" sh -c 'locale-gen >/dev/null; useradd --home-dir /srv/player --create-home player
      echo "player ALL=(ALL) NOPASSWD: ALL" >/etc/sudoers.d/player'
  fi
  enter "$name" "$2" $cache
}

# field RELEASE USER LANG: the README's commands, and their row.
field() {
  local name=$1-$2 log=build/platforms/$1-$2-$3.log language=() start=$SECONDS result=passed
  [ "$3" = unset ] || language=("LANG=$3")
  inside "$name" "$2" './test.sh && ./run.sh' KESTREL_CMAKE_OPTIONS=-DKESTREL_WERROR=ON "${language[@]}" >"$log" 2>&1 ||
    { result="FAILED, see $log"; failed=1; }
  if grep -q 'warning:' "$log"; then result="WARNS, see $log"; failed=1; fi
  # shellcheck disable=SC2016  # the program's own variable
  printf '| %s, %s | %s | %s | %s | %s | %d s |\n' "$1" "$(chroot "$roots/$name" dpkg-query -W -f='${Version} ' \
    g++ qt6-base-dev 2>/dev/null | sed -E 's/^([0-9]+:)?([0-9.]+)[^ ]* ([0-9.]+).*/GCC \2, Qt \3/')" "$2" "$3" "$result" \
    "$(sed -n 's/.*tests passed.* out of \([0-9]*\)$/\1/p' "$log")" $((SECONDS - start))
}

trap 'for each in "$roots"/*-player "$roots"/*-root; do leave "${each##*/}"; done' EXIT
printf '| release | by | LANG | | tests | time |\n|---|---|---|---|---|---|\n'
for release in "$@"; do
  for user in ${KESTREL_USERS:-player root}; do
    leave "$release-$user"
    prepare "$release" "$user" || { echo "$release, $user: no root"; failed=1; continue; }
    for language in ${KESTREL_LANGS:-unset C C.UTF-8 tr_TR.UTF-8}; do field "$release" "$user" "$language"; done
    leave "$release-$user"
  done
done
exit $failed
