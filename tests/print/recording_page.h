// SPDX-License-Identifier: MIT
// A page that remembers what was drawn on it, and a stock to draw. Used by all tests of printing.
#pragma once

#include <cmath>
#include <functional>
#include <string>
#include <vector>

#include "core/stock_table.h"
#include "ui/ports/page.h"

namespace kestrel {

// Something drawn: a text with its box, or a line or box ('-' and '#' as text) with its corners.
struct Drawn {
  std::string text;
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;
  double size = 0;  // of a text in points, otherwise 0
  TextStyle style;
  int width = 0;  // of a line
};

// 10 units a millimetre; a character is 0.55 of the point size wide and 1.2 high.
class RecordingPage : public Page {
 public:
  int Width() override { return width; }
  int Height() override { return 2970; }
  TextSize Measure(const TextStyle& style, std::string_view text) override {
    const double units = style.font.size * 254 / 72;
    return {.width = static_cast<int>(std::lround(0.55 * units)) * static_cast<int>(text.size()),
            .height = static_cast<int>(std::lround(1.2 * units))};
  }
  void Text(int x, int y, const TextStyle& style, std::string_view text) override {
    const TextSize size = Measure(style, text);
    drawn.push_back({std::string(text), x, y, x + size.width, y + size.height, style.font.size, style, 0});
  }
  void Line(int x1, int y1, int x2, int y2, int thickness) override {
    drawn.push_back({"-", x1, y1, x2, y2, 0, {}, thickness});
  }
  void Box(int x1, int y1, int x2, int y2, int thickness) override {
    drawn.push_back({"#", x1, y1, x2, y2, 0, {}, thickness});
  }
  bool NewPage() override {
    pages.push_back(drawn);
    drawn.clear();
    return !on_page || on_page();
  }

  // What was drawn with this text and, when given, in this size.
  static std::vector<Drawn> Find(const std::vector<Drawn>& page, std::string_view text, double size = -1) {
    std::vector<Drawn> found;
    for (const Drawn& one : page) {
      if (one.text == text && (size < 0 || one.size == size)) found.push_back(one);
    }
    return found;
  }

  int width = 2100;
  std::vector<Drawn> drawn;               // on the page that has not ended
  std::vector<std::vector<Drawn>> pages;  // on those that have
  std::function<bool()> on_page;          // called at the end of each; false stops the job
};

// Every record has a puzzle of its own kind: a solution that differs by number, givens in a third of the
// cells, and all 22 techniques, slot s s + 1 times.
inline StockTable StockToPrint() {
  StockTable stock;
  for (int level = 1; level <= kLevels; ++level) {
    for (int number = 1; number <= kPuzzlesPerLevel; ++number) {
      SudokuRecord& record = stock(level, number);
      record.Level = static_cast<std::int16_t>(level);
      for (int cell = 0; cell < kCells; ++cell) {
        const int row = cell / 9;
        const int digit = (3 * row + row / 3 + cell % 9 + number) % 9 + 1;
        record.SolutionCells[cell] = static_cast<std::uint8_t>(digit);
        if ((cell * 7 + number + level) % 10 < 3) record.GivenCells[cell] = record.SolutionCells[cell];
      }
      for (int slot = 0; slot < kTechniques; ++slot) {
        record.TechniqueCount[slot] = static_cast<std::int16_t>(slot + 1);
      }
    }
  }
  return stock;
}

}  // namespace kestrel
