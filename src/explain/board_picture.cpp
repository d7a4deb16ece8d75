// SPDX-License-Identifier: MIT
// The picture of a worked example as SVG.
#include "explain/board_picture.h"

#include <array>
#include <cstdio>
#include <sstream>
#include <utility>
#include <vector>

#include "explain/blockers.h"
#include "explain/names.h"
#include "explain/technique_words.h"
#include "solver/technique_table.h"

namespace kestrel {
namespace {

// The window's geometry, in pixels (15 twips each); only the headers stand closer to the board.
constexpr double kLeft = 42;
constexpr double kTop = 40;
constexpr double kPitch = 56;
constexpr double kBoxGap = 8;
constexpr double kCellSize = 49;
constexpr double kMarkPitch = 16;
constexpr double kInnerGap = 3.5;  // half the space between two cells, and ...
constexpr double kOuterGap = 7.5;  // ... between two boxes

// The window's colours, and the few that the signs add.
constexpr const char* kInk = "#20262d";
constexpr const char* kThin = "#9aa3ad";
constexpr const char* kMarkInk = "#4a4f57";
constexpr const char* kGivenInk = "#0000a0";
constexpr const char* kCause = "#1a56a8";
constexpr const char* kGone = "#b3261e";
constexpr const char* kGoneGround = "#fdeceb";
constexpr const char* kUnitWash = "#e3edfa";
constexpr const char* kCoverWash = "#fbf1d9";

struct Point {
  double x;
  double y;
};

double Along(int i) {
  const int box = i / 3;
  return kPitch * i + kBoxGap * box;
}
Point CellCorner(int cell) {
  return {kLeft + Along(CellCol[cell]), kTop + Along(CellRow[cell])};
}
Point CellMiddle(int cell) {
  const Point corner = CellCorner(cell);
  return {corner.x + kCellSize / 2, corner.y + kCellSize / 2};
}
Point MarkMiddle(int cell, int digit) {
  const Point corner = CellCorner(cell);
  const int row = (digit - 1) / 3;
  const int column = (digit - 1) % 3;
  return {corner.x + kMarkPitch * column + 8.5, corner.y + kMarkPitch * row + 8.5};
}
// Where a grid line runs: before line i of cells (0..9).
double GridLine(double start, int i) {
  if (i == 9) return start + Along(8) + kCellSize + kOuterGap;
  return start + Along(i) - (i % 3 == 0 ? kOuterGap : kInnerGap);
}

// At most one decimal, without a superfluous ".0".
std::string N(double value) {
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "%.1f", value);
  std::string number = text.data();
  if (number.ends_with(".0")) number.resize(number.size() - 2);
  return number;
}

class Drawing {
 public:
  explicit Drawing(const Example& example) : example_(example), finding_(example.finding) {}

  std::string Draw() {
    Open();
    Washes();
    Grid();
    Headers();
    Links();
    Digits();
    Marks();
    Signs();
    out_ << "</svg>\n";
    return out_.str();
  }

 private:
  void Open() {
    out_ << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" << kPictureWidth << "\" height=\""
         << kPictureHeight << "\" viewBox=\"0 0 " << kPictureWidth << ' ' << kPictureHeight
         << "\" font-family=\"'Liberation Sans',Arial,Helvetica,sans-serif\" text-anchor=\"middle\">\n<title>"
         << RowOf(finding_.technique).caption << "</title>\n<rect width=\"" << kPictureWidth << "\" height=\""
         << kPictureHeight << "\" fill=\"#fff\"/>\n";
  }

  void Rect(double x, double y, double width, double height, const std::string& style) {
    out_ << "<rect x=\"" << N(x) << "\" y=\"" << N(y) << "\" width=\"" << N(width) << "\" height=\""
         << N(height) << "\" " << style << "/>\n";
  }

  // Text with its middle, not its base line, at the point.
  void Text(Point at, double size, const std::string& text) {
    out_ << "<text x=\"" << N(at.x) << "\" y=\"" << N(at.y + 0.345 * size) << "\">" << text << "</text>\n";
  }

  void Fill(Unit unit, const std::string& style) {
    int first_row = 0;
    int first_column = 0;
    int rows = 9;
    int columns = 9;
    switch (unit.kind) {
      case UnitKind::Row:
        first_row = unit.index, rows = 1;
        break;
      case UnitKind::Column:
        first_column = unit.index, columns = 1;
        break;
      case UnitKind::Box:
        first_row = CellRow[BoxStart[unit.index]], first_column = CellCol[BoxStart[unit.index]];
        rows = columns = 3;
        break;
    }
    const double x = GridLine(kLeft, first_column);
    const double y = GridLine(kTop, first_row);
    Rect(x, y, GridLine(kLeft, first_column + columns) - x, GridLine(kTop, first_row + rows) - y, style);
  }

