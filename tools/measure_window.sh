#!/bin/sh
# SPDX-License-Identifier: MIT
# Measures the window off screen, in a release build: tools/measure_window.sh [RUNS]
#
#   start      from the moment the program is started until the first round is done and the window painted; the
#              fastest and the middle one of RUNS starts (10 when left out)
#   clicks     from the release of the mouse button until the board has been painted, idle and during a renewal
#   counting   mere counting, as long as a click in the middle: its slowest ones are the machine's own doing
#   idling     processor time with a puzzle open and the clock running
#   renewals   from the answer to the question until the level can be chosen again
#   memory     the most that was resident
set -eu
cd "$(dirname "$0")/.."
runs=${1:-10}
case $runs in
  0 | *[!0-9]*)
    echo "usage: tools/measure_window.sh [RUNS]" >&2
    exit 2
    ;;
esac
build=build/release
cmake --preset release -DKESTREL_QT=ON >/dev/null
cmake --build $build --target measure-window >/dev/null
export QT_LOGGING_RULES='*.warning=false'  # no sound server, no window manager
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT

for run in $(seq "$runs"); do
  timeout 60 $build/bin/measure-window data "$home" "$(date +%s%N)" start
done | grep '^start' | sed 's/[^0-9]//g' | sort -n | awk '
  { times[NR] = $1 }
  END { printf "start to a usable window           %d ms at best, %d ms in the middle of %d\n", times[1], times[int((NR + 1) / 2)], NR }'
$build/bin/measure-window data "$home" "$(date +%s%N)" | grep -v '^start'
