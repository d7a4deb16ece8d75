// SPDX-License-Identifier: MIT
// `generate`: new puzzles, of any level or of one.
#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <ostream>
#include <string>

#include "cli/command.h"
#include "cli/generate_output.h"
#include "cli/json.h"
#include "cli/progress.h"
#include "cli/rating_text.h"
#include "cli/shard.h"
#include "core/text.h"
#include "formats/puzzle_writer.h"
#include "stock/puzzle_maker.h"

namespace kestrel {
namespace {

constexpr std::array<OptionSpec, 9> kGenerateOptions{{
    {"count", "N", "how many puzzles (default 1)"},
    {"attempts", "N", "make N puzzles and write those of the level, however many"},
    {"level", "L", "only puzzles of level L, 1 to 6 (default: as they come)"},
    kSeedOption,
    {"format", "FORMAT",
     "tsv (default), json, or line, grid, sdk, ss, opensudoku,\ncandidates or csv for the puzzles alone"},
    kShardOption,
    {"output", "FILE", "write into FILE, which is there once it is complete"},
    {"resume", "", "go on where the same run into the same FILE was interrupted"},
    kJobsOption,
}};

constexpr std::string_view kTsv = "tsv";

std::string RatedText(const RatedPuzzle& puzzle, bool json) {
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

// What is to be made: attempts of a seed, and which of them are written.
struct Order {
  MakeRun run;
  int level = 0;                    // 0: all
  std::uint64_t most = UINT64_MAX;  // puzzles to write
  std::string format;
  Shard shard;
  bool json = false;
  std::optional<PuzzleFormat> plain;  // a format for the puzzles alone

  std::string Text(const RatedPuzzle& puzzle) const {
    return plain ? PuzzleText(*plain, {puzzle.givens, std::nullopt}) : RatedText(puzzle, json);
  }
  // All that the output depends on: '--resume' goes on only with the file of the very same run.
  std::string InWords() const {
    return "generate seed " + std::to_string(run.seed) + " attempts " + std::to_string(run.first) + " to " +
           std::to_string(run.attempts) + " level " + std::to_string(level) + " most " +
           std::to_string(most) + " format " + format + " shard " + std::to_string(shard.number) + "/" +
           std::to_string(shard.of);
  }
};

void ReadFormat(Arguments& arguments, Order& order) {
  order.format = arguments.Text("format", kTsv);
  order.json = order.format == "json";
  if (order.json || order.format == kTsv) return;
  const auto found = std::ranges::find(kPuzzleFormats, order.format);
  if (found == kPuzzleFormats.end()) {
    arguments.FailValue("format", "a format that '--help' names");
  } else {
    order.plain = static_cast<PuzzleFormat>(found - kPuzzleFormats.begin());
  }
}

Order OrderOf(Arguments& arguments, CliPorts& ports) {
  constexpr std::uint64_t kMost = 1'000'000'000'000;
  Order order;
  const bool by_attempts = arguments.Has("attempts");
  const std::uint64_t total = arguments.Number(by_attempts ? "attempts" : "count", 1, 1, kMost);
  order.level = static_cast<int>(arguments.Number("level", 0, 1, kBeyondTechniques));
  order.shard = ShardOf(arguments);
  ReadFormat(arguments, order);
  order.run.jobs = JobsOf(arguments);
  if (by_attempts && arguments.Has("count")) arguments.Fail("'--count' and '--attempts' exclude each other");
  if (order.level != 0 && !by_attempts && arguments.Has(kShardOption.name)) {
    arguments.Fail(
        "'--shard' with '--level' needs '--attempts': how many of the level a part finds is not known");
  }
  if (arguments.Has("resume") && (!arguments.Has("output") || !arguments.Has(kSeedOption.name))) {
    arguments.Fail("'--resume' needs '--output' and '--seed'");
  }
  order.run.seed = SeedOf(arguments, ports);
  if (order.level != 0) order.run.highest_level = order.level;
  // So many of a level: one attempt after the other until there are enough. So many attempts: the part of them.
  if (order.level != 0 && !by_attempts) {
    order.most = total;
  } else {
    order.run.first = order.shard.Begin(total);
    order.run.attempts = order.shard.End(total);
  }
  return order;
}

// Makes and writes. False when output was lost.
bool Generate(const Order& order, GeneratePosition position, GenerateOutput& output, CliPorts& ports) {
  const std::uint64_t total = order.most != UINT64_MAX ? order.most : order.run.attempts - order.run.first;
  Progress progress(ports.err, ports.err_is_terminal, "generate", total);
  MakeRun run = order.run;
  run.first = position.next;
  bool good = true;
  MakePuzzles(run, [&](const std::vector<RatedPuzzle>& puzzles) {
    std::string text;
    for (const RatedPuzzle& puzzle : puzzles) {
      if (position.written == order.most) break;
      ++position.next;
      if (order.level != 0 && puzzle.level != order.level) continue;
      text += order.Text(puzzle);
      ++position.written;
    }
    // The position is that of the end of this text: an interrupted run goes on behind it.
    if (!text.empty()) progress.Hide();
    good = output.Write(text, position);
    const std::uint64_t made = position.next - order.run.first;
    progress.Show(order.most != UINT64_MAX ? position.written : made,
                  std::to_string(position.written) + " of " + std::to_string(made) + " puzzles made");
    return good && position.written < order.most;
  });
  progress.Hide();
  const bool last = order.plain && order.shard.number == order.shard.of;
  return good && output.Write(last ? PuzzlesFooter(*order.plain) : "", position) && output.Finish();
}

}  // namespace

const CommandSpec kGenerateSpec{
    "generate",
    "",
    0,
    "Make new puzzles with one solution",
    "Writes puzzle, solution, level and score, tab separated. The same seed gives the\n"
    "same puzzles on every machine and with every number of jobs; without a seed the\n"
    "one drawn is told on standard error. Puzzles are numbered attempts of a seed, so\n"
    "parts of a run may be made by different machines. FILE grows as FILE.part.",
    kGenerateOptions,
    "generate --count 10 --level 3\n"
    "generate --count 1000 --seed 1 --shard 2/4 --output part2.tsv"};

ExitStatus GenerateCommand(Arguments& arguments, CliPorts& ports) {
  const Order order = OrderOf(arguments, ports);
  if (!arguments.Error().empty()) return ExitStatus::kFailure;
  GenerateOutput output(ports, arguments.Text("output", ""), order.InWords());
  GeneratePosition position{.next = order.run.first};
  const GenerateOutput::Start start = output.Open(arguments.Has("resume"), position);
  if (start == GenerateOutput::Start::kFinished) return ExitStatus::kGood;
  if (start == GenerateOutput::Start::kFailed) return ExitStatus::kFailure;
  if (position.bytes == 0 && order.plain && order.shard.number == 1 &&
      !output.Write(PuzzlesHeader(*order.plain), position)) {
    return ExitStatus::kFailure;
  }
  return Generate(order, position, output, ports) ? ExitStatus::kGood : ExitStatus::kFailure;
}

}  // namespace kestrel
