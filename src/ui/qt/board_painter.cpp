// SPDX-License-Identifier: MIT
#include "ui/qt/board_painter.h"

#include "core/grid.h"
#include "ui/qt/fonts.h"
#include "view/play_state.h"

namespace kestrel {

namespace {

constexpr double kHalfGap = (840 - kCellSize) / 2.0;           // from a cell to the thin line
constexpr double kHalfBoxGap = (840 + 120 - kCellSize) / 2.0;  // from a cell to the thick line
constexpr double kBoardEnd = CellEdge(8) + kCellSize + kHalfBoxGap;

// The pixel at which a line of `width` pixels begins whose middle is at `twips`.
int LineStart(const PixelGrid& grid, double twips, int width) {
  return grid.At(twips - width * kTwipsPerPixel / grid.Ratio() / 2);
}

// The middle of the line before a row or column; of the last line, 9.
double LineBefore(int line) {
  if (line == kUnitSize) return kBoardEnd;
  return CellEdge(line) - (line % 3 == 0 ? kHalfBoxGap : kHalfGap);
}

QString Caption(const std::string& caption) {
  return QString::fromStdString(caption);
}

}  // namespace

QRect RectOnLines(const PixelGrid& grid, QPoint first, QPoint last) {
  const int line = grid.Pixels(2);
  const auto before = [&](int at) { return LineStart(grid, LineBefore(at), line); };
  const QPoint corner(before(first.x()), before(first.y()));
  const QPoint end(before(last.x() + 1) + line, before(last.y() + 1) + line);
  return {corner, QSize(end.x() - corner.x(), end.y() - corner.y())};
}

BoardPainter::BoardPainter(const MainWindow& main, double ratio, const Colours& colours)
    : main_(main),
      colours_(colours),
      grid_(ratio),
      mark_font_(ToQFont(main.Mark(1)(0).font, ratio)),
      digit_font_(ToQFont(main.Grid(0).font, ratio)),
      header_font_(ToQFont(main.LabelRow(0).font, ratio)) {
}

QRect BoardPainter::BoardRect() const {
  return RectOnLines(grid_, {0, 0}, {8, 8});
}

QRect BoardPainter::CellRect(int cell) const {
  const Label& label = main_.Grid(cell);
  const double size = kCellSize + 2 * kHalfGap;
  return grid_.Rect(label.left - kHalfGap, label.top - kHalfGap, size, size);
}

QRect BoardPainter::MarkRect(int digit, int cell) const {
  return grid_.Place(main_.Mark(digit)(cell));
}

QRect BoardPainter::SpotRect(const BoardSpot& spot) const {
  switch (spot.kind) {
    case BoardSpot::Kind::Mark:
      return MarkRect(spot.digit, spot.index);
    case BoardSpot::Kind::Row:
      return grid_.Place(main_.LabelRow(spot.index));
    case BoardSpot::Kind::Column:
      return grid_.Place(main_.LabelColumn(spot.index));
    case BoardSpot::Kind::None:
      break;
  }
  return {};
}

void BoardPainter::Paint(QPainter& painter, const QRegion& region, const BoardPointer& pointer) const {
  painter.setClipRegion(region);
  PaintGround(painter, region, pointer.lens);
  PaintLines(painter);
  PaintTarget(painter);
  PaintMarks(painter, region, pointer);
  PaintDigits(painter, region);
  PaintHeaders(painter, region, pointer);
}

QColor BoardPainter::CellGround(int cell) const {
  const Label& label = main_.Grid(cell);
  if (ShowsGiven(label)) return colours_.given_cell;
  return label.transparent ? QColor(colours_.paper) : colours_.Of(label.back, colours_.paper);
}

void BoardPainter::PaintGround(QPainter& painter, const QRegion& region,
                               const std::optional<DigitLens>& lens) const {
  painter.fillRect(region.boundingRect(), QColor(colours_.window));
  painter.fillRect(BoardRect(), QColor(colours_.paper));
  const CellSet lines = lens ? lens->Lines() : CellSet();
  const CellSet equal = lens ? lens->DigitsOf(main_) : CellSet();
  for (int cell = 0; cell < kCells; ++cell) {
    const QRect place = CellRect(cell);
    if (!region.intersects(place)) continue;
    QColor ground = CellGround(cell);
    if (lines.Has(cell)) ground = ShowsGiven(main_.Grid(cell)) ? colours_.given_lines : colours_.lines;
    if (equal.Has(cell)) ground = colours_.lens;
    painter.fillRect(place, ground);
  }
}

void BoardPainter::PaintLines(QPainter& painter) const {
  const int thin = grid_.Pixels(1);
  const int thick = grid_.Pixels(2);
  const QRect board = BoardRect();
  // The sign of a solved puzzle; one that Solution filled in, or that is full but wrong, has none.
  const QColor box_line = main_.end == PuzzleEnd::Solved ? colours_.solved : colours_.thick_line;
  for (int line = 0; line < kUnitSize; ++line) {
    if (line % 3 == 0) continue;
    const int at = LineStart(grid_, LineBefore(line), thin);
    for (int box = 0; box < 3; ++box) {
      const int from = grid_.At(CellEdge(3 * box) - kHalfGap);
      const int length = grid_.At(CellEdge(3 * box + 2) + kCellSize + kHalfGap) - from;
      painter.fillRect(at, from, thin, length, QColor(colours_.thin_line));
      painter.fillRect(from, at, length, thin, QColor(colours_.thin_line));
    }
  }
  for (int box = 0; box <= 3; ++box) {
    const int at = LineStart(grid_, LineBefore(3 * box), thick);
    painter.fillRect(at, board.top(), thick, board.height(), box_line);
    painter.fillRect(board.left(), at, board.width(), thick, box_line);
  }
}

void BoardPainter::PaintTarget(QPainter& painter) const {
  const int cell = ResetTarget(main_);
  if (cell < 0) return;
  const int thin = grid_.Pixels(1);
  const int line = grid_.Pixels(2);
  QRect place = CellRect(cell).adjusted(thin, thin, -thin, -thin);
  for (int i = 0; i < line; ++i) {
    painter.setPen(QColor(colours_.target));
    painter.drawRect(place.adjusted(i, i, -i - 1, -i - 1));
  }
}

// Unmistakable before the click: a ground of its own with an outline.
void BoardPainter::PaintHoveredMark(QPainter& painter, const QRect& place, bool pressed) const {
  PaintRounded(painter, place, grid_.Pixels(4), pressed ? colours_.pressed : colours_.hover, colours_.accent,
               grid_.Pixels(1));
}

void BoardPainter::PaintMarks(QPainter& painter, const QRegion& region, const BoardPointer& pointer) const {
  painter.setFont(mark_font_);
  const CellSet equal = pointer.lens ? pointer.lens->MarksOf(main_) : CellSet();
  for (int cell = 0; cell < kCells; ++cell) {
    if (!region.intersects(CellRect(cell))) continue;
    for (int digit = 1; digit <= 9; ++digit) {
      const Label& mark = main_.Mark(digit)(cell);
      const QRect place = grid_.Place(mark);
      if (!mark.visible || !region.intersects(place)) continue;
      QColor ink = colours_.Of(mark.fore, mark.enabled ? colours_.mark : colours_.ghost);
      if (pointer.hover == BoardSpot{BoardSpot::Kind::Mark, cell, digit}) {
        PaintHoveredMark(painter, place, pointer.pressed);
        ink = colours_.text;
      } else if (pointer.lens && digit == pointer.lens->digit && equal.Has(cell)) {
        PaintRounded(painter, place, grid_.Pixels(4), colours_.lens);
      }
      painter.setPen(ink);
      PaintText(painter, place, mark.align, Caption(mark.caption));
    }
  }
}

void BoardPainter::PaintDigits(QPainter& painter, const QRegion& region) const {
  painter.setFont(digit_font_);
  for (int cell = 0; cell < kCells; ++cell) {
    const Label& label = main_.Grid(cell);
    const QRect place = grid_.Place(label);
    if (label.caption.empty() || !label.visible || !region.intersects(place)) continue;
    painter.setPen(colours_.Of(label.fore, main_.filled_in.Has(cell) ? colours_.filled_in : colours_.text));
    PaintText(painter, place, label.align, Caption(label.caption));
  }
}

void BoardPainter::PaintHeaders(QPainter& painter, const QRegion& region, const BoardPointer& pointer) const {
  painter.setFont(header_font_);
  for (int line = 0; line < kUnitSize; ++line) {
    const BoardSpot row{BoardSpot::Kind::Row, line};
    const BoardSpot column{BoardSpot::Kind::Column, line};
    if (region.intersects(SpotRect(row))) PaintHeader(painter, main_.LabelRow(line), row, pointer);
    if (region.intersects(SpotRect(column))) PaintHeader(painter, main_.LabelColumn(line), column, pointer);
  }
}

void BoardPainter::PaintHeader(QPainter& painter, const Label& header, const BoardSpot& spot,
                               const BoardPointer& pointer) const {
  if (header.fore == kRed) {
    PaintRounded(painter, SpotRect(spot), grid_.Pixels(5), colours_.selected_ground);
  } else if (spot == pointer.hover) {
    PaintRounded(painter, SpotRect(spot), grid_.Pixels(5),
                 pointer.pressed ? colours_.pressed : colours_.hover);
  }
  painter.setPen(colours_.Of(header.fore, colours_.text));
  PaintText(painter, SpotRect(spot), header.align, Caption(header.caption));
}

}  // namespace kestrel
