#!/bin/sh
# SPDX-License-Identifier: MIT
# Checks that includes run one way only: tools/check_includes.sh [SOURCE_FOLDER]
# Every folder of src/ may include itself and the folders of its row, nothing else (docs/architecture.md), and a file
# that names a fixed-width integer includes <cstdint> itself.
set -eu
cd "${1:-src}"

allowed() {
  logic="core forms solver hint generator media"
  case $1 in
    core) ;;
    host | forms | formats | solver) echo core ;;
    hint | generator | explain) echo core solver ;;
    media) echo core forms ;;
    view) echo core forms solver ;;
    stock) echo core solver generator ;;
    players) echo core forms media ;;
    print) echo core forms solver ;;
    game) echo "$logic" explain players print ;;
    cli) echo core host formats forms solver generator explain print stock ;;
    ui/memory) echo "$logic" players print game ;;
    ui/qt) echo "$logic" host explain view players print game ;;
    ui/script) echo "$logic" host players print game ui/memory ;;
    app) echo "$logic" host explain view stock players print game cli ui/memory ui/qt ui/script ;;
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
for file in $(grep -rlE '\bu?int(8|16|32|64)_t\b' --include='*.cpp' --include='*.h' .); do
  grep -q '#include <cstdint>' "$file" && continue
  echo "$file uses a fixed-width integer without <cstdint>"
  bad=1
done
if grep -rn '#include ".*[.]cpp"' .; then
  echo "a source must not be included"
  bad=1
fi
exit $bad
