// SPDX-License-Identifier: MIT
#include "print/page_layout.h"

#include <gtest/gtest.h>

#include <map>

#include "print/print_job.h"
#include "recording_page.h"

namespace kestrel {
namespace {

std::vector<Drawn> PrintOnePage(const PrintSettings& settings, const StockTable& stock, RecordingPage& page) {
  const PageMetrics metrics = MeasurePage(page.Width(), page.Height());
  EXPECT_TRUE(PageLayout(page, metrics, stock, settings).PrintPages());
  return page.pages.at(0);
}

std::vector<Drawn> PrintOnePage(const PrintSettings& settings, const StockTable& stock = StockToPrint()) {
  RecordingPage page;
  return PrintOnePage(settings, stock, page);
}

TEST(PageMetrics, FollowTheSizeOfTheSheet) {
  EXPECT_EQ(MeasurePage(2100, 2970), (PageMetrics{100, 1600, 2470, 250, 250, 1850, 2720}));
  // 600 dpi: 23.62 units a millimetre; a printer that draws without its edges has fewer.
  EXPECT_EQ(MeasurePage(4960, 7016), (PageMetrics{236, 3780, 5836, 590, 590, 4370, 6426}));
  EXPECT_EQ(MeasurePage(4760, 6814), (PageMetrics{228, 3620, 5674, 570, 570, 4190, 6244}));
}

TEST(PageMetrics, EveryGridHasItsPlace) {
  struct Row {
    int per_page, position;
    GridSquare sudoku, solution;
  };
  const PageMetrics even = MeasurePage(2100, 2970);
  for (const Row& row : std::initializer_list<Row>{{1, 1, {250, 350, 1600}, {250, 2020, 700}},
                                                   {2, 1, {250, 350, 1000}, {1350, 850, 500}},
                                                   {2, 2, {250, 1620, 1000}, {1350, 2120, 500}},
                                                   {4, 1, {250, 350, 700}, {250, 1100, 400}},
                                                   {4, 2, {1150, 350, 700}, {1150, 1100, 400}},
                                                   {4, 3, {250, 1570, 700}, {250, 2320, 400}},
                                                   {4, 4, {1150, 1570, 700}, {1150, 2320, 400}}}) {
    EXPECT_EQ(SudokuSquare(even, row.per_page, row.position), row.sudoku) << row.per_page << row.position;
    EXPECT_EQ(SolutionSquare(even, row.per_page, row.position), row.solution) << row.per_page << row.position;
  }
  // Half steps are cut: U = 47, 4.5 U = 211, 8.5 U = 399.
  const PageMetrics odd = MeasurePage(1000, 1414);
  EXPECT_EQ(SudokuSquare(odd, 4, 4), (GridSquare{881 - 329, 1295 - 211 - 329, 329}));
  EXPECT_EQ(SolutionSquare(odd, 4, 2), (GridSquare{881 - 329, 119 + 399, 188}));
}

// All twelve kinds of page: what is on them, in which sizes, and that nothing overlaps or leaves the sheet.
class EveryPage : public testing::TestWithParam<int> {
 protected:
  PrintSettings settings_{.per_page = 1 << GetParam() / 4,
                          .with_solutions = GetParam() % 2 == 1,
                          .with_pencil_marks = GetParam() / 2 % 2 == 1,
                          .first_number = 97,
                          .level_index = 4};
};

TEST_P(EveryPage, HoldsAllThatBelongsOnIt) {
  const StockTable stock = StockToPrint();
  std::size_t givens = 0;
  for (int k = 0; k < settings_.per_page; ++k) {
    for (const int digit : stock(5, 97 + k).GivenCells) givens += digit != 0 ? 1 : 0;
  }
  const auto puzzles = static_cast<std::size_t>(settings_.per_page);
  const auto index = static_cast<std::size_t>(GetParam() / 4);
  std::map<std::string, std::size_t> count;  // by family, size and weight
  for (const Drawn& one : PrintOnePage(settings_, stock)) {
    const bool line = one.size == 0;
    const std::string key =
        line ? one.text + std::to_string(one.width)
             : std::string(one.style.font.family) + ' ' + std::to_string(static_cast<int>(one.size)) +
                   (one.style.font.bold ? " bold" : "") + (one.style.colour == 0x808080 ? " grey" : "");
    count[key] += !line && one.style.colour == 0x808080 ? 0 : 1;
  }
  const auto text = [](const char* family, int size, const char* look = "") {
    return std::string(family) + ' ' + std::to_string(size) + look;
  };
  const char* const times = "Times New Roman";
  const std::size_t grids = puzzles * (settings_.with_solutions ? 2 : 1);
  std::map<std::string, std::size_t> expected = {{"#8", grids}, {"-8", 4 * grids}, {"-2", 12 * grids}};
  expected[text("Arial", 18)] += 3;
  expected[text("Arial", 8)] += 22 * puzzles;
  expected[text("Arial", std::array{18, 11, 8}[index])] += puzzles;
  expected[text(times, std::array{42, 28, 18}[index], " bold")] = givens;
  if (settings_.with_solutions) expected[text(times, std::array{11, 8, 6}[index])] = 81 * puzzles;
  if (settings_.with_pencil_marks) expected[text(times, std::array{11, 7, 5}[index], " grey")] = 0;
  EXPECT_EQ(count, expected);
}

TEST_P(EveryPage, KeepsItsTextsApartAndOnTheSheet) {
  std::vector<Drawn> page = PrintOnePage(settings_);
  for (Drawn& one : page) {
    // Five millimetres that no printer reaches.
    EXPECT_TRUE(one.left >= 50 && one.top >= 50 && one.right <= 2050 && one.bottom <= 2920) << one.text;
    // Ink fills the middle of a text's box only: the largest digits' boxes are a little higher than a cell.
    const int no_ink = one.size == 0 ? 0 : (one.bottom - one.top) / 6;
    one.top += no_ink;
    one.bottom -= no_ink;
  }
  for (const Drawn& one : page) {
    for (const Drawn& other : page) {
      const bool apart = other.right <= one.left || other.left >= one.right || other.bottom <= one.top ||
                         other.top >= one.bottom;
      const bool texts = one.size != 0 && &other != &one && other.text != "#";
      EXPECT_TRUE(!texts || apart) << one.text << " on " << other.text;
    }
  }
}

std::string PageName(const testing::TestParamInfo<int>& info) {
  return std::to_string(1 << info.param / 4) + "APage" + (info.param / 2 % 2 == 1 ? "Marks" : "") +
         (info.param % 2 == 1 ? "Solutions" : "");
}
INSTANTIATE_TEST_SUITE_P(Kinds, EveryPage, testing::Range(0, 12), PageName);

TEST(PageLayout, DrawsInOrderAtExactPlaces) {
  const auto at = [](const Drawn& one) {
    return one.text + ' ' + std::to_string(one.left) + ' ' + std::to_string(one.top);
  };
  StockTable stock;
  SudokuRecord& record = stock(2, 30);
  record.GivenCells = {7};  // in the top left corner, and a 4 in the bottom right one
  record.GivenCells[80] = 4;
  record.SolutionCells.fill(5);
  record.TechniqueCount = {30, 107, 0, 2};
  PrintSettings settings{.per_page = 4, .first_number = 29, .level_index = 1};
  const std::vector<Drawn> page = PrintOnePage(settings, stock);

  // Page: title line, then each puzzle with its solution, then the page number.
  EXPECT_EQ(at(page.front()), "Kestrel Sudoku 250 250");
  EXPECT_EQ(at(page[1]), "Easy 1710 250");
  EXPECT_EQ(at(page.back()), "Page 1 1640 2644");
  std::vector<std::string> order;
  for (const Drawn& one : page) {
    if (one.text == "#" || one.text[0] == '#') order.push_back(at(one));
  }
  EXPECT_EQ(order, (std::vector<std::string>{"# 250 350", "# 29 886 1092", "# 250 1100",     //
                                             "# 1150 350", "# 30 1786 1092", "# 1150 1100",  //
                                             "# 250 1570", "# 31 886 2312", "# 250 2320",    //
                                             "# 1150 1570", "# 32 1786 2312", "# 1150 2320"}));
  // Grid: the frame, then line by line across and down.
  std::size_t i = 2;
  EXPECT_EQ(at(page[i]), "# 250 350");
  EXPECT_EQ(at(page[i + 1]), "- 250 427");  // Int(700 / 9)
  EXPECT_EQ(at(page[i + 2]), "- 327 350");
  EXPECT_EQ(at(page[i + 15]), "- 250 972");
  EXPECT_EQ(page[i + 5].width, 8);
  EXPECT_EQ(page[i + 5].right, 950);
  // Puzzle 30 at (1150, 350): a given in the middle, 35 x 76; marks of 10 x 21 from the second cell on.
  while (at(page[i]) != "# 1150 350") ++i;
  i += 17;
  EXPECT_EQ(at(page[i]), "7 1171 351");
  EXPECT_EQ(at(page[i + 1]), "1 1240 354");
  EXPECT_EQ(at(page[i + 3]), "3 1284 354");
  EXPECT_EQ(at(page[i + 4]), "4 1240 378");
  EXPECT_EQ(at(page[i + 7]), "8 1262 403");  // no 7 beside the given 7
  // Its summary: naked before hidden singles, two digits, no line for what was not needed.
  while (page[i].text != "# 30") ++i;
  EXPECT_EQ(at(page[i + 1]), "NS 07 1866 350");
  EXPECT_EQ(at(page[i + 2]), "HS 30 1866 384");
  EXPECT_EQ(at(page[i + 3]), "BL 02 1866 418");
  EXPECT_EQ(page[i + 4].text, "#");
  // Its solution at (1150, 1100): 6 points, 12 x 25.
  EXPECT_EQ(at(page[i + 4 + 17]), "5 1166 1110");
}

TEST(PageLayout, NumbersRunOnFromPageToPage) {
  RecordingPage page;
  const StockTable stock = StockToPrint();
  PrintSettings settings{.pages = 3, .per_page = 2, .first_number = 95};
  EXPECT_EQ(CheckPrintRange(settings), "");
  EXPECT_TRUE(PageLayout(page, MeasurePage(2100, 2970), stock, settings).PrintPages());
  ASSERT_EQ(page.pages.size(), 3U);
  EXPECT_EQ(RecordingPage::Find(page.pages[0], "# 95").size(), 1U);
  EXPECT_EQ(RecordingPage::Find(page.pages[2], "# 100").size(), 1U);
  EXPECT_EQ(RecordingPage::Find(page.pages[2], "Page 3").size(), 1U);
  EXPECT_TRUE(page.drawn.empty());
  settings.first_number = 96;
  EXPECT_EQ(CheckPrintRange(settings),
            "puzzles 96 to 101 are not all there, a level has 1 to 100: the first "
            "number is from 1 to 95 for this many");
}

TEST(PageLayout, CandidatesAreWhatTheGivensLeave) {
  RecordingPage page;
  StockTable stock = StockToPrint();
  const PrintSettings settings;
  PageLayout layout(page, MeasurePage(2100, 2970), stock, settings);
  stock(1, 1).GivenCells[7] = 200;  // no digit: an empty cell
  const DigitGrid& givens = stock(1, 1).GivenCells;
  layout.OpenSudoku(1);
  layout.SetupCandidates();
  for (int cell = 0; cell < kCells; ++cell) {
    for (int digit = 1; digit <= 9; ++digit) {
      bool possible = givens[cell] == 0 || givens[cell] > 9;
      for (int other = 0; other < kCells; ++other) {
        const bool box = other / 27 == cell / 27 && other % 9 / 3 == cell % 9 / 3;
        const bool sees = other / 9 == cell / 9 || other % 9 == cell % 9 || box;
        possible = possible && !(sees && givens[other] == digit);
      }
      EXPECT_EQ(layout.Candidates()[static_cast<std::size_t>(digit - 1)][cell], possible) << cell << digit;
    }
  }
  layout.PrintSudoku(1, 1);
  EXPECT_TRUE(RecordingPage::Find(page.drawn, "200").empty());
}

}  // namespace
}  // namespace kestrel
