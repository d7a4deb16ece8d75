// SPDX-License-Identifier: MIT
// Whether a grid is solved. Used by whoever takes solutions from outside: the stock, the generator.
#pragma once

#include "core/grid.h"

namespace kestrel {

// Whether every row, column and box has every digit; false for a grid with bytes that are no digits.
bool IsFullGrid(const DigitGrid& grid);

}  // namespace kestrel
