// SPDX-License-Identifier: MIT
// The technique routines, simplest first. Called through the technique table by the driver and by the hints.
//
// The contract of every routine: it applies one pattern or one placement, the first in its own fixed scan
// order that changes the state, and returns true; a pattern that changes nothing is passed over; when there
// is none it returns false and the state is as before. It changes the state only through PlaceValue,
// RemoveCandidate and EliminateSeenByBoth. The scan orders decide which of several patterns counts, and with
// it the counts and scores stored with a puzzle: they must never change.
//
// When `input.finding` is given, a routine that returns true describes its pattern there: digits, pattern,
// units, covers, form and a placement (finding.h says how). Step and removals are filled by the caller, who
// knows the state before.
#pragma once

#include <span>

#include "core/grid.h"
#include "solver/finding.h"
#include "solver/solver_state.h"

namespace kestrel {

struct SolverInput {
  const DigitGrid& givens;     // the given digits, 0 elsewhere; read by the Avoidable Rectangle only
  Finding* finding = nullptr;  // where to describe what was found; null when nobody asks
};

// singles.cpp
bool FindHiddenSingle(SolverState& state, const SolverInput& input);
bool FindNakedSingle(SolverState& state, const SolverInput& input);

// intersections.cpp: pointing pair or triple; box-line reduction
bool FindPointing(SolverState& state, const SolverInput& input);
bool FindBoxLine(SolverState& state, const SolverInput& input);

// subsets.cpp: naked subsets of 2 to 5 cells, hidden subsets of 2 or 3; any other size finds nothing.
bool FindSubset(SolverState& state, const SolverInput& input, bool naked, int size);
// True when the cell has no candidate outside `digits`; also when it has none at all.
bool CellWithinDigits(const SolverState& state, CandidateMask digits, int cell);
// Removes `digits` from every cell of the unit of that kind through cells[0], except `cells` themselves.
bool EliminateNakedSubset(SolverState& state, CandidateMask digits, std::span<const int> cells,
                          UnitKind kind);
// The same with flag and size fixed, as the table wants them.
bool FindNakedPair(SolverState& state, const SolverInput& input);
bool FindNakedTriple(SolverState& state, const SolverInput& input);
bool FindNakedQuad(SolverState& state, const SolverInput& input);
bool FindNakedQuint(SolverState& state, const SolverInput& input);
bool FindHiddenPair(SolverState& state, const SolverInput& input);
bool FindHiddenTriple(SolverState& state, const SolverInput& input);

// fish.cpp
bool FindXWing(SolverState& state, const SolverInput& input);
bool FindSwordfish(SolverState& state, const SolverInput& input);
bool FindJellyfish(SolverState& state, const SolverInput& input);

// wings.cpp
bool FindXYWing(SolverState& state, const SolverInput& input);
bool FindXYZWing(SolverState& state, const SolverInput& input);
// Removes the digit from every cell other than the three that sees all of them. True if any cell had it.
bool EliminateSeenByThree(SolverState& state, int pivot, int wing_a, int wing_b, int digit);

// kite_skyscraper.cpp
bool FindTwoStringKite(SolverState& state, const SolverInput& input);
bool FindSkyscraper(SolverState& state, const SolverInput& input);

// multi_x_wing.cpp
bool FindMultiXWing(SolverState& state, const SolverInput& input);

// finned_x_wing.cpp
bool FindFinnedXWing(SolverState& state, const SolverInput& input);

// rectangles.cpp
bool FindUniqueRectangle(SolverState& state, const SolverInput& input);
bool FindAvoidableRectangle(SolverState& state, const SolverInput& input);

// empty_rectangle.cpp
bool FindEmptyRectangle(SolverState& state, const SolverInput& input);

}  // namespace kestrel
