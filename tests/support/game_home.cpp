// SPDX-License-Identifier: MIT
#include "support/game_home.h"

#include <sstream>

#include "core/stock_file.h"
#include "media/sounds.h"
#include "support/test_stock.h"
#include "ui/script/runner.h"

namespace kestrel::testing {

namespace {

void ReplaceAll(std::string& text, const std::string& from, std::string_view to) {
  for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size())) {
    text.replace(at, from.size(), to);
  }
}

std::string_view Bytewise(const Bytes& bytes) {
  return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

}  // namespace

bool Played::Has(std::string_view line) const {
  return ("\n" + output).find("\n" + std::string(line) + "\n") != std::string::npos;
}

int Played::Count(std::string_view start) const {
  int count = 0;
  const std::string lines = "\n" + output;
  const std::string wanted = "\n" + std::string(start);
  for (std::size_t at = lines.find(wanted); at != std::string::npos; at = lines.find(wanted, at + 1)) ++count;
  return count;
}

std::string FillIn(int level, int number) {
  static const StockTable stock = MakeTestStock();
  const SudokuRecord& record = stock(level, number);
  std::string lines;
  for (int cell = 0; cell < kCells; ++cell) {
    if (record.GivenCells[cell] != 0) continue;
    lines += "mark " + std::to_string(cell) + " " + std::to_string(record.SolutionCells[cell]) + "\n";
  }
  return lines;
}

GameHome::GameHome() {
  // The stock takes a moment to make and never changes.
  static const Bytes stock = EncodeStock(MakeTestStock());
  program.Put(kStockFileName, Bytewise(stock));
  for (const std::string_view sound : kSoundFiles) program.Put(sound, "");
  options.program = program.Path().string();
  options.home = home.Path().string();
  options.settings = home.Path("settings.ini").string();
}

Played GameHome::Play(std::string_view script) {
  NeverStop yield;
  return Play(script, files_, yield);
}

Played GameHome::Play(std::string_view script, Files& files, Yield& yield, Stage* stage) {
  std::istringstream lines{std::string(script)};
  std::ostringstream output;
  std::ostringstream errors;
  Played played;
  played.status = ScriptRunner(options, files, yield, lines, output, errors, stage).Run();
  played.output = output.str();
  played.errors = errors.str();
  ReplaceAll(played.output, home.Path().string(), "HOME");
  ReplaceAll(played.output, program.Path().string(), "PROGRAM");
  return played;
}

StockTable GameHome::Stock() {
  StockTable stock;
  EXPECT_TRUE(ReadStockFile(files_, home.Written("KestrelSudoku/sudstock.kpz"), stock));
  return stock;
}

void GameHome::PutStock(const StockTable& stock) {
  std::filesystem::create_directories(home.Path("KestrelSudoku"));
  home.Put("KestrelSudoku/sudstock.kpz", Bytewise(EncodeStock(stock)));
}

}  // namespace kestrel::testing
