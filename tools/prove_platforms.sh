#!/bin/bash
# SPDX-License-Identifier: MIT
# Builds and tests in fresh roots of Debian's releases by the README's commands, and prints a table:
# tools/prove_platforms.sh [RELEASE...]        bookworm and trixie when left out
# To be run as root. Each release gets a root made by debootstrap in build/platforms; there ./test.sh runs as a normal user
# with sudo in a C locale, then the tests again in other locales and as root. What failed stays in build/platforms/*.log.
set -uo pipefail
cd "$(dirname "$0")/.."
. tools/setup.sh
[ "$(id -u)" = 0 ] || { echo "debootstrap needs root" >&2; exit 2; }
install $release_packages || exit 1
mirror=${KESTREL_MIRROR:-$(sed -n 's/^deb \(\[[^]]*\] \)\{0,1\}\(http[^ ]*\).*/\2/p;s/^URIs: *\(http[^ ]*\).*/\1/p' \
  /etc/apt/sources.list /etc/apt/sources.list.d/* 2>/dev/null | head -n 1)}
failed=0
[ $# -gt 0 ] || set -- bookworm trixie
mkdir -p build/platforms
printf '| release | by | LANG | |\n|---|---|---|---|\n'

# field RELEASE USER LANG COMMAND: runs it in the root's copy of the tree and prints the row.
field() {
  local root=build/platforms/$1 log=build/platforms/$1-$2-${3:-unset}.log language=()
  [ -z "$3" ] || language=("LANG=$3")
  if chroot "$root" setpriv --reuid "$2" --regid "$2" --init-groups \
    env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME="$([ "$2" = root ] && echo /var/tmp || echo /srv/player)" "${language[@]}" \
    sh -c "cd /srv/player/kestrel && $4" >"$log" 2>&1; then
    printf '| %s | %s | %s | passed |\n' "$1" "$2" "${3:-unset}"
  else
    printf '| %s | %s | %s | FAILED, see %s |\n' "$1" "$2" "${3:-unset}" "$log"
    failed=1
  fi
}

for release in "$@"; do
  root=build/platforms/$release
  if [ ! -x "$root/usr/bin/sudo" ]; then
    debootstrap --variant=minbase --include=sudo,ca-certificates,locales "$release" "$root" "$mirror" \
      >"build/platforms/$release-root.log" 2>&1 || { echo "$release: no root, see build/platforms/$release-root.log"; exit 1; }
    echo 'tr_TR.UTF-8 UTF-8' >"$root/etc/locale.gen"
    chroot "$root" sh -c 'locale-gen >/dev/null; useradd --home-dir /srv/player --create-home player
      echo "player ALL=(ALL) NOPASSWD: ALL" >/etc/sudoers.d/player'
  fi
  mountpoint -q "$root/proc" || mount -t proc proc "$root/proc"
  mountpoint -q "$root/dev" || mount --rbind --make-rslave /dev "$root/dev"
  cp /etc/resolv.conf "$root/etc/resolv.conf"
  rm -rf "$root/srv/player/kestrel"
  mkdir "$root/srv/player/kestrel"
  git ls-files -z | tar --null -c -T - | tar -x -C "$root/srv/player/kestrel"
  chroot "$root" chown -R player: /srv/player
  field "$release" player C "KESTREL_CMAKE_OPTIONS=-DKESTREL_WERROR=ON ./test.sh"
  for language in '' C.UTF-8 tr_TR.UTF-8; do field "$release" player "$language" "./test.sh && ./run.sh"; done
  for language in '' C; do field "$release" root "$language" "./test.sh && ./run.sh"; done
  umount -l "$root/dev" "$root/proc"
done
exit $failed
