// SPDX-License-Identifier: MIT
// Reads puzzles from files and from standard input, in any format. Used by the commands.
#pragma once

#include <cstdint>
#include <fstream>
#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/grid.h"
#include "formats/puzzle_stream.h"

namespace kestrel {

// A puzzle, or what is wrong with the lines that should be one.
struct InputLine {
  std::string file{};                  // as the user named it; "<stdin>" for standard input
  std::uint64_t line = 0;              // where it starts, from 1; 0 when the whole file could not be read
  DigitGrid givens{};                  // 0 = empty cell
  std::optional<PuzzleState> state{};  // where the file says how far it has been solved
  std::string error{};                 // empty for a puzzle
  std::uint64_t bytes = 0;             // how many bytes of all input lie behind this line
};

class PuzzleReader {
 public:
  // No file names, or "-" among them: standard input, which is `in`.
  PuzzleReader(std::vector<std::string> files, std::istream& in);

  // The next puzzle or error; false after the last. A file that cannot be read is one error with the number 0.
  bool Next(InputLine& line);

  // The length of all files, or 0 when it cannot be told (standard input, pipes).
  std::uint64_t TotalBytes() const;

 private:
  bool OpenNext(InputLine& line);

  std::vector<std::string> files_;
  std::istream& standard_input_;
  std::size_t next_file_ = 0;
  std::ifstream file_;
  std::istream* current_ = nullptr;
  std::optional<PuzzleStream> stream_;  // of the current file
  std::string name_;
  std::uint64_t bytes_before_ = 0;  // of the files before
};

}  // namespace kestrel
