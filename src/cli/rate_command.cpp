// SPDX-License-Identifier: MIT
// `rate`: level, score and technique counts of puzzles.
#include <array>
#include <memory>
#include <string>

#include "cli/command.h"
#include "cli/json.h"
#include "cli/puzzle_reader.h"
#include "cli/puzzle_run.h"
#include "cli/rating_text.h"
#include "core/text.h"
#include "solver/solver.h"
#include "stock/solution_counter.h"

namespace kestrel {
namespace {

constexpr std::array<OptionSpec, 4> kRateOptions{{
    kFormatOption,
    {"solutions", "", "also count the solutions: 0, 1, or 2 for two and more"},
    kShardOption,
    kJobsOption,
}};

std::string RateHeader(bool solutions) {
  return "puzzle\tlevel\tscore\t" + CountsHeader() + "\tgrid" + (solutions ? "\tsolutions\n" : "\n");
}

// One output line; `solutions` is negative when they were not counted.
std::string RateTsv(const DigitGrid& givens, const Rating& rating, int solutions) {
  std::string text = GridText(givens) + '\t' + std::to_string(rating.level) + '\t' +
                     std::to_string(rating.Score()) + '\t' + CountsTsv(CountsBySlot(rating.counters)) + '\t' +
                     GridText(SolvedGrid(rating.state));
  if (solutions >= 0) text += '\t' + std::to_string(solutions);
  return text + '\n';
}

std::string RateJson(const DigitGrid& givens, const Rating& rating, int solutions) {
  Json object = JsonLine();
  object["puzzle"] = GridText(givens);
  object["level"] = rating.level;
  object["score"] = rating.Score();
  object["counts"] = CountsJson(CountsBySlot(rating.counters));
  object["grid"] = GridText(SolvedGrid(rating.state));
  if (solutions >= 0) object["solutions"] = solutions;
  return JsonText(object);
}

}  // namespace

const CommandSpec kRateSpec{
    "rate",
    "[FILE...]",
    1 << 20,
    "Rate puzzles: level, score, and how often each technique was needed",
    "Reads puzzles in any format, mixed as they come: 81 cells on a line (0 . * _ or - for\n"
    "an empty one), nine lines of nine, tables, .sdk, .sdm and .ss files, OpenSudoku XML,\n"
    "JSON lines, technique lines and candidate grids. Lines that begin with # are passed\n"
    "over. Without FILE, or where FILE is -, standard input is read.\n\n"
    "Writes a header line and one line a puzzle, tab separated: puzzle, level (1 to 5;\n"
    "6 when the techniques are not enough), score (0 at level 6), the techniques' counts,\n"
    "and the grid as far as it was solved.",
    kRateOptions,
    "rate puzzles.txt\n"
    "rate --shard 2/8 puzzles.txt"};

ExitStatus RateCommand(Arguments& arguments, CliPorts& ports) {
  PuzzleRun run;
  run.label = "rate";
  run.files = arguments.Operands();
  run.jobs = JobsOf(arguments);
  run.json = JsonOf(arguments);
  run.shard = ShardOf(arguments);
  const bool solutions = arguments.Has("solutions");
  if (!arguments.Error().empty()) return ExitStatus::kFailure;
  if (!run.json) run.header = RateHeader(solutions);
  run.make_writer = [json = run.json, solutions] {
    const auto counter = solutions ? std::make_shared<SolutionCounter>() : nullptr;
    return [=](const InputLine& line, std::string& text) {
      NeverStop yield;
      const Rating rating = SolveAndRate(line.givens, yield);
      const int count = counter ? counter->Count(line.givens).count : -1;
      text += json ? RateJson(line.givens, rating, count) : RateTsv(line.givens, rating, count);
    };
  };
  return RunOnPuzzles(run, ports);
}

}  // namespace kestrel
