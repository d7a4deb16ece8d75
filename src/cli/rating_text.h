// SPDX-License-Identifier: MIT
// Ratings as text: counts in the order of the window and of the stock file. Used by the commands.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "core/grid.h"
#include "core/stock_table.h"
#include "solver/solver_state.h"
#include "solver/technique_table.h"

namespace kestrel {

// Technique counts by display slot, as a SudokuRecord has them.
using SlotCounts = std::array<std::int16_t, kTechniques>;
SlotCounts CountsBySlot(const TechniqueCounters& counters);

// The 22 abbreviations, or counts, with tabs between them.
std::string CountsHeader();
std::string CountsTsv(const SlotCounts& counts);
// {"HS":41,"NS":3,...}
std::string CountsJson(const SlotCounts& counts);

// The digits of a solver state, 0 for an unsolved cell.
DigitGrid SolvedGrid(const SolverState& state);

}  // namespace kestrel
