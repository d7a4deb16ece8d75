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

namespace kestrel {

// The mark or header under the pointer.
struct BoardSpot {
  enum class Kind : std::uint8_t { None, Mark, Row, Column };
  Kind kind = Kind::None;
  int index = 0;  // cell, row or column
  int digit = 0;  // of a mark
  friend bool operator==(const BoardSpot&, const BoardSpot&) = default;
};

class BoardPainter {
 public:
  // `main` must outlive the painter.
  BoardPainter(const MainWindow& main, double ratio);

  // Paints what lies in `region` (device pixels) on a painter that works in device pixels.
  void Paint(QPainter& painter, const QRegion& region, const BoardSpot& hover, bool pressed) const;

  // The stages of Paint, from the ground up; the caller sets the clip.
  void PaintGround(QPainter& painter, const QRegion& region) const;
  void PaintLines(QPainter& painter) const;
  void PaintMarks(QPainter& painter, const QRegion& region) const;
  void PaintDigits(QPainter& painter, const QRegion& region) const;
  void PaintHeaders(QPainter& painter, const QRegion& region, const BoardSpot& hover, bool pressed) const;

  // The places of things, lines included for a cell and for the whole.
  [[nodiscard]] QRect CellRect(int cell) const;
  [[nodiscard]] QRect MarkRect(int digit, int cell) const;
  [[nodiscard]] QRect SpotRect(const BoardSpot& spot) const;
  [[nodiscard]] QRect BoardRect() const;

  // The cell whose row and column headers are both selected, while Reset Cell could empty it.
  [[nodiscard]] std::optional<int> TargetCell() const;

 private:
  void PaintSpot(QPainter& painter, const BoardSpot& spot, bool pressed) const;
  void PaintTarget(QPainter& painter) const;
  void PaintHeader(QPainter& painter, const Label& header, const BoardSpot& spot, const BoardSpot& hover,
                   bool pressed) const;

  const MainWindow& main_;
  PixelGrid grid_;
  QFont mark_font_, digit_font_, header_font_;
};

// True for a cell that shows a given digit.
bool ShowsGiven(const Label& cell);

}  // namespace kestrel
