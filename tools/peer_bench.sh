#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Measures making and rating puzzles beside Debian's qqwing, in one run on one machine, and prints a Markdown
# table. What counts are the ratios: all figures are processor time of one thread, and each is the best of
# several rounds in which the programs take turns, so that a busy machine disturbs all of them alike.
#
#   tools/peer_bench.sh [--install] [--rounds N]      --install: get what is missing from Debian's packages
set -euo pipefail
cd "$(dirname "$0")/.."

rounds=5
generated=1000 # puzzles that qqwing makes in a round
rated=20000    # puzzles that both rate in a round
while [ $# -gt 0 ]; do
  case $1 in
    --install)
      mkdir -p build
      . tools/setup.sh
      install $build_packages $bench_packages
      ;;
    --rounds) rounds=$2 && shift ;;
    *) sed -n '3,7s/^# \{0,1\}//p' "$0" >&2 && exit 2 ;;
  esac
  shift
done
if ! command -v qqwing >/dev/null; then
  echo "qqwing is missing; run this again with --install." >&2
  exit 1
fi

cmake --preset bench >/dev/null
cmake --build build/bench --target generator_bench kestrel-sudoku-cli >/dev/null
bench=build/bench/bin/generator_bench
cli=build/bench/bin/kestrel-sudoku-cli
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# user_seconds COMMAND...: its processor time in user mode, on one core.
user_seconds() {
  local TIMEFORMAT=%U
  { time taskset -c 0 "$@" >/dev/null 2>"$work/errors"; } 2>&1
}

# bench_nanoseconds NAME: processor time of one iteration of a benchmark.
bench_nanoseconds() {
  taskset -c 0 "$bench" --benchmark_filter="^$1\$" --benchmark_format=csv 2>/dev/null |
    sed 's/^"[^"]*",//' | awk -F, 'END { if ($4 == "ms") $3 *= 1e6; print $3 }'
}

# least FILE: the smallest number in it.
least() { sort -g "$1" | head -n 1; }

$cli generate --count $rated --seed 1 2>/dev/null | cut -f 1 >"$work/puzzles"
grep -E '^[0-9.]{81}' "$work/puzzles" >"$work/lines" && mv "$work/lines" "$work/puzzles"
for _ in $(seq "$rounds"); do
  user_seconds qqwing --generate $generated --symmetry rotate180 --one-line >>"$work/peer_make"
  bench_nanoseconds 'Puzzle<Generator>' >>"$work/make"
  user_seconds qqwing --solve --stats --csv <"$work/puzzles" >>"$work/peer_rate"
  user_seconds $cli rate --jobs 1 "$work/puzzles" >>"$work/rate"
  bench_nanoseconds 'HundredOfALevel/5/iterations:5' >>"$work/hundred"
done

awk -v made=$generated -v rated="$(wc -l <"$work/puzzles")" -v make="$(least "$work/make")" \
  -v peer_make="$(least "$work/peer_make")" \
  -v rate="$(least "$work/rate")" -v peer_rate="$(least "$work/peer_rate")" \
  -v hundred="$(least "$work/hundred")" 'BEGIN {
  print "| work | qqwing, a second | here, a second | ratio |"
  print "|---|---:|---:|---:|"
  printf "| making half-turn symmetric puzzles | %d | %d | %.0f |\n", made / peer_make, 1e9 / make,
    peer_make / made * 1e9 / make
  printf "| rating %d of them, from a file | %d | %d | %.1f |\n", rated, rated / peer_rate, rated / rate,
    peer_rate / rate
  printf "\nMaking and rating until 100 Very Hard ones are there: %.2f s.\n", hundred / 1e9
}'
