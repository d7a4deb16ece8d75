// SPDX-License-Identifier: MIT
// `report`: one page that shows what a stock or a collection of puzzles is like.
#include <algorithm>
#include <array>
#include <cstdint>
#include <ostream>
#include <string>
#include <utility>

#include "cli/command.h"
#include "cli/output_file.h"
#include "cli/progress.h"
#include "cli/puzzle_reader.h"
#include "cli/puzzle_run.h"
#include "cli/rating_text.h"
#include "cli/report_page.h"
#include "cli/stock_path.h"
#include "core/yield.h"
#include "stock/ordered_work.h"

namespace kestrel {
namespace {

constexpr std::array<OptionSpec, 3> kReportOptions{{
    {"output", "FILE", "the page to write (default: standard output)"},
    kStockOption,
    kJobsOption,
}};

constexpr std::size_t kBundle = 32;  // puzzles that are handed to a thread at once

int GivenCount(const DigitGrid& grid) {
  return static_cast<int>(std::ranges::count_if(grid, [](int digit) { return digit != 0; }));
}

// The last part of a path.
std::string FileName(const std::string& path) {
  return path.substr(path.find_last_of('/') + 1);
}

ExitStatus ReportStock(Arguments& arguments, CliPorts& ports, ReportData& data) {
  StockTable stock;
  if (!ReadSoundStock(StockPath(arguments, ports), ports, {}, stock)) return ExitStatus::kFailure;
  for (int level = 1; level <= kLevels; ++level) {
    for (int number = 1; number <= kPuzzlesPerLevel; ++number) {
      const SudokuRecord& record = stock(level, number);
      data.Add({level, record.Score, GivenCount(record.GivenCells), record.TechniqueCount, BestTime(record),
                RatingName(level) + " " + std::to_string(number)});
    }
  }
  return ExitStatus::kGood;
}

// Rates the puzzles of files; bad ones are told and left out.
ExitStatus ReportFiles(const std::vector<std::string>& files, int jobs, CliPorts& ports, ReportData& data) {
  PuzzleReader reader(files, ports.in);
  Progress progress(ports.err, ports.err_is_terminal, "report", reader.TotalBytes());
  ExitStatus status = ExitStatus::kGood;
  struct Bundle {
    std::vector<InputLine> lines;
    std::vector<ReportPuzzle> puzzles;
  };
  const auto read = [&](Bundle& bundle) {
    InputLine line;
    while (bundle.lines.size() < kBundle && reader.Next(line)) bundle.lines.push_back(std::move(line));
    return !bundle.lines.empty();
  };
  const auto make_worker = [] {
    return [](Bundle bundle) {
      NeverStop yield;
      for (const InputLine& line : bundle.lines) {
        if (!line.error.empty()) continue;
        const Rating rating = SolveAndRate(line.givens, yield);
        bundle.puzzles.push_back(
            {rating.level, rating.Score(), GivenCount(line.givens), CountsBySlot(rating.counters), 0, {}});
      }
      return bundle;
    };
  };
  const auto add = [&](const Bundle& bundle) {
    for (const ReportPuzzle& puzzle : bundle.puzzles) data.Add(puzzle);
    for (const InputLine& line : bundle.lines) {
      if (!line.error.empty()) status = std::max(status, TellBadLine(line, ports));
    }
    progress.Show(bundle.lines.back().bytes, std::to_string(data.Puzzles()) + " puzzles");
    return true;
  };
  RunOrdered<Bundle>(jobs, read, make_worker, add);
  progress.Hide();
  return status;
}

}  // namespace

const CommandSpec kReportSpec{
    "report",
    "[FILE...]",
    1 << 20,
    "Show what a stock or a collection of puzzles is like, as a web page",
    "Writes one HTML page with pictures: how scores spread within each level, which\n"
    "techniques are needed how often, how many givens there are, best times against\n"
    "scores. FILEs are puzzles, as 'rate' reads them; '-' is standard input. Without a\n"
    "FILE the stock is shown: the one that the game plays from or, before the game has\n"
    "made one, the stock that came with the program.",
    kReportOptions,
    "report --output stock.html\n"
    "report --output collection.html puzzles.txt"};

ExitStatus ReportCommand(Arguments& arguments, CliPorts& ports) {
  const int jobs = JobsOf(arguments);
  const std::string output = arguments.Text("output", "-");
  const std::vector<std::string>& files = arguments.Operands();
  if (!files.empty() && arguments.Has(kStockOption.name)) {
    arguments.Fail("either a stock or FILEs are shown, not both");
  }
  if (!arguments.Error().empty()) return ExitStatus::kFailure;
  if (!MayWrite(output, {}, ports)) return ExitStatus::kFailure;
  ReportData data;
  const ExitStatus status =
      files.empty() ? ReportStock(arguments, ports, data) : ReportFiles(files, jobs, ports, data);
  if (files.empty() && status != ExitStatus::kGood) return status;
  const std::string title = files.empty()       ? FileName(StockPath(arguments, ports))
                            : files.size() == 1 ? FileName(files[0])
                                                : std::to_string(files.size()) + " files of puzzles";
  const std::string page = ReportPage(title, data);
  return std::max(status, WriteOutput(output, {page.begin(), page.end()}, ports));
}

}  // namespace kestrel
