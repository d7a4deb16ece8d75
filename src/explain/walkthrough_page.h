// SPDX-License-Identifier: MIT
// Pages that show how puzzles are solved, made of walkthroughs. Used by the command line and, after a puzzle has ended,
// by the game.
#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "explain/page_parts.h"
#include "explain/walkthrough.h"

namespace kestrel {

// Which singles get a picture of their own.
enum class Singles : std::uint8_t {
  Gathered,  // runs of singles share one picture
  Each,
};

// One HTML page about one puzzle or more, whole in itself: no script, nothing to fetch, the pictures inside as SVG;
// light or dark as the reader's system is. Several puzzles have a list that leads to each. Elements with the id "step-N"
// tell of step N (from 1), each beginning with its technique's name; of several puzzles "puzzle-P-step-N".
std::string WalkthroughPage(std::span<const Walkthrough> walkthroughs, Singles singles = Singles::Gathered);

// The same about one puzzle as a page of the help, whose pictures are files of the help folder's that exist only here;
// the page itself is the file `kSolvedPage`. Techniques lead to their pages.
inline constexpr const char* kSolvedPage = "how_this_one_is_solved.html";
HelpFiles SolvedHelp(const Walkthrough& walkthrough);
// What stands on that page while a puzzle is in play.
std::string SolvedHelpToCome();

}  // namespace kestrel
