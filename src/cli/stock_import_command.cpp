// SPDX-License-Identifier: MIT
// `stock import`: makes the puzzles of any collection playable.
#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "cli/command.h"
#include "cli/progress.h"
#include "cli/puzzle_reader.h"
#include "cli/puzzle_run.h"
#include "cli/stock_path.h"
#include "core/stock_file.h"
#include "stock/ordered_work.h"
#include "stock/stock_import.h"

namespace kestrel {
namespace {

constexpr std::array<OptionSpec, 6> kImportOptions{{
    {"level", "L", "only puzzles of level L, 1 to 5"},
    {"fill", "WITH",
     "what a level gets besides, when fewer than 100\ncome in: old (default) puzzles or new ones"},
    {"dry-run", "", "only tell what would be done"},
    kSeedOption,
    {"stock", "FILE", "the stock to change (default: the one that the\ngame plays from)"},
    kJobsOption,
}};

// Reads the stock to change; one that is not there yet begins as the one that came with the program.
bool ReadBase(const std::string& path, CliPorts& ports, StockTable& stock) {
  const bool is_new = !ports.files.Exists(path) && !ports.shipped_stock.empty();
  return ReadSoundStock(is_new ? ports.shipped_stock : path, ports, {}, stock);
}

// Hands all puzzles of the files in, judged by several threads.
ExitStatus TakePuzzles(const std::vector<std::string>& files, int jobs, CliPorts& ports,
                       StockImport& import) {
  struct Judged {
    InputLine line;
    Verdict verdict;
  };
  PuzzleReader reader(files, ports.in);
  Progress progress(ports.err, ports.err_is_terminal, "stock import", reader.TotalBytes());
  ExitStatus status = ExitStatus::kGood;
  std::uint64_t puzzles = 0;
  const auto read = [&](Judged& item) { return reader.Next(item.line); };
  const auto make_worker = [] {
    return [judge = std::make_shared<PuzzleJudge>()](Judged item) {
      if (item.line.error.empty()) item.verdict = judge->Judge(item.line.givens);
      return item;
    };
  };
  const auto take = [&](const Judged& item) {
    if (!item.line.error.empty()) {
      progress.Hide();
      status = std::max(status, TellBadLine(item.line, ports));
      return true;
    }
    import.Take(item.line.file + ":" + std::to_string(item.line.line), item.line.givens, item.verdict);
    progress.Show(item.line.bytes, std::to_string(++puzzles) + " puzzles");
    return true;
  };
  RunOrdered<Judged>(jobs, read, make_worker, take);
  progress.Hide();
  return status;
}

void PrintImport(const StockImport& import, const ImportResult& result, std::ostream& out) {
  for (const Refusal& refusal : import.Refused()) {
    out << refusal.source << ": left out: " << refusal.reason << '\n';
  }
  for (std::size_t i = 0; i < result.levels.size(); ++i) {
    const LevelImport& level = result.levels[i];
    if (level.imported + level.there == 0) continue;
    out << "level " << i + 1 << ": " << level.imported << " imported, " << level.there << " there already, "
        << level.kept << " others kept, " << level.made << " made";
    if (level.too_many > 0) out << ", " << level.too_many << " too many left out";
    if (level.times_lost > 0) out << ", " << level.times_lost << " best times lost";
    out << '\n';
  }
}

// Brings the plan up to what the file holds now: the game may have stored best times while puzzles were rated.
// False when puzzles are others than they were.
bool FollowFile(const StockTable& before, const StockTable& now, StockTable& planned) {
  for (int level = 1; level <= kLevels; ++level) {
    for (int number = 1; number <= kPuzzlesPerLevel; ++number) {
      const SudokuRecord& record = now(level, number);
      if (record.GivenCells != before(level, number).GivenCells) return false;
      if (record == before(level, number)) continue;
      // Only its best time can be new; the plan may have moved it to another place, or left it out.
      for (int place = 1; place <= kPuzzlesPerLevel; ++place) {
        SudokuRecord& stays = planned(level, place);
        if (stays.GivenCells == record.GivenCells) stays = record;
      }
    }
  }
  return true;
}

ExitStatus Write(const std::string& path, const StockTable& before, StockTable& planned, CliPorts& ports) {
  auto now = std::make_unique<StockTable>();
  if (!ReadBase(path, ports, *now)) return ExitStatus::kFailure;
  const FileResult written = FollowFile(before, *now, planned)
                                 ? WriteStockFile(ports.files, path, planned)
                                 : FileResult::Failed("it was changed in the meantime; try again");
  if (written) return ExitStatus::kGood;
  PrintError(ports, path + ": " + written.Reason());
  return ExitStatus::kFailure;
}

}  // namespace

const CommandSpec kStockImportSpec{
    "stock import",
    "PUZZLES...",
    1 << 20,
    "Make the puzzles of any collection playable",
    "Reads PUZZLES as 'rate' does, checks that each has one solution, rates it and files\n"
    "it under its level by score. Puzzles that are there already keep their best times,\n"
    "also in disguise (renamed, turned, rows and columns exchanged). Of more than 100 of\n"
    "a level those are taken whose scores are spread evenly; where fewer come in, old\n"
    "puzzles stay, those with a best time first. What is left out is listed with the\n"
    "reason. The stock is written at the very end, in one piece. Close the game first.",
    kImportOptions,
    "stock import --dry-run puzzles.txt\n"
    "stock import --level 3 --stock my.kpz puzzles.txt"};

ExitStatus StockImportCommand(Arguments& arguments, CliPorts& ports) {
  constexpr std::array<std::string_view, 2> kFills{"old", "new"};
  FillRun run;
  run.jobs = JobsOf(arguments);
  const int level = static_cast<int>(arguments.Number("level", 0, 1, kLevels));
  const FillWith fill = arguments.OneOf("fill", kFills) == 1 ? FillWith::New : FillWith::Old;
  const std::string path = arguments.Text(kStockOption.name, ports.user_stock);
  if (arguments.Operands().empty()) arguments.Fail("the PUZZLES to import are missing");
  if (fill == FillWith::New) run.seed = SeedOf(arguments, ports);
  auto stock = std::make_unique<StockTable>();
  if (!arguments.Error().empty() || !ReadBase(path, ports, *stock)) return ExitStatus::kFailure;
  StockImport import(*stock, level);
  ExitStatus status = TakePuzzles(arguments.Operands(), run.jobs, ports, import);
  ImportResult result = import.Finish(fill, run);
  PrintImport(import, result, ports.out);
  if (result.stock == *stock) {
    ports.out << path << ": nothing to change\n";
  } else if (arguments.Has("dry-run")) {
    ports.out << path << ": not changed, this was a dry run\n";
  } else {
    status = std::max(status, Write(path, *stock, result.stock, ports));
  }
  return status;
}

}  // namespace kestrel
