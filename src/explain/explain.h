// SPDX-License-Identifier: MIT
// A step of the solver in one line: what the command line writes, and what a page can put over a picture.
#pragma once

#include <string>

#include "solver/finding.h"

namespace kestrel {

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
