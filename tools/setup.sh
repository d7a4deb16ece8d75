# SPDX-License-Identifier: MIT
# Installs what is missing from Debian's packages. Sourced by run.sh, test.sh and .ci/run, in the project's folder.
. tools/packages.sh

# missing PACKAGE...: those of them that are not installed.
missing() {
  for package in "$@"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || printf '%s ' "$package"
  done
}

# install PACKAGE...: says what is missing and installs it; fails when it cannot, after naming what would do it.
install() {
  wanted=$(missing "$@")
  [ -z "$wanted" ] && return 0
  if ! command -v apt-get >/dev/null; then
    echo "This is no Debian system; please install what corresponds to: $wanted" >&2
    return 1
  fi
  as_root=
  if [ "$(id -u)" != 0 ]; then
    if ! command -v sudo >/dev/null; then
      echo "These packages are missing. An administrator can install them with" >&2
      echo "    apt-get install --no-install-recommends $wanted" >&2
      return 1
    fi
    as_root=sudo
  fi
  echo "These Debian packages are missing and are installed now${as_root:+, with sudo}: $wanted"
  # shellcheck disable=SC2086  # the list is meant to be split
  $as_root env DEBIAN_FRONTEND=noninteractive sh -c "apt-get update -qq && apt-get install -y -qq --no-install-recommends $wanted" >/dev/null
}

# install_with_window PACKAGE...: those, with the window's where these can be had.
install_with_window() {
  # shellcheck disable=SC2154  # from packages.sh
  install "$@" $window_packages && return 0
  # A user who may not install anything need not be told twice.
  if [ "$(id -u)" = 0 ] || command -v sudo >/dev/null; then install "$@" || true; fi
}

# configure [CMAKE OPTION...]: the release build, with the window where Qt can be had.
configure() {
  qt=ON
  if ! command -v dpkg-query >/dev/null; then
    qt=AUTO
  elif [ -n "$(missing $window_packages)" ]; then
    echo "Qt 6 cannot be had here: everything but the window is built and tested." >&2
    qt=OFF
  fi
  cmake --preset release -DKESTREL_QT=$qt "$@" >build/configure.log || { cat build/configure.log >&2; return 1; }
}
