// SPDX-License-Identifier: MIT
// The fast form of telling whether a puzzle has a second solution. Used by Generator.
#pragma once

#include "core/grid.h"
#include "core/yield.h"
#include "generator/outcome.h"

namespace kestrel {

// Several when the empty cells can be filled in two ways without a clash that was not there before; Unique
// otherwise. For every grid of digits 0..9. Asks `yield` at every step of its searches.
[[nodiscard]] Uniqueness FindUniqueness(const DigitGrid& givens, Yield& yield);

}  // namespace kestrel
