// SPDX-License-Identifier: MIT
#include "formats/open_sudoku.h"

#include <algorithm>
#include <cstdint>
#include <pugixml.hpp>
#include <string_view>

#include "formats/one_line.h"

namespace kestrel {
namespace {

// A game that was begun: "version: N", a line's end, then for every cell "value|notes|editable|", from version 4 on with
// two kinds of notes. The givens are the cells that cannot be edited.
bool ReadBegunGame(std::string_view data, DigitGrid& givens) {
  const std::size_t end = data.find('\n');
  if (!data.starts_with("version:") || end == std::string_view::npos) return false;
  std::vector<std::string_view> fields;
  for (data.remove_prefix(end + 1); data.find('|') != std::string_view::npos;
       data.remove_prefix(data.find('|') + 1)) {
    fields.push_back(Trimmed(data.substr(0, data.find('|'))));
  }
  const std::size_t width = fields.size() / kCells;
  if (fields.size() % kCells != 0 || (width != 3 && width != 4)) return false;
  for (std::size_t cell = 0; cell < kCells; ++cell) {
    const std::string_view value = fields[width * cell];
    const int digit = value.size() == 1 ? CellDigit(value[0]) : -1;
    if (digit < 0) return false;
    givens[cell] = static_cast<std::uint8_t>(fields[width * cell + width - 1] == "0" ? digit : 0);
  }
  return true;
}

void Collect(const pugi::xml_node& node, const std::string& document, std::uint64_t first_line,
             std::vector<FoundPuzzle>& found) {
  for (const pugi::xml_node game : node.children()) {
    const pugi::xml_attribute data = game.attribute("data");
    if (std::string_view(game.name()) == "game" && data) {
      FoundPuzzle& puzzle = found.emplace_back();
      const auto start = document.begin();
      puzzle.line =
          first_line + static_cast<std::uint64_t>(std::count(start, start + game.offset_debug(), '\n'));
      const std::string_view text = data.value();
      const bool plain = text.size() == kCells && ReadCells(text, puzzle.puzzle.givens);
      if (!plain && !ReadBegunGame(text, puzzle.puzzle.givens)) puzzle.error = "game: " + WhyNoPuzzle(text);
    } else {
      Collect(game, document, first_line, found);  // folders hold games in later versions
    }
  }
}

}  // namespace

std::vector<FoundPuzzle> ReadOpenSudoku(const std::string& document, std::uint64_t first_line) {
  std::vector<FoundPuzzle> found;
  pugi::xml_document tree;
  const pugi::xml_parse_result result =
      tree.load_buffer(document.data(), document.size(), pugi::parse_default & ~pugi::parse_wconv_attribute,
                       pugi::encoding_utf8);
  const pugi::xml_node root = tree.child("opensudoku");
  if (result && root) Collect(root, document, first_line, found);
  if (found.empty()) {
    found.emplace_back().line = first_line;
    found.back().error = !result ? std::string("broken XML: ") + result.description() : "XML without a game";
  }
  return found;
}

}  // namespace kestrel
