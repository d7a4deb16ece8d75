// SPDX-License-Identifier: MIT
// A game in memory that the fuzzers play. Header only, because one fuzzer links no game.
#pragma once

#include <sstream>
#include <string>
#include <string_view>

#include "core/stock_file.h"
#include "memory_files.h"
#include "support/answering_script.h"
#include "support/play_invariants.h"
#include "support/test_stock.h"
#include "ui/script/runner.h"

namespace kestrel::fuzz {

inline constexpr std::string_view kStock = "/home\\KestrelSudoku\\sudstock.kpz";
inline constexpr std::string_view kSettings = "/home/settings.ini";

// Says stop at the n-th question, so that no input takes for ever. Until then it looks now and then at what
// must always hold.
class StopAt final : public Yield {
 public:
  explicit StopAt(int n) : left_(n) {}
  void Watch(const Session& session) { session_ = &session; }
  bool KeepGoing() override {
    if (left_ % 16 == 0 && session_ != nullptr) Require(testing::BrokenInvariant(*session_).empty());
    return left_-- > 0;
  }

 private:
  int left_;
  const Session* session_ = nullptr;
};

// Puts a stock of sound puzzles into the data folder, and its older copy: a start has nothing to compare or write.
inline void PutSoundStock(MemoryFiles& files) {
  static const Bytes stock = EncodeStock(testing::MakeTestStock());
  files.Put(kStock, AsText(stock.data(), stock.size()));
  files.Put(std::string(kStock) + std::string(kOlderStockEnding), AsText(stock.data(), stock.size()));
}

struct PlayedGame {
  int status = 0;
  std::string output;
};

// Plays a script; with `answering` it presses OK in message boxes by itself.
inline PlayedGame PlayInMemory(MemoryFiles& files, std::string_view script, bool answering,
                               int yields = 20000) {
  ScriptOptions options;
  options.program = "/program";
  options.home = "/home";
  options.settings = kSettings;
  StopAt yield(yields);
  std::ostringstream output, errors;
  testing::AnsweringScript with_answers(script, output);
  std::istringstream plain{std::string(script)};
  std::istream lines(answering ? static_cast<std::streambuf*>(&with_answers) : plain.rdbuf());
  ScriptRunner runner(options, files, yield, lines, output, errors);
  yield.Watch(runner.PlayedGame().State());
  const int status = runner.Run();
  return {status, output.str() + errors.str()};
}

}  // namespace kestrel::fuzz
