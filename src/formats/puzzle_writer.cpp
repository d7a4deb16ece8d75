// SPDX-License-Identifier: MIT
#include "formats/puzzle_writer.h"

#include <algorithm>

#include "core/text.h"

namespace kestrel {
namespace {

std::string Dots(const DigitGrid& givens) {
  std::string text = GridText(givens);
  std::ranges::replace(text, '0', '.');
  return text;
}

// Nine rows, with `bar` between boxes and `band` between bands.
std::string Rows(const DigitGrid& givens, std::string_view bar, std::string_view band) {
  const std::string cells = Dots(givens);
  std::string text;
  for (std::size_t cell = 0; cell < kCells; ++cell) {
    if (cell != 0 && cell % 27 == 0) text += band;
    if (cell % 9 != 0 && cell % 3 == 0) text += bar;
    text += cells[cell];
    if (cell % 9 == 8) text += '\n';
  }
  return text;
}

std::string Digits(CandidateMask mask) {
  std::string text;
  for (int digit = 1; digit <= 9; ++digit) {
    if (HasDigit(mask, digit)) text += static_cast<char>('0' + digit);
  }
  return text.empty() ? "." : text;
}

std::string CandidateRows(const Puzzle& puzzle) {
  const DigitGrid& digits = puzzle.state ? puzzle.state->digits : puzzle.givens;
  CandidateGrid shown = puzzle.state ? puzzle.state->candidates : CandidatesOf(digits);
  std::size_t width = 1;
  for (int cell = 0; cell < kCells; ++cell) {
    if (digits[cell] != 0) shown[cell] = DigitBit(digits[cell]);
    width = std::max(width, Digits(shown[cell]).size());
  }
  std::string line;
  for (int box = 0; box < 3; ++box) line += "+" + std::string(3 * width + 4, '-');
  line += "+\n";
  std::string text;
  for (int cell = 0; cell < kCells; ++cell) {
    if (cell % 27 == 0) text += line;
    if (cell % 3 == 0) text += "| ";
    const std::string group = Digits(shown[cell]);
    text += group + std::string(width + 1 - group.size(), ' ');
    if (cell % 9 == 8) text += "|\n";
  }
  return text + line;
}

}  // namespace

std::string PuzzlesHeader(PuzzleFormat format) {
  if (format == PuzzleFormat::kCsv) return "puzzle\n";
  if (format != PuzzleFormat::kOpenSudoku) return {};
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<opensudoku>\n";
}

std::string PuzzlesFooter(PuzzleFormat format) {
  return format == PuzzleFormat::kOpenSudoku ? "</opensudoku>\n" : "";
}

std::string PuzzleText(PuzzleFormat format, const Puzzle& puzzle) {
  switch (format) {
    case PuzzleFormat::kLine:
      return Dots(puzzle.givens) + '\n';
    case PuzzleFormat::kGrid:
      return Rows(puzzle.givens, "", "") + '\n';
    case PuzzleFormat::kSdk:
      return "[Puzzle]\n" + Rows(puzzle.givens, "", "") + '\n';
    case PuzzleFormat::kSs:
      return Rows(puzzle.givens, "|", "-----------\n") + '\n';
    case PuzzleFormat::kOpenSudoku:
      return "  <game data=\"" + GridText(puzzle.givens) + "\"/>\n";
    case PuzzleFormat::kCandidates:
      return CandidateRows(puzzle) + '\n';
    case PuzzleFormat::kJson:
      return "{\"schema\":1,\"puzzle\":\"" + GridText(puzzle.givens) + "\"}\n";
    case PuzzleFormat::kCsv:
      return GridText(puzzle.givens) + '\n';
  }
  return {};
}

}  // namespace kestrel
