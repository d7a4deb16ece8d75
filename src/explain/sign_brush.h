// SPDX-License-Identifier: MIT
// Draws single signs; the board's pictures and the samples of the legends use the same strokes.
#pragma once

#include "explain/palette.h"
#include "explain/signs.h"
#include "explain/svg.h"

namespace kestrel {

class SignBrush {
 public:
  SignBrush(Svg& svg, const Palette& palette) : svg_(svg), palette_(palette) {}

  // A sign on a candidate, with the candidate's digit (1..9) over it: Pattern, Target, Link, Fin, Placed or Removed.
  void OnMark(Sign sign, Point middle, int digit);
  // The ring of InPlace round a digit of the board.
  void Ring(Point middle);
  // The frame of the Pivot round a cell.
  void CellFrame(Point corner, double size);
  // A digit of the board that goes in, with a tab that has its number in the cell's corner.
  void Entered(Point corner, Point middle, double size, int digit, int number);
  // A header's box: BaseUnit, Losing or Tie.
  void Header(Sign sign, Point middle);
  // The frame of a whole box of cells: BaseUnit, Losing or Tie.
  void BoxFrame(Sign sign, Point corner, double width, double height);
  // What `Bar` is drawn with, through the points in order; the last joins the first when `closed`.
  void Bar(const std::string& path);

 private:
  void Struck(Point middle);
  Svg& svg_;
  const Palette& palette_;
};

}  // namespace kestrel
