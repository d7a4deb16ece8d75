// SPDX-License-Identifier: MIT
// Steps of the solver in words. Knows nothing of the command line, so that hints and help can use it too.
#pragma once

#include <span>
#include <string>

#include "core/grid.h"
#include "solver/finding.h"

namespace kestrel {

// The name that the game gives a cell (0..80): row A to H or J, column 1 to 9. Cell 24 is "C7".
std::string CellName(int cell);
// "row C", "column 7", "box 3".
std::string UnitName(const Unit& unit);
// "rows C and G", "columns 2, 5 and 8", "row C and column 5".
std::string UnitNames(std::span<const Unit> units);
// "4", "3 and 7", "2, 5 and 8".
std::string DigitNames(CandidateMask digits);

// The parts of a sentence about a step, to be put together or shown apart.
struct StepWords {
  std::string technique;  // "X-Wing"; where forms differ in kind, with the form: "Unique Rectangle type 1"
  std::string digits;     // "4"
  std::string pattern;    // "C2, C8, G2, G8 in rows C and G, columns 2 and 8"
  std::string effect;     // "removes 4 from D2, E8"
};
StepWords ExplainStep(const Finding& finding);

// "X-Wing on 4: C2, C8, G2, G8 in rows C and G, columns 2 and 8: removes 4 from D2, E8".
std::string StepSentence(const Finding& finding);

}  // namespace kestrel
