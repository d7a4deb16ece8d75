// SPDX-License-Identifier: MIT
// The layout of the printed pages, on a page that records it.
#include "print/page_layout.h"

#include <gtest/gtest.h>

#include "recording_page.h"

namespace kestrel {
namespace {

std::vector<Drawn> PrintOnePage(const StockTable& stock, const PrintSettings& settings) {
  RecordingPage page;
  EXPECT_TRUE(PageLayout(page, MeasurePage(page.Width(), page.Height()), stock, settings).PrintPages());
  return page.pages.at(0);
}

TEST(PageMetrics, AreInWholeUnitsOfEveryPrinter) {
  const PageMetrics even = MeasurePage(2100, 2970);
  EXPECT_EQ(even, (PageMetrics{100, 1600, 2470, 250, 250, 1850, 2720}));
  // 600 dpi, 23.62 units a millimetre; and U = 47, so that 4.5 U = 211 and 8.5 U = 399.
  EXPECT_EQ(MeasurePage(4960, 7016), (PageMetrics{236, 3780, 5836, 590, 590, 4370, 6426}));
  const PageMetrics odd = MeasurePage(1000, 1414);
  EXPECT_EQ(SudokuSquare(odd, 4, 4), (GridSquare{881 - 329, 1295 - 211 - 329, 329}));
  EXPECT_EQ(SolutionSquare(odd, 4, 2), (GridSquare{881 - 329, 119 + 399, 188}));
}

// All twelve kinds of page: nothing overlaps or leaves the sheet.
TEST(PageLayout, EveryKindOfPageHasItsTextsApart) {
  const StockTable stock = StockToPrint();
  for (int kind = 0; kind < 12; ++kind) {
    const bool marks = kind / 2 % 2 == 1, solutions = kind % 2 == 1;
    const int per_page = 1 << kind / 4;
    std::vector<Drawn> page =
        PrintOnePage(stock, {.per_page = per_page, .with_solutions = solutions, .with_pencil_marks = marks});
    for (Drawn& one : page) {
      // Five millimetres of a sheet are out of reach for printers.
      EXPECT_TRUE(one.left >= 50 && one.top >= 50 && one.right <= 2050 && one.bottom <= 2920) << one.text;
      if (!one.IsText()) continue;
      // Ink fills the middle of a text's box only: the boxes of the largest digits are higher than a cell.
      one.top += one.size / 2;
      one.bottom -= one.size / 2;
    }
    for (const Drawn& one : page) {
      for (const Drawn& other : page) {
        const bool apart = other.right <= one.left || other.left >= one.right || other.bottom <= one.top ||
                           other.top >= one.bottom;
        const bool may_not_touch = one.IsText() && other.text != "#" && &one != &other;
        EXPECT_TRUE(apart || !may_not_touch) << kind << ": " << one.text << " on " << other.text;
      }
    }
  }
}

// A printer that breaks down in the middle of a page skips what it cannot do, and the job goes on to its end.
TEST(PageLayout, ABrokenPrinterDoesNotStopTheJob) {
  struct BrokenPage final : RecordingPage {
    TextSize Measure(const TextStyle& style, std::string_view text) override {
      return --calls_left > 0 ? RecordingPage::Measure(style, text) : TextSize();
    }
    int calls_left = 0;
  };
  for (const int calls : {1, 100, 3000}) {
    BrokenPage broken;
    broken.calls_left = calls;
    const PrintSettings settings{.pages = 3, .per_page = 4};
    EXPECT_TRUE(PageLayout(broken, MeasurePage(2100, 2970), StockToPrint(), settings).PrintPages());
    EXPECT_EQ(broken.pages.size(), 3U);
  }
}

}  // namespace
}  // namespace kestrel
