// SPDX-License-Identifier: MIT
// A page that remembers what was drawn on it, and a stock to draw. Used by all tests of printing.
#pragma once

#include <cmath>
#include <functional>
#include <string>
#include <vector>

#include "core/stock_table.h"
#include "forms/page.h"

namespace kestrel {

// A text with its box, or a line ("-") or rectangle ("#") with its corners, its size the line width.
struct Drawn {
  std::string text;
  int left = 0, top = 0, right = 0, bottom = 0;
  int size = 0;
  [[nodiscard]] bool IsText() const { return text != "-" && text != "#"; }
};

// 10 units a millimetre; a character is 0.55 of the point size wide and 1.2 of it high.
class RecordingPage : public Page {
 public:
  int Width() override { return width; }
  int Height() override { return 2970; }
  TextSize Measure(const TextStyle& style, std::string_view text) override {
    const double size = style.font.size * 254 / 72;
    return {static_cast<int>(std::lround(0.55 * size)) * static_cast<int>(text.size()),
            static_cast<int>(std::lround(1.2 * size))};
  }
  void Text(int x, int y, const TextStyle& style, std::string_view text) override {
    const auto [w, h] = Measure(style, text);
    drawn.push_back({std::string(text), x, y, x + w, y + h, static_cast<int>(style.font.size)});
  }
  void Line(int x1, int y1, int x2, int y2, int thickness) override {
    drawn.push_back({"-", x1, y1, x2, y2, thickness});
  }
  void Box(int x1, int y1, int x2, int y2, int thickness) override {
    drawn.push_back({"#", x1, y1, x2, y2, thickness});
  }
  bool NewPage() override {
    pages.push_back(std::move(drawn));
    drawn.clear();
    return !on_page || on_page();
  }

  int width = 2100;
  std::vector<Drawn> drawn;               // on the page that has not ended
  std::vector<std::vector<Drawn>> pages;  // on those that have
  std::function<bool()> on_page;          // called at the end of each; false stops the job
};

// Solutions that differ by number, givens in a third of the cells, and all 22 techniques.
inline StockTable StockToPrint() {
  StockTable stock;
  for (int k = 0; k < kLevels * kPuzzlesPerLevel; ++k) {
    SudokuRecord& record = stock(k / 100 + 1, k % 100 + 1);
    for (int cell = 0; cell < kCells; ++cell) {
      record.SolutionCells[cell] =
          static_cast<std::uint8_t>((3 * (cell / 9) + cell / 27 + cell % 9 + k) % 9 + 1);
      if ((cell * 7 + k) % 10 < 3) record.GivenCells[cell] = record.SolutionCells[cell];
    }
    record.Level = static_cast<std::int16_t>(k / 100 + 1);
    record.TechniqueCount.fill(30);
  }
  return stock;
}

}  // namespace kestrel
