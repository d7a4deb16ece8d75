// SPDX-License-Identifier: MIT
// The pages that only the command line prints: large puzzles, and solutions gathered at the end.
#pragma once

#include <span>
#include <string_view>

#include "print/file_page.h"
#include "print/printed_puzzle.h"

namespace kestrel {

// One puzzle a page, as wide as printers allow, with digits that fill their cells: for weak eyes. `heading` is
// what stands over puzzles without a label of their own. Returns how many pages there are.
int PrintLargePages(FilePage& page, std::span<const PrintedPuzzle> puzzles, std::string_view heading);

enum class SolutionSize { Small, Large };  // 12 or 4 a page

// The solutions of puzzles with their numbers; pages are numbered from `first_page` on.
void PrintSolutionPages(FilePage& page, std::span<const PrintedPuzzle> puzzles, SolutionSize size,
                        bool upside_down, int first_page);

}  // namespace kestrel
