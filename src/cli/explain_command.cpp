// SPDX-License-Identifier: MIT
// `explain`: a page that shows how a puzzle is solved, step by step in pictures.
#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "cli/command.h"
#include "cli/output_file.h"
#include "cli/puzzle_reader.h"
#include "cli/rating_text.h"
#include "explain/walkthrough.h"

namespace kestrel {
namespace {

constexpr std::array<OptionSpec, 2> kExplainOptions{{
    {"output", "FILE", "the page to write (default: standard output)"},
    {"steps", "WHICH", "gathered (default): one picture for a run of singles; all: one for every step"},
}};

}  // namespace

const CommandSpec kExplainSpec{
    "explain",
    "[FILE]",
    1,
    "Explain a puzzle step by step, as a page with pictures",
    "Reads the first puzzle of FILE, or of standard input, and writes one HTML page: the\n"
    "position before each step with the pattern marked, why it works, and what is placed\n"
    "or removed. The page needs no other file and no network.",
    kExplainOptions,
    "explain --output page.html puzzle.txt\n"
    "explain --steps all puzzle.txt"};

ExitStatus ExplainCommand(Arguments& arguments, CliPorts& ports) {
  constexpr std::array<std::string_view, 2> kWhich{"gathered", "all"};
  const Singles singles = arguments.OneOf("steps", kWhich) == 1 ? Singles::Each : Singles::Gathered;
  const std::string output = arguments.Text("output", "-");
  if (!arguments.Error().empty()) return ExitStatus::kFailure;
  PuzzleReader reader(arguments.Operands(), ports.in);
  InputLine line;
  if (!reader.Next(line)) {
    PrintError(ports, "explain: there is no puzzle to explain");
    return ExitStatus::kBadInput;
  }
  if (!line.error.empty()) {
    PrintError(ports,
               line.file + (line.line == 0 ? "" : ":" + std::to_string(line.line)) + ": " + line.error);
    return line.line == 0 ? ExitStatus::kFailure : ExitStatus::kBadInput;
  }
  NeverStop yield;
  const std::optional<SolverState> start = StartOf(line);
  const std::string page =
      WalkthroughPage(*ExplainPuzzle(line.givens, yield, start ? &*start : nullptr), singles);
  if (output != "-" && !MayWrite(output, arguments.Operands(), ports)) return ExitStatus::kFailure;
  return WriteOutput(output, Bytes(page.begin(), page.end()), ports);
}

}  // namespace kestrel
