// SPDX-License-Identifier: MIT
#include "formats/one_line.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdint>
#include <nlohmann/json.hpp>
#include <vector>

namespace kestrel {
namespace {

constexpr std::string_view kEmptyCells = "0.*_-";
constexpr std::string_view kColumnEnds = " ,;\t";

constexpr std::array<signed char, 256> kCellDigits = [] {
  std::array<signed char, 256> digits{};
  digits.fill(-1);
  for (int digit = 1; digit <= 9; ++digit)
    digits[static_cast<std::size_t>('0' + digit)] = static_cast<signed char>(digit);
  for (const char c : kEmptyCells) digits[static_cast<unsigned char>(c)] = 0;
  return digits;
}();

// A character for a message: as it is, or as its code when it would not show.
std::string Shown(char c) {
  if (c > ' ' && c <= '~') return {'\'', c, '\''};
  if (c == ' ') return "a blank";
  constexpr std::string_view kHex = "0123456789abcdef";
  const auto code = static_cast<unsigned char>(c);
  return {'0', 'x', kHex[code / 16U], kHex[code % 16U]};
}

// Exactly 81 cells.
bool ReadAll(std::string_view text, DigitGrid& givens) {
  return text.size() == kCells && ReadCells(text, givens);
}

std::string_view Unquoted(std::string_view field) {
  const bool quoted =
      field.size() >= 2 && field.front() == field.back() && (field.front() == '"' || field.front() == '\'');
  return quoted ? field.substr(1, field.size() - 2) : field;
}

// Calls `use` for every part of the text between the separators, until it returns true; whether it did.
template <class Use>
bool AnyPart(std::string_view text, std::string_view separators, Use use) {
  while (true) {
    const std::size_t end = text.find_first_of(separators);
    if (use(text.substr(0, end))) return true;
    if (end == std::string_view::npos) return false;
    text.remove_prefix(end + 1);
  }
}

// The grid of a technique line: placed digits have a '+' before them. False when it is no grid.
bool ReadPlacedGrid(std::string_view text, Puzzle& puzzle, PuzzleState& state) {
  int cell = 0;
  bool placed = false;
  for (const char c : text) {
    if (c == '+' && !placed) {
      placed = true;
      continue;
    }
    const int digit = CellDigit(c);
    if (digit < 0 || cell == kCells || (placed && digit == 0)) return false;
    state.digits[cell] = static_cast<std::uint8_t>(digit);
    if (!placed) puzzle.givens[cell] = state.digits[cell];
    placed = false;
    ++cell;
  }
  return cell == kCells && !placed;
}

bool RemoveCandidate(std::string_view text, PuzzleState& state) {
  if (text.empty()) return true;
  if (text.size() != 3 || !std::ranges::all_of(text, [](char c) { return c >= '1' && c <= '9'; })) {
    return false;
  }
  const int digit = text[0] - '0';
  CandidateMask& cell = state.candidates[RowCell[text[1] - '1'][text[2] - '1']];
  cell &= static_cast<CandidateMask>(~DigitBit(digit));
  return true;
}

}  // namespace

bool IsBlank(char c) {
  return c == ' ' || c == '\t' || c == '\f' || c == '\v';
}

std::string_view Trimmed(std::string_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return text;
}

int CellDigit(char c) {
  return kCellDigits[static_cast<unsigned char>(c)];
}

std::string WhyNoPuzzle(std::string_view text) {
  for (std::size_t i = 0; i < text.size() && i < kCells; ++i) {
    if (CellDigit(text[i]) < 0) {
      return "character " + std::to_string(i + 1) + " is " + Shown(text[i]) + ", not a digit or '.'";
    }
  }
  if (text.size() < kCells) return "only " + std::to_string(text.size()) + " of 81 characters";
  return "more than 81 characters";
}

bool ReadCells(std::string_view line, DigitGrid& givens) {
  if (line.size() < kCells) return false;
  int bad = 0;
  for (std::size_t i = 0; i < kCells; ++i) {
    const int digit = CellDigit(line[i]);
    bad |= digit;
    givens[i] = static_cast<std::uint8_t>(digit);
  }
  return bad >= 0 && (line.size() == kCells || kColumnEnds.find(line[kCells]) != std::string_view::npos);
}

bool ReadColumn(std::string_view line, DigitGrid& givens) {
  return AnyPart(line, kColumnEnds, [&](std::string_view field) { return ReadAll(Unquoted(field), givens); });
}

bool IsTableHeader(std::string_view line) {
  constexpr std::array<std::string_view, 10> kNames{"puzzle", "puzzles", "quiz",   "quizzes", "sudoku",
                                                    "board",  "grid",    "givens", "clues",   "question"};
  const bool plain = std::ranges::all_of(line, [](char c) {
    return std::isalnum(static_cast<unsigned char>(c)) != 0 ||
           std::string_view("_-\"' ,;\t").find(c) != std::string_view::npos;
  });
  return plain && AnyPart(line, ",;\t", [&](std::string_view field) {
           std::string name(Unquoted(Trimmed(field)));
           for (char& c : name) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
           return std::ranges::find(kNames, name) != kNames.end();
         });
}

bool ReadTechniqueLine(std::string_view line, Puzzle& puzzle, std::string& error) {
  if (!line.starts_with(':')) return false;
  std::vector<std::string_view> fields;
  (void)AnyPart(line, ":", [&](std::string_view field) {
    fields.push_back(field);
    return false;
  });
  if (fields.size() < 5 || fields[3].size() < kCells) return false;
  PuzzleState state;
  if (!ReadPlacedGrid(fields[3], puzzle, state)) {
    error = "the grid of the technique line is not 81 cells";
    return true;
  }
  state.candidates = CandidatesOf(state.digits);
  const bool bad =
      AnyPart(fields[4], " ", [&](std::string_view text) { return !RemoveCandidate(text, state); });
  if (bad) error = "a removed candidate of the technique line is not digit, row and column";
  puzzle.state = state;
  return true;
}

void ReadJson(std::string_view line, Puzzle& puzzle, std::string& error) {
  const nlohmann::json object = nlohmann::json::parse(line, nullptr, false);
  if (!object.is_object()) {
    error = "is no JSON object on one line";
    return;
  }
  const auto found = object.find("puzzle");
  if (found == object.end() || !found->is_string()) {
    error = "the JSON object has no text \"puzzle\"";
    return;
  }
  const std::string& cells = found->get_ref<const std::string&>();
  if (!ReadAll(cells, puzzle.givens)) error = "\"puzzle\": " + WhyNoPuzzle(cells);
}

}  // namespace kestrel
