#!/bin/sh
# SPDX-License-Identifier: MIT
# The include check must notice a wrong include and a Qt include.
set -eu
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
mkdir -p "$folder/core" "$folder/solver"
echo '#include "solver/b.h"' >"$folder/core/a.h"
echo '#include <QString>' >"$folder/solver/b.h"
! report=$("$1/tools/check_includes.sh" "$folder") || { echo "not noticed"; exit 1; }
echo "$report" | grep -q 'core must not include solver'
echo "$report" | grep -q 'solver must not include Qt'
