// SPDX-License-Identifier: MIT
// The patterns of conjugate pairs, rectangles and crosses.
#include "support/plain_solver.h"

#include <algorithm>
#include <functional>

#include "support/plain_helpers.h"

namespace kestrel::plain {

bool PlainSolver::FindTwoStringKite() {
  for (int d = 1; d <= 9; ++d) {
    const auto ends = [&](Kind kind, int index) {
      Cells cells;
      for (int cell : UnitCells(kind, index)) {
        if (Has(cell, d)) cells.push_back(cell);
      }
      if (cells.size() != 2 || Box(cells[0]) == Box(cells[1])) cells.clear();
      return cells;
    };
    for (int r = 0; r < 9; ++r) {
      const Cells a = ends(kRow, r);
      if (a.empty()) continue;
      for (int c = 0; c < 9; ++c) {
        const Cells b = ends(kColumn, c);
        if (b.empty()) continue;
        for (int k = 0; k < 4; ++k) {
          const int in_row = a[k / 2];
          const int in_column = b[k % 2];
          if (in_row == in_column || Box(in_row) != Box(in_column)) continue;
          if (EliminateSeenByBoth(a[1 - k / 2], b[1 - k % 2], d)) return true;
          break;
        }
      }
    }
  }
  return false;
}

bool PlainSolver::FindSkyscraper() {
  for (int d = 1; d <= 9; ++d) {
    for (int i = 0; i < 8; ++i) {
      for (int j = i + 1; j < 9; ++j) {
        if (SkyscraperPair(kRow, i, j, d) || SkyscraperPair(kColumn, i, j, d)) return true;
      }
    }
  }
  return false;
}

bool PlainSolver::SkyscraperPair(Kind kind, int i, int j, int digit) {
  Cells a;
  Cells b;
  for (int cell : UnitCells(kind, i)) {
    if (Has(cell, digit)) a.push_back(cell);
  }
  for (int cell : UnitCells(kind, j)) {
    if (Has(cell, digit)) b.push_back(cell);
  }
  if (a.size() != 2 || b.size() != 2) return false;
  const auto across = [&](int cell) { return kind == kRow ? Col(cell) : Row(cell); };
  for (int k = 0; k < 4; ++k) {
    const int joined_a = a[k / 2];
    const int joined_b = b[k % 2];
    const int free_a = a[1 - k / 2];
    const int free_b = b[1 - k % 2];
    if (across(joined_a) == across(joined_b) && across(free_a) != across(free_b) &&
        EliminateSeenByBoth(free_a, free_b, digit)) {
      return true;
    }
  }
  return false;
}

bool PlainSolver::FindMultiXWing() {
  for (Kind kind : {kRow, kColumn, kBox}) {
    for (int i = 0; i < 8; ++i) {
      for (int j = i + 1; j < 9; ++j) {
        for (int d1 = 1; d1 <= 9; ++d1) {
          for (int d2 = 1; d2 <= 9; ++d2) {
            if (d1 == d2 || Count(UnitCells(kind, i), d1) != 2 || Count(UnitCells(kind, j), d2) != 2)
              continue;
            Cells p;
            for (int cell : UnitCells(kind, i)) {
              if (Has(cell, d1)) p.push_back(cell);
            }
            for (int cell : UnitCells(kind, j)) {
              if (Has(cell, d2)) p.push_back(cell);
            }
            if (std::any_of(p.begin(), p.end(), [&](int c) { return __builtin_popcount(Mask(c)) != 2; }))
              continue;
            const bool same_columns = Col(p[0]) == Col(p[2]) && Col(p[1]) == Col(p[3]);
            const bool same_rows = Row(p[0]) == Row(p[2]) && Row(p[1]) == Row(p[3]);
            const std::array<int, 4> q = {p[0], p[1], p[2], p[3]};
            if (kind == kRow) {
              if (same_columns && MultiCase(kColumn, q, d1, d2)) return true;
              if (i / 3 == j / 3 && Stack(p[0]) == Stack(p[2]) && Stack(p[1]) == Stack(p[3]) &&
                  Stack(p[0]) != Stack(p[1]) && MultiCase(kBox, q, d1, d2)) {
                return true;
              }
            } else if (kind == kColumn) {
              if (same_rows && MultiCase(kRow, q, d1, d2)) return true;
              if (i / 3 == j / 3 && Band(p[0]) == Band(p[2]) && Band(p[1]) == Band(p[3]) &&
                  Band(p[0]) != Band(p[1]) && MultiCase(kBox, q, d1, d2)) {
                return true;
              }
            } else {
              if (same_rows && Row(p[0]) != Row(p[1]) && MultiCase(kRow, q, d1, d2)) return true;
              if (Col(p[0]) == Col(p[1]) || Col(p[2]) == Col(p[3])) continue;
              std::array<int, 4> s = q;
              if (Col(s[0]) > Col(s[1])) std::swap(s[0], s[1]);
              if (Col(s[2]) > Col(s[3])) std::swap(s[2], s[3]);
              if (Col(s[0]) == Col(s[2]) && Col(s[1]) == Col(s[3]) && MultiCase(kColumn, s, d1, d2))
                return true;
            }
          }
        }
      }
    }
  }
  return false;
}

bool PlainSolver::MultiCase(Kind lines, std::array<int, 4> p, int d1, int d2) {
  const auto index = [&](int cell) {
    return lines == kRow ? Row(cell) : lines == kColumn ? Col(cell) : Box(cell);
  };
  const Cells& l0 = UnitCells(lines, index(p[0]));
  const Cells& l1 = UnitCells(lines, index(p[1]));
  for (int e1 = 1; e1 <= 9; ++e1) {
    for (int e2 = 1; e2 <= 9; ++e2) {
      if (e1 == e2 || e1 == d1 || e1 == d2 || e2 == d1 || e2 == d2) continue;
      if (Count(l0, e1) < 3 && Count(l1, e2) < 3) continue;
      if (!Exactly(p[0], {d1, e1}) || !Exactly(p[1], {d1, e2}) || !Exactly(p[2], {d2, e1}) ||
          !Exactly(p[3], {d2, e2})) {
        continue;
      }
      for (int cell : l0) {
        if (cell != p[0] && cell != p[2]) RemoveCandidate(e1, cell);
      }
      for (int cell : l1) {
        if (cell != p[1] && cell != p[3]) RemoveCandidate(e2, cell);
      }
      return true;
    }
  }
  return false;
}

bool PlainSolver::FindFinnedXWing() {
  return FinnedPass(true) || FinnedPass(false);
}

bool PlainSolver::FinnedPass(bool rows) {
  const auto at = [&](int line, int position) { return rows ? 9 * line + position : 9 * position + line; };
  const Kind kind = rows ? kRow : kColumn;
  for (int d = 1; d <= 9; ++d) {
    for (int l1 = 0; l1 < 9; ++l1) {
      if (Count(UnitCells(kind, l1), d) != 2) continue;
      for (int p1 = 0; p1 < 8; ++p1) {
        for (int p2 = p1 + 1; p2 < 9; ++p2) {
          if (!Has(at(l1, p1), d) || !Has(at(l1, p2), d) || p1 / 3 == p2 / 3) continue;
          for (int l2 = 0; l2 < 9; ++l2) {
            const int count = Count(UnitCells(kind, l2), d);
            if (!Has(at(l2, p1), d) || !Has(at(l2, p2), d) || (count != 3 && count != 4) || l2 / 3 == l1 / 3)
              continue;
            const auto use = [&](const std::vector<int>& fins) {
              for (int f : fins) {
                if (!Has(at(l2, f), d) || f == p1 || f == p2 || f / 3 != fins[0] / 3) return false;
              }
              const int box = Box(at(l2, fins[0]));
              if (box != Box(at(l2, p1)) && box != Box(at(l2, p2))) return false;
              const int cover = box == Box(at(l2, p1)) ? p1 : p2;
              bool removed = false;
              for (int line = 0; line < 9; ++line) {
                const int cell = at(line, cover);
                if (Box(cell) == box && line != l2 && RemoveCandidate(d, cell)) removed = true;
              }
              return removed;
            };
            if (Combinations(0, 8, count - 2, use)) return true;
          }
        }
      }
    }
  }
  return false;
}

bool PlainSolver::FindUniqueRectangle() {
  for (int d1 = 1; d1 <= 8; ++d1) {
    for (int d2 = d1 + 1; d2 <= 9; ++d2) {
      Cells floor;
      Cells three;
      for (int cell = 0; cell < 81; ++cell) {
        if (!Has(cell, d1) || !Has(cell, d2)) continue;
        const int count = __builtin_popcount(Mask(cell));
        if (count == 2) floor.push_back(cell);
        if (count == 3) three.push_back(cell);
      }
      for (std::size_t i = 0; i < floor.size(); ++i) {
        for (std::size_t j = i + 1; j < floor.size(); ++j) {
          const int a = floor[i];
          const int b = floor[j];
          if (Row(a) == Row(b)) {
            if (UniqueFloor(floor, three, a, b, d1, d2, true)) return true;
          } else if (Col(a) == Col(b)) {
            if (UniqueFloor(floor, three, a, b, d1, d2, false)) return true;
          }
        }
      }
    }
  }
  return false;
}

bool PlainSolver::UniqueFloor(const Cells& floor, const Cells& three, int a, int b, int d1, int d2,
                              bool rows) {
  const auto along = [&](int cell) { return rows ? Row(cell) : Col(cell); };
  const auto across = [&](int cell) { return rows ? Col(cell) : Row(cell); };
  const auto opposite = [&](int c) {
    const int other = across(c) == across(a) ? across(b) : across(a);
    return rows ? 9 * along(c) + other : 9 * other + along(c);
  };
  const bool one_box = Box(a) == Box(b);
  if (one_box) {
    for (int c : floor) {
      if (c == a || c == b || (across(c) != across(a) && across(c) != across(b))) continue;
      const int corner = opposite(c);
      if (!Has(corner, d1) || !Has(corner, d2) || __builtin_popcount(Mask(corner)) < 3) continue;
      RemoveCandidate(d1, corner);
      RemoveCandidate(d2, corner);
      return true;
    }
  }
  if (three.size() < 2) return false;
  for (int c : three) {
    if (along(c) == along(a) || (across(c) != across(a) && across(c) != across(b))) continue;
    if (!one_box && Box(c) != Box(a) && Box(c) != Box(b)) continue;
    const int corner = opposite(c);
    if (Mask(corner) != Mask(c)) continue;
    for (int x = 1; x <= 9; ++x) {
      if (Has(c, x) && x != d1 && x != d2 && EliminateSeenByBoth(c, corner, x)) return true;
    }
  }
  return false;
}

bool PlainSolver::FindAvoidableRectangle() {
  return AvoidablePass1() || AvoidablePass2();
}

bool PlainSolver::AvoidablePass1() {
  for (int d = 1; d <= 9; ++d) {
    for (int c1 = 0; c1 < 80; ++c1) {
      if (CellValue[c1] != d || Givens[c1] != 0) continue;
      for (int c2 = c1 + 1; c2 < 81; ++c2) {
        if (CellValue[c2] != d || Givens[c2] != 0) continue;
        const int a = 9 * Row(c1) + Col(c2);
        const int b = 9 * Row(c2) + Col(c1);
        if (Givens[a] != 0 || Givens[b] != 0 || (Box(c1) != Box(a) && Box(c1) != Box(b))) continue;
        if ((CellValue[a] == 0) == (CellValue[b] == 0)) continue;
        const int solved = CellValue[a] != 0 ? a : b;
        const int open = solved == a ? b : a;
        if (RemoveCandidate(CellValue[solved], open)) return true;
      }
    }
  }
  return false;
}

bool PlainSolver::AvoidablePass2() {
  Cells list;
  for (int p = 1; p <= 8; ++p) {
    for (int q = p + 1; q <= 9; ++q) {
      for (int cell = 0; cell < 81; ++cell) {
        if (Exactly(cell, {p, q})) list.push_back(cell);
      }
    }
  }
  for (int c1 = 0; c1 < 80; ++c1) {
    const int d = CellValue[c1];
    if (d == 0 || Givens[c1] != 0) continue;
    for (int c2 = c1 + 1; c2 < 81; ++c2) {
      const int e = CellValue[c2];
      if (e == 0 || Givens[c2] != 0 || e == d) continue;
      for (bool rows : {true, false}) {
        if (rows ? Row(c1) != Row(c2) : Col(c1) != Col(c2)) continue;
        for (int x : list) {
          if (!Has(x, e) || (rows ? Col(x) != Col(c1) : Row(x) != Row(c1))) continue;
          const int y = rows ? 9 * Row(x) + Col(c2) : 9 * Row(c2) + Col(x);
          int f = 1;
          while (f == e || !Has(x, f)) ++f;
          if (f == d || !Exactly(y, {d, f}) || (Box(c1) != Box(c2) && Box(c1) != Box(x))) continue;
          if (EliminateSeenByBoth(x, y, f)) return true;
        }
      }
    }
  }
  return false;
}

bool PlainSolver::FindEmptyRectangle() {
  for (int d = 1; d <= 9; ++d) {
    for (int box = 0; box < 9; ++box) {
      Cells found;
      std::array<int, 3> in_row{};
      std::array<int, 3> in_column{};
      for (int cell : UnitCells(kBox, box)) {
        if (!Has(cell, d)) continue;
        found.push_back(cell);
        ++in_row[Row(cell) % 3];
        ++in_column[Col(cell) % 3];
      }
      const auto line_with = [](const std::array<int, 3>& counts, int wanted) {
        const auto place = std::find(counts.begin(), counts.end(), wanted);
        return place == counts.end() ? -1 : static_cast<int>(place - counts.begin());
      };
      const int top = 3 * (box / 3);
      const int left = 3 * (box % 3);
      const auto size = found.size();
      if (size < 2 || size > 5) continue;
      int row = -1;
      int column = -1;
      if (size == 2) {
        if (Row(found[0]) == Row(found[1]) || Col(found[0]) == Col(found[1])) continue;
        if (EmptyCross(box, Row(found[0]), Col(found[1]), d)) return true;
        if (EmptyCross(box, Row(found[1]), Col(found[0]), d)) return true;
        continue;
      }
      if (size == 3) {
        if (line_with(in_row, 3) >= 0 || line_with(in_column, 3) >= 0) continue;
        if (line_with(in_row, 2) >= 0) {
          row = top + line_with(in_row, 2);
          for (int cell : found) {
            if (Row(cell) != row) column = Col(cell);
          }
        } else if (line_with(in_column, 2) >= 0) {
          column = left + line_with(in_column, 2);
          for (int cell : found) {
            if (Col(cell) != column) row = Row(cell);
          }
        }
      } else if (size == 4) {
        if (line_with(in_row, 3) >= 0) {
          row = top + line_with(in_row, 3);
          if (line_with(in_column, 2) >= 0) column = left + line_with(in_column, 2);
        } else if (line_with(in_column, 3) >= 0) {
          column = left + line_with(in_column, 3);
          if (line_with(in_row, 2) >= 0) row = top + line_with(in_row, 2);
        } else if (std::count(in_row.begin(), in_row.end(), 2) == 1 &&
                   std::count(in_column.begin(), in_column.end(), 2) == 1) {
          row = top + line_with(in_row, 2);
          column = left + line_with(in_column, 2);
          if (Has(9 * row + column, d)) continue;
        }
      } else if (std::count(in_row.begin(), in_row.end(), 3) == 1 &&
                 std::count(in_column.begin(), in_column.end(), 3) == 1) {
        row = top + line_with(in_row, 3);
        column = left + line_with(in_column, 3);
      }
      if (row >= 0 && column >= 0 && EmptyCross(box, row, column, d)) return true;
    }
  }
  return false;
}

bool PlainSolver::EmptyCross(int box, int row, int column, int digit) {
  for (bool along_row : {true, false}) {
    for (int x : UnitCells(along_row ? kRow : kColumn, along_row ? row : column)) {
      if (Box(x) == box || !Has(x, digit)) continue;
      const Cells& line = UnitCells(along_row ? kColumn : kRow, along_row ? Col(x) : Row(x));
      if (Count(line, digit) != 2) continue;
      const int y = *std::find_if(line.begin(), line.end(), [&](int c) { return c != x && Has(c, digit); });
      if (along_row ? Band(y) == box / 3 : Stack(y) == box % 3) continue;
      if (RemoveCandidate(digit, along_row ? 9 * Row(y) + column : 9 * row + Col(y))) return true;
    }
  }
  return false;
}

}  // namespace kestrel::plain
