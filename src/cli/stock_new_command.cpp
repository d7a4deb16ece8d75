// SPDX-License-Identifier: MIT
// `stock new`: a complete stock of 500 puzzles.
#include <algorithm>
#include <array>
#include <cstdint>
#include <ostream>
#include <string>

#include "cli/command.h"
#include "cli/progress.h"
#include "cli/stock_path.h"
#include "core/stock_file.h"
#include "stock/stock_check.h"
#include "stock/stock_maker.h"

namespace kestrel {
namespace {

// About a minute of two cores.
constexpr std::uint64_t kDefaultPool = 1'000'000;

constexpr std::array<OptionSpec, 5> kNewOptions{{
    kSeedOption,
    {"pool", "N", "make N puzzles to choose from (default 1000000)"},
    {"force", "", "replace a file that holds best times, or that is no stock"},
    kStockOption,
    kJobsOption,
}};

// Whether the file may be replaced without asking: there is none, or it is a stock without best times.
bool MayReplace(const std::string& path, CliPorts& ports) {
  if (!ports.files.Exists(path)) return true;
  StockTable stock;
  if (ports.files.Length(path) != kStockBytes || !ReadStockFile(ports.files, path, stock)) return false;
  for (int level = 1; level <= kLevels; ++level) {
    for (int number = 1; number <= kPuzzlesPerLevel; ++number) {
      const SudokuRecord& record = stock(level, number);
      if (record.BestMinutes != 0 || record.BestSeconds != 0) return false;
    }
  }
  return true;
}

Pool MakePool(const MakeRun& run, CliPorts& ports) {
  Pool pool;
  Progress progress(ports.err, ports.err_is_terminal, "stock new", run.attempts);
  std::uint64_t made = 0;
  MakePuzzles(run, [&](const std::vector<RatedPuzzle>& puzzles) {
    for (const RatedPuzzle& puzzle : puzzles) AddToPool(pool, puzzle);
    made += puzzles.size();
    progress.Show(made, std::to_string(made) + " puzzles");
    return true;
  });
  return pool;
}

// One line a level and one for the techniques: what the pool held and what was taken.
void PrintSummary(const Pool& pool, const Pool& chosen, std::ostream& out) {
  for (std::size_t level = 0; level < chosen.size(); ++level) {
    out << "level " << level + 1 << ": " << pool[level].size() << " in the pool, scores "
        << chosen[level].front().score << " to " << chosen[level].back().score << '\n';
  }
  out << "puzzles by technique:";
  for (int slot = 0; slot < kTechniques; ++slot) {
    out << ' ' << kTechniqueTable[slot].abbreviation << ' ' << CountWith(chosen, slot);
  }
  out << '\n';
}

}  // namespace

const CommandSpec kStockNewSpec{
    "stock new",
    "FILE",
    1,
    "Make a new stock of 500 puzzles",
    "Makes and rates a large pool of puzzles and chooses 100 of every level, so that\n"
    "their scores are spread over all that occur and every technique is needed by some.\n"
    "The same seed and pool give the same stock. FILE is written at the very end, in one\n"
    "piece: when the command is interrupted, it is as it was.",
    kNewOptions,
    "stock new my.kpz\n"
    "stock new --seed 1 --pool 20000 small.kpz"};

ExitStatus StockNewCommand(Arguments& arguments, CliPorts& ports) {
  MakeRun run;
  run.jobs = JobsOf(arguments);
  run.attempts = arguments.Number("pool", kDefaultPool, 1, 1'000'000'000);
  if (!arguments.Has(kStockOption.name) && arguments.Operands().empty()) {
    arguments.Fail("the FILE to write is missing");
  }
  const std::string path = WritableStockPath(arguments, ports);
  run.seed = SeedOf(arguments, ports);
  if (!arguments.Error().empty()) return ExitStatus::kFailure;
  if (!arguments.Has("force") && !MayReplace(path, ports)) {
    PrintError(ports, path + ": holds best times or is no stock; --force replaces it");
    return ExitStatus::kFailure;
  }
  const Pool pool = MakePool(run, ports);
  const MadeStock made = MakeStock(pool, run.seed);
  if (!made.error.empty()) {
    PrintError(ports, made.error + "; a larger --pool helps");
    return ExitStatus::kBadInput;
  }
  const std::vector<StockFault> faults = CheckStock(made.stock, run.jobs, [](int) {});
  if (!faults.empty()) {
    PrintError(ports, "the new stock has a fault and was not written: " + faults[0].text);
    return ExitStatus::kBadInput;
  }
  const FileResult written = WriteStockFile(ports.files, path, made.stock);
  if (!written) {
    PrintError(ports, path + ": " + written.Reason());
    return ExitStatus::kFailure;
  }
  PrintSummary(pool, made.chosen, ports.out);
  return ExitStatus::kGood;
}

}  // namespace kestrel
