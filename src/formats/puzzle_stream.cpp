// SPDX-License-Identifier: MIT
#include "formats/puzzle_stream.h"

#include <iterator>
#include <utility>

#include "formats/one_line.h"
#include "formats/open_sudoku.h"

namespace kestrel {
namespace {

constexpr std::size_t kLargestDocument = 64U << 20U;

}  // namespace

bool PuzzleStream::Next(FoundPuzzle& found) {
  std::string_view line;
  while (ready_.empty()) {
    if (ended_) return false;
    if (!lines_.Next(line)) {
      ended_ = true;
      Finish();
      continue;
    }
    if (in_xml_) {
      FeedXml(line);
      continue;
    }
    const std::string_view text = Trimmed(line);
    // By far the most frequent line is told apart first.
    if (block_.Empty() && !in_state_section_ && ReadCells(text, found.puzzle.givens)) {
      found.line = lines_.Number();
      found.puzzle.state.reset();
      found.error.clear();
      return true;
    }
    Feed(text);
  }
  found = std::move(ready_.front());
  ready_.pop_front();
  return true;
}

void PuzzleStream::Feed(std::string_view text) {
  if (text.empty()) {
    Add(block_.Blank());
    return;
  }
  if (text[0] == '#') return;
  if (text == "[Puzzle]" || text == "[State]") {
    FeedSection(text);
    return;
  }
  if (text.starts_with("<?xml") || text.starts_with("<opensudoku")) {
    Add(block_.End());
    in_xml_ = true;
    xml_line_ = lines_.Number();
    FeedXml(text);
    return;
  }
  if (FeedOneLine(text)) return;
  if (GridBlock::IsSeparator(text)) {
    block_.Separate();
    return;
  }
  GridBlock::Found found;
  if (block_.Take(text, lines_.Number(), found)) {
    Add(found);
    return;
  }
  Add(block_.End());
  if (!IsTableHeader(text)) AddError(WhyNoPuzzle(text));
}

// Puzzles that stand on one line.
bool PuzzleStream::FeedOneLine(std::string_view text) {
  FoundPuzzle found;
  found.line = lines_.Number();
  if (text[0] == '{') {
    ReadJson(text, found.puzzle, found.error);
  } else if (!ReadTechniqueLine(text, found.puzzle, found.error) && !ReadColumn(text, found.puzzle.givens)) {
    return false;
  }
  Add(block_.End());
  in_state_section_ = after_puzzle_section_ = false;
  ready_.push_back(std::move(found));
  return true;
}

// The state of a .sdk file belongs to the puzzle before it and is none of its own.
void PuzzleStream::FeedSection(std::string_view name) {
  Add(block_.End());
  in_state_section_ = name == "[State]" && after_puzzle_section_;
  after_puzzle_section_ = name == "[Puzzle]";
}

void PuzzleStream::FeedXml(std::string_view line) {
  xml_ += line;
  xml_ += '\n';
  const bool too_long = xml_.size() > kLargestDocument;
  if (line.find("</opensudoku>") == std::string_view::npos && !too_long) return;
  in_xml_ = false;
  for (FoundPuzzle& found : ReadOpenSudoku(std::exchange(xml_, {}), xml_line_))
    ready_.push_back(std::move(found));
}

void PuzzleStream::Finish() {
  Add(block_.End());
  if (in_xml_) FeedXml("</opensudoku>");
}

void PuzzleStream::Add(const GridBlock::Found& found) {
  if (!found) return;
  if (!std::exchange(in_state_section_, false)) ready_.push_back(*found);
}

void PuzzleStream::AddError(const std::string& error) {
  FoundPuzzle& found = ready_.emplace_back();
  found.line = lines_.Number();
  found.error = error;
}

}  // namespace kestrel
