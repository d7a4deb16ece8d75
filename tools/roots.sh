# SPDX-License-Identifier: MIT
# Fresh Debian systems in build/platforms. Sourced by tools/prove_platforms.sh and tools/prove_processors.sh, after
# tools/setup.sh, by root. KESTREL_MIRROR names a mirror when apt's sources do not.
roots=$PWD/build/platforms
mkdir -p "$roots"
mirror=${KESTREL_MIRROR:-$(sed -n 's/^deb \(\[[^]]*\] \)\{0,1\}\(http[^ ]*debian\/\{0,1\}\) .*/\2/p;s/^URIs: *\(http[^ ]*debian\/\{0,1\}\)$/\1/p' \
  /etc/apt/sources.list /etc/apt/sources.list.d/* 2>/dev/null | head -n 1)}

# new_root RELEASE NAME: unpacks the freshly installed system of a release, which is made once, over what was there.
new_root() {
  if [ ! -f "$roots/$1.tar" ]; then
    rm -rf --one-file-system "$roots/$1-base"
    debootstrap --variant=minbase --include=sudo,ca-certificates,locales "$1" "$roots/$1-base" "$mirror" \
      >"$roots/$1-base.log" 2>&1 || { echo "$1: no root, see build/platforms/$1-base.log" >&2; return 1; }
    tar -C "$roots/$1-base" -cf "$roots/$1.tar" . && rm -rf --one-file-system "$roots/$1-base"
  fi
  rm -rf --one-file-system "${roots:?}/$2"
  mkdir "$roots/$2" && tar -C "$roots/$2" -xpf "$roots/$1.tar" || return 1
  echo "127.0.0.1 localhost $(uname -n)" >"$roots/$2/etc/hosts"
  mkdir "$roots/$2/srv/kestrel"
}

# enter NAME OWNER [CCACHE]: mounts what a running system has, and puts the tree, as it is here, into /srv/kestrel. With
# "yes" compiled files are kept for all roots.
enter() {
  local root=$roots/$1
  cp /etc/resolv.conf "$root/etc/resolv.conf"
  git ls-files -z | tar --null -c -T - | tar -x -C "$root/srv/kestrel"
  chroot "$root" chown -R "$2": /srv/kestrel
  mount -t proc proc "$root/proc" && mount --rbind --make-rslave /dev "$root/dev" || return 1
  mkdir -p "$roots/apt/partial" && mount --bind "$roots/apt" "$root/var/cache/apt/archives"
  [ "${3:-no}" = yes ] || return 0
  mkdir -p "$roots/ccache" "$root/var/cache/ccache" && chmod 777 "$roots/ccache"
  mount --bind "$roots/ccache" "$root/var/cache/ccache"
  [ -x "$root/usr/bin/ccache" ] || add_packages "$1" ccache
}

# add_packages NAME PACKAGE...
add_packages() {
  local root=$roots/$1
  shift
  chroot "$root" sh -c "apt-get update -qq && DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $*" \
    >"$root.packages.log" 2>&1
}

leave() {
  for place in var/cache/ccache var/cache/apt/archives dev proc; do
    ! mountpoint -q "$roots/$1/$place" || umount -R -l "$roots/$1/$place"
  done
}

# inside NAME USER COMMAND [VARIABLE=VALUE...]: runs it in /srv/kestrel, with nothing else in the environment.
inside() {
  local root=$roots/$1 user=$2 command=$3 home
  shift 3
  home=$(chroot "$root" sh -c "echo ~$user")
  mountpoint -q "$root/var/cache/ccache" &&
    set -- CCACHE_DIR=/var/cache/ccache CCACHE_SLOPPINESS=pch_defines,time_macros CCACHE_UMASK=000 CMAKE_CXX_COMPILER_LAUNCHER=ccache "$@"
  chroot "$root" setpriv --reuid "$user" --regid "$user" --init-groups env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin \
    HOME="$home" ${CMAKE_BUILD_PARALLEL_LEVEL:+CMAKE_BUILD_PARALLEL_LEVEL=$CMAKE_BUILD_PARALLEL_LEVEL} "$@" \
    sh -c "cd /srv/kestrel && $command"
}
