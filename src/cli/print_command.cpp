// SPDX-License-Identifier: MIT
// `print`: pages of puzzles as a PDF file or as pictures.
#include <algorithm>
#include <array>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>

#include "cli/command.h"
#include "cli/output_file.h"
#include "cli/puzzle_reader.h"
#include "cli/puzzle_run.h"
#include "cli/rating_text.h"
#include "cli/stock_path.h"
#include "core/level_names.h"
#include "core/yield.h"
#include "forms/texts.h"
#include "print/print_job.h"
#include "solver/solver.h"
#include "stock/solution_counter.h"

namespace kestrel {
namespace {

constexpr int kMostPagesHere = 100;
constexpr std::uint64_t kMostPuzzles = 1'000'000;

constexpr std::array<OptionSpec, 12> kPrintOptions{{
    {"level", "L", "puzzles of level L of the stock, 1 to 5 (default 1)"},
    {"from", "N", "the first puzzle (default 1)"},
    {"per-page", "K", "puzzles a page: 1 (default), 2 or 4"},
    {"pages", "P", "pages of puzzles (default: 1 of a stock, all of FILEs)"},
    {"booklet", "", "gather the solutions at the end, upside down"},
    {"large", "", "one puzzle a page, with digits that fill their cells"},
    {"no-solutions", "", "leave the solutions out"},
    {"no-pencilmarks", "", "leave the possible digits of empty cells out"},
    {"paper", "PAPER", "a4 (default) or letter"},
    {"format", "FORMAT", "pdf, svg or png (default: by the end of the\nname, else pdf)"},
    kStockOption,
    {"output", "FILE", "the file to write; '-' is standard output"},
}};

struct PrintWish {
  PrintJob job;
  Paper paper = Paper::A4;
  PageFormat format = PageFormat::Pdf;
  std::string output;
  bool all_pages = false;  // of FILEs
};

PageFormat FormatOf(Arguments& arguments, const std::string& output) {
  constexpr std::array<std::string_view, 3> kFormats{"pdf", "svg", "png"};
  if (arguments.Has("format")) return static_cast<PageFormat>(arguments.OneOf("format", kFormats));
  if (output.ends_with(".svg")) return PageFormat::Svg;
  return output.ends_with(".png") ? PageFormat::Png : PageFormat::Pdf;
}

PrintWish WishOf(Arguments& arguments) {
  constexpr std::array<std::string_view, 3> kPerPage{"1", "2", "4"};
  constexpr std::array<std::string_view, 2> kPapers{"a4", "letter"};
  const bool from_files = !arguments.Operands().empty();
  PrintWish wish;
  PrintSettings& settings = wish.job.settings;
  settings.level_index = static_cast<int>(arguments.Number("level", 1, 1, kLevels)) - 1;
  settings.first_number =
      static_cast<int>(arguments.Number("from", 1, 1, from_files ? kMostPuzzles : kPuzzlesPerLevel));
  settings.per_page = 1 << arguments.OneOf("per-page", kPerPage);
  settings.pages = static_cast<int>(arguments.Number("pages", 1, 1, kMostPagesHere));
  settings.with_solutions = !arguments.Has("no-solutions");
  settings.with_pencil_marks = !arguments.Has("no-pencilmarks");
  wish.all_pages = from_files && !arguments.Has("pages");
  const bool booklet = arguments.Has("booklet");
  wish.job.kind = arguments.Has("large") ? PageKind::Large : booklet ? PageKind::Booklet : PageKind::Game;
  wish.job.solutions_upside_down = booklet;
  wish.paper = static_cast<Paper>(arguments.OneOf("paper", kPapers));
  wish.output = arguments.Text("output", "");
  wish.format = FormatOf(arguments, wish.output);
  if (wish.job.kind == PageKind::Large && settings.per_page != 1) {
    arguments.Fail("'--large' prints one puzzle a page");
  }
  if (from_files && (arguments.Has("level") || arguments.Has(kStockOption.name))) {
    arguments.Fail("puzzles are printed from a stock or from FILEs, not from both");
  }
  const std::string range = from_files ? "" : CheckPrintRange(settings);
  if (!range.empty()) arguments.Fail(range);
  if (wish.output.empty()) arguments.Fail("the file to write is missing, name it with '--output'");
  return wish;
}

bool TakeFromStock(const std::string& path, CliPorts& ports, PrintJob& job) {
  const PrintSettings& settings = job.settings;
  const int level = settings.level_index + 1;
  StockTable stock;
  const RecordRange range{level, settings.first_number, LastNumber(settings)};
  if (!ReadSoundStock(path, ports, range, stock)) return false;
  job.puzzles = PuzzlesOfStock(stock, level, settings.first_number, PuzzlesPrinted(settings));
  job.heading = LevelName(settings.level_index + 1);
  return true;
}

// Rates and solves a puzzle for the page; one without just one solution has none there.
PrintedPuzzle Prepared(const DigitGrid& givens, int number, SolutionCounter& counter) {
  NeverStop yield;
  const Rating rating = SolveAndRate(givens, yield);
  PrintedPuzzle puzzle{givens, {}, CountsBySlot(rating.counters), number, RatingName(rating.level)};
  const SolutionCount solutions = counter.Count(givens);
  if (solutions.count == 1) {
    puzzle.solution = solutions.first;
  } else {
    puzzle.label = solutions.count == 0 ? "No solution" : "Several solutions";
  }
  return puzzle;
}

// The heading of pages from files: a file's name without its folders, not longer than fits beside the title.
std::string HeadingOf(const std::vector<std::string>& files) {
  constexpr std::size_t kLongest = 32;
  if (files.size() != 1 || files[0] == "-") return {};
  const std::string name = files[0].substr(files[0].find_last_of('/') + 1);
  return name.size() <= kLongest ? name : name.substr(0, kLongest - 3) + "...";
}

ExitStatus TakeFromFiles(const std::vector<std::string>& files, CliPorts& ports, const PrintWish& wish,
                         PrintJob& job) {
  PuzzleReader reader(files, ports.in);
  SolutionCounter counter;
  ExitStatus status = ExitStatus::kGood;
  const std::uint64_t most = wish.all_pages ? kMostPuzzles : PuzzlesPrinted(job.settings);
  int number = 0;
  InputLine line;
  while (job.puzzles.size() < most && reader.Next(line)) {
    if (!line.error.empty()) {
      status = std::max(status, TellBadLine(line, ports));
    } else if (++number >= job.settings.first_number) {
      job.puzzles.push_back(Prepared(line.givens, number, counter));
    }
  }
  job.heading = HeadingOf(files);
  return status;
}

// "pages.png" and 3 of 12 become "pages-03.png"; a single page keeps the name.
std::string NumberedName(const std::string& name, std::size_t page, std::size_t pages) {
  if (pages == 1) return name;
  const std::string digits = std::to_string(page);
  const std::string number = '-' + std::string(std::to_string(pages).size() - digits.size(), '0') + digits;
  const std::filesystem::path path(name);
  return path.parent_path() / (path.stem().string() + number + path.extension().string());
}

ExitStatus WritePages(const PrintWish& wish, const std::vector<std::string>& sources, CliPorts& ports) {
  const std::unique_ptr<FilePage> page = MakeFilePage(wish.format, wish.paper);
  if (!page) {
    PrintError(ports, "this program was built without cairo, which draws the pages");
    return ExitStatus::kFailure;
  }
  PrintPages(wish.job, *page);
  const std::vector<Bytes> files = page->Finish(texts::kProductName);
  if (files.size() > 1 && wish.output == "-") {
    PrintError(ports, "there are " + std::to_string(files.size()) +
                          " pages, one a file: only a single one can go to standard output");
    return ExitStatus::kFailure;
  }
  // First all checks, then all writing: no pages of half a job.
  std::vector<std::string> names;
  for (std::size_t i = 0; i < files.size(); ++i) {
    names.push_back(NumberedName(wish.output, i + 1, files.size()));
    if (!MayWrite(names.back(), sources, ports)) return ExitStatus::kFailure;
  }
  for (std::size_t i = 0; i < files.size(); ++i) {
    if (WriteOutput(names[i], files[i], ports) != ExitStatus::kGood) return ExitStatus::kFailure;
  }
  return ExitStatus::kGood;
}

}  // namespace

const CommandSpec kPrintSpec{
    "print",
    "[FILE...]",
    1 << 20,
    "Print puzzles of a stock or of files as PDF or pictures",
    "Lays the pages out as the game prints them: the puzzles with the techniques that\n"
    "they need, their solutions, and the digits that are possible in empty cells. FILEs\n"
    "are puzzles, as 'rate' reads them; '-' is standard input. Without FILE puzzles of\n"
    "the stock are printed: the one that the game plays from or, before the game has\n"
    "made one, the stock that came with the program. SVG and PNG have one page a file;\n"
    "several are numbered: pages-1.svg, pages-2.svg.",
    kPrintOptions,
    "print --level 3 --per-page 4 --output medium.pdf\n"
    "print --booklet --output booklet.pdf puzzles.txt"};

ExitStatus PrintCommand(Arguments& arguments, CliPorts& ports) {
  PrintWish wish = WishOf(arguments);
  std::vector<std::string> sources = arguments.Operands();
  const bool from_stock = sources.empty();
  if (from_stock) sources.push_back(StockPath(arguments, ports));
  if (!arguments.Error().empty()) return ExitStatus::kFailure;
  ExitStatus status = ExitStatus::kGood;
  if (from_stock) {
    if (!TakeFromStock(sources[0], ports, wish.job)) return ExitStatus::kFailure;
  } else {
    status = TakeFromFiles(sources, ports, wish, wish.job);
    if (wish.job.puzzles.empty()) {
      PrintError(ports, "there is no puzzle to print");
      return std::max(status, ExitStatus::kBadInput);
    }
  }
  return std::max(status, WritePages(wish, sources, ports));
}

}  // namespace kestrel
