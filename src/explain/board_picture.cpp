// SPDX-License-Identifier: MIT
// Draws from back to front: backgrounds, grid, headers, bars, digits, candidates, signs.
#include "explain/board_picture.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "explain/blockers.h"
#include "explain/board_geometry.h"
#include "explain/names.h"
#include "explain/reasons.h"
#include "explain/sign_brush.h"
#include "explain/technique_words.h"
#include "solver/technique_table.h"
#include "solver/unit_table.h"

namespace kestrel {
namespace {

using namespace geometry;

constexpr double kDigitSize = 38;
constexpr double kMarkSize = 14;

// What the lines and boxes of a finding are in its picture.
struct UnitSign {
  Unit unit;
  Sign sign;  // BaseUnit, Losing or Tie
};

CellSet CellsOf(Unit unit) {
  return kUnitTables.cells[9 * (static_cast<int>(unit.kind) - 1) + unit.index];
}

bool Loses(const Finding& finding, Unit unit) {
  return std::ranges::any_of(finding.removals,
                             [cells = CellsOf(unit)](const Removal& r) { return cells.Has(r.cell); });
}

// The box in which the fins of a Finned X-Wing lie.
Unit FinBox(const Finding& finding) {
  return {UnitKind::Box, CellBox[finding.pattern.back().cell]};
}

bool IsFinned(const Finding& finding) {
  return finding.technique == Technique::FinnedXWing;
}

// A cover in which nothing is removed here only holds the pattern together, and so do all covers of a Finned X-Wing:
// there the cells that lose are those that a cover and the fin's box share.
std::vector<UnitSign> UnitSigns(const Finding& finding, Frame frame) {
  std::vector<UnitSign> signs;
  for (const Unit& unit : finding.units) signs.push_back({unit, Sign::BaseUnit});
  if (frame == Frame::Spot) return signs;
  const bool may_lose = WordsOf(finding.technique).covers == Covers::Lose && !IsFinned(finding);
  for (const Unit& unit : finding.covers) {
    if (std::ranges::find(finding.units, unit) != finding.units.end()) continue;
    signs.push_back({unit, may_lose && Loses(finding, unit) ? Sign::Losing : Sign::Tie});
  }
  if (IsFinned(finding)) signs.push_back({FinBox(finding), Sign::Tie});
  return signs;
}

class Drawing {
 public:
  Drawing(const Example& example, Frame frame, const Palette& palette, std::string_view title,
          std::string words)
      : example_(example),
        finding_(example.finding),
        frame_(frame),
        palette_(palette),
        svg_(kPictureWidth, kPictureHeight, title, words),
        brush_(svg_, palette_) {
    picture_.words = std::move(words);
    svg_.Rect({0, 0}, kPictureWidth, kPictureHeight, {palette.paper});
  }

  BoardPicture Draw() {
    if (frame_ != Frame::Plain) unit_signs_ = UnitSigns(finding_, frame_);
    Washes();
    Grid();
    Headers();
    if (frame_ != Frame::Plain) Bars();
    Digits();
    Marks();
    if (frame_ != Frame::Plain) Signs();
    return Finished();
  }

  BoardPicture DrawEntered(std::span<const Placement> placements) {
    Grid();
    Headers();
    Digits();
    Marks();
    int number = 0;
    for (const Placement& placed : placements) {
      Used(Sign::Entered);
      brush_.Entered(CellCorner(placed.cell), CellMiddle(placed.cell), kDigitSize, placed.digit, ++number);
    }
    return Finished();
  }

 private:
  BoardPicture Finished() {
    picture_.svg = svg_.Finished();
    return std::move(picture_);
  }

  // Notes that the picture has the sign.
  Sign Used(Sign sign) {
    picture_.signs.insert(sign);
    return sign;
  }

  void Wash(const Area& area, const char* colour) {
    svg_.Rect(area.Corner(), area.Width(), area.Height(), {colour});
  }

  // The cells that lose lie under those of the pattern where they cross.
  void Washes() {
    for (const auto& [unit, sign] : unit_signs_) {
      if (sign == Sign::Losing) Wash(AreaOf(unit), palette_.lose_wash), Used(sign);
    }
    if (frame_ >= Frame::Reason && IsFinned(finding_)) {
      Wash(Common(AreaOf(finding_.covers[0]), AreaOf(FinBox(finding_))), palette_.lose_wash);
      Used(Sign::Losing);
    }
    for (const auto& [unit, sign] : unit_signs_) {
      if (sign == Sign::BaseUnit) Wash(AreaOf(unit), palette_.unit_wash), Used(sign);
    }
  }

