// SPDX-License-Identifier: MIT
// What the player calls rows, cells and boxes: row C, cell C7, the top left box. The one place that names them,
// for board, questions, screen readers, pages and command line.
#pragma once

#include <string>
#include <string_view>

#include "core/grid.h"

namespace kestrel {

inline constexpr std::string_view kRowLetters = "ABCDEFGHJ";  // no I, which looks like a 1

// The letter of row 0..8.
constexpr char RowLetter(int row) {
  return kRowLetters[static_cast<std::size_t>(row)];
}
// "C7" for cell 24; cells are 0..80.
std::string CellName(int cell);
// The cell of such a name; -1 when the text is none.
int CellOfName(std::string_view name);
// "top left box" for box 0, "centre box" for box 4; boxes are 0..8, row by row.
std::string BoxName(int box);

}  // namespace kestrel
