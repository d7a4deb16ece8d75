// SPDX-License-Identifier: MIT
// Puzzles in every format, alone and mixed; what is broken is reported where it starts and the rest is read.
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <utility>

#include "core/text.h"
#include "formats/puzzle_stream.h"
#include "formats/puzzle_writer.h"
#include "support/test_puzzles.h"

namespace kestrel {
namespace {

constexpr std::string_view kPuzzle =
    "043000080600700003000100090306200500000905000004003108060009000200007006090000830";

// A text that comes byte by byte, as through a slow pipe.
class Dripping final : public std::streambuf {
 public:
  explicit Dripping(const std::string& text) : text_(text) {}

 protected:
  std::streamsize showmanyc() override { return 0; }
  int_type underflow() override {
    if (next_ == text_.size()) return traits_type::eof();
    char* byte = text_.data() + next_++;
    setg(byte, byte, byte + 1);
    return traits_type::to_int_type(*byte);
  }

 private:
  std::string text_;
  std::size_t next_ = 0;
};

// What a text holds: "LINE puzzle" with '#' for kPuzzle, or "LINE error".
std::string Read(std::istream& in, std::size_t bytes) {
  PuzzleStream stream(in);
  std::string all;
  for (FoundPuzzle found; stream.Next(found);) {
    const std::string cells = GridText(found.puzzle.givens);
    const std::string what = !found.error.empty() ? found.error : cells == kPuzzle ? "#" : cells;
    all += (all.empty() ? "" : "|") + std::to_string(found.line) + " " + what;
  }
  EXPECT_EQ(stream.Bytes(), bytes);
  return all;
}

std::string Read(const std::string& text) {
  Dripping slow(text);
  std::istream dripping(&slow);
  std::istringstream in(text);
  const std::string all = Read(in, text.size());
  EXPECT_EQ(Read(dripping, text.size()), all);
  return all;
}

std::string Drawn(std::string_view bar, std::string_view band, char open, std::string_view gap = "") {
  std::string text;
  for (std::size_t cell = 0; cell < kPuzzle.size(); ++cell) {
    if (cell % 27 == 0) text += band;
    if (cell % 9 == 0) text += bar;
    text += kPuzzle[cell] == '0' ? open : kPuzzle[cell];
    text += gap;
    if (cell % 3 == 2) text += bar;
    if (cell % 9 == 8) text += '\n';
  }
  return text + std::string(band);
}

TEST(Formats, AreToldApartAndMixed) {
  const std::string line(kPuzzle);
  std::string utf16 = "\xFF\xFE";
  for (const char c : line + "\r\n" + line + "\r\n" + line) utf16 += {c, '\0'};
  utf16.replace(utf16.size() - 82, 2, "5\1", 2);  // a letter whose low byte is that of a digit
  std::string big_endian = utf16;
  for (std::size_t i = 0; i < utf16.size(); i += 2) std::swap(big_endian[i], big_endian[i + 1]);
  const std::vector<std::pair<std::string, std::string>> cases{
      {"\xEF\xBB\xBF" + line + " a note\r\n\r\n \t\n# a remark\n" + std::string(130, ' ') + line + ",x",
       "1 #|5 #"},
      {line + "\r" + line + "\r", "1 #|2 #"},
      {utf16, "1 #|2 #|3 character 41 is '?', not a digit or '.'"},
      {"quizzes,solutions\n" + line + "," + line + "\nid;Puzzle\n7;\"" + line + "\"\n", "2 #|4 #"},
      {Drawn("", "", '.') + Drawn("", "", '0', " ") + "\n" + line, "1 #|10 #|20 #"},
      {Drawn("|", "|-------+-------+-------|\n", '*', " "), "2 #"},
      {Drawn("|", "-----------\n", '-') + Drawn("", "---------\n", '_'), "2 #|15 #"},
      {Drawn("", "\n", '.') + "\n" + Drawn("", "\n", '.'), "2 #|16 #"},
      {"#A author\n[Puzzle]\n" + Drawn("", "", '.') + "[State]\n" + Drawn("", "", '.') + line, "3 #|22 #"},
      {"<?xml version=\"1.0\"?>\n<opensudoku>\n<game data=\"" + line +
           "\"/>\n<folder><game data=\"12\"/>\n</folder>"
           "</opensudoku>\n" +
           line,
       "3 #|4 game: only 2 of 81 characters|6 #"},
      {"{\"schema\":1,\"puzzle\":\"" + line + "\"}\n{\"puzzle\":1}\n{",
       "1 #|2 the JSON object has no text \"puzzle\"|3 is no JSON object on one line"},
      // Broken ones, and what stands behind them.
      {line + "7\n" + line.substr(1) + "\n" + std::string(line).replace(40, 1, 1, '\0') + "\nTitle\n" + line,
       "1 more than 81 characters|2 only 80 of 81 characters|3 character 41 is 0x00, not a digit or '.'|"
       "4 character 1 is 'T', not a digit or '.'|5 #"},
      {Drawn("", "", '.').substr(0, 50) + "\n" + Drawn("", "", '.'), "1 only 5 of 9 rows|7 #"},
      {Drawn("", "", '.').substr(0, 30) + "\n" + Drawn("", "\n", '.'), "1 only 3 of 9 rows|6 #"},
      {Drawn("", "", '.').replace(12, 1, "~") + line, "1 row 2: character 3 is '~', not a digit or '.'|10 #"},
      {Drawn("", "", '.').replace(12, 1, "") + line, "1 row 2: has 8 cells instead of 9|10 #"},
      {"<opensudoku>\n<game", "1 broken XML: Error parsing start element tag"},
      {std::string(3'000'000, '7') + "\n" + line, "1 more than 81 characters|2 #"},
      {"\r\n\n\r\r\n" + line + "\n\r\n" + line, "5 #|7 #"},
      {big_endian, "1 #|2 #|3 character 41 is '?', not a digit or '.'"},
  };
  for (const auto& [text, expected] : cases) {
    EXPECT_EQ(Read(text), expected) << text.substr(0, 2000);
  }
  std::string mixed;
  for (std::size_t i = 3; i < 11; ++i) mixed += cases[i].first + "\n\n";
  EXPECT_EQ(std::ranges::count(Read(mixed), '#'), 15);
}

TEST(Formats, WhatIsWrittenIsReadBack) {
  RandomSource random(4);
  std::vector<DigitGrid> puzzles;
  for (int i = 0; i < 30; ++i) puzzles.push_back(testing::MakeTestPuzzle(random));
  for (std::size_t k = 0; k < kPuzzleFormats.size(); ++k) {
    const auto format = static_cast<PuzzleFormat>(k);
    std::stringstream text;
    text << PuzzlesHeader(format);
    for (const DigitGrid& puzzle : puzzles) text << PuzzleText(format, {puzzle, std::nullopt});
    text << PuzzlesFooter(format);
    PuzzleStream stream(text);
    FoundPuzzle found;
    for (const DigitGrid& puzzle : puzzles) {
      ASSERT_TRUE(stream.Next(found));
      EXPECT_EQ(found.error, "");
      if (format != PuzzleFormat::kCandidates) {
        EXPECT_EQ(GridText(found.puzzle.givens), GridText(puzzle)) << kPuzzleFormats[k];
        continue;
      }
      // A candidate grid cannot tell a given from a lone candidate that nothing else sees; what it shows stays.
      EXPECT_EQ(PuzzleText(format, found.puzzle), PuzzleText(format, {puzzle, std::nullopt}));
      for (int cell = 0; cell < kCells; ++cell) {
        EXPECT_TRUE(puzzle[cell] == 0 || found.puzzle.givens[cell] == puzzle[cell]);
      }
    }
    EXPECT_FALSE(stream.Next(found));
  }
}

}  // namespace
}  // namespace kestrel
