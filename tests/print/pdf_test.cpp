// SPDX-License-Identifier: MIT
// The PDF files of printing: their form, and what another program (of poppler) finds in them.
#include <gtest/gtest.h>

#include <cstdio>
#include <regex>

#include "cli/cli_run.h"
#include "core/stock_file.h"
#include "print/file_page.h"
#include "print/page_metrics.h"
#include "recording_page.h"
#include "support/approved.h"
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

class PrintFiles : public testing::Test {
 protected:
  void SetUp() override {
    if (!MakeFilePage()) GTEST_SKIP() << "no cairo";
  }
  TempFolder folder_;
};

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

// The place of a text on a page in points, its left top corner.
std::pair<double, double> PlaceOf(const std::string& file, int page, const std::string& text) {
  const std::string at = std::to_string(page);
  const std::string words = OutputOf("pdftotext -f " + at + " -l " + at + " -bbox " + file + " - 2>&1");
  const std::regex word(R"re(xMin="([^"]*)" yMin="([^"]*)"[^>]*>)re" + text + "</word>");
  std::smatch found;
  if (!std::regex_search(words, found, word)) return {-1, -1};
  return {std::stod(found[1]), std::stod(found[2])};
}

TEST_P(PrintedPdf, CarriesItsFontsOnEveryPaper) {
  for (const std::string paper : {"a4", "letter"}) {
    ASSERT_EQ(Print({"--per-page", std::to_string(GetParam()), "--pages=2", "--paper", paper}), 0);
    const std::vector<std::string> fonts = Lines(OutputOf("pdffonts " + file_));
    ASSERT_GE(fonts.size(), 5U);
    for (std::size_t i = 2; i < fonts.size(); ++i) {
      EXPECT_TRUE(std::regex_search(fonts[i], std::regex("Liberation.* yes yes yes "))) << fonts[i];
    }
    const std::string info = OutputOf("pdfinfo " + file_);
    EXPECT_NE(info.find(paper == "a4" ? "595.276 x 841.89 pts" : "612 x 792 pts"), std::string::npos) << info;
    // The same sheet, on Letter 0.943 as large and in the middle.
    const auto [x, y] = PlaceOf(file_, 2, "Kestrel");
    EXPECT_NEAR(x, paper == "a4" ? 25 / 25.4 * 72 : (612 - 595.276 * 0.9407) / 2 + 70.87 * 0.9407, 1);
    EXPECT_NEAR(y, paper == "a4" ? 70.87 : 70.87 * 0.9407, 1);
  }
}

// The words on the pages that many commands print, counted, and the names of the files.
TEST_F(PrintFiles, HaveTheWordsThatAreApproved) {
  if (OutputOf("pdftotext -v 2>&1").find("version") == std::string::npos) GTEST_SKIP() << "no poppler";
  const std::string odd = std::string(81, '.') + "\n11" + std::string(79, '.');
  folder_.Put("made", RunWith({"generate", "--count=3", "--seed=1"}).out);
  folder_.Put("a_file_whose_name_has_32_letters", odd);
  folder_.Put("a_file_whose_name_has_33_letters_", odd);
  std::filesystem::create_directory(folder_.Path("a.b"));
  std::string report;
  for (const char* options :
       {"p.pdf", "p.pdf --level 3 --from 7", "p.pdf --level 5 --from 97 --per-page 4",
        "p.pdf --no-solutions --level 2", "p.pdf --pages 3 --per-page 2 --no-pencilmarks",
        "p.pdf --booklet --per-page 4", "p.pdf --large --pages 2 --from 9", "p.pdf made",
        "p.pdf --per-page 2 --from 2 made", "p.pdf --pages 1 --per-page 2 made made",
        "p.pdf --booklet a_file_whose_name_has_32_letters",
        "p.pdf --booklet --no-solutions a_file_whose_name_has_33_letters_", "p.svg --pages 10",
        "a.b/c --pages 2 --format svg", ".svg --pages 2 --format svg", "- --format svg --pages 2"}) {
    std::vector<std::string> words{"print", "--output"};
    for (const std::string& word : Fields(options, ' ')) {
      const bool is_file = words.size() == 2 ? word != "-" : std::filesystem::exists(folder_.Path(word));
      words.push_back(is_file ? folder_.Path(word).string() : word);
    }
    const CliResult printed = RunWith(words, "", "none", KESTREL_SOURCE_DIR "/data/sudstock.kpz");
    report += std::string("# ") + options + "\n" + printed.err;
    if (folder_.Get("p.pdf").empty()) continue;
    report += OutputOf("pdftotext -raw " + folder_.Path("p.pdf").string() +
                       " - | tr -s ' \\n\\f' '\\n' | LC_ALL=C sort | uniq -c");
    std::filesystem::remove(folder_.Path("p.pdf"));
  }
  ExpectApproved("print/words.txt", report + OutputOf("cd " + folder_.Path().string() +
                                                      " && find . -name '*[a-z0-9]*' | LC_ALL=C sort"));
}

TEST_F(PrintFiles, AnyPuzzlesInEveryFormat) {
  folder_.Put("puzzles",
              RunWith({"generate", "--count=5", "--seed=1"}).out + std::string(81, '.') + "\nbad\n");
  const auto print = [&](const std::string& output, std::vector<std::string> words = {}) {
    words.insert(words.begin(), {"print", "--per-page=4", "--output", folder_.Path(output)});
    words.push_back(folder_.Path("puzzles"));
    return RunWith(words);
  };
  EXPECT_EQ(print("pages.png").status, 1);
  EXPECT_TRUE(folder_.Get("pages-1.png").starts_with("\x89PNG"));
  EXPECT_NE(folder_.Get("pages-1.png"), folder_.Get("pages-2.png"));
  print("one.svg", {"--pages=1", "--from=5"});
  const std::string drawing = folder_.Get("one.svg");
  for (const char* line : {"stroke-width[:=]\"?48\\b", "stroke-width[:=]\"?12\\b",
                           R"(fill[:=]"?rgb\(50\.\d*%, ?50\.\d*%, ?50\.\d*%\))"}) {
    EXPECT_TRUE(std::regex_search(drawing, std::regex(line))) << line;
  }
  EXPECT_TRUE(RunWith({"print", "--output=-", folder_.Path("puzzles")}).out.starts_with("%PDF"));
  // Neither what is read nor a stock is written over, under whatever name.
  const Bytes bytes = EncodeStock(StockToPrint());
  const std::string stock(bytes.begin(), bytes.end());
  folder_.Put("stock", stock);
  folder_.Put("copy", stock);
  std::filesystem::create_symlink(folder_.Path("stock"), folder_.Path("link"));
  std::filesystem::create_hard_link(folder_.Path("stock"), folder_.Path("hard"));
  for (const char* name : {"stock", "copy", "link", "hard"}) {
    EXPECT_EQ(RunWith({"print", "--stock", folder_.Path("stock"), "--output", folder_.Path(name)}).status, 2);
    EXPECT_EQ(folder_.Get(name), stock);
  }
  const std::string puzzles = folder_.Get("puzzles");
  EXPECT_EQ(print("puzzles").status, 2);
  EXPECT_EQ(folder_.Get("puzzles"), puzzles);
}

}  // namespace
}  // namespace kestrel
