// SPDX-License-Identifier: MIT
// Thousands of random events, with what must always hold checked after each of them. Now and then everything
// is undone and done again.
#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <istream>
#include <sstream>
#include <streambuf>
#include <string>

#include "core/random_source.h"
#include "host/host_files.h"
#include "support/game_home.h"
#include "ui/script/runner.h"

namespace kestrel::testing {
namespace {

// The script of a user who does things at random; it is made up line by line, looking at the game.
class RandomUser : public std::streambuf {
 public:
  RandomUser(std::uint64_t seed, int events) : random_(seed), events_(events) {}

  void Watch(ScriptRunner& runner, std::ostringstream& output) {
    state_ = &runner.PlayedGame().State();
    output_ = &output;
  }
  int RoundTrips() const { return round_trips_; }

 protected:
  int_type underflow() override {
    CheckInvariants();
    if (::testing::Test::HasFailure()) return traits_type::eof();
    if (!planned_.empty()) {
      line_ = planned_.front()();
      planned_.pop_front();
    } else if (events_-- > 0) {
      line_ = NextLine();
    } else {
      return traits_type::eof();
    }
    line_ += '\n';
    setg(line_.data(), line_.data(), line_.data() + line_.size());
    return traits_type::to_int_type(line_[0]);
  }

 private:
  struct Position {
    DigitGrid digits;
    std::array<CandidateMask, kCells> marks;
    bool operator==(const Position&) const = default;
  };
  Position Now() const { return {state_->puzzle.CurrentDigits, state_->puzzle.PencilMask}; }

  const MainWindow& Main() const { return state_->forms.main; }

  // The last line that was printed: tells whether a box waits.
  std::string LastLine() const {
    const std::string text = output_->str();
    const std::size_t start = text.rfind('\n', text.size() - 2);
    return text.substr(start == std::string::npos ? 0 : start + 1);
  }

  std::string NextLine() {
    if (!opened_ || state_->history.StepTop() == 0) opened_ = Now();
    const std::string last = LastLine();
    output_->str("-\n-\n");  // so that it stays short, and an old box does not count
    output_->seekp(0, std::ios::end);
    if (last.starts_with("message")) return last.ends_with("Yes,No\n") ? "answer No" : "answer OK";
    if (last.starts_with("input")) return random_.Below(8) == 0 ? "cancel" : "answer " + Number(100, 1);
    if (Main().CommandSolution.enabled && random_.Below(60) == 0) return PlanUndoAndRedo();
    const int kind = random_.Below(100);
    if (kind < 50) return MarkLine();
    if (kind < 56) return "row " + Number(9, 0);
    if (kind < 62) return "column " + Number(9, 0);
    static constexpr std::array<const char*, 17> kLines = {
        "press CommandUndo",      "press CommandUndo",      "press CommandRedo",
        "press CommandResetCell", "press CommandHint",      "press CommandNew",
        "press CommandOpen",      "press LabelHint",        "tick 2",
        "window minimize",        "window restore",         "press chkSound",
        "window close",           "press CommandResetCell", "press CommandResetCell",
        "press CommandRedo",      "press CommandRedo"};
    if (kind < 96) return kLines[static_cast<std::size_t>(random_.Below(static_cast<int>(kLines.size())))];
    if (kind == 96) return "press CommandRestart";
    if (kind == 97) return random_.Below(4) == 0 ? "press CommandSolution" : "press CommandUndo";
    if (kind == 98) return "press OptionType(" + Number(5, 1) + ")";
    return "clock " + std::to_string(10 + random_.Below(10)) + ":" + std::to_string(10 + random_.Below(50)) +
           ":" + std::to_string(10 + random_.Below(50));
  }

  std::string Number(int count, int first) { return std::to_string(first + random_.Below(count)); }

  std::string MarkLine() {
    static constexpr std::array<const char*, 4> kButtons = {"left", "right", "right", "middle"};
    const std::string name = "Mark" + Number(9, 1) + "(" + Number(81, 0) + ")";
    const std::string button = kButtons[static_cast<std::size_t>(random_.Below(4))];
    return "release " + name + " " + button + " " + Number(260, -5) + " " + Number(260, -5);
  }

