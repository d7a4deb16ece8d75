// SPDX-License-Identifier: MIT
#include "ui/qt/board_painter.h"

#include "core/grid.h"
#include "ui/qt/fonts.h"
#include "ui/qt/palette.h"

namespace kestrel {

namespace {

using namespace colours;

constexpr double kHalfGap = (840 - kCellSize) / 2.0;           // from a cell to the thin line
constexpr double kHalfBoxGap = (840 + 120 - kCellSize) / 2.0;  // from a cell to the thick line
constexpr double kBoardStart = CellEdge(0) - kHalfBoxGap;
constexpr double kBoardEnd = CellEdge(8) + kCellSize + kHalfBoxGap;

// The pixel at which a line of `width` pixels begins whose middle is at `twips`.
int LineStart(const PixelGrid& grid, double twips, int width) {
  return grid.At(twips - width * kTwipsPerPixel / grid.Ratio() / 2);
}

QString Caption(const std::string& caption) {
  return QString::fromStdString(caption);
}

}  // namespace

bool ShowsGiven(const Label& cell) {
  return cell.fore == kDarkBlue && !cell.caption.empty();
}

BoardPainter::BoardPainter(const MainWindow& main, double ratio)
    : main_(main),
      grid_(ratio),
      mark_font_(ToQFont(main.Mark(1)(0).font, ratio)),
      digit_font_(ToQFont(main.Grid(0).font, ratio)),
      header_font_(ToQFont(main.LabelRow(0).font, ratio)) {
}

QRect BoardPainter::BoardRect() const {
  const int line = grid_.Pixels(2);
  const int from = LineStart(grid_, kBoardStart, line);
  const int to = LineStart(grid_, kBoardEnd, line) + line;
  return {from, from, to - from, to - from};
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

std::optional<int> BoardPainter::TargetCell() const {
  int row = -1;
  int column = -1;
  for (int line = 0; line < kUnitSize; ++line) {
    if (main_.LabelRow(line).fore == kRed) row = line;
    if (main_.LabelColumn(line).fore == kRed) column = line;
  }
  if (row < 0 || column < 0 || !main_.CommandResetCell.enabled) return std::nullopt;
  return row * kUnitSize + column;
}

void BoardPainter::Paint(QPainter& painter, const QRegion& region, const BoardSpot& hover,
                         bool pressed) const {
  painter.setClipRegion(region);
  PaintGround(painter, region);
  PaintLines(painter);
  PaintTarget(painter);
  if (hover.kind == BoardSpot::Kind::Mark) PaintSpot(painter, hover, pressed);
  PaintMarks(painter, region);
  PaintDigits(painter, region);
  PaintHeaders(painter, region, hover, pressed);
}

void BoardPainter::PaintGround(QPainter& painter, const QRegion& region) const {
  painter.fillRect(region.boundingRect(), QColor(kWindow));
  painter.fillRect(BoardRect(), QColor(kPaper));
  for (int cell = 0; cell < kCells; ++cell) {
    const Label& label = main_.Grid(cell);
    const QRect place = CellRect(cell);
    if (!region.intersects(place)) continue;
    if (ShowsGiven(label)) {
      painter.fillRect(place, QColor(kGivenCell));
    } else if (!label.transparent && label.back != kWindowColour) {
      painter.fillRect(place, ToQColor(label.back, kPaper));
    }
  }
}

void BoardPainter::PaintLines(QPainter& painter) const {
  const int thin = grid_.Pixels(1);
  const int thick = grid_.Pixels(2);
  const QRect board = BoardRect();
  for (int line = 0; line < kUnitSize; ++line) {
    if (line % 3 == 0) continue;
    const int at = LineStart(grid_, CellEdge(line) - kHalfGap, thin);
    for (int box = 0; box < 3; ++box) {
      const int from = grid_.At(CellEdge(3 * box) - kHalfGap);
      const int length = grid_.At(CellEdge(3 * box + 2) + kCellSize + kHalfGap) - from;
      painter.fillRect(at, from, thin, length, QColor(kThinLine));
      painter.fillRect(from, at, length, thin, QColor(kThinLine));
    }
  }
  for (int box = 0; box <= 3; ++box) {
    const double twips = box == 3 ? kBoardEnd : CellEdge(3 * box) - kHalfBoxGap;
    const int at = LineStart(grid_, twips, thick);
    painter.fillRect(at, board.top(), thick, board.height(), QColor(kThickLine));
    painter.fillRect(board.left(), at, board.width(), thick, QColor(kThickLine));
  }
}

void BoardPainter::PaintTarget(QPainter& painter) const {
  const std::optional<int> cell = TargetCell();
  if (!cell) return;
  const int thin = grid_.Pixels(1);
  const int line = grid_.Pixels(2);
  QRect place = CellRect(*cell).adjusted(thin, thin, -thin, -thin);
  for (int i = 0; i < line; ++i) {
    painter.setPen(QColor(kTargetCell));
    painter.drawRect(place.adjusted(i, i, -i - 1, -i - 1));
  }
}

void BoardPainter::PaintSpot(QPainter& painter, const BoardSpot& spot, bool pressed) const {
  PaintRounded(painter, SpotRect(spot), grid_.Pixels(4), pressed ? kPressed : kHover);
}

void BoardPainter::PaintMarks(QPainter& painter, const QRegion& region) const {
  painter.setFont(mark_font_);
  for (int cell = 0; cell < kCells; ++cell) {
    if (!region.intersects(CellRect(cell))) continue;
    for (int digit = 1; digit <= 9; ++digit) {
      const Label& mark = main_.Mark(digit)(cell);
      if (!mark.visible) continue;
      const QRect place = grid_.Place(mark);
      if (!region.intersects(place)) continue;
      painter.setPen(ToQColor(mark.fore, mark.enabled ? kMark : kDeafMark));
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
    painter.setPen(ToQColor(label.fore, kText));
    PaintText(painter, place, label.align, Caption(label.caption));
  }
}

void BoardPainter::PaintHeaders(QPainter& painter, const QRegion& region, const BoardSpot& hover,
                                bool pressed) const {
  painter.setFont(header_font_);
  for (int line = 0; line < kUnitSize; ++line) {
    const BoardSpot row{BoardSpot::Kind::Row, line, 0};
    const BoardSpot column{BoardSpot::Kind::Column, line, 0};
    if (region.intersects(SpotRect(row))) PaintHeader(painter, main_.LabelRow(line), row, hover, pressed);
    if (region.intersects(SpotRect(column))) {
      PaintHeader(painter, main_.LabelColumn(line), column, hover, pressed);
    }
  }
}

void BoardPainter::PaintHeader(QPainter& painter, const Label& header, const BoardSpot& spot,
                               const BoardSpot& hover, bool pressed) const {
  if (header.fore == kRed) {
    PaintRounded(painter, SpotRect(spot), grid_.Pixels(5), kSelectedHeader);
  } else if (spot == hover) {
    PaintRounded(painter, SpotRect(spot), grid_.Pixels(5), pressed ? kPressed : kHover);
  }
  painter.setPen(ToQColor(header.fore, kText));
  PaintText(painter, SpotRect(spot), header.align, Caption(header.caption));
}

}  // namespace kestrel
