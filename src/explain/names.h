// SPDX-License-Identifier: MIT
// Units, digits and lists in the player's words; cells and boxes by themselves are named in core/cell_names.h.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "core/cell_names.h"
#include "solver/finding.h"

namespace kestrel {

// "row C", "column 7", "top left box": as a label, without an article.
std::string UnitName(Unit unit);
// The same inside a sentence: "row C", "column 7", "the top left box".
std::string TheUnit(Unit unit);
// Several, inside a sentence: "rows C and G", "columns 2, 5 and 8", "the top left and the centre box", of
// different kinds "row C and column 5".
std::string TheUnits(std::span<const Unit> units);
// "3", "3 and 7", "3, 7 and 9" or with "or".
std::string DigitNames(CandidateMask digits, const char* joint = "and");
// "C7", "C2 and C8", "C2, C5 and C8".
std::string CellNames(const std::vector<int>& cells, const char* joint = "and");
// `count` cells of a pattern from number `first` on, ascending.
std::string PatternCellNames(const Finding& finding, std::size_t first, std::size_t count,
                             const char* joint = "and");
// Words joined as above.
std::string Joined(const std::vector<std::string>& words, const char* joint = "and");
// "one", "two" .. "nine"; figures from 10.
std::string NumberWord(int number);

}  // namespace kestrel
