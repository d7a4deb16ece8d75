// SPDX-License-Identifier: MIT
// What all pages have in common: grids with digits in the middle of their cells. Used by the layouts.
//
// Places that are no whole units are exact fractions until they are printed, then the nearest unit is taken:
// no floating point, so that every machine prints the same.
#pragma once

#include <cstdint>
#include <string_view>

#include "core/grid.h"
#include "forms/page.h"
#include "print/page_metrics.h"

namespace kestrel {

// The widths of the lines around boxes and around cells.
struct LineWidths {
  int thick = 8;
  int thin = 2;
};

inline constexpr int kTitleSize = 18;  // points

// Styles of the page's two fonts; the size is in points.
TextStyle TextOfSize(int size);
TextStyle DigitOfSize(int size, bool bold = false, Colour colour = kBlack);

// numerator / denominator rounded to the nearest whole number, a half upwards; the denominator is even.
int Nearest(std::int64_t numerator, std::int64_t denominator);

// Frame and lines.
void DrawGrid(Page& page, const GridSquare& square, const LineWidths& widths = {});

// A digit 1..9 in the middle of a cell 0..80.
void DrawDigit(Page& page, const GridSquare& square, int cell, const TextStyle& style, int digit);

// All digits of a grid in which 0 is an empty cell.
void DrawDigits(Page& page, const GridSquare& square, const DigitGrid& digits, const TextStyle& style);

// A text whose right end is at `right`, its top at `top`.
void DrawRightAligned(Page& page, int right, int top, const TextStyle& style, std::string_view text);

// "Page 3", its right end and bottom at a corner.
void DrawPageNumber(Page& page, int right, int bottom, int page_number);

}  // namespace kestrel