  // Takes every step back, compares with the opened board, and does everything again.
  std::string PlanUndoAndRedo() {
    const int count = state_->history.StepCount();
    const Position here = Now();
    const Position opened = *opened_;
    for (int i = 0; i < count; ++i) planned_.emplace_back([] { return "press CommandUndo"; });
    for (int i = 0; i < count; ++i) {
      planned_.emplace_back([this, opened, first = i == 0] {
        EXPECT_TRUE(!first || Now() == opened) << "undone";
        return "press CommandRedo";
      });
    }
    planned_.emplace_back([this, here, count] {
      EXPECT_EQ(Now(), here) << "done again";
      EXPECT_EQ(state_->history.StepCount(), count);
      ++round_trips_;
      return "tick";
    });
    return "tick";
  }

  void CheckInvariants() const {
    const OpenPuzzle& puzzle = state_->puzzle;
    for (int cell = 0; cell < kCells; ++cell) {
      for (int digit = 1; digit <= 9; ++digit) {
        ASSERT_EQ(Main().Mark(digit)(cell).visible, HasDigit(puzzle.PencilMask[cell], digit)) << cell;
      }
      const int digit = puzzle.CurrentDigits[cell];
      ASSERT_EQ(Main().Grid(cell).caption, digit == 0 ? "" : std::to_string(digit));
      ASSERT_TRUE(digit == 0 || puzzle.PencilMask[cell] == 0);
    }
    const StepHistory& history = state_->history;
    ASSERT_LE(history.StepCount(), history.StepTop());
    ASSERT_EQ(Main().LabelStap.caption, std::to_string(history.StepCount()));
    ASSERT_EQ(Main().Timer1.enabled, !state_->clock.ClockStopped);
    if (Main().CommandSolution.enabled) {  // in play
      ASSERT_EQ(Main().CommandUndo.enabled, history.StepCount() > 0);
      ASSERT_EQ(Main().CommandRestart.enabled, history.StepCount() > 0);
      ASSERT_EQ(Main().CommandRedo.enabled, history.StepCount() < history.StepTop());
      ASSERT_FALSE(Main().CommandNew.enabled || Main().OptionType(1).enabled);
    } else {
      ASSERT_FALSE(Main().CommandUndo.enabled || Main().CommandRestart.enabled || Main().CommandHint.enabled);
    }
    CheckHeaders(Main().LabelRow, state_->SelectedRow);
    CheckHeaders(Main().LabelColumn, state_->SelectedColumn);
  }

  template <class Headers>
  static void CheckHeaders(const Headers& headers, int selected) {
    for (int index = 0; index < 9; ++index) {
      ASSERT_EQ(headers(index).fore == kRed, index == selected);
    }
  }

  RandomSource random_;
  int events_;
  const Session* state_ = nullptr;
  std::ostringstream* output_ = nullptr;
  std::string line_;
  std::deque<std::function<std::string()>> planned_;
  std::optional<Position> opened_;
  int round_trips_ = 0;
};

// Plays `events` random events in `home`; how often everything was undone and done again.
int PlayAtRandom(GameHome& home, std::uint64_t seed, int events) {
  SCOPED_TRACE("seed " + std::to_string(seed));
  SystemCalls calls;
  HostFiles files(calls);
  NeverStop yield;
  RandomUser user(seed, events);
  std::istream script(&user);
  std::ostringstream output;
  std::ostringstream errors;
  ScriptRunner runner(home.options, files, yield, script, output, errors);
  user.Watch(runner, output);
  EXPECT_EQ(runner.Run(), 0) << errors.str();
  return user.RoundTrips();
}

TEST(RandomPlay, KeepsTheBoardAndItsHistoryTrue) {
  for (const std::uint64_t seed : {1, 2, 3, 4}) {
    GameHome home;
    EXPECT_GT(PlayAtRandom(home, seed, 2500), 5);
  }
}

// Whatever bytes stand in the stock, every puzzle opens and can be played.
TEST(RandomPlay, SurvivesAStockOfRandomBytes) {
  RandomSource random(99);
  GameHome home;
  std::filesystem::create_directory(home.home.Path("KestrelSudoku"));
  std::string bytes;
  for (std::size_t i = 0; i < kStockBytes; ++i) bytes += static_cast<char>(random.Below(256));
  home.home.Put("KestrelSudoku/sudstock.kpz", bytes);
  PlayAtRandom(home, 5, 3000);
  EXPECT_EQ(home.StockBytes(), bytes);
}

}  // namespace
}  // namespace kestrel::testing
