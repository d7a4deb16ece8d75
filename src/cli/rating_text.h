// SPDX-License-Identifier: MIT
// Ratings as text: counts in the order of the window and of the stock file. Used by the commands.
#pragma once

#include <optional>
#include <string>

#include "cli/json.h"
#include "cli/puzzle_reader.h"
#include "core/grid.h"
#include "core/stock_table.h"
#include "solver/solver_state.h"
#include "solver/technique_table.h"

namespace kestrel {

// The 22 abbreviations, or counts, with tabs between them.
std::string CountsHeader();
std::string CountsTsv(const SlotCounts& counts);
// {"HS":41,"NS":3,...}
Json CountsJson(const SlotCounts& counts);

// "Medium"; "Beyond" for level 6.
std::string RatingName(int level);

// The digits of a solver state, 0 for an unsolved cell.
DigitGrid SolvedGrid(const SolverState& state);

// Where solving goes on when the input says how far the puzzle has been solved.
std::optional<SolverState> StartOf(const InputLine& line);

}  // namespace kestrel
