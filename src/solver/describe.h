// SPDX-License-Identifier: MIT
// Small helpers with which the techniques describe what they found. Never called unless somebody asked.
#pragma once

#include <bit>

#include "solver/finding.h"
#include "solver/solver_state.h"
#include "solver/unit_table.h"

namespace kestrel {

inline void AddCell(Finding& finding, int cell, CandidateMask digits, Role role = Role::Base) {
  finding.pattern.push_back({cell, digits, role});
}

// The cell with all its candidates.
inline void AddFullCell(Finding& finding, const SolverState& state, int cell, Role role = Role::Base) {
  AddCell(finding, cell, state.CellMask(cell), role);
}

// The cells of the unit (0..26) that have the digit.
inline void AddDigitCells(Finding& finding, const SolverState& state, int digit, int unit) {
  for (unsigned rest = state.Places(digit, unit); rest != 0; rest &= rest - 1) {
    AddCell(finding, kUnitTables.cell[unit][std::countr_zero(rest)], DigitBit(digit));
  }
}

}  // namespace kestrel
