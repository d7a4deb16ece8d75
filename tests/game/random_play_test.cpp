// SPDX-License-Identifier: MIT
// Thousands of random events, many of them inside the yields of hints, rounds, ratings and the generator, with
// what must always hold checked after each of them. Now and then everything is undone and done again.
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
#include "support/play_invariants.h"
#include "ui/script/runner.h"

namespace kestrel::testing {
namespace {

// The script of a user who does things at random; it is made up line by line, looking at the game.
class RandomUser : public std::streambuf, public Yield {
 public:
  RandomUser(std::uint64_t seed, int events, bool renews) : random_(seed), events_(events), renews_(renews) {}

  void Watch(ScriptRunner& runner, std::ostringstream& output) {
    state_ = &runner.PlayedGame().State();
    output_ = &output;
  }
  int RoundTrips() const { return round_trips_; }

  // After what waited for this yield; in long computations not every time.
  [[nodiscard]] bool KeepGoing() override {
    if (state_ != nullptr && (++yields_ <= 4 || yields_ % 16 == 0)) CheckInvariants();
    return true;
  }

 protected:
  int_type underflow() override {
    yields_ = 0;
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
  Position Now() const { return {state_->play.puzzle.CurrentDigits, state_->play.puzzle.PencilMask}; }

  const MainWindow& Main() const { return state_->forms.main; }

  // The box that was opened since the last line, if any.
  std::string OpenBox() const {
    const std::string text = output_->str();
    const std::size_t box = std::max(text.rfind("\nmessage ") + 1, text.rfind("\ninput ") + 1);
    return box == 0 ? "" : text.substr(box, text.find('\n', box) - box);
  }

  std::string NextLine() {
    if (!opened_ || state_->play.history.StepTop() == 0) opened_ = Now();
    const std::string box = OpenBox();
    output_->str("-\n");  // so that it stays short, and an old box does not count
    output_->seekp(0, std::ios::end);
    if (box.starts_with("message")) return box.ends_with("Yes,No") ? "answer No" : "answer OK";
    if (box.starts_with("input")) return random_.Below(8) == 0 ? "cancel" : "answer " + Number(100, 1);
    if (state_->forms.names.window.open || state_->forms.print.window.open) return "dialog close";
    if (random_.Below(3) == 0) return PlanClicksInYields();
    if (Main().CommandSolution.enabled && random_.Below(60) == 0) return PlanUndoAndRedo();
    return Click();
  }

  // Every control of the main window in turn, in every one of the first yields in turn, or somewhere in the
  // making of puzzles; then something that yields. A hint looks for a technique on a sound board only.
  std::string PlanClicksInYields() {
    const int count = static_cast<int>(controls_.size());
    const std::string control = "press " + controls_[static_cast<std::size_t>(sweep_ % count)];
    const bool renewing = state_->stockroom.RenewingLevel != 0;
    const bool hint = random_.Below(3) > 0;
    const std::string yield =
        "at " + (renewing && !hint ? Number(700, 1) : std::to_string(1 + sweep_ / count % 3)) + " ";
    ++sweep_;
    if (hint) planned_.emplace_back([this] { return SoundMove(); });
    if (random_.Below(2) == 0) planned_.emplace_back([this, yield] { return yield + Click(); });
    planned_.emplace_back([=] { return yield + control; });
    planned_.emplace_back([=] { return hint ? "press CommandHint" : "rounds 1"; });
    return "press CommandRestart";
  }

  // Puts the right digit into the first empty cell.
  std::string SoundMove() const {
    const auto& digits = state_->play.puzzle.CurrentDigits;
    const auto cell = std::ranges::find(digits, 0) - digits.begin();
    const int digit = cell == kCells ? 0 : state_->play.puzzle.SolutionDigits[cell];
    if (digit < 1 || digit > 9) return "tick";
    return "mark " + std::to_string(cell) + " " + std::to_string(digit);
  }

  std::string Click() {
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
    const int count = state_->play.history.StepCount();
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
      EXPECT_EQ(state_->play.history.StepCount(), count);
      ++round_trips_;
      return "tick";
    });
    return "tick";
  }

  void CheckInvariants() const {
    const std::string broken = BrokenInvariant(*state_);
    ASSERT_EQ(broken, "") << "after " << line_;
  }

  static std::vector<std::string> PressableControls(bool renews) {
    std::vector<std::string> names;
    const MainWindow main = MakeMainWindow();
    EachControl(main, [&](ControlId id, const auto& control) {
      const bool level = id.name == "RenewLevel" && renews && id.index == 1;  // the others take too long
      if (level || (control.tab_index >= 0 && id.name != "RenewLevel")) {
        names.push_back(FullName(id));
      }
    });
    return names;
  }

  RandomSource random_;
  int events_;
  bool renews_;
  std::vector<std::string> controls_ = PressableControls(renews_);
  int sweep_ = 0;
  int yields_ = 0;
  const Session* state_ = nullptr;
  std::ostringstream* output_ = nullptr;
  std::string line_;
  std::deque<std::function<std::string()>> planned_;
  std::optional<Position> opened_;
  int round_trips_ = 0;
};

// Plays `events` random events in `home`; how often everything was undone and done again.
int PlayAtRandom(GameHome& home, std::uint64_t seed, int events, bool renews) {
  SCOPED_TRACE("seed " + std::to_string(seed));
  SystemCalls calls;
  HostFiles files(calls);
  RandomUser user(seed, events, renews);
  std::istream script(&user);
  std::ostringstream output;
  std::ostringstream errors;
  ScriptRunner runner(home.options, files, user, script, output, errors);
  user.Watch(runner, output);
  EXPECT_EQ(runner.Run(), 0) << errors.str();
  return user.RoundTrips();
}

TEST(RandomPlay, KeepsTheBoardAndItsHistoryTrue) {
  for (const std::uint64_t seed : {1, 2, 3, 4}) {
    GameHome home;
    home.home.Put("settings.ini", "[Options]\nLevel=\"4\"\n");
    EXPECT_GT(PlayAtRandom(home, seed, 2500, true), 5);
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
  PlayAtRandom(home, 5, 3000, false);
  EXPECT_EQ(home.StockBytes(), bytes);
}

}  // namespace
}  // namespace kestrel::testing
