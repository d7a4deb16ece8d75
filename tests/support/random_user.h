// SPDX-License-Identifier: MIT
// A user who does things at random, or what a test plans, on a game played by script. After every event, also
// one inside a yield, it looks at what must always hold. Used by the tests that play at random.
#pragma once

#include <algorithm>
#include <deque>
#include <functional>
#include <istream>
#include <optional>
#include <set>
#include <sstream>
#include <streambuf>
#include <string>
#include <vector>

#include "core/random_source.h"
#include "support/game_home.h"
#include "support/play_invariants.h"
#include "ui/script/runner.h"

namespace kestrel::testing {

// What a user can click on in the main window, as script lines. The 729 marks share one handler, and so do the
// headers and the rows of the technique list: some stand for all.
inline std::vector<std::string> EveryControl() {
  std::vector<std::string> lines = {"row 4",
                                    "column 7",
                                    "tick",
                                    "window minimize",
                                    "window restore",
                                    "window close",
                                    "press LabelCount(0)",
                                    "press LabelCount(43)"};
  for (const int cell : {0, 1, 2, 4, 13, 40, 80}) {
    lines.push_back("mark " + std::to_string(cell) + " " + std::to_string(cell % 9 + 1));
    lines.push_back("mark " + std::to_string(cell) + " " + std::to_string(cell % 8 + 1) + " right");
  }
  const MainWindow main = MakeMainWindow();
  EachControl(main, [&](ControlId id, const auto& control) {
    if (control.tab_index >= 0) lines.push_back("press " + FullName(id));
  });
  return lines;
}

// The script that the user plays is made up line by line, looking at the game: first what was planned, then
// `events` lines at random. Boxes are answered and dialogs closed between them.
class RandomUser : public std::streambuf, public Yield {
 public:
  explicit RandomUser(std::uint64_t seed, int events = 0) : random_(seed), events_(events) {}

  // Plays in `home` until everything is done. The exit status.
  int Play(GameHome& home) {
    SystemCalls calls;
    HostFiles files(calls);
    std::istream script(this);
    std::ostringstream output, errors;
    ScriptRunner runner(home.options, files, *this, script, output, errors);
    state_ = &runner.PlayedGame().State();
    output_ = &output;
    const int status = runner.Run();
    EXPECT_EQ(errors.str(), "");
    state_ = nullptr;
    return status;
  }

  using Line = std::function<std::string()>;
  // The plan's lines are asked for when their turn comes; an empty one is passed over.
  void Plan(Line line) { planned_.push_back(std::move(line)); }
  void Plan(const std::string& line) {
    planned_.emplace_back([line] { return line; });
  }
  // `line` at each of these yields of the line that is planned next.
  void PlanAt(unsigned yield, const std::string& line) { Plan("at " + std::to_string(yield) + " " + line); }

  int RoundTrips() const { return round_trips_; }
  // How many yields the last line asked for, and how many of the events that waited in yields came so far.
  [[nodiscard]] unsigned Yields() const { return yields_; }
  [[nodiscard]] int EventsInYields() const { return events_in_yields_; }
  [[nodiscard]] const Session& State() const { return *state_; }

  // Right after the events that waited for this yield.
  [[nodiscard]] bool KeepGoing() override {
    ++yields_;
    if (state_ == nullptr || waiting_.empty() || *waiting_.begin() > yields_) return true;
    waiting_.erase(waiting_.begin());
    ++events_in_yields_;
    CheckInvariants();
    return true;
  }

  // One of the things that a player does most.
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

  // Puts the right digit into the first empty cell.
  std::string SoundMove() const {
    const auto& digits = state_->play.puzzle.CurrentDigits;
    const auto cell = std::ranges::find(digits, 0) - digits.begin();
    const int digit = cell == kCells ? 0 : state_->play.puzzle.SolutionDigits[cell];
    if (digit < 1 || digit > 9) return "tick";
    return "mark " + std::to_string(cell) + " " + std::to_string(digit);
  }

