// SPDX-License-Identifier: MIT
// The PDF files of printing: their form, and what other programs (poppler's) find in them.
#include <gtest/gtest.h>

#include <cstdio>
#include <memory>
#include <regex>

#include "print/page_layout.h"
#include "print/pdf_page.h"
#include "print/print_job.h"
#include "recording_page.h"
#include "support/temp_folder.h"

namespace kestrel {
namespace {

std::string Text(const Bytes& bytes) {
  return {bytes.begin(), bytes.end()};
}

// The standard output of a command, which must succeed.
std::string OutputOf(const std::string& command) {
  const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
  std::string output;
  std::array<char, 65536> buffer{};
  while (const std::size_t count = std::fread(buffer.data(), 1, buffer.size(), pipe.get())) {
    output.append(buffer.data(), count);
  }
  return output;
}

TEST(PdfPage, WritesAFileThatIsWellFormed) {
  PdfPage page;
  const TextStyle bold{.font = {"Courier New", 10.5, true}, .colour = 0xA00000};
  page.Text(1000, 1000, bold, "a (b) \\ \xE9");
  EXPECT_TRUE(page.NewPage());
  page.Text(1, 1, bold, "never printed");
  const std::string file = Text(page.Finish("Title"));
  EXPECT_TRUE(file.starts_with("%PDF-1.6\n"));
  EXPECT_TRUE(file.ends_with("\n%%EOF\n"));
  EXPECT_NE(file.find("/F6 10.5 Tf\n0 0 0.627 rg\nBT 28.346 804.796 Td (a \\(b\\) \\\\ ?) Tj ET\n"),
            std::string::npos);
  EXPECT_EQ(file.find("never printed"), std::string::npos);
  // The table at the end says where each object begins.
  const std::size_t table = std::stoul(file.substr(file.rfind("startxref") + 10));
  ASSERT_EQ(file.substr(table, 8), "xref\n0 1");
  const std::size_t entries = file.find('\n', table + 5) + 1;
  int objects = 1;
  for (; file[entries + 20 * objects] != 't'; ++objects) {
    const std::string start = std::to_string(objects) + " 0 obj\n";
    EXPECT_EQ(file.compare(std::stoul(file.substr(entries + 20 * objects, 10)), start.size(), start), 0);
  }
  EXPECT_EQ(objects, 12);
  EXPECT_NE(Text(PdfPage().Finish("")).find("/Count 1 "), std::string::npos) << "a page at least";
}

TEST(PdfPage, MeasuresByTheFontsOwnWidths) {
  PdfPage page;
  const auto width = [&page](const char* family, double size, std::string_view text) {
    return page.Measure({.font = {family, size, false}}, text).width;
  };
  EXPECT_EQ(width("Times New Roman", 72, "8"), 1270);  // half an inch
  EXPECT_EQ(width("Courier New", 72, "iW"), 3048);
  EXPECT_EQ(width("Arial", 72, "# 100"), 6355);  // (556 + 278 + 3 x 556) thousandths of an inch
  EXPECT_EQ(page.Measure({.font = {"Arial", 72, false}}, "8").height, 2837);
}

class PrintedPdf : public testing::TestWithParam<int> {
 protected:
  void SetUp() override {
    if (OutputOf("pdftotext -v 2>&1").find("version") == std::string::npos) GTEST_SKIP() << "no poppler";
    folder_.Put("page.pdf", Text(PrintJob(stock_, settings_)));
  }

