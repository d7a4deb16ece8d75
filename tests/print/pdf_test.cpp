// SPDX-License-Identifier: MIT
// The PDF files of printing: their form, and what another program (of poppler) finds in them.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <regex>

#include "cli/cli_run.h"
#include "core/stock_file.h"
#include "print/file_page.h"
#include "print/page_metrics.h"
#include "recording_page.h"
#include "support/temp_folder.h"

namespace kestrel {
namespace {

// The standard output of a program.
std::string OutputOf(const std::string& command) {
  FILE* pipe = popen(command.c_str(), "r");
  std::string output;
  for (int c = 0; (c = std::getc(pipe)) != EOF;) output += static_cast<char>(c);
  pclose(pipe);
  return output;
}

class PrintedPdf : public testing::TestWithParam<int> {
 protected:
  void SetUp() override {
    if (OutputOf("pdftotext -v 2>&1").find("version") == std::string::npos) GTEST_SKIP() << "no poppler";
    if (!MakeFilePage()) GTEST_SKIP() << "no cairo";
    ASSERT_EQ(Print({"--per-page", std::to_string(GetParam()), "--pages=2"}), 0);
  }
  // Prints puzzles from the command line; its exit status.
  int Print(std::vector<std::string> words) {
    const Bytes bytes = EncodeStock(stock_);
    folder_.Put("stock", std::string(bytes.begin(), bytes.end()));
    words.insert(words.begin(), {"print", "--stock", folder_.Path("stock").string(), "--output", file_});
    words.push_back("--no-pencilmarks");
    return RunWith(words).status;
  }

  StockTable stock_ = StockToPrint();
  PageMetrics metrics_ = MeasurePage(FilePage::kWidth, FilePage::kHeight);
  TempFolder folder_;
  std::string file_ = folder_.Path("page.pdf").string();
};
INSTANTIATE_TEST_SUITE_P(PerPage, PrintedPdf, testing::Values(1, 2, 4));

TEST_P(PrintedPdf, HasEveryDigitInItsCell) {
  const std::string words = OutputOf("pdftotext -f 2 -bbox " + file_ + " - 2>&1");
  EXPECT_EQ(words.find("Error"), std::string::npos) << "the reader complains";
  // The digits in the middle of the cells of a square on page 2.
  const auto digits_in = [&words](const GridSquare& square) {
    DigitGrid digits{};
    static const std::regex kWord(R"re(xMin="(.*)" yMin="(.*)" xMax="(.*)" yMax="(.*)">(.)</word>)re");
    for (std::sregex_iterator word(words.begin(), words.end(), kWord), end; word != end; ++word) {
      const auto place = [&](std::size_t low, int start) {
        const double middle = (std::stod((*word)[low]) + std::stod((*word)[low + 2])) / 2;
        return (middle * 2540 / 72 - start) * 9 / square.side;
      };
      const double column = place(1, square.x), row = place(2, square.y);
      if (column < 0 || column >= 9 || row < 0 || row >= 9) continue;
      EXPECT_NEAR(column - std::floor(column), 0.5, 0.01);
      EXPECT_NEAR(row - std::floor(row), 0.5, 0.1);  // the reader's fonts have other line heights
      digits[9 * static_cast<int>(row) + static_cast<int>(column)] =
          static_cast<std::uint8_t>(std::stoi((*word)[5]));
    }
    return digits;
  };
  for (int position = 1; position <= GetParam(); ++position) {
    const SudokuRecord& record = stock_(1, GetParam() + position);
    EXPECT_EQ(digits_in(SudokuSquare(metrics_, GetParam(), position)), record.GivenCells);
    EXPECT_EQ(digits_in(SolutionSquare(metrics_, GetParam(), position)), record.SolutionCells);
  }
}

TEST_P(PrintedPdf, StaysWhenTheSameOrNothingIsPrintedOverIt) {
  const std::string before = folder_.Get("page.pdf");
  EXPECT_EQ(Print({"--per-page", std::to_string(GetParam()), "--pages=2", "--level=1"}), 0);
  const std::string highest = std::to_string(101 - 10 * GetParam());
  for (const std::vector<std::string>& words : std::initializer_list<std::vector<std::string>>{
           {"--per-page=4", "--pages=10", "--from=62"}, {"--from=0"}, {"--from=101"}, {"--per-page=3"}}) {
    EXPECT_EQ(Print(words), 2);
  }
  EXPECT_EQ(folder_.Get("page.pdf"), before);
  EXPECT_EQ(Print({"--per-page", std::to_string(GetParam()), "--pages=10", "--from", highest}), 0);
}

TEST_P(PrintedPdf, LooksAsLaidOut) {
  // Ten dots a millimetre.
  const std::string picture = OutputOf("pdftoppm -f 2 -r 254 -gray " + file_);
  constexpr std::size_t kRow = 2101, kHead = 17;
  ASSERT_EQ(picture.substr(0, kHead), "P5\n2101 2971\n255\n");
  const auto ink = [&](int x, int y, int width, int height) {
    std::ptrdiff_t dark = 0;
    for (int row = y; row < y + height; ++row) {
      const std::string_view dots = std::string_view(picture).substr(kHead + kRow * row + x, width);
      dark += std::ranges::count_if(dots, [](unsigned char dot) { return dot < 128; });
    }
    return dark;
  };
  for (int i = 0; i < GetParam() * kCells; ++i) {
    const int cell = i % kCells;
    const GridSquare square = SudokuSquare(metrics_, GetParam(), i / kCells + 1);
    const int side = square.side / 90;
    const int x = (square.x + cell % 9 * square.side / 9) / 10;
    const int y = (square.y + cell / 9 * square.side / 9) / 10;
    EXPECT_EQ(ink(x + 4, y + 4, side - 8, side - 8) > 50,
              stock_(1, GetParam() + i / kCells + 1).GivenCells[cell] != 0);
    const auto line_above = ink(x + 20, y - 4, 1, 8);
    EXPECT_TRUE(cell / 9 % 3 == 0 ? line_above > 3 && line_above < 7 : line_above > 0 && line_above < 3);
  }
}

}  // namespace
}  // namespace kestrel