  void Washes() {
    const auto fill = [](const char* colour) { return std::string("fill=\"") + colour + '"'; };
    if (CoversLose(finding_.technique)) {
      for (const Unit& unit : finding_.covers) Fill(unit, fill(kCoverWash));
    }
    for (const Unit& unit : finding_.units) Fill(unit, fill(kUnitWash));
  }

  void Grid() {
    const std::array<std::pair<const char*, const char*>, 2> kinds{{{kThin, "1"}, {kInk, "2"}}};
    for (const bool thick : {false, true}) {
      out_ << "<path fill=\"none\" stroke=\"" << kinds[thick ? 1 : 0].first << "\" stroke-width=\""
           << kinds[thick ? 1 : 0].second << "\" stroke-linecap=\"square\" d=\"";
      for (int i = 0; i <= 9; ++i) {
        if ((i % 3 == 0) != thick) continue;
        out_ << 'M' << N(GridLine(kLeft, i)) << ' ' << N(GridLine(kTop, 0)) << 'V' << N(GridLine(kTop, 9))
             << 'M' << N(GridLine(kLeft, 0)) << ' ' << N(GridLine(kTop, i)) << 'H' << N(GridLine(kLeft, 9));
      }
      out_ << "\"/>\n";
    }
    for (const std::vector<Unit>* units : {&finding_.units, &finding_.covers}) {
      for (const Unit& unit : *units) {
        if (unit.kind != UnitKind::Box) continue;
        Fill(unit, std::string("fill=\"none\" stroke=\"") + kInk + "\" stroke-width=\"4\"" +
                       (units == &finding_.covers ? " stroke-dasharray=\"10 6\"" : ""));
      }
    }
  }

  void Headers() {
    for (const UnitKind kind : {UnitKind::Row, UnitKind::Column}) {
      for (int i = 0; i < 9; ++i) Header({kind, i});
    }
  }

  void Header(Unit unit) {
    const bool row = unit.kind == UnitKind::Row;
    const double along = Along(unit.index) + kCellSize / 2;
    const Point at = row ? Point{17, kTop + along} : Point{kLeft + along, 16};
    const bool base = Among(finding_.units, unit);
    const bool cover = !base && Among(finding_.covers, unit);
    if (base || cover) {
      Rect(at.x - 12, at.y - 12, 24, 24,
           base ? std::string("rx=\"4\" fill=\"") + kCause + '"'
                : std::string("rx=\"4\" fill=\"none\" stroke=\"") + kInk + "\" stroke-width=\"2\"");
    }
    out_ << "<g font-size=\"17\" font-weight=\"bold\" fill=\"" << (base ? "#fff" : kInk) << "\">";
    Text(at, 17, row ? std::string(1, RowLetter(unit.index)) : std::to_string(unit.index + 1));
    out_ << "</g>\n";
  }

  static bool Among(const std::vector<Unit>& units, Unit unit) {
    for (const Unit& other : units) {
      if (other == unit) return true;
    }
    return false;
  }

