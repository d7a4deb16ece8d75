// SPDX-License-Identifier: MIT
// Printing without a dialog and without a printer: into files. Used by the command line.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/files.h"
#include "print/file_page.h"
#include "print/print_settings.h"
#include "print/printed_puzzle.h"

namespace kestrel {

// What is wrong with the range of puzzles, in words; empty when the level has them all.
std::string CheckPrintRange(const PrintSettings& settings);

enum class PageKind : std::uint8_t {
  Game,     // as the game prints, solutions beside the puzzles
  Booklet,  // solutions gathered at the end, upside down
  Large,    // one puzzle a page for weak eyes, solutions gathered at the end
};

struct PrintJob {
  std::vector<PrintedPuzzle> puzzles;
  std::string heading;     // at the right end of the title line: a level, a file
  PrintSettings settings;  // how many a page, and what with them
  PageKind kind = PageKind::Game;
  bool solutions_upside_down = true;  // those that are gathered at the end
};

// Draws the pages and ends each. The puzzles are numbered in order, from the settings' first number on.
void PrintPages(const PrintJob& job, FilePage& page);

}  // namespace kestrel
