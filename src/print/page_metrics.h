// SPDX-License-Identifier: MIT
// Where things stand on the sheet. Used by the page layout and its tests.
//
//   +--------------------------------+  the sheet, A4 upright
//   |    M                           |
//   |  M +----------------------+ M  |  left, top
//   |    | title          level |    |
//   |    | puzzles, with the    |    |  W wide, H high; the grid of places inside it has the step U
//   |    | summary to the right |    |
//   |    | of each, solutions   |    |
//   |    |               Page 1 |    |
//   |    +----------------------+    |  right, bottom
//   +--------------------------------+
#pragma once

namespace kestrel {

// All in the printer's units.
struct PageMetrics {
  int U = 0;  // 10 mm, the step of the layout
  int W = 0;  // what is printed on, without the margins of 25 mm
  int H = 0;
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;

  friend bool operator==(const PageMetrics&, const PageMetrics&) = default;
};

// The metrics of a sheet of `width` x `height` units, taken to be A4: a millimetre is the mean of width / 210
// and height / 297.
PageMetrics MeasurePage(int width, int height);

// A 9 x 9 grid on the page by its top-left corner and its side.
struct GridSquare {
  int x = 0;
  int y = 0;
  int side = 0;

  friend bool operator==(const GridSquare&, const GridSquare&) = default;
};

// The place of puzzle `position` (1..per_page) on a page with `per_page` (1, 2 or 4) puzzles, and of its
// solution. Four puzzles go row by row.
GridSquare SudokuSquare(const PageMetrics& metrics, int per_page, int position);
GridSquare SolutionSquare(const PageMetrics& metrics, int per_page, int position);

}  // namespace kestrel