 protected:
  int_type underflow() override {
    CheckInvariants();
    if (::testing::Test::HasFailure()) return traits_type::eof();
    line_ = AnswerToBox();
    if (line_.empty()) line_ = NextLine();
    if (line_.empty()) return traits_type::eof();
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

  // The box that was opened since the last line, if any.
  std::string OpenBox() const {
    const std::string text = output_->str();
    const std::size_t box = std::max(text.rfind("\nmessage ") + 1, text.rfind("\ninput ") + 1);
    return box == 0 ? "" : text.substr(box, text.find('\n', box) - box);
  }

  // What closes the box or dialog that is open; empty: none is.
  std::string AnswerToBox() {
    const std::string box = OpenBox();
    output_->str("-\n");  // so that it stays short, and an old box does not count
    output_->seekp(0, std::ios::end);
    if (box.starts_with("message")) return box.ends_with("Yes,No") ? "answer No" : "answer OK";
    if (box.starts_with("input")) return random_.Below(8) == 0 ? "cancel" : "answer " + Number(100, 1);
    if (state_->forms.names.window.open || state_->forms.print.window.open) return "dialog close";
    return "";
  }

  std::string NextLine() {
    if (!kept_) waiting_.clear();
    std::string line;
    while (line.empty() && !planned_.empty()) {
      const Line planned = std::move(planned_.front());
      planned_.pop_front();
      line = planned();
    }
    if (line.empty() && events_-- > 0) line = RandomLine();
    kept_ = line.starts_with("at ");
    if (kept_) {
      waiting_.insert(static_cast<unsigned>(WholeNumber(line.substr(3, line.find(' ', 3) - 3)).value_or(0)));
    } else {
      yields_ = 0;
    }
    return line;
  }

  std::string RandomLine() {
    if (!opened_ || state_->play.history.StepTop() == 0) opened_ = Now();
    if (state_->stockroom.RenewingLevel != 0 && random_.Below(300) == 0) return "renew 1000000";
    if (random_.Below(3) == 0) return PlanClicksInYields();
    if (state_->forms.main.CommandSolution.enabled && random_.Below(60) == 0) return PlanUndoAndRedo();
    return Click();
  }

  // One or two clicks in the first yields of a hint or a round, or somewhere in the making of a puzzle. A hint
  // looks for a technique on a sound board only.
  std::string PlanClicksInYields() {
    const bool hint = random_.Below(3) > 0;
    const bool long_round = state_->stockroom.RenewingLevel != 0 && !hint;
    const auto yield = static_cast<unsigned>(1 + random_.Below(long_round ? 250 : 3));
    if (hint) Plan([this] { return SoundMove(); });
    if (random_.Below(2) == 0) PlanAt(yield, Click());
    PlanAt(yield, controls_[static_cast<std::size_t>(random_.Below(static_cast<int>(controls_.size())))]);
    Plan(hint ? "press CommandHint" : "rounds 1");
    return "press CommandRestart";
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
    for (int i = 0; i < count; ++i) Plan([] { return "press CommandUndo"; });
    for (int i = 0; i < count; ++i) {
      Plan([this, opened, first = i == 0] {
        EXPECT_TRUE(!first || Now() == opened) << "undone";
        return "press CommandRedo";
      });
    }
    Plan([this, here, count] {
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

  RandomSource random_;
  int events_;
  std::vector<std::string> controls_ = EveryControl();
  std::deque<Line> planned_;
  std::set<unsigned> waiting_;  // yields of the next line at which something is kept
  bool kept_ = false;           // the last line was kept for the next
  unsigned yields_ = 0;
  int events_in_yields_ = 0;
  const Session* state_ = nullptr;
  std::ostringstream* output_ = nullptr;
  std::string line_;
  std::optional<Position> opened_;
  int round_trips_ = 0;
};

}  // namespace kestrel::testing
