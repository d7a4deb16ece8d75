// SPDX-License-Identifier: MIT
// Puzzles from a text in any of the known formats, mixed as they come. Used by all commands that read puzzles.
#pragma once

#include <cstdint>
#include <deque>
#include <iosfwd>
#include <string>
#include <string_view>

#include "formats/grid_block.h"
#include "formats/line_source.h"

namespace kestrel {

// Knows puzzles on one line (81 cells; a column of a table; technique lines; JSON objects), puzzles of nine lines (with
// separators or not; .sdk files, of which [State] is passed over; candidate grids), and OpenSudoku's XML. Lines that are
// blank or begin with '#' are passed over. Every other line is reported, with the reason why it is no puzzle.
class PuzzleStream {
 public:
  // `in` must outlive this object.
  explicit PuzzleStream(std::istream& in) : lines_(in) {}

  // The next puzzle or error; false at the end.
  bool Next(FoundPuzzle& found);
  // How many bytes have been read up to the end of the last line used.
  std::uint64_t Bytes() const { return lines_.Bytes(); }

 private:
  void Feed(std::string_view text);
  bool FeedOneLine(std::string_view text);
  void FeedSection(std::string_view name);
  void FeedXml(std::string_view line);
  void Finish();
  void Add(const GridBlock::Found& found);
  void AddError(const std::string& error);

  LineSource lines_;
  GridBlock block_;
  std::deque<FoundPuzzle> ready_;
  bool in_xml_ = false;
  std::string xml_;
  std::uint64_t xml_line_ = 0;
  bool after_puzzle_section_ = false;
  bool in_state_section_ = false;
  bool ended_ = false;
};

}  // namespace kestrel
