// SPDX-License-Identifier: MIT
// `convert`: puzzles from any format to one.
#include <array>
#include <string>

#include "cli/command.h"
#include "cli/puzzle_run.h"
#include "formats/puzzle_writer.h"

namespace kestrel {
namespace {

constexpr std::array<OptionSpec, 3> kConvertOptions{{
    {"to", "FORMAT", "line (default), grid, sdk, ss, opensudoku, candidates, json\nor csv"},
    kShardOption,
    kJobsOption,
}};

}  // namespace

const CommandSpec kConvertSpec{
    "convert",
    "[FILE...]",
    1 << 20,
    "Turn puzzles of any format into another",
    "Reads puzzles as 'rate' does and writes their givens, one after another. The format\n"
    "candidates writes what is left in every cell, and the state where one was read.",
    kConvertOptions,
    "convert --to grid puzzles.txt\n"
    "convert --to opensudoku puzzles.sdk puzzles.txt"};

ExitStatus ConvertCommand(Arguments& arguments, CliPorts& ports) {
  const auto format = static_cast<PuzzleFormat>(arguments.OneOf("to", kPuzzleFormats));
  PuzzleRun run;
  run.label = "convert";
  run.files = arguments.Operands();
  run.jobs = JobsOf(arguments);
  run.json = format == PuzzleFormat::kJson;
  run.shard = ShardOf(arguments);
  if (!arguments.Error().empty()) return ExitStatus::kFailure;
  run.header = PuzzlesHeader(format);
  run.footer = PuzzlesFooter(format);
  run.make_writer = [format] {
    return [format](const InputLine& line, std::string& text) {
      text += PuzzleText(format, {line.givens, line.state});
    };
  };
  return RunOnPuzzles(run, ports);
}

}  // namespace kestrel
