// SPDX-License-Identifier: MIT
// What every command gets, and the commands themselves. Used by run.cpp.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

#include "core/files.h"
#include "core/random_source.h"
#include "host/arguments.h"

namespace kestrel {

inline constexpr std::string_view kProgramName = "kestrel-sudoku-cli";

enum class ExitStatus : int {
  kGood = 0,
  kBadInput = 1,  // some input was bad, or a check failed
  kFailure = 2,   // usage, or a file that could not be read or written
};

// The world as a command sees it.
struct CliPorts {
  std::istream& in;
  std::ostream& out;
  std::ostream& err;
  bool err_is_terminal;             // whether progress is shown
  Files& files;                     // for stock files; paths as the user types them
  SeedSource& seeds;                // where a seed comes from when none is given
  std::string user_stock;           // the stock that the game plays from
  std::string shipped_stock;        // the one that came with the program; empty when it is not known
  bool (*reader_left)() = nullptr;  // whether whoever reads `out` has gone, as `head` does; null: cannot tell
};

extern const CommandSpec kRateSpec;
extern const CommandSpec kSolveSpec;
extern const CommandSpec kExplainSpec;
extern const CommandSpec kConvertSpec;
extern const CommandSpec kGenerateSpec;
extern const CommandSpec kPrintSpec;
extern const CommandSpec kReportSpec;
extern const CommandSpec kStockNewSpec;
extern const CommandSpec kStockRenewSpec;
extern const CommandSpec kStockImportSpec;
extern const CommandSpec kStockRepairSpec;
extern const CommandSpec kStockVerifySpec;
extern const CommandSpec kStockListSpec;
extern const CommandSpec kStockExportSpec;

// Each reads its options first; when they are wrong it does nothing else and leaves the error in `arguments`.
ExitStatus RateCommand(Arguments& arguments, CliPorts& ports);
ExitStatus SolveCommand(Arguments& arguments, CliPorts& ports);
ExitStatus ExplainCommand(Arguments& arguments, CliPorts& ports);
ExitStatus ConvertCommand(Arguments& arguments, CliPorts& ports);
ExitStatus GenerateCommand(Arguments& arguments, CliPorts& ports);
ExitStatus PrintCommand(Arguments& arguments, CliPorts& ports);
ExitStatus ReportCommand(Arguments& arguments, CliPorts& ports);
ExitStatus StockNewCommand(Arguments& arguments, CliPorts& ports);
ExitStatus StockRenewCommand(Arguments& arguments, CliPorts& ports);
ExitStatus StockImportCommand(Arguments& arguments, CliPorts& ports);
ExitStatus StockRepairCommand(Arguments& arguments, CliPorts& ports);
ExitStatus StockVerifyCommand(Arguments& arguments, CliPorts& ports);
ExitStatus StockListCommand(Arguments& arguments, CliPorts& ports);
ExitStatus StockExportCommand(Arguments& arguments, CliPorts& ports);

// Options that several commands have.
inline constexpr OptionSpec kJobsOption{"jobs", "N", "work on N puzzles at once (default: all cores)"};
inline constexpr OptionSpec kFormatOption{"format", "FORMAT", "tsv (default) or json, one object a line"};
inline constexpr OptionSpec kSeedOption{"seed", "S",
                                        "whole number to start from; the same gives the same puzzles"};
inline constexpr OptionSpec kStockOption{"stock", "FILE", "the stock file, instead of naming it as FILE"};

int JobsOf(Arguments& arguments);
bool JsonOf(Arguments& arguments);  // --format tsv or json
// The seed given, or one drawn, which is then told on standard error.
std::uint64_t SeedOf(Arguments& arguments, CliPorts& ports);

// "kestrel-sudoku-cli: TEXT" on standard error.
void PrintError(CliPorts& ports, const std::string& text);

}  // namespace kestrel
