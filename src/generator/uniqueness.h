// SPDX-License-Identifier: MIT
// The fast form of telling whether a puzzle has a second solution. Used by Generator.
#pragma once

#include "core/grid.h"
#include "core/yield.h"
#include "generator/outcome.h"

namespace kestrel {

// As PlainGenerator::HasUniqueSolution, for every grid. Asks `yield` at every step of its searches.
[[nodiscard]] Uniqueness FindUniqueness(const DigitGrid& givens, Yield& yield);

}  // namespace kestrel
