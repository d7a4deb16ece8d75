// SPDX-License-Identifier: MIT
// The metrics of the page, in whole numbers: every place comes out the same on every machine.
#include "print/page_metrics.h"

#include <cstdint>

namespace kestrel {

namespace {

constexpr int kSheetWidth = 210;  // millimetres
constexpr int kSheetHeight = 297;

// Int(factor x U / 2): the layout has half steps.
int HalfSteps(const PageMetrics& metrics, int factor) {
  return factor * metrics.U / 2;
}

}  // namespace

PageMetrics MeasurePage(int width, int height) {
  // Units per millimetre = numerator / denominator.
  const std::int64_t numerator = std::int64_t{width} * kSheetHeight + std::int64_t{height} * kSheetWidth;
  const std::int64_t denominator = std::int64_t{2} * kSheetWidth * kSheetHeight;
  const auto millimetres = [&](int count) { return static_cast<int>(count * numerator / denominator); };
  PageMetrics metrics;
  const int margin = millimetres(25);
  metrics.U = millimetres(10);
  metrics.W = width - 2 * margin;
  metrics.H = height - 2 * margin;
  metrics.left = margin;
  metrics.top = margin;
  metrics.right = margin + metrics.W;
  metrics.bottom = margin + metrics.H;
  return metrics;
}

GridSquare SudokuSquare(const PageMetrics& metrics, int per_page, int position) {
  const PageMetrics& m = metrics;
  if (per_page == 1) return {m.left, m.top + m.U, m.W};
  if (per_page == 2) {
    const int side = 10 * m.U;
    return {m.left, position == 1 ? m.top + m.U : m.bottom - side - m.U, side};
  }
  const int side = 7 * m.U;
  const int x = position % 2 == 1 ? m.left : m.right - side;
  return {x, position <= 2 ? m.top + m.U : m.bottom - HalfSteps(m, 9) - side, side};
}

GridSquare SolutionSquare(const PageMetrics& metrics, int per_page, int position) {
  const PageMetrics& m = metrics;
  if (per_page == 1) return {m.left, m.bottom - 7 * m.U, 7 * m.U};
  if (per_page == 2) {
    const int side = 5 * m.U;
    return {m.right - side, position == 1 ? m.top + 6 * m.U : m.bottom - side - m.U, side};
  }
  // Under its puzzle, their left edges in line.
  const int side = 4 * m.U;
  const int x = position % 2 == 1 ? m.left : m.right - 7 * m.U;
  return {x, position <= 2 ? m.top + HalfSteps(m, 17) : m.bottom - side, side};
}

}  // namespace kestrel
