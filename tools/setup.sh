# SPDX-License-Identifier: MIT
# Installs what is missing from Debian's packages. Sourced by run.sh, test.sh and .ci/run, in the project's folder.
. tools/packages.sh

# missing PACKAGE...: those of them that are not installed.
missing() {
  for package in "$@"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || printf '%s ' "$package"
  done
}

# install PACKAGE...: installs what is missing; fails when it cannot.
install() {
  wanted=$(missing "$@")
  [ -z "$wanted" ] && return 0
  if ! command -v apt-get >/dev/null; then
    echo "This is no Debian system; please install what corresponds to: $wanted" >&2
    return 1
  fi
  echo "Installing: $wanted"
  as_root=
  if [ "$(id -u)" != 0 ]; then
    if ! command -v sudo >/dev/null; then
      echo "Please install as root: apt-get install $wanted" >&2
      return 1
    fi
    as_root=sudo
  fi
  # shellcheck disable=SC2086  # the list is meant to be split
  $as_root env DEBIAN_FRONTEND=noninteractive sh -c "apt-get update -qq && apt-get install -y -qq --no-install-recommends $wanted" >/dev/null
}

# configure [CMAKE OPTION...]: the release build, with the window where Qt can be had.
configure() {
  qt=ON
  if ! install $window_packages; then
    echo "Qt 6 cannot be had here: everything but the window is built and tested." >&2
    qt=OFF
  fi
  cmake --preset release -DKESTREL_QT=$qt "$@" >build/configure.log || { cat build/configure.log >&2; return 1; }
}
