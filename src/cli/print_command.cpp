// SPDX-License-Identifier: MIT
// `print`: pages of puzzles as a PDF file.
#include <array>
#include <string>

#include "cli/command.h"
#include "cli/stock_path.h"
#include "forms/texts.h"
#include "print/print_job.h"

namespace kestrel {
namespace {

constexpr std::array<OptionSpec, 8> kPrintOptions{{
    {"level", "L", "puzzles of level L, 1 to 5 (default 1)"},
    {"from", "N", "the first puzzle, 1 to 100 (default 1)"},
    {"per-page", "K", "puzzles a page: 1 (default), 2 or 4"},
    {"pages", "P", "number of pages, 1 to 10 (default 1)"},
    {"no-solutions", "", "leave the solutions out"},
    {"no-pencilmarks", "", "leave the possible digits of empty cells out"},
    kStockOption,
    {"output", "FILE", "the PDF file to write"},
}};

PrintSettings SettingsOf(Arguments& arguments) {
  constexpr std::array<std::string_view, 3> kPerPage{"1", "2", "4"};
  PrintSettings settings;
  settings.level_index = static_cast<int>(arguments.Number("level", 1, 1, kLevels)) - 1;
  settings.first_number = static_cast<int>(arguments.Number("from", 1, 1, kPuzzlesPerLevel));
  settings.per_page = 1 << arguments.OneOf("per-page", kPerPage);
  settings.pages = static_cast<int>(arguments.Number("pages", 1, 1, kMostPages));
  settings.with_solutions = !arguments.Has("no-solutions");
  settings.with_pencil_marks = !arguments.Has("no-pencilmarks");
  return settings;
}

}  // namespace

const CommandSpec kPrintSpec{
    "print",
    "",
    0,
    "Print puzzles of a stock into a PDF file",
    "Lays the pages out as the game prints them, on A4: the puzzles with the techniques\n"
    "that they need, their solutions, and the digits that are possible in empty cells.\n"
    "The same stock and options give the same file, byte by byte. Without --stock the\n"
    "stock that the game plays from is used or, before the game has made one, the stock\n"
    "that came with the program.",
    kPrintOptions,
    "print --level 3 --output medium.pdf\n"
    "print --per-page 4 --pages 2 --no-solutions --output four.pdf"};

ExitStatus PrintCommand(Arguments& arguments, CliPorts& ports) {
  const PrintSettings settings = SettingsOf(arguments);
  const std::string range = CheckPrintRange(settings);
  if (!range.empty()) arguments.Fail(range);
  if (arguments.Text("output", "").empty())
    arguments.Fail("the file to write is missing, name it with '--output'");
  const std::string path = StockPath(arguments, ports);
  StockTable stock;
  if (!arguments.Error().empty() || !ReadStockOf(path, ports, stock)) return ExitStatus::kFailure;
  const std::string output = arguments.Text("output", "");
  const std::unique_ptr<FilePage> page = MakeFilePage();
  if (!page) {
    PrintError(ports, "this program was built without the library that draws PDF files");
    return ExitStatus::kFailure;
  }
  PrintPages(
      {PuzzlesOfStock(stock, settings.level_index + 1, settings.first_number, PuzzlesPrinted(settings)),
       std::string(texts::kLevelNames[static_cast<std::size_t>(settings.level_index)]), settings},
      *page);
  const FileResult result = ports.files.Replace(output, page->Finish(texts::kProductName).front());
  if (result) return ExitStatus::kGood;
  PrintError(ports, output + ": " + result.Reason());
  return ExitStatus::kFailure;
}

}  // namespace kestrel
