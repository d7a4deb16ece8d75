// SPDX-License-Identifier: MIT
// What a technique found, for whoever explains it: the steps in words, the hints, the help pages.
// The solver fills one only when somebody observes it.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "core/grid.h"
#include "core/technique.h"

namespace kestrel {

enum class UnitKind : std::uint8_t { Row = 1, Column = 2, Box = 3 };

struct Unit {
  UnitKind kind;
  int index;  // 0..8
  friend bool operator==(const Unit&, const Unit&) = default;
};

// The part that a cell plays in a pattern, in the words of the literature.
enum class Role : std::uint8_t {
  Base,   // belongs to the pattern, no special part (subset cell, fish corner, conjugate end, rectangle
          // corner)
  Pivot,  // XY-Wing, XYZ-Wing
  Wing,   // XY-Wing, XYZ-Wing
  Fin,    // Finned X-Wing
  Floor,  // Unique Rectangle: the corners with just the two digits
  Roof,   // Unique Rectangle, Avoidable Rectangle: the corners that decide
  Link,   // Two-String Kite, Skyscraper, Empty Rectangle: the cells that connect the two ends
};

struct PatternCell {
  int cell;              // 0..80
  CandidateMask digits;  // its digits that matter here (for a solved rectangle corner: its value)
  Role role;
  friend bool operator==(const PatternCell&, const PatternCell&) = default;
};

struct Removal {
  int cell;              // 0..80
  CandidateMask digits;  // the candidates that went, never empty
  friend bool operator==(const Removal&, const Removal&) = default;
};

// What the parts of a Finding hold for each technique; a part not named is empty or 0, and cells
// stand in the order given. A cell's digits are all its candidates where this says "full", else those of the
// pattern that it has (for a solved rectangle corner: its value).
//
//  Hidden Single: digits d; pattern the cell; units the unit; form 1 box, 2 row, 3 column.
//
//  Naked Single: digits d; pattern the cell.
//
//  Pointing Pair: digits d; pattern d's cells in the box; units the box; covers the line that loses;
//     form 1 row, 2 column.
//
//  Box Line: digits d; pattern d's cells in the line; units the line; covers the box that loses;
//     form 1 row, 2 column.
//
//  Naked subsets: digits the subset; pattern its cells; units the unit;
//     form 1 row, 2 column, 3 box.
//
//  Hidden subsets: the same.
//
//  X-Wing, Swordfish, Jellyfish: digits d; pattern d's cells in the base lines, line by line;
//     units the base lines; covers the cover lines; form 1 rows, 2 columns.
//
//  XY-Wing, XYZ-Wing: digits x, y, z; pattern Pivot, Wing, Wing, all full; units the two units in
//     which the pivot meets them.
//
//  2 String Kite: digits d; pattern the row's end, its Link, the column's Link, its end; units the row and
//     the column; covers the box of the links.
//
//  Skyscraper: digits d; pattern the first end, its Link, the second Link, its end; units the two
//     lines; covers the line of the links; form 1 rows, 2 columns.
//
//  Multi X-Wing: digits d1, d2, e1, e2; pattern the four cells; units where d1 and d2 are pairs; covers
//     where e1 and e2 go; form 1 rows A, 2 rows B, 3 columns A, 4 columns B, 5 boxes A, 6 boxes B
//     (A: the four cells form a rectangle, in the boxes pass by rows; B: two boxes, in the boxes pass by
//     columns).
//
//  Finned X-Wing: digits d; pattern two corners in the base line, two in the finned line, the Fins; units
//     base line, finned line; covers the line that loses, the other; form 1 rows, 2 columns.
//
//  Unique Rectangle: form 1 (type 1): digits d1, d2; pattern three Floors, the Roof (full) that loses them.
//     Form 2 (type 2): digits d1, d2, x; pattern two Floors, two Roofs. Units the line of the first two.
//
//  Avoidable Rectangle: form 1 (one corner open): digits d, e; pattern two corners solved with d, the one
//     solved with e, the open Roof (full) that loses e. Form 2 (two corners open): digits d, e, f; pattern the
//     corners solved with d and e, two Roofs; units the line of the solved two.
//
//  Empty Rectangle: digits d; pattern d's cells in the box, then the pair: the Link, which is on the cross, and the
//     far end; units the box and the line of the pair; covers the row and the column of the cross; form 1 pair
//     met from the row, 2 from the column.
struct Finding {
  Technique technique = Technique::None;
  CandidateMask digits = 0;  // the digits that the pattern is about
  std::vector<PatternCell> pattern;
  std::vector<Unit> units;   // the units in which the pattern lies (a fish: its base lines)
  std::vector<Unit> covers;  // a fish: its cover lines; an intersection: where the removals happen
  int form = 0;          // techniques with several forms number them from 1 (types, passes, cases); else 0
  int placed_cell = -1;  // a single: where ...
  int placed_digit = 0;  // ... and which digit
  std::vector<Removal> removals;  // in ascending cell order; empty for a single
};

}  // namespace kestrel