  void Grid() {
    for (const bool thick : {false, true}) {
      std::string path;
      for (int i = 0; i <= 9; ++i) {
        if ((i % 3 == 0) != thick) continue;
        path += 'M' + SvgNumber(GridLine(kLeft, i)) + ' ' + SvgNumber(GridLine(kTop, 0)) + 'V' +
                SvgNumber(GridLine(kTop, 9)) + 'M' + SvgNumber(GridLine(kLeft, 0)) + ' ' +
                SvgNumber(GridLine(kTop, i)) + 'H' + SvgNumber(GridLine(kLeft, 9));
      }
      svg_.Path(path, {nullptr, thick ? palette_.ink : palette_.thin, thick ? 2.0 : 1.0},
                " stroke-linecap=\"square\"");
    }
    for (const auto& [unit, sign] : unit_signs_) {
      if (unit.kind != UnitKind::Box) continue;
      const Area area = AreaOf(unit);
      brush_.BoxFrame(Used(sign), area.Corner(), area.Width(), area.Height());
    }
  }

  void Headers() {
    for (const UnitKind kind : {UnitKind::Row, UnitKind::Column}) {
      for (int i = 0; i < kUnitSize; ++i) Header({kind, i});
    }
  }

  void Header(Unit unit) {
    constexpr double kSize = 17;
    const bool row = unit.kind == UnitKind::Row;
    const double along = Along(unit.index) + kCellSize / 2;
    const Point at = row ? Point{17, kTop + along} : Point{kLeft + along, 16};
    const auto found = std::ranges::find(unit_signs_, unit, &UnitSign::unit);
    const bool marked = found != unit_signs_.end();
    if (marked) brush_.Header(Used(found->sign), at);
    const bool solid = marked && found->sign == Sign::BaseUnit;
    svg_.Text(at, kSize, true, solid ? palette_.on_cause : palette_.ink,
              row ? std::string(1, RowLetter(unit.index)) : std::to_string(unit.index + 1));
  }

  // The cells of the pattern in the order in which a bar joins them; `closed` when the last joins the first.
  std::vector<int> Path(bool& closed) const {
    std::vector<int> c;
    for (const PatternCell& part : finding_.pattern) c.push_back(part.cell);
    const Links links = WordsOf(finding_.technique).links;
    closed = links == Links::Corners || links == Links::Around;
    switch (links) {
      case Links::Wings:
        return {c[1], c[0], c[2]};
      case Links::Chain:
        return c;
      case Links::Corners:
        return {c[0], c[1], c[3], c[2]};
      case Links::Around:
        return Around(c);
      case Links::Pair:
        return {c[c.size() - 2], c[c.size() - 1]};
      case Links::Nothing:
      case Links::Unset:
        break;
    }
    return {};
  }

  // The four corners of a rectangle so that neighbours in the list share a row or a column.
  static std::vector<int> Around(std::vector<int> c) {
    const auto in_line = [](int a, int b) { return CellRow[a] == CellRow[b] || CellCol[a] == CellCol[b]; };
    if (!in_line(c[0], c[1])) std::swap(c[1], c[2]);
    if (!in_line(c[1], c[2])) std::swap(c[2], c[3]);
    return c;
  }

  void Bars() {
    bool closed = false;
    const std::vector<int> cells = Path(closed);
    if (cells.empty()) return;
    // One digit: from candidate to candidate; several: from cell to cell.
    const bool one_digit = BitCount[finding_.digits] == 1;
    std::string path;
    for (const int cell : cells) {
      const Point at = one_digit ? MarkMiddle(cell, LowestDigit(finding_.digits)) : CellMiddle(cell);
      path += (path.empty() ? "M" : "L") + SvgNumber(at.x) + ' ' + SvgNumber(at.y);
    }
    Used(Sign::Bar);
    brush_.Bar(path + (closed ? "Z" : ""));
  }

  void Digits() {
    for (const bool given : {true, false}) {
      svg_.OpenTexts(kDigitSize, true, given ? palette_.given : palette_.digit);
      for (int cell = 0; cell < kCells; ++cell) {
        if (example_.digits[cell] == 0 || (example_.givens[cell] != 0) != given) continue;
        svg_.TextIn(CellMiddle(cell), kDigitSize, std::to_string(example_.digits[cell]));
      }
      svg_.CloseTexts();
    }
  }

  void Marks() {
    svg_.OpenTexts(kMarkSize, false, palette_.mark);
    for (int cell = 0; cell < kCells; ++cell) {
      for (int digit = 1; digit <= 9; ++digit) {
        const bool shown = HasDigit(example_.marks[cell] & ~Signed(cell), digit);
        if (shown) svg_.TextIn(MarkMiddle(cell, digit), kMarkSize, std::to_string(digit));
      }
    }
    svg_.CloseTexts();
  }

