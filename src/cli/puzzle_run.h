// SPDX-License-Identifier: MIT
// The common part of `rate`, `solve` and `convert`: puzzles in, text out, in order, by several threads.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "cli/command.h"
#include "cli/puzzle_reader.h"
#include "cli/shard.h"

namespace kestrel {

struct PuzzleRun {
  std::string label;               // of the progress bar
  std::vector<std::string> files;  // empty: standard input
  int jobs = 1;
  bool json = false;   // bad lines are written as objects as well
  std::string header;  // written first; may be empty
  std::string footer;  // written last
  Shard shard;         // of the input, by bytes; needs files
  // Makes, once per thread, the function that adds to a text what is to be written for one puzzle.
  std::function<std::function<void(const InputLine& line, std::string& text)>()> make_writer;
};

// Runs over all puzzles. Bad lines go to standard error as FILE:LINE: reason, and the rest still runs.
// kBadInput when there was one; kFailure when a file or the output failed, or when a part of what is no file was asked
// for. The header is written by the first part, the footer by the last.
ExitStatus RunOnPuzzles(const PuzzleRun& run, CliPorts& ports);

// Tells of a bad line, or of a file that cannot be read, on standard error; gives the status that it leads to.
ExitStatus TellBadLine(const InputLine& line, CliPorts& ports);

}  // namespace kestrel