  // The cells of the pattern in the order in which a line through them explains it; the last joins the first
  // when `closed`.
  std::vector<int> Path(bool& closed) const {
    std::vector<int> cells;
    for (const PatternCell& part : finding_.pattern) cells.push_back(part.cell);
    closed = false;
    switch (WordsOf(finding_.technique).links) {
      case Links::Wings:
        return {cells[1], cells[0], cells[2]};
      case Links::Chain:
        return cells;
      case Links::Corners:
        closed = true;
        return {cells[0], cells[1], cells[3], cells[2]};
      case Links::Around:
        closed = true;
        return Around(cells);
      case Links::Pair:
        return {cells[cells.size() - 2], cells[cells.size() - 1]};
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

  void Links() {
    bool closed = false;
    const std::vector<int> path = Path(closed);
    if (path.empty()) return;
    out_ << "<path fill=\"none\" stroke=\"" << kCause
         << "\" stroke-opacity=\".3\" stroke-width=\"4\" stroke-linejoin=\"round\" d=\"";
    // One digit: from candidate to candidate; several: from cell to cell.
    const bool one_digit = BitCount[finding_.digits] == 1;
    for (std::size_t i = 0; i < path.size(); ++i) {
      const Point at = one_digit ? MarkMiddle(path[i], LowestDigit(finding_.digits)) : CellMiddle(path[i]);
      out_ << (i == 0 ? 'M' : 'L') << N(at.x) << ' ' << N(at.y);
    }
    out_ << (closed ? "Z" : "") << "\"/>\n";
  }

  void Digits() {
    for (const bool given : {true, false}) {
      out_ << "<g font-size=\"38\" font-weight=\"bold\" fill=\"" << (given ? kGivenInk : "#000") << "\">\n";
      for (int cell = 0; cell < kCells; ++cell) {
        if (example_.digits[cell] == 0 || (example_.givens[cell] != 0) != given) continue;
        Text(CellMiddle(cell), 38, std::to_string(example_.digits[cell]));
      }
      out_ << "</g>\n";
    }
  }

  void Marks() {
    out_ << "<g font-size=\"14\" fill=\"" << kMarkInk << "\">\n";
    for (int cell = 0; cell < kCells; ++cell) {
      for (int digit = 1; digit <= 9; ++digit) {
        if (HasDigit(example_.marks[cell], digit)) Text(MarkMiddle(cell, digit), 14, std::to_string(digit));
      }
    }
    out_ << "</g>\n";
  }

  void Signs() {
    if (finding_.technique == Technique::HiddenSingle) {
      const Blockers blockers =
          FindBlockers(example_.digits, finding_.units[0], finding_.placed_cell, finding_.placed_digit);
      for (const int cell : blockers.cells) Disc(CellMiddle(cell), 22, "fill=\"none\"", 3);
    }
    for (const Removal& removal : finding_.removals) {
      for (int digit = 1; digit <= 9; ++digit) {
        if (HasDigit(removal.digits, digit)) Struck(MarkMiddle(removal.cell, digit), digit);
      }
    }
    for (const PatternCell& part : finding_.pattern) {
      if (example_.digits[part.cell] != 0) {
        const Point at = CellMiddle(part.cell);
        Disc(at, 22, "fill=\"none\"", 3);
        continue;
      }
      const CandidateMask removed = RemovedFrom(part.cell);
      for (int digit = 1; digit <= 9; ++digit) {
        if (HasDigit(part.digits & ~removed, digit)) Sign(MarkMiddle(part.cell, digit), digit, part.role);
      }
    }
  }

  CandidateMask RemovedFrom(int cell) const {
    CandidateMask digits = 0;
    for (const Removal& removal : finding_.removals) {
      if (removal.cell == cell) digits |= removal.digits;
    }
    return digits;
  }

  void Disc(Point at, double radius, const std::string& fill, double line) {
    out_ << "<circle cx=\"" << N(at.x) << "\" cy=\"" << N(at.y) << "\" r=\"" << N(radius) << "\" " << fill
         << " stroke=\"" << kCause << "\" stroke-width=\"" << N(line) << "\"/>\n";
  }

  void Sign(Point at, int digit, Role role) {
    const std::string filled = std::string("fill=\"") + kCause + '"';
    const bool hollow = role == Role::Link;
    if (role == Role::Fin) {
      out_ << "<path d=\"M" << N(at.x) << ' ' << N(at.y - 11) << "l11 11l-11 11l-11 -11Z\" " << filled
           << "/>\n";
    } else if (hollow) {
      Disc(at, 8, "fill=\"#fff\"", 2);
    } else if (role == Role::Pivot) {
      Disc(at, 9.5, "fill=\"#fff\"", 1.5);
      Disc(at, 7, filled, 0);
    } else {
      Disc(at, 9, filled, 0);
    }
    out_ << "<g font-size=\"" << (role == Role::Pivot ? 12 : 14) << "\" font-weight=\"bold\" fill=\""
         << (hollow ? kCause : "#fff") << "\">";
    Text(at, role == Role::Pivot ? 12 : 14, std::to_string(digit));
    out_ << "</g>\n";
  }

  void Struck(Point at, int digit) {
    Rect(at.x - 8, at.y - 8, 16, 16,
         std::string("fill=\"") + kGoneGround + "\" stroke=\"" + kGone + "\" stroke-width=\"1.5\"");
    out_ << "<path d=\"M" << N(at.x - 8) << ' ' << N(at.y + 8) << "l16 -16\" stroke=\"" << kGone
         << "\" stroke-width=\"1.5\"/>\n<g font-size=\"14\" font-weight=\"bold\" fill=\"" << kInk << "\">";
    Text(at, 14, std::to_string(digit));
    out_ << "</g>\n";
  }

  const Example& example_;
  const Finding& finding_;
  std::ostringstream out_;
};

}  // namespace

bool CoversLose(Technique technique) {
  return WordsOf(technique).covers == Covers::Lose;
}

std::string BoardPicture(const Example& example) {
  return Drawing(example).Draw();
}

std::string PictureInWords(const Example& example) {
  const Finding& finding = example.finding;
  std::vector<int> pattern;
  for (const PatternCell& part : finding.pattern) pattern.push_back(part.cell);
  std::string text = "Sudoku board. Marked as the pattern: " + CellNames(pattern) + ". ";
  if (finding.placed_cell >= 0) {
    return text + std::to_string(finding.placed_digit) + " goes into " + CellName(finding.placed_cell) + '.';
  }
  std::vector<std::string> removals;
  for (const Removal& removal : finding.removals) {
    removals.push_back(DigitNames(removal.digits) + " from " + CellName(removal.cell));
  }
  return text + "Struck out: " + Joined(removals) + '.';
}

}  // namespace kestrel
