// SPDX-License-Identifier: MIT
// Reads puzzles from text, one a line, from files and from standard input. Used by `rate` and `solve`.
#pragma once

#include <cstdint>
#include <fstream>
#include <functional>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

#include "core/grid.h"

namespace kestrel {

// One line that counts: a puzzle, or what is wrong.
struct InputLine {
  std::string file;         // as the user named it; "<stdin>" for standard input
  std::uint64_t line = 0;   // from 1; 0 when the whole file could not be read
  DigitGrid givens{};       // 0 = empty cell
  std::string error;        // empty for a puzzle
  std::uint64_t bytes = 0;  // how many bytes of all input lie behind this line
};

// Reads the first 81 characters of `text`, '1'..'9', '0' or '.' for an empty cell; what follows is ignored.
// Returns what is wrong with them, or an empty text.
std::string ParsePuzzle(std::string_view text, DigitGrid& givens);

class PuzzleReader {
 public:
  // No file names, or "-" among them: standard input, which is `in`.
  PuzzleReader(std::vector<std::string> files, std::istream& in);

  // The next puzzle or bad line; false after the last. Blank lines, and lines that begin with '#', are passed
  // over. A file that cannot be read is one bad line with the number 0.
  bool Next(InputLine& line);

  // The length of all files, or 0 when it cannot be told (standard input, pipes).
  std::uint64_t TotalBytes() const;

 private:
  bool OpenNext(InputLine& line);
  bool ReadLine();

  std::vector<std::string> files_;
  std::istream& standard_input_;
  std::size_t next_file_ = 0;
  std::ifstream file_;
  std::istream* current_ = nullptr;
  std::string name_;
  std::string text_;  // the start of the line just read
  std::uint64_t line_number_ = 0;
  std::uint64_t bytes_ = 0;
};

}  // namespace kestrel
