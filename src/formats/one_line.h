// SPDX-License-Identifier: MIT
// Puzzles that stand on one line. Used by the puzzle stream.
#pragma once

#include <string>
#include <string_view>

#include "formats/puzzle.h"

namespace kestrel {

bool IsBlank(char c);
std::string_view Trimmed(std::string_view text);

// The digit of a cell: 1..9, 0 for one of "0.*_-", -1 for anything else.
int CellDigit(char c);

// What is wrong with a text that should be 81 cells: the first character that is none, or its length.
std::string WhyNoPuzzle(std::string_view text);

// 81 cells at the start of the line, ended by the line's end or by a blank, comma, semicolon or tab.
bool ReadCells(std::string_view line, DigitGrid& givens);

// The first column of 81 cells, quoted or not, between commas, semicolons, tabs and blanks.
bool ReadColumn(std::string_view line, DigitGrid& givens);

// Whether the line names columns as tables of puzzles do: letters only, one of the names being that of a puzzle.
bool IsTableHeader(std::string_view line);

// ":technique:digits:grid:removed:...", the grid with '+' before a digit that was placed, the candidates removed so far
// as digit, row and column: "512 513". Not such a line at all: false. What is wrong with one goes to `error`.
bool ReadTechniqueLine(std::string_view line, Puzzle& puzzle, std::string& error);

// {"puzzle": "81 cells", ...}: what the commands write with --format json. `error` is empty when it was read.
void ReadJson(std::string_view line, Puzzle& puzzle, std::string& error);

}  // namespace kestrel
