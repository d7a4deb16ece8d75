// SPDX-License-Identifier: MIT
// `stock repair`: makes a damaged stock whole again.
#include <array>
#include <cstdint>
#include <memory>
#include <ostream>
#include <string>

#include "cli/command.h"
#include "cli/progress.h"
#include "cli/stock_path.h"
#include "core/stock_file.h"
#include "stock/stock_doubt.h"
#include "stock/stock_repair.h"

namespace kestrel {
namespace {

constexpr std::array<OptionSpec, 5> kRepairOptions{{
    {"dry-run", "", "only tell what would be done"},
    {"force", "", "repair a FILE that does not look like a stock at all"},
    kSeedOption,
    kStockOption,
    kJobsOption,
}};

// Writes the repaired stock; what was in the file is kept aside. Fails when the file has changed since `read`.
FileResult WriteRepaired(Files& files, const std::string& path, const Bytes& read, const StockTable& stock) {
  return files.Update(path, read.size() + kStockBytes, [&](Bytes& bytes) {
    if (bytes != read) return FileResult::Failed("it was changed in the meantime; try again");
    FileResult kept = files.KeepAside(path);
    if (kept) bytes = EncodeStock(stock);
    return kept;
  });
}

void PrintRepair(const Repair& repair, std::ostream& out) {
  for (std::size_t i = 0; i < repair.levels.size(); ++i) {
    const LevelRepair& level = repair.levels[i];
    out << "level " << i + 1 << ": " << level.good << " good, " << level.mended << " mended, "
        << level.restored << " from the older copy, " << level.made << " new\n";
  }
}

}  // namespace

const CommandSpec kStockRepairSpec{
    "stock repair",
    "[FILE]",
    1,
    "Make a damaged stock whole again",
    "Keeps every good puzzle with its best time. A damaged one comes back from the older\n"
    "copy that the game keeps beside the stock, or makes room for a new puzzle of its\n"
    "level with a score between its neighbours'. Scores and counts that are wrong are\n"
    "mended. The file as it was is kept beside the new one. Close the game first.\n"
    "Without FILE the stock that the game plays from is repaired.",
    kRepairOptions,
    "stock repair --dry-run\n"
    "stock repair old-stock.kpz"};

ExitStatus StockRepairCommand(Arguments& arguments, CliPorts& ports) {
  FillRun run;
  run.jobs = JobsOf(arguments);
  // Not SeedOf, which tells a drawn seed: most repairs make no puzzle and need none.
  run.seed = arguments.Has(kSeedOption.name) ? SeedOf(arguments, ports) : ports.seeds.NextSeed();
  const std::string path = WritableStockPath(arguments, ports);
  if (!arguments.Error().empty()) return ExitStatus::kFailure;
  auto stock = std::make_unique<StockTable>();
  if (!ReadStockOf(path, ports, *stock)) return ExitStatus::kFailure;
  Bytes bytes;
  if (const FileResult read = ports.files.Read(path, 2 * kStockBytes, bytes); !read) {
    PrintError(ports, path + ": " + read.Reason());
    return ExitStatus::kFailure;
  }
  // A wrong file name must not cost a file; the player's own stock may be damaged beyond recognition.
  if (!LooksLikeStock(bytes) && path != ports.user_stock && !arguments.Has("force")) {
    PrintError(ports, path + ": this does not look like a stock; --force fills it with new puzzles");
    return ExitStatus::kFailure;
  }
  auto older = std::make_unique<StockTable>();
  const std::string older_path = path + std::string(kOlderStockEnding);
  const bool has_older = ports.files.Exists(older_path) && ReadStockFile(ports.files, older_path, *older);
  Progress progress(ports.err, ports.err_is_terminal, "stock repair", 0);
  run.progress = [&](std::uint64_t made) { progress.Show(made, std::to_string(made) + " puzzles made"); };
  const Repair repair = RepairStock(*stock, has_older ? older.get() : nullptr, run);
  progress.Hide();
  if (!repair.Changes() && bytes.size() == kStockBytes) {
    ports.out << path << ": 500 good puzzles, nothing to repair\n";
    return ExitStatus::kGood;
  }
  if (bytes.size() != kStockBytes) {
    ports.out << "file: " << ports.files.Length(path).value_or(0) << " bytes instead of " << kStockBytes
              << '\n';
  }
  PrintRepair(repair, ports.out);
  if (arguments.Has("dry-run")) return ExitStatus::kGood;
  const FileResult written = WriteRepaired(ports.files, path, bytes, repair.stock);
  if (written) return ExitStatus::kGood;
  PrintError(ports, path + ": " + written.Reason());
  return ExitStatus::kFailure;
}

}  // namespace kestrel
