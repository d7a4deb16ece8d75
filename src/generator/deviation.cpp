// SPDX-License-Identifier: MIT
#include "generator/deviation.h"

#include <cstdint>

#include "generator/board_tables.h"

namespace kestrel {

namespace {

// The cell that alternative k of a constraint means; see alternatives.h.
constexpr auto kCellOf = [] {
  std::array<std::array<std::array<std::uint8_t, 9>, kCells>, kKinds> cell_of{};
  for (int i = 0; i < kCells; ++i) {
    for (int k = 0; k < 9; ++k) {
      cell_of[kCellKind][i][k] = static_cast<std::uint8_t>(i);
      cell_of[kRowKind][i][k] = static_cast<std::uint8_t>(RowCell[CellRow[i]][k]);
      cell_of[kColumnKind][i][k] = static_cast<std::uint8_t>(RowCell[k][CellCol[i]]);
      cell_of[kBoxKind][i][k] = static_cast<std::uint8_t>(BoxCell[CellBox[i]][k]);
    }
  }
  return cell_of;
}();

}  // namespace

Deviation::Deviation(const Alternatives& known, int cell) : Alternatives(known) {
  open_.fill(reference_);
  reference_ -= kBoards.cell[cell];
}

Deviation::Deviation(const ReferenceGrid& reference, const DigitGrid& givens) : Alternatives(reference) {
  open_.fill(reference_);
  for (int cell = 0; cell < kCells; ++cell) {
    if (givens[cell] == 0) continue;
    if (givens[cell] == reference.Index(cell) + 1) {
      PlaceReference(reference, kBoards.cell[cell]);
    } else {
      Place(reference, {cell, givens[cell] - 1});
    }
  }
}

Deviation::Survey Deviation::Look() const {
  Survey survey;
  for (int kind = 0; kind < kKinds; ++kind) {
    BitBoard any = other_[kind][0];
    BitBoard several;
    for (int k = 1; k < 9; ++k) {
      several |= any & other_[kind][k];
      any |= other_[kind][k];
    }
    survey.any[kind] = any;
    survey.several[kind] = several;
  }
  return survey;
}

BitBoard Deviation::MoreThanTwo(int kind) const {
  BitBoard one;
  BitBoard two;
  BitBoard three;
  for (int k = 0; k < 9; ++k) {
    const BitBoard board = other_[kind][k];
    three |= two & board;
    two |= one & board;
    one |= board;
  }
  return three;
}

unsigned Deviation::AlternativesOf(int kind, int constraint) const {
  unsigned bits = 0;
  for (int k = 0; k < 9; ++k) {
    bits |= static_cast<unsigned>(other_[kind][k].Has(constraint)) << static_cast<unsigned>(k);
  }
  return bits;
}

int Deviation::Displaced(const ReferenceGrid& reference, OtherDigit other) const {
  const BitBoard board =
      reference_ & (BitBoard(kBoards.cell[other.cell]) |
                    (reference.Digit(other.index).cells - BitBoard(kCellBoards[other.cell].not_seen)));
  int count = 0;
  board.ForEach([&](int) { ++count; });
  return count;
}

void Deviation::PlaceReference(const ReferenceGrid& reference, BitBoard cells) {
  reference_ -= cells;
  for (BitBoard& open : open_) open -= cells;
  cells.ForEach([&](int cell) { RuleOut(reference, cell, reference.Index(cell)); });
}

// Besides the alternatives, the reference digits of four constraints are ruled out: of the cell, and of the
// digit in the cell's row, column and box. These four are the ones that are met.
void Deviation::Place(const ReferenceGrid& reference, OtherDigit other) {
  RuleOut(reference, other.cell, other.index);
  const BitBoard digit = reference.Digit(other.index).cells;
  const BitBoard cell = kBoards.cell[other.cell];
  const BitBoard in_row = digit & kBoards.row[CellRow[other.cell]];
  const BitBoard in_column = digit & kBoards.column[CellCol[other.cell]];
  const BitBoard in_box = digit & kBoards.box[CellBox[other.cell]];
  open_[kCellKind] -= cell;
  open_[kRowKind] -= in_row;
  open_[kColumnKind] -= in_column;
  open_[kBoxKind] -= in_box;
  reference_ -= (cell | in_row | in_column | in_box);
  changed_ |= cell;
}

void Deviation::Remove(const ReferenceGrid& reference, OtherDigit other) {
  const CellBoards& at = kCellBoards[other.cell];
  const BitBoard digit = reference.Digit(other.index).cells;
  other_[kCellKind][other.index] -= kBoards.cell[other.cell];
  other_[kRowKind][at.column] -= (digit & kBoards.row[CellRow[other.cell]]);
  other_[kColumnKind][at.row] -= (digit & kBoards.column[CellCol[other.cell]]);
  other_[kBoxKind][at.position] -= (digit & kBoards.box[CellBox[other.cell]]);
}

OtherDigit DeviationSearch::Meaning(int kind, int constraint, int k) const {
  return {kCellOf[kind][constraint][k], kind == kCellKind ? k : reference_.Index(constraint)};
}

void DeviationSearch::Place(Deviation& state, OtherDigit other) {
  placed_[other.cell] = static_cast<std::uint8_t>(other.index + 1);
  state.Place(reference_, other);
}

// Singles, of both sorts: constraints that only their reference digit can meet, and constraints in need with
// one alternative (of these one for each kind; the survey is too old for more).
DeviationSearch::Progress DeviationSearch::PlaceForced(Deviation& state, const Deviation::Survey& survey) {
  std::array<BitBoard, kKinds> forced;
  for (int kind = 0; kind < kKinds; ++kind) forced[kind] = state.Need(kind) - survey.several[kind];
  const BitBoard settled =
      state.Undecided() - (survey.any[0] & survey.any[1] & survey.any[2] & survey.any[3]);
  const bool some_forced = (forced[0] | forced[1] | forced[2] | forced[3]).Any();
  if (!some_forced && !settled.Any()) return Progress::None;
  state.PlaceReference(reference_, settled);
  if (!some_forced) return Progress::Some;
  for (int kind = 0; kind < kKinds; ++kind) {
    const BitBoard still = forced[kind] & state.Need(kind);
    if (!still.Any()) continue;
    const int constraint = still.First();
    const unsigned left = state.AlternativesOf(kind, constraint);
    if (left == 0) return Progress::Contradiction;
    Place(state, Meaning(kind, constraint, std::countr_zero(left)));
  }
  return Progress::Some;
}

// Of a constraint in need, with just two alternatives if there is one, the alternative that displaces the
// fewest reference digits: the shorter way back to the reference is the likelier one.
OtherDigit DeviationSearch::Choose(const Deviation& state) const {
  int kind = 0;
  BitBoard board;
  for (int i = kKinds - 1; i >= 0; --i) {
    const BitBoard need = state.Need(i);
    if (need.Any()) {
      board = need;
      kind = i;
    }
  }
  for (int i = 0; i < kKinds; ++i) {
    const BitBoard pairs = state.Need(i) - state.MoreThanTwo(i);
    if (pairs.Any()) {
      board = pairs;
      kind = i;
      break;
    }
  }
  const int constraint = board.First();
  OtherDigit best{};
  int fewest = 5;
  for (unsigned left = state.AlternativesOf(kind, constraint); left != 0; left &= left - 1) {
    const OtherDigit other = Meaning(kind, constraint, std::countr_zero(left));
    const int displaced = state.Displaced(reference_, other);
    if (displaced >= fewest) continue;
    fewest = displaced;
    best = other;
  }
  return best;
}

DeviationSearch::Result DeviationSearch::Run(Deviation& state) {
  for (;;) {
    if (state.NeedsNothing()) {
      changed_ = state.Changed();
      return Result::Found;
    }
    if (!yield_.KeepGoing()) return Result::Stopped;
    const Deviation::Survey survey = state.Look();
    BitBoard impossible;
    for (int kind = 0; kind < kKinds; ++kind) impossible |= state.Need(kind) - survey.any[kind];
    if (impossible.Any()) return Result::Nothing;
    const Progress progress = PlaceForced(state, survey);
    if (progress == Progress::Contradiction) return Result::Nothing;
    if (progress == Progress::Some) continue;
    const OtherDigit guess = Choose(state);
    Deviation branch = state;
    Place(branch, guess);
    const Result result = Run(branch);
    if (result != Result::Nothing) return result;
    state.Remove(reference_, guess);
  }
}

DigitGrid DeviationSearch::Solution(const DigitGrid& givens) const {
  DigitGrid grid = givens;
  for (int cell = 0; cell < kCells; ++cell) {
    if (givens[cell] != 0) continue;
    grid[cell] = changed_.Has(cell) ? placed_[cell] : static_cast<std::uint8_t>(reference_.Index(cell) + 1);
  }
  return grid;
}

}  // namespace kestrel
