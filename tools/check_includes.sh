#!/bin/sh
# SPDX-License-Identifier: MIT
# Checks that includes run one way only: tools/check_includes.sh [SOURCE_FOLDER]
# Every folder of src/ may include itself and the folders of its row, nothing else (docs/architecture.md).
set -eu
cd "${1:-src}"

allowed() {
  case $1 in
    core) ;;
    ui/controls) echo core ;;
    ui/ports) echo core ui/controls ;;
    solver) echo core ;;
    media) echo core ui/controls ui/ports ;;
    hint | generator) echo core solver ;;
    players) echo core ui/controls ui/ports media ;;
    print) echo core ui/controls ui/ports solver ;;
    game) echo core ui/controls ui/ports solver media hint generator players print ;;
    cli) echo core solver generator print ui/ports ;;
    ui/memory | ui/qt) echo core ui/controls ui/ports solver media hint generator players print game ;;
    ui/script) echo core ui/controls ui/ports solver media hint generator players print game ui/memory ;;
    app) echo core ui/controls ui/ports solver media hint generator players print game cli ui/memory ui/qt ui/script ;;
    *) echo "unknown folder $1" >&2; exit 1 ;;
  esac
}

bad=0
for folder in $(find . -name '*.cpp' -o -name '*.h' | sed 's|^\./||; s|/[^/]*$||' | sort -u); do
  may=" $folder $(allowed "$folder") "
  for use in $(cat "$folder"/*.h "$folder"/*.cpp 2>/dev/null | sed -n 's|^#include "\(.*\)/[^/]*"$|\1|p' | sort -u); do
    case $may in *" $use "*) ;; *) echo "$folder must not include $use"; bad=1 ;; esac
  done
  case $folder in ui/qt | app) continue ;; esac
  if grep -ln '#include <Q' "$folder"/* 2>/dev/null; then echo "$folder must not include Qt"; bad=1; fi
done
exit $bad
