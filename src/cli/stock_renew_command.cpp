// SPDX-License-Identifier: MIT
// `stock renew`: new puzzles for one level of a stock.
#include <array>
#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

#include "cli/command.h"
#include "cli/progress.h"
#include "cli/stock_path.h"
#include "core/stock_file.h"
#include "stock/puzzle_maker.h"

namespace kestrel {
namespace {

constexpr std::array<OptionSpec, 4> kRenewOptions{{
    {"level", "L", "the level to renew, 1 to 5"},
    kSeedOption,
    kStockOption,
    kJobsOption,
}};

struct Renewal {
  std::vector<RatedPuzzle> puzzles;  // the first 100 of the level
  std::uint64_t made = 0;            // puzzles made until then
};

Renewal MakeLevel(MakeRun run, int level, CliPorts& ports) {
  Renewal renewal;
  run.highest_level = level;
  Progress progress(ports.err, ports.err_is_terminal, "stock renew", kPuzzlesPerLevel);
  MakePuzzles(run, [&](const std::vector<RatedPuzzle>& bundle) {
    for (const RatedPuzzle& puzzle : bundle) {
      if (renewal.puzzles.size() == kPuzzlesPerLevel) return false;
      ++renewal.made;
      if (puzzle.level == level) renewal.puzzles.push_back(puzzle);
    }
    const std::size_t found = renewal.puzzles.size();
    progress.Show(found, std::to_string(found) + " of " + std::to_string(renewal.made) + " puzzles made");
    return true;
  });
  return renewal;
}

}  // namespace

const CommandSpec kStockRenewSpec{
    "stock renew",
    "[FILE]",
    1,
    "Replace the 100 puzzles of a level by new ones",
    "Makes puzzles until 100 of the level are found and files them by score, as the\n"
    "game does; their best times are gone. FILE is written at the very end, in one\n"
    "piece: when the command is interrupted, it is as it was. Close the game first: one\n"
    "that is running goes on with the old puzzles and does not keep times for them.\n"
    "Without FILE the stock that the game plays from is renewed.",
    kRenewOptions,
    "stock renew --level 5\n"
    "stock renew --level 1 --seed 7 my.kpz"};

ExitStatus StockRenewCommand(Arguments& arguments, CliPorts& ports) {
  MakeRun run;
  run.jobs = JobsOf(arguments);
  const int level = static_cast<int>(arguments.Number("level", 0, 1, kLevels));
  if (level == 0) arguments.Fail("needs '--level'");
  const std::string path = WritableStockPath(arguments, ports);
  run.seed = SeedOf(arguments, ports);
  StockTable stock;
  if (!arguments.Error().empty() || !ReadStockOf(path, ports, stock)) return ExitStatus::kFailure;
  const Renewal renewal = MakeLevel(run, level, ports);
  // Read anew: the game may have stored a best time in another level in the meantime.
  if (!ReadStockOf(path, ports, stock)) return ExitStatus::kFailure;
  SetFloor(stock, level);
  for (const RatedPuzzle& puzzle : renewal.puzzles) FilePuzzle(stock, puzzle);
  const FileResult written = WriteStockFile(ports.files, path, stock);
  if (!written) {
    PrintError(ports, path + ": " + written.Reason());
    return ExitStatus::kFailure;
  }
  ports.out << "level " << level << ": 100 of " << renewal.made << " puzzles made, scores "
            << stock(level, 1).Score << " to " << stock(level, kPuzzlesPerLevel).Score << '\n';
  return ExitStatus::kGood;
}

}  // namespace kestrel