  // The candidates of a cell that get a sign, which has the digit on it.
  CandidateMask Signed(int cell) const {
    if (frame_ == Frame::Plain) return 0;
    CandidateMask digits = frame_ == Frame::Whole ? RemovedFrom(cell) : CandidateMask{0};
    for (const PatternCell& part : finding_.pattern) {
      if (part.cell == cell) digits |= PatternDigits(part);
    }
    return digits;
  }

  // What of a cell belongs to the pattern and stays in it as far as the picture shows.
  CandidateMask PatternDigits(const PatternCell& part) const {
    const CandidateMask gone = frame_ == Frame::Whole ? RemovedFrom(part.cell) : CandidateMask{0};
    return part.digits & finding_.digits & ~gone;
  }

  CandidateMask RemovedFrom(int cell) const {
    CandidateMask digits = 0;
    for (const Removal& removal : finding_.removals) {
      if (removal.cell == cell) digits |= removal.digits;
    }
    return digits;
  }

  void Signs() {
    if (finding_.technique == Technique::HiddenSingle && frame_ >= Frame::Reason) {
      const Blockers blockers =
          FindBlockers(example_.digits, finding_.units[0], finding_.placed_cell, finding_.placed_digit);
      for (const int cell : blockers.cells) InPlace(cell);
    }
    for (const PatternCell& part : finding_.pattern) {
      if (part.role == Role::Pivot) {
        Used(Sign::Pivot);
        brush_.CellFrame(CellCorner(part.cell), kCellSize);
      }
      if (example_.digits[part.cell] != 0) {
        InPlace(part.cell);
      } else {
        OnMarks(part.cell, PatternDigits(part), [&](int digit) { return SignOf(part, digit); });
      }
    }
    if (frame_ != Frame::Whole) return;
    for (const Removal& removal : finding_.removals) {
      OnMarks(removal.cell, removal.digits, [](int) { return Sign::Removed; });
    }
  }

  Sign SignOf(const PatternCell& part, int digit) const {
    if (finding_.placed_cell == part.cell) return Sign::Placed;
    if (part.role == Role::Fin) return Sign::Fin;
    if (part.role == Role::Link) return Sign::Link;
    const bool target =
        frame_ >= Frame::Reason && HasDigit(WordsOf(finding_.technique).targets(finding_), digit);
    return target ? Sign::Target : Sign::Pattern;
  }

  template <class SignFor>
  void OnMarks(int cell, CandidateMask digits, const SignFor& sign_for) {
    for (int digit = 1; digit <= 9; ++digit) {
      if (HasDigit(digits, digit)) brush_.OnMark(Used(sign_for(digit)), MarkMiddle(cell, digit), digit);
    }
  }

  void InPlace(int cell) {
    Used(Sign::InPlace);
    brush_.Ring(CellMiddle(cell));
  }

  const Example& example_;
  const Finding& finding_;
  Frame frame_;
  const Palette& palette_;
  BoardPicture picture_;
  Svg svg_;
  SignBrush brush_;
  std::vector<UnitSign> unit_signs_;
};

std::string PictureWords(const Example& example, Frame frame) {
  const Finding& finding = example.finding;
  if (frame == Frame::Plain) return "Sudoku board with its candidates.";
  std::vector<int> pattern;
  for (const PatternCell& part : finding.pattern) pattern.push_back(part.cell);
  std::string text = "Sudoku board. Marked as the pattern: " + CellNames(pattern) + ".";
  if (frame != Frame::Whole) return text;
  if (finding.placed_cell < 0) return text + " Struck out: " + RemovalText(finding).substr(7);
  return text + ' ' + std::to_string(finding.placed_digit) + " goes into " + CellName(finding.placed_cell) +
         '.';
}

}  // namespace

BoardPicture DrawBoard(const Example& example, Frame frame, const Palette& palette) {
  const bool plain = frame == Frame::Plain;
  const std::string_view title = plain ? "Position" : RowOf(example.finding.technique).caption;
  return Drawing(example, frame, palette, title, PictureWords(example, frame)).Draw();
}

BoardPicture DrawSingles(const Example& after, std::span<const Placement> placements,
                         const Palette& palette) {
  std::vector<std::string> places;
  Example before = after;
  for (const Placement& placed : placements) {
    places.push_back(std::to_string(placed.digit) + " in " + CellName(placed.cell));
    before.digits[placed.cell] = 0;  // drawn apart, in the colour of the signs
  }
  return Drawing(before, Frame::Plain, palette, "Singles", "Sudoku board. Placed: " + Joined(places) + ".")
      .DrawEntered(placements);
}

}  // namespace kestrel
