// SPDX-License-Identifier: MIT
// The layout of the printed pages, on a page that records it.
#include "print/page_layout.h"

#include <gtest/gtest.h>

#include "recording_page.h"

namespace kestrel {
namespace {

TEST(PageMetrics, AreInWholeUnitsOfEveryPrinter) {
  const PageMetrics even = MeasurePage(2100, 2970);
  EXPECT_EQ(even, (PageMetrics{100, 1600, 2470, 250, 250, 1850, 2720}));
  // 600 dpi, 23.62 units a millimetre; and U = 47, so that 4.5 U = 211 and 8.5 U = 399.
  EXPECT_EQ(MeasurePage(4960, 7016), (PageMetrics{236, 3780, 5836, 590, 590, 4370, 6426}));
  const PageMetrics odd = MeasurePage(1000, 1414);
  EXPECT_EQ(SudokuSquare(odd, 4, 4), (GridSquare{881 - 329, 1295 - 211 - 329, 329}));
  EXPECT_EQ(SolutionSquare(odd, 4, 2), (GridSquare{881 - 329, 119 + 399, 188}));
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
