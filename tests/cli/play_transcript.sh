#!/bin/sh
# SPDX-License-Identifier: MIT
# Runs the commands of a transcript, its lines that begin with "$ ", in the present folder, which should be empty, and
# writes the transcript as it is now: each command, what it writes, its errors behind "! ", and its status when it is
# not 0. Lines that begin with "# " stay.
# Usage: play_transcript.sh CLI_PROGRAM SCRIPT_PROGRAM DATA_FOLDER TRANSCRIPT
cli_program=$1 script_program=$2 data=$3
HOME=$PWD/home LC_ALL=C
export HOME LC_ALL
unset XDG_DATA_HOME XDG_CONFIG_HOME
mkdir home work
cd work || exit 2
cli() { "$cli_program" "$@"; }
script() { "$script_program" "$@"; }
grep '^[$#] ' "$4" >../commands
while IFS= read -r line <&3; do
  printf '%s\n' "$line"
  case $line in '# '*) continue ;; esac
  (eval "${line#??}") >../out 2>../errors </dev/null
  status=$?
  sed "s|$HOME|~|g" ../out
  sed "s|$HOME|~|g; s/^/! /" ../errors
  [ $status = 0 ] || echo "status $status"
done 3<../commands
