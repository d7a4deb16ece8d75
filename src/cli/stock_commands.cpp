// SPDX-License-Identifier: MIT
// `stock verify`, `stock list` and `stock export`: the commands that only read a stock.
#include <algorithm>
#include <array>
#include <cstdint>
#include <functional>
#include <ostream>
#include <string>

#include "cli/command.h"
#include "cli/json.h"
#include "cli/progress.h"
#include "cli/rating_text.h"
#include "cli/stock_path.h"
#include "core/text.h"
#include "formats/puzzle_writer.h"
#include "stock/stock_check.h"

namespace kestrel {
namespace {

constexpr OptionSpec kLevelOption{"level", "L", "only level L, 1 to 5"};
constexpr std::array<OptionSpec, 2> kVerifyOptions{{kStockOption, kJobsOption}};
constexpr std::array<OptionSpec, 3> kListOptions{{kLevelOption, kStockOption, kFormatOption}};
constexpr std::array<OptionSpec, 3> kExportOptions{
    {kLevelOption,
     kStockOption,
     {"format", "FORMAT",
      "lines (default), json, or line, grid, sdk, ss, opensudoku,\ncandidates or csv for the puzzles "
      "alone"}}};

int GivenCount(const SudokuRecord& record) {
  return static_cast<int>(std::ranges::count_if(record.GivenCells, [](int digit) { return digit != 0; }));
}

// The best time as minutes and seconds, "-" when there is none.
std::string BestTimeText(const SudokuRecord& record) {
  if (record.BestMinutes == 0 && record.BestSeconds == 0) return "-";
  const std::string seconds = std::to_string(record.BestSeconds);
  return std::to_string(record.BestMinutes) + (seconds.size() < 2 ? ":0" : ":") + seconds;
}

Json RecordJson(int level, int number, const SudokuRecord& record) {
  Json object = JsonLine();
  object["level"] = level;
  object["number"] = number;
  object["score"] = record.Score;
  object["givens"] = GivenCount(record);
  object["best_seconds"] = BestTime(record);
  object["best_player"] = record.BestPlayer;
  object["counts"] = CountsJson(record.TechniqueCount);
  return object;
}

std::string ListLine(int level, int number, const SudokuRecord& record) {
  return std::to_string(level) + '\t' + std::to_string(number) + '\t' + std::to_string(record.Score) + '\t' +
         std::to_string(GivenCount(record)) + '\t' + BestTimeText(record) + '\t' +
         std::to_string(record.BestPlayer) + '\t' + CountsTsv(record.TechniqueCount) + '\n';
}

std::string ListJson(int level, int number, const SudokuRecord& record) {
  return JsonText(RecordJson(level, number, record));
}

std::string ExportLine(int level, int number, const SudokuRecord& record) {
  return GridText(record.GivenCells) + '\t' + GridText(record.SolutionCells) + '\t' + std::to_string(level) +
         '\t' + std::to_string(number) + '\t' + std::to_string(record.Score) + '\n';
}

std::string ExportJson(int level, int number, const SudokuRecord& record) {
  Json object = RecordJson(level, number, record);
  object["puzzle"] = GridText(record.GivenCells);
  object["solution"] = GridText(record.SolutionCells);
  return JsonText(object);
}

using RecordWriter = std::function<std::string(int level, int number, const SudokuRecord& record)>;

// Writes the records of the stock that the arguments name, of one level or of all.
ExitStatus WriteRecords(Arguments& arguments, CliPorts& ports, const std::string& header,
                        const RecordWriter& writer, const std::string& footer = {}) {
  const int only = static_cast<int>(arguments.Number("level", 0, 1, kLevels));
  const std::string path = StockPath(arguments, ports);
  StockTable stock;
  if (!arguments.Error().empty() || !ReadSoundStock(path, ports, {.level = only}, stock))
    return ExitStatus::kFailure;
  ports.out << header;
  for (int level = 1; level <= kLevels; ++level) {
    for (int number = 1; number <= kPuzzlesPerLevel; ++number) {
      if (only == 0 || level == only) ports.out << writer(level, number, stock(level, number));
    }
  }
  ports.out << footer;
  return ExitStatus::kGood;
}

}  // namespace

const CommandSpec kStockVerifySpec{
    "stock verify",
    "[FILE]",
    1,
    "Check every puzzle of a stock",
    "Writes one line for everything that is wrong: a puzzle without exactly one solution,\n"
    "a wrong solution, a level, score or count other than the solver finds now, scores\n"
    "that do not ascend, a puzzle that is another one in disguise. The exit status is 1\n"
    "when there is a fault.\n"
    "Without FILE the stock that the game plays from is checked or, before the game has\n"
    "made one, the stock that came with the program.",
    kVerifyOptions,
    "stock verify\n"
    "stock verify my.kpz"};

const CommandSpec kStockListSpec{
    "stock list",
    "[FILE]",
    1,
    "List the puzzles of a stock",
    "Writes a header line and one line a puzzle, tab separated: level, number, score,\n"
    "number of givens, best time and the number of the player who set it (0 nobody), and\n"
    "how often each technique is needed. Without FILE as for 'stock verify'.",
    kListOptions,
    "stock list --level 5\n"
    "stock list --format json my.kpz"};

const CommandSpec kStockExportSpec{
    "stock export",
    "[FILE]",
    1,
    "Write the puzzles of a stock as text",
    "Writes one line a puzzle, tab separated: puzzle, solution, level, number, score.\n"
    "'rate' and 'solve' read such lines. Without FILE as for 'stock verify'.",
    kExportOptions,
    "stock export --level 3\n"
    "stock export --format json my.kpz"};

// Reads the stock however it is: what is wrong with it is what this command is to tell.
ExitStatus StockVerifyCommand(Arguments& arguments, CliPorts& ports) {
  const int jobs = JobsOf(arguments);
  const std::string path = StockPath(arguments, ports);
  StockTable stock;
  if (!arguments.Error().empty() || !ReadStockOf(path, ports, stock)) return ExitStatus::kFailure;
  Progress progress(ports.err, ports.err_is_terminal, "stock verify", kLevels * kPuzzlesPerLevel);
  const std::vector<StockFault> faults = CheckStock(stock, jobs, [&](int checked) {
    progress.Show(static_cast<std::uint64_t>(checked), std::to_string(checked) + " puzzles");
  });
  progress.Hide();
  // The table hides a wrong length: what is missing reads as zeros, what is too much is not read.
  const std::uint64_t length = ports.files.Length(path).value_or(0);
  if (length != kStockBytes) {
    ports.out << "file: " << length << " bytes instead of " << kStockBytes << '\n';
  }
  for (const StockFault& fault : faults) {
    ports.out << "level " << fault.level << " number " << fault.number << ": " << fault.text << '\n';
  }
  if (!faults.empty() || length != kStockBytes) return ExitStatus::kBadInput;
  ports.out << path << ": 500 puzzles, no faults\n";
  return ExitStatus::kGood;
}

ExitStatus StockListCommand(Arguments& arguments, CliPorts& ports) {
  const bool json = JsonOf(arguments);
  const std::string header = "level\tnumber\tscore\tgivens\tbest\tplayer\t" + CountsHeader() + '\n';
  return WriteRecords(arguments, ports, json ? "" : header, json ? ListJson : ListLine);
}

ExitStatus StockExportCommand(Arguments& arguments, CliPorts& ports) {
  const std::string format = arguments.Text("format", "lines");
  if (format == "lines") return WriteRecords(arguments, ports, "", ExportLine);
  if (format == "json") return WriteRecords(arguments, ports, "", ExportJson);
  const auto found = std::ranges::find(kPuzzleFormats, format);
  if (found == kPuzzleFormats.end()) {
    arguments.FailValue("format", "a format that '--help' names");
    return ExitStatus::kFailure;
  }
  const auto to = static_cast<PuzzleFormat>(found - kPuzzleFormats.begin());
  const auto writer = [to](int /*level*/, int /*number*/, const SudokuRecord& record) {
    return PuzzleText(to, {record.GivenCells, std::nullopt});
  };
  return WriteRecords(arguments, ports, PuzzlesHeader(to), writer, PuzzlesFooter(to));
}

}  // namespace kestrel
