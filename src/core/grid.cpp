// SPDX-License-Identifier: MIT
// The header's tables are computed by the compiler; here they are checked against a few known entries.
#include "core/grid.h"

namespace kestrel {

static_assert(CellBox[40] == 4 && CellBoxStart[40] == 30 && BoxStart[5] == 33);
static_assert(BoxCell[4][0] == 30 && BoxCell[4][8] == 50 && BoxCell[8][5] == 71);
static_assert(RowColBox[4][7] == 5 && BitCount[511] == 9 && BitCount[0] == 0);

}  // namespace kestrel
