// SPDX-License-Identifier: MIT
// The common part of `rate` and `solve`: lines in, text out, in order, by several threads.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "cli/command.h"
#include "cli/puzzle_reader.h"
#include "core/grid.h"

namespace kestrel {

struct PuzzleRun {
  std::string label;               // of the progress bar
  std::vector<std::string> files;  // empty: standard input
  int jobs = 1;
  bool json = false;   // bad lines are written as objects as well
  std::string header;  // written first; may be empty
  // Makes, once per thread, the function that adds to a text what is to be written for one puzzle.
  std::function<std::function<void(const DigitGrid& givens, std::string& text)>()> make_writer;
};

// Runs over all puzzles. Bad lines go to standard error as FILE:LINE: reason, and the rest still runs.
// kBadInput when there was one; kFailure when a file or the output failed.
ExitStatus RunOnPuzzles(const PuzzleRun& run, CliPorts& ports);

// Tells of a bad line, or of a file that cannot be read, on standard error; gives the status that it leads to.
ExitStatus TellBadLine(const InputLine& line, CliPorts& ports);

}  // namespace kestrel
