// SPDX-License-Identifier: MIT
// From the words of the command line to the command, and the options that several commands share.
#include "cli/run.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <ostream>
#include <thread>

namespace kestrel {
namespace {

struct Command {
  const CommandSpec* spec;
  ExitStatus (*run)(Arguments&, CliPorts&);
};

constexpr std::array<Command, 14> kCommands{{
    {&kRateSpec, RateCommand},
    {&kSolveSpec, SolveCommand},
    {&kExplainSpec, ExplainCommand},
    {&kConvertSpec, ConvertCommand},
    {&kGenerateSpec, GenerateCommand},
    {&kPrintSpec, PrintCommand},
    {&kReportSpec, ReportCommand},
    {&kStockNewSpec, StockNewCommand},
    {&kStockRenewSpec, StockRenewCommand},
    {&kStockImportSpec, StockImportCommand},
    {&kStockRepairSpec, StockRepairCommand},
    {&kStockVerifySpec, StockVerifyCommand},
    {&kStockListSpec, StockListCommand},
    {&kStockExportSpec, StockExportCommand},
}};

constexpr std::string_view kStockWord = "stock";

void PrintProgramHelp(std::ostream& out, std::string_view prefix) {
  out << "Usage: " << kProgramName << " COMMAND [OPTION...] [FILE...]\n"
      << "Rates, solves and makes sudokus, and looks after the stock file of Kestrel Sudoku.\n\nCommands:\n";
  for (const Command& command : kCommands) {
    if (!command.spec->name.starts_with(prefix)) continue;
    out << "  " << command.spec->name << std::string(16 - command.spec->name.size(), ' ')
        << command.spec->summary << '\n';
  }
  out << "\nOptions:\n"
         "  -h, --help        show this text and end; after a command: the help of that command\n"
         "  --version         show the version and end\n\n"
         "Exit status: 0 all good, 1 some input was bad or a check failed, 2 usage or file error.\n";
}

ExitStatus UsageError(CliPorts& ports, const std::string& text, std::string_view command) {
  PrintError(ports, text);
  ports.err << "Try '" << kProgramName << (command.empty() ? "" : " ") << command << " --help'.\n";
  return ExitStatus::kFailure;
}

ExitStatus RunCommand(const Command& command, std::span<const std::string> words, CliPorts& ports) {
  Arguments arguments(*command.spec, words);
  if (arguments.HelpWanted()) {
    PrintHelp(ports.out, kProgramName, *command.spec);
    return ExitStatus::kGood;
  }
  // A command reads all its options before it acts, and gives up when one was wrong: the error is told here, once.
  const ExitStatus status = command.run(arguments, ports);
  if (arguments.Error().empty()) return status;
  return UsageError(ports, std::string(command.spec->name) + ": " + arguments.Error(), command.spec->name);
}

// Whether a word asks for the help of the program or of a group of commands.
bool AsksForHelp(std::string_view word) {
  return word == "--help" || word == "-h" || word == "help";
}

ExitStatus Dispatch(std::span<const std::string> words, CliPorts& ports) {
  if (words.empty()) return UsageError(ports, "no command given", "");
  if (AsksForHelp(words[0])) {
    PrintProgramHelp(ports.out, "");
    return ExitStatus::kGood;
  }
  if (words[0] == "--version") {
    ports.out << kProgramName << ' ' << KESTREL_VERSION << '\n';
    return ExitStatus::kGood;
  }
  std::string name = words[0];
  std::size_t used = 1;
  if (name == kStockWord) {
    if (words.size() == 1) return UsageError(ports, "stock: no command given", "stock");
    if (AsksForHelp(words[1])) {
      PrintProgramHelp(ports.out, kStockWord);
      return ExitStatus::kGood;
    }
    name += " " + words[used++];
  }
  const auto command = std::ranges::find(kCommands, name, [](const Command& c) { return c.spec->name; });
  if (command == kCommands.end()) return UsageError(ports, "unknown command '" + name + "'", "");
  return RunCommand(*command, words.subspan(used), ports);
}

}  // namespace

ExitStatus RunCli(std::span<const std::string> words, CliPorts& ports) {
  const ExitStatus status = Dispatch(words, ports);
  // A full disk shows only now. A reader that went away had enough ("... | head"): not good, but nothing to complain of.
  ports.out.flush();
  if (ports.out) return status;
  const bool had_enough = ports.reader_left != nullptr && ports.reader_left();
  if (!had_enough) PrintError(ports, "standard output could not be written");
  return ExitStatus::kFailure;
}

int JobsOf(Arguments& arguments) {
  const unsigned cores = std::max(1U, std::thread::hardware_concurrency());
  return static_cast<int>(arguments.Number(kJobsOption.name, cores, 1, 1024));
}

bool JsonOf(Arguments& arguments) {
  constexpr std::array<std::string_view, 2> kFormats{"tsv", "json"};
  return arguments.OneOf(kFormatOption.name, kFormats) == 1;
}

// A drawn seed is told, so that the run can be had again.
std::uint64_t SeedOf(Arguments& arguments, CliPorts& ports) {
  if (arguments.Has(kSeedOption.name)) return arguments.Number(kSeedOption.name, 0, 0, UINT64_MAX);
  if (!arguments.Error().empty()) return 0;
  const std::uint64_t seed = ports.seeds.NextSeed();
  ports.err << "seed " << seed << '\n';
  return seed;
}

void PrintError(CliPorts& ports, const std::string& text) {
  ports.err << kProgramName << ": " << text << '\n';
}

}  // namespace kestrel
