// SPDX-License-Identifier: MIT
#include "core/cell_names.h"

#include <array>

namespace kestrel {

std::string CellName(int cell) {
  return {RowLetter(CellRow[cell]), static_cast<char>('1' + CellCol[cell])};
}

int CellOfName(std::string_view name) {
  if (name.size() != 2) return -1;
  const std::size_t row = kRowLetters.find(name[0]);
  const int column = name[1] - '1';
  if (row == std::string_view::npos || column < 0 || column >= kUnitSize) return -1;
  return RowCell[row][static_cast<std::size_t>(column)];
}

std::string BoxName(int box) {
  constexpr std::array<std::string_view, kUnitSize> kPlaces{"top left",    "top middle",    "top right",
                                                            "middle left", "centre",        "middle right",
                                                            "bottom left", "bottom middle", "bottom right"};
  return std::string(kPlaces[static_cast<std::size_t>(box)]) + " box";
}

}  // namespace kestrel
