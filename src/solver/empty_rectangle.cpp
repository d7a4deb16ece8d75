// SPDX-License-Identifier: MIT
// Empty Rectangle: a box in which a digit lies on a cross of one row and one column, and a pair of the digit
// outside it.
//
//             C
//    R    4 4 . | . . X | . . .      X and Y are the only 4s of their column. If Y is not 4, X is; then row R
//         . . 4 | . . . | . . .      has no 4 in the box, and the box's 4 lies in column C. So Y or the 4 in
//         . . 4 | . . . | . . .      column C takes the 4 from t, which sees both.
//         ------+-------+------
//         . . t | . . Y | . . .      Or the same turned over, with X on column C.
#include <array>
#include <bit>
#include <cstdint>

#include "solver/describe.h"
#include "solver/techniques.h"

namespace kestrel {
namespace {

// A row and a column inside a box, 0..2 each.
struct Cross {
  std::int8_t row = 0;
  std::int8_t column = 0;
};
// The crosses to try for a box: none, one, or two for a box with two cells.
struct Crosses {
  int count = 0;
  std::array<Cross, 2> cross{};

  constexpr void Add(int row, int column) {
    cross[count++] = {static_cast<std::int8_t>(row), static_cast<std::int8_t>(column)};
  }
};

// How many of a box's cells (bit p for position p) lie in each of its rows or columns.
struct LineCounts {
  std::array<int, 3> count{};

  // The line with exactly n cells; -1 when there is none or more than one.
  [[nodiscard]] constexpr int Only(int n) const {
    int found = -1;
    for (int i = 0; i < 3; ++i) {
      if (count[i] == n) found = found < 0 ? i : 3;
    }
    return found < 3 ? found : -1;
  }
};

constexpr unsigned BoxRow(int row) {
  return 0b000000111U << static_cast<unsigned>(3 * row);
}
constexpr unsigned BoxColumn(int column) {
  return 0b001001001U << static_cast<unsigned>(column);
}

constexpr Crosses CrossesOfTwo(unsigned box) {
  const int first = std::countr_zero(box);
  const int second = std::countr_zero(box & (box - 1));
  Crosses crosses;
  if (first / 3 != second / 3 && first % 3 != second % 3) {
    crosses.Add(first / 3, second % 3);
    crosses.Add(second / 3, first % 3);
  }
  return crosses;
}

// A line with two cells, crossed through the third; three in one line or on three rows and columns have none.
constexpr Crosses CrossOfThree(unsigned box, LineCounts rows, LineCounts columns) {
  Crosses crosses;
  if (const int row = rows.Only(2); row >= 0) {
    crosses.Add(row, std::countr_zero(box & ~BoxRow(row)) % 3);
  } else if (const int column = columns.Only(2); column >= 0) {
    crosses.Add(std::countr_zero(box & ~BoxColumn(column)) / 3, column);
  }
  return crosses;
}

// Three cells in a line and one across, or two and two in lines that cross in an empty cell.
constexpr Crosses CrossOfFour(unsigned box, LineCounts rows, LineCounts columns) {
  Crosses crosses;
  if (const int row = rows.Only(3); row >= 0) {
    crosses.Add(row, columns.Only(2));
  } else if (const int column = columns.Only(3); column >= 0) {
    crosses.Add(rows.Only(2), column);
  } else {
    const int row_of_two = rows.Only(2);
    const int column_of_two = columns.Only(2);
    if (row_of_two >= 0 && column_of_two >= 0 && (box & BoxRow(row_of_two) & BoxColumn(column_of_two)) == 0) {
      crosses.Add(row_of_two, column_of_two);
    }
  }
  return crosses;
}

constexpr Crosses CrossesOf(unsigned box) {
  LineCounts rows;
  LineCounts columns;
  for (int i = 0; i < 3; ++i) {
    rows.count[i] = BitCount[box & BoxRow(i)];
    columns.count[i] = BitCount[box & BoxColumn(i)];
  }
  Crosses crosses;
  switch (BitCount[box]) {
    case 2:
      return CrossesOfTwo(box);
    case 3:
      return CrossOfThree(box, rows, columns);
    case 4:
      return CrossOfFour(box, rows, columns);
    case 5:
      if (rows.Only(3) >= 0 && columns.Only(3) >= 0) crosses.Add(rows.Only(3), columns.Only(3));
      return crosses;
    default:
      return crosses;
  }
}

// The crosses of every set of positions in a box.
constexpr std::array<Crosses, 512> kCrosses = [] {
  std::array<Crosses, 512> table{};
  for (unsigned box = 0; box < 512; ++box) table[box] = CrossesOf(box);
  return table;
}();

struct Attempt {
  int digit;
  int box;                  // 0..8
  std::array<int, 2> line;  // the cross as units: its row, its column

  [[nodiscard]] CellSet BoxCells() const { return kUnitTables.cells[kFirstBox + box]; }
};

// X on the row of the cross (direction 0) or on its column (1); Y at the other end of X's line across.
bool TryDirection(SolverState& state, const SolverInput& input, const Attempt& attempt, int direction) {
  const int digit = attempt.digit;
  const int across = 1 - direction;
  for (const int x : (state.Cells(digit) & kUnitTables.cells[attempt.line[direction]]) - attempt.BoxCells()) {
    const int pair_line = kUnitTables.unit[x][across];
    if (BitCount[state.Places(digit, pair_line)] != 2) continue;
    CellSet pair = state.Cells(digit) & kUnitTables.cells[pair_line];
    pair.Remove(x);
    const int y = pair.First();
    // With Y in the box's own band (or stack) the target would lie in the box itself.
    if (kUnitTables.unit[y][direction] % 9 / 3 == attempt.line[direction] % 9 / 3) continue;
    const CellSet target =
        kUnitTables.cells[kUnitTables.unit[y][direction]] & kUnitTables.cells[attempt.line[across]];
    if (!state.RemoveFrom(target, digit)) continue;
    if (input.finding != nullptr) {
      Finding& finding = *input.finding;
      finding.digits = DigitBit(digit);
      AddDigitCells(finding, state, digit, kFirstBox + attempt.box);
      AddCell(finding, x, DigitBit(digit), Role::Link);
      AddCell(finding, y, DigitBit(digit));
      finding.units = {NamedUnit(kFirstBox + attempt.box), NamedUnit(pair_line)};
      finding.covers = {NamedUnit(attempt.line[0]), NamedUnit(attempt.line[1])};
      finding.form = direction + 1;
    }
    return true;
  }
  return false;
}

// Scan order: crosses, and for each first from its row, then from its column.
bool FindInBox(SolverState& state, const SolverInput& input, int digit, int box) {
  const Crosses& crosses = kCrosses[state.Places(digit, kFirstBox + box)];
  for (int i = 0; i < crosses.count; ++i) {
    const Cross& cross = crosses.cross[i];
    const Attempt attempt{digit, box, {box / 3 * 3 + cross.row, kFirstColumn + box % 3 * 3 + cross.column}};
    for (const int direction : {0, 1}) {
      if (TryDirection(state, input, attempt, direction)) return true;
    }
  }
  return false;
}

}  // namespace

bool FindEmptyRectangle(SolverState& state, const SolverInput& input) {
  CandidateMask& to_scan = state.DigitsToScan(DigitScan::EmptyRectangle);
  for (; to_scan != 0; to_scan &= to_scan - 1) {
    for (int box = 0; box < 9; ++box) {
      if (FindInBox(state, input, LowestDigit(to_scan), box)) return true;
    }
  }
  return false;
}

}  // namespace kestrel
