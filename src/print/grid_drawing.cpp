// SPDX-License-Identifier: MIT
#include "print/grid_drawing.h"

#include <cstdint>
#include <string>

#include "print/names.h"
#include "print/texts.h"

namespace kestrel {

namespace {

constexpr int kPageNumberSize = 18;  // points

// Where a text of `length` units starts that stands in the middle of cell number `index` (0..8) of a side.
// With c = side / 9: index x c + (c - length) / 2.
int MiddleOfCell(int side, int index, int length) {
  return Nearest((std::int64_t{2} * index + 1) * side - std::int64_t{9} * length, 18);
}

}  // namespace

TextStyle TextOfSize(int size) {
  return {.font = {names::kTextFont, static_cast<double>(size), false}, .colour = kBlack};
}

TextStyle DigitOfSize(int size, bool bold, Colour colour) {
  return {.font = {names::kDigitFont, static_cast<double>(size), bold}, .colour = colour};
}

int Nearest(std::int64_t numerator, std::int64_t denominator) {
  const std::int64_t shifted = numerator + denominator / 2;
  const std::int64_t quotient = shifted / denominator;
  return static_cast<int>(shifted % denominator < 0 ? quotient - 1 : quotient);
}

void DrawGrid(Page& page, const GridSquare& square, const LineWidths& widths) {
  const auto [x, y, side] = square;
  page.Box(x, y, x + side, y + side, widths.thick);
  for (int i = 1; i < kUnitSize; ++i) {
    const int offset = i * side / kUnitSize;
    const int width = i % 3 == 0 ? widths.thick : widths.thin;
    page.Line(x, y + offset, x + side, y + offset, width);
    page.Line(x + offset, y, x + offset, y + side, width);
  }
}

void DrawDigit(Page& page, const GridSquare& square, int cell, const TextStyle& style, int digit) {
  const std::string text = std::to_string(digit);
  const TextSize size = page.Measure(style, text);
  page.Text(square.x + MiddleOfCell(square.side, CellCol[cell], size.width),
            square.y + MiddleOfCell(square.side, CellRow[cell], size.height), style, text);
}

void DrawDigits(Page& page, const GridSquare& square, const DigitGrid& digits, const TextStyle& style) {
  for (int cell = 0; cell < kCells; ++cell) {
    if (digits[cell] != 0) DrawDigit(page, square, cell, style, digits[cell]);
  }
}

void DrawRightAligned(Page& page, int right, int top, const TextStyle& style, std::string_view text) {
  page.Text(right - page.Measure(style, text).width, top, style, text);
}

void DrawPageNumber(Page& page, int right, int bottom, int page_number) {
  const std::string text = std::string(texts::kPage) + std::to_string(page_number);
  const TextStyle style = TextOfSize(kPageNumberSize);
  const TextSize size = page.Measure(style, text);
  page.Text(right - size.width, bottom - size.height, style, text);
}

}  // namespace kestrel
