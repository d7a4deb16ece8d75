// SPDX-License-Identifier: MIT
// Cells, units and digits in the player's words: C7, row C, column 7, the top left box. Used by the data set
// and by the texts of the examples.
#pragma once

#include <string>
#include <vector>

#include "solver/finding.h"

namespace kestrel::help {

// "A".."H", "J": there is no row I.
char RowLetter(int row);
// "C7" for cell 24.
std::string CellName(int cell);
// The cell of a name; -1 when the text is none.
int CellOfName(std::string_view name);
// "row C", "column 7", "the top left box".
std::string UnitName(Unit unit);
// The same with the article that a sentence needs: "row C", "column 7", "the top left box"; several of one
// kind joined: "rows C and G", "columns 2, 5 and 8", "the top left and the middle right box".
std::string UnitNames(const std::vector<Unit>& units);
// "3", "3 and 7", "3, 7 and 9" or with "or".
std::string DigitNames(CandidateMask digits, const char* joint = "and");
// "C7", "C2 and C8", "C2, C5 and C8".
std::string CellNames(const std::vector<int>& cells, const char* joint = "and");
// Words joined as above.
std::string Joined(const std::vector<std::string>& words, const char* joint = "and");
// "one", "two" .. "nine"; figures from 10.
std::string NumberWord(int number);

}  // namespace kestrel::help
