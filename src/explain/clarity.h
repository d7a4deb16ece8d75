// SPDX-License-Identifier: MIT
// How clear a position is as a lesson. Used by the program that looks for examples and exercises.
#pragma once

#include "solver/finding.h"
#include "solver/solver_state.h"

namespace kestrel {

// How clear a position is as an example of the finding, larger is clearer: something to remove, the pattern
// close together, few other candidates of its digits to confuse it with, a board neither full of marks nor
// nearly done.
double Clarity(const SolverState& position, const Finding& finding);

}  // namespace kestrel
