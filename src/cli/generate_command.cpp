// SPDX-License-Identifier: MIT
// `generate`: new puzzles, of any level or of one.
#include <array>
#include <cstdint>
#include <ostream>
#include <string>

#include "cli/command.h"
#include "cli/json.h"
#include "cli/progress.h"
#include "cli/puzzle_reader.h"
#include "cli/rating_text.h"
#include "core/text.h"
#include "stock/puzzle_maker.h"

namespace kestrel {
namespace {

constexpr std::array<OptionSpec, 5> kGenerateOptions{{
    {"count", "N", "how many puzzles (default 1)"},
    {"level", "L", "only puzzles of level L, 1 to 6 (default: as they come)"},
    kSeedOption,
    kFormatOption,
    kJobsOption,
}};

std::string PuzzleText(const RatedPuzzle& puzzle, bool json) {
  if (!json) {
    return GridText(puzzle.givens) + '\t' + GridText(puzzle.solution) + '\t' + std::to_string(puzzle.level) +
           '\t' + std::to_string(puzzle.score) + '\n';
  }
  Json object = JsonLine();
  object["puzzle"] = GridText(puzzle.givens);
  object["solution"] = GridText(puzzle.solution);
  object["level"] = puzzle.level;
  object["score"] = puzzle.score;
  object["counts"] = CountsJson(CountsBySlot(puzzle.counters));
  return JsonText(object);
}

}  // namespace

const CommandSpec kGenerateSpec{
    "generate",
    "",
    0,
    "Make new puzzles with one solution",
    "Writes puzzle, solution, level and score, tab separated. The same seed gives the\n"
    "same puzzles on every machine and with every number of jobs; without a seed the\n"
    "one drawn is told on standard error.",
    kGenerateOptions,
    "generate --count 10 --level 3\n"
    "generate --count 1000 --seed 1 --format json"};

ExitStatus GenerateCommand(Arguments& arguments, CliPorts& ports) {
  MakeRun run;
  const std::uint64_t count = arguments.Number("count", 1, 1, 1'000'000'000'000);
  const int level = static_cast<int>(arguments.Number("level", 0, 1, kBeyondTechniques));
  const bool json = JsonOf(arguments);
  run.jobs = JobsOf(arguments);
  run.seed = SeedOf(arguments, ports);
  if (!arguments.Error().empty()) return ExitStatus::kFailure;
  if (level != 0) run.highest_level = level;

  Progress progress(ports.err, ports.err_is_terminal, "generate", count);
  std::uint64_t written = 0;
  std::uint64_t made = 0;
  MakePuzzles(run, [&](const std::vector<RatedPuzzle>& puzzles) {
    std::string text;
    for (const RatedPuzzle& puzzle : puzzles) {
      if (written == count) break;
      ++made;
      if (level != 0 && puzzle.level != level) continue;
      text += PuzzleText(puzzle, json);
      ++written;
    }
    if (!text.empty()) {
      progress.Hide();
      ports.out << text;
    }
    progress.Show(written, std::to_string(written) + " of " + std::to_string(made) + " puzzles made");
    return written < count && ports.out.good();
  });
  return ExitStatus::kGood;
}

}  // namespace kestrel
