// SPDX-License-Identifier: MIT
// `explain`: a page that shows how puzzles are solved, step by step in pictures.
#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/command.h"
#include "cli/output_file.h"
#include "cli/puzzle_reader.h"
#include "cli/puzzle_run.h"
#include "cli/rating_text.h"
#include "explain/walkthrough_page.h"

namespace kestrel {
namespace {

constexpr std::array<OptionSpec, 2> kExplainOptions{{
    {"output", "FILE", "the page to write (default: standard output)"},
    {"steps", "WHICH", "gathered (default): one picture for a run of singles; all: one for every step"},
}};

// A page of more would be too large to read, and for browsers to show.
constexpr std::size_t kMostExplained = 100;

// Solves the puzzles of the input. kBadInput when it has bad lines, which are told, or no puzzle; kFailure when it cannot
// be read or has too many.
ExitStatus ReadPuzzles(const std::vector<std::string>& files, CliPorts& ports,
                       std::vector<Walkthrough>& walkthroughs) {
  ExitStatus status = ExitStatus::kGood;
  PuzzleReader reader(files, ports.in);
  NeverStop yield;
  for (InputLine line; reader.Next(line);) {
    if (!line.error.empty()) {
      status = std::max(status, TellBadLine(line, ports));
    } else if (walkthroughs.size() == kMostExplained) {
      PrintError(ports, "explain: there are more than " + std::to_string(kMostExplained) +
                            " puzzles, too many for one page");
      return ExitStatus::kFailure;
    } else {
      const std::optional<SolverState> start = StartOf(line);
      walkthroughs.push_back(*ExplainPuzzle(line.givens, yield, start ? &*start : nullptr));
    }
  }
  if (!walkthroughs.empty() || status != ExitStatus::kGood) return status;
  PrintError(ports, "explain: there is no puzzle to explain");
  return ExitStatus::kBadInput;
}

}  // namespace

const CommandSpec kExplainSpec{
    "explain",
    "[FILE...]",
    1 << 20,
    "Explain puzzles step by step, as a page with pictures",
    "Reads puzzles, up to 100, from files or from standard input and writes one HTML page:\n"
    "the position before each step with the pattern marked, why it works, and what is\n"
    "placed or removed. The page needs no other file and no network.",
    kExplainOptions,
    "explain --output page.html puzzles.txt\n"
    "explain --steps all puzzles.txt"};

ExitStatus ExplainCommand(Arguments& arguments, CliPorts& ports) {
  constexpr std::array<std::string_view, 2> kWhich{"gathered", "all"};
  const Singles singles = arguments.OneOf("steps", kWhich) == 1 ? Singles::Each : Singles::Gathered;
  const std::string output = arguments.Text("output", "-");
  if (!arguments.Error().empty()) return ExitStatus::kFailure;
  std::vector<Walkthrough> walkthroughs;
  const ExitStatus status = ReadPuzzles(arguments.Operands(), ports, walkthroughs);
  if (walkthroughs.empty() || status == ExitStatus::kFailure) return status;
  const std::string page = WalkthroughPage(walkthroughs, singles);
  if (output != "-" && !MayWrite(output, arguments.Operands(), ports)) return ExitStatus::kFailure;
  return std::max(status, WriteOutput(output, Bytes(page.begin(), page.end()), ports));
}

}  // namespace kestrel