  StockTable stock_ = StockToPrint();
  PrintSettings settings_{.per_page = GetParam(), .with_pencil_marks = false, .first_number = 12};
  PageMetrics metrics_ = MeasurePage(PdfPage::kWidth, PdfPage::kHeight);
  TempFolder folder_;
};

struct Word {
  double x, y;  // its middle, in hundredths of a millimetre
  std::string text;
};

std::vector<Word> WordsOf(const std::string& file) {
  std::vector<Word> words;
  const std::string page = OutputOf("pdftotext -bbox " + file + " -");
  const std::regex pattern(R"re(xMin="(.*)" yMin="(.*)" xMax="(.*)" yMax="(.*)">(.*)</word>)re");
  for (std::sregex_iterator word(page.begin(), page.end(), pattern), end; word != end; ++word) {
    const auto middle = [&](int low) { return (std::stod((*word)[low]) + std::stod((*word)[low + 2])) / 2; };
    words.push_back({middle(1) * 2540 / 72, middle(2) * 2540 / 72, (*word)[5]});
  }
  return words;
}

// The digits that stand in the middle of the cells of a square.
DigitGrid DigitsIn(const GridSquare& square, const std::vector<Word>& words) {
  DigitGrid digits{};
  for (const Word& word : words) {
    const double column = (word.x - square.x) * 9 / square.side;
    const double row = (word.y - square.y) * 9 / square.side;
    if (column < 0 || column >= 9 || row < 0 || row >= 9) continue;
    EXPECT_NEAR(column - std::floor(column), 0.5, 0.01) << word.text;
    EXPECT_NEAR(row - std::floor(row), 0.5, 0.1) << word.text;  // the reader's fonts have other line heights
    digits[9 * static_cast<int>(row) + static_cast<int>(column)] =
        static_cast<std::uint8_t>(std::stoi(word.text));
  }
  return digits;
}

TEST_P(PrintedPdf, HasEveryDigitInItsCell) {
  const std::vector<Word> words = WordsOf(folder_.Path("page.pdf"));
  for (int position = 1; position <= GetParam(); ++position) {
    const SudokuRecord& record = stock_(1, 11 + position);
    EXPECT_EQ(DigitsIn(SudokuSquare(metrics_, GetParam(), position), words), record.GivenCells);
    EXPECT_EQ(DigitsIn(SolutionSquare(metrics_, GetParam(), position), words), record.SolutionCells);
  }
}

// Ten dots a millimetre; the picture has room for the last dot begun.
TEST_P(PrintedPdf, LooksAsLaidOut) {
  const std::string picture = OutputOf("pdftoppm -r 254 -gray " + folder_.Path("page.pdf").string());
  ASSERT_TRUE(picture.starts_with("P5\n2101 2971\n255\n"));
  const std::size_t pixels = picture.size() - std::size_t{2101} * 2971;
  // How many dots are dark in a rectangle.
  const auto ink = [&](int x1, int y1, int x2, int y2) {
    int dark = 0;
    for (int y = y1; y < y2; ++y) {
      for (int x = x1; x < x2; ++x) {
        dark += static_cast<unsigned char>(picture[pixels + std::size_t{2101} * y + x]) < 128 ? 1 : 0;
      }
    }
    return dark;
  };
  for (int position = 1; position <= GetParam(); ++position) {
    const GridSquare square = SudokuSquare(metrics_, GetParam(), position);
    const int side = square.side / 10;
    for (int cell = 0; cell < kCells; ++cell) {
      const int x = square.x / 10 + cell % 9 * side / 9;
      const int y = square.y / 10 + cell / 9 * side / 9;
      const int inside = side / 9 - 4;
      const bool given = stock_(1, 11 + position).GivenCells[cell] != 0;
      EXPECT_EQ(ink(x + 4, y + 4, x + inside, y + inside) > 50, given) << cell;
      // The line above the cell: five dots high at boxes, one or two elsewhere.
      const int line = ink(x + 20, y - 4, x + 21, y + 4);
      EXPECT_TRUE(cell / 9 % 3 == 0 ? line >= 4 && line <= 6 : line >= 1 && line <= 2) << line;
    }
  }
  // Nothing near the edges of the sheet.
  EXPECT_EQ(ink(0, 0, 2100, 100) + ink(0, 2870, 2100, 2970) + ink(0, 0, 100, 2970) + ink(2000, 0, 2100, 2970),
            0);
}

INSTANTIATE_TEST_SUITE_P(PerPage, PrintedPdf, testing::Values(1, 2, 4), testing::PrintToStringParamName());

}  // namespace
}  // namespace kestrel
