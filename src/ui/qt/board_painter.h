// SPDX-License-Identifier: MIT
// Paints the board - cells, lines, digits, pencil marks, headers - from the controls of the main window. Used
// by the board widget, and by the tool that draws the pictures of the help pages.
//
//      A   B   places in device pixels; (0, 0) is the window's corner
//    +---+---+
//    |123|   |     the thin lines stand in the middle of the gaps between the cells of a box
//    |456| 8 |     and stop short of the thick ones, which stand in the middle of the wider gaps
//    |789|   |     between boxes
#pragma once

#include <QFont>
#include <QRect>
#include <QRegion>
#include <array>
#include <cstdint>
#include <optional>

#include "forms/main_window.h"
#include "ui/qt/device_painter.h"
#include "ui/qt/palette.h"
#include "view/digit_lens.h"

namespace kestrel {

// The mark or header under the pointer.
struct BoardSpot {
  enum class Kind : std::uint8_t { None, Mark, Row, Column };
  Kind kind = Kind::None;
  int index = 0;  // cell, row or column
  int digit = 0;  // of a mark
  friend bool operator==(const BoardSpot&, const BoardSpot&) = default;
};

// What the pointer does to the board's look.
struct BoardPointer {
  BoardSpot hover;
  bool pressed = false;
  std::optional<DigitLens> lens;
};

// The outline of something that covers the cells from row and column `first` to `last`, both 0..8: it lies on the
// lines round them, so that no stump of a line sticks out. In pixels of the grid.
QRect RectOnLines(const PixelGrid& grid, QPoint first, QPoint last);

class BoardPainter {
 public:
  // `main` and `colours` must outlive the painter.
  BoardPainter(const MainWindow& main, double ratio, const Colours& colours);

  // Paints what lies in `region` (device pixels) on a painter that works in device pixels.
  void Paint(QPainter& painter, const QRegion& region, const BoardPointer& pointer = {}) const;

  // The places of things, lines included for a cell and for the whole.
  [[nodiscard]] QRect CellRect(int cell) const;
  [[nodiscard]] QRect MarkRect(int digit, int cell) const;
  [[nodiscard]] QRect SpotRect(const BoardSpot& spot) const;
  [[nodiscard]] QRect BoardRect() const;

 private:
  // The stages of Paint, from the ground up.
  void PaintGround(QPainter& painter, const QRegion& region, const std::optional<DigitLens>& lens) const;
  void PaintLines(QPainter& painter) const;
  void PaintTarget(QPainter& painter) const;
  void PaintMarks(QPainter& painter, const QRegion& region, const BoardPointer& pointer) const;
  void PaintDigits(QPainter& painter, const QRegion& region) const;
  void PaintHeaders(QPainter& painter, const QRegion& region, const BoardPointer& pointer) const;
  void PaintHeader(QPainter& painter, const Label& header, const BoardSpot& spot,
                   const BoardPointer& pointer) const;
  void PaintHoveredMark(QPainter& painter, const QRect& place, bool pressed) const;
  [[nodiscard]] QColor CellGround(int cell) const;

  const MainWindow& main_;
  const Colours& colours_;
  PixelGrid grid_;
  QFont mark_font_, digit_font_, header_font_;
};

}  // namespace kestrel
