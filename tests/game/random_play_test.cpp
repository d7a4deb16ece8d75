// SPDX-License-Identifier: MIT
// Thousands of random events, many of them inside yields, with what must always hold checked after each of
// them; now and then everything is undone and done again. And every control, fired at every kind of yield.
#include <gtest/gtest.h>

#include "support/random_user.h"

namespace kestrel::testing {
namespace {

TEST(RandomPlay, KeepsTheBoardAndItsHistoryTrue) {
  for (const std::uint64_t seed : {1, 2, 3, 4}) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    GameHome home;
    home.home.Put("settings.ini", "[Options]\nLevel=\"4\"\n");
    RandomUser user(seed, 2500);
    EXPECT_EQ(user.Play(home), 0);
    EXPECT_GT(user.RoundTrips(), 5);
  }
}

// Lines that bring a game from its start to a situation.
struct Situation {
  const char* name;
  std::vector<std::string> lines;
};

std::vector<Situation> Situations() {
  const std::vector<std::string> moves = {"press CommandNew", "mark 8 3", "mark 6 1", "row 1", "column 2"};
  const auto with = [&](int level, std::vector<std::string> more) {
    std::vector<std::string> lines = {"press OptionType(" + std::to_string(level) + ")"};
    lines.insert(lines.end(), moves.begin(), moves.end());
    lines.insert(lines.end(), more.begin(), more.end());
    return lines;
  };
  return {{"nothing open", {}},
          {"keypad", with(1, {"press CommandUndo"})},
          {"marks", with(3, {"press CommandUndo"})},
          {"hint shown", with(3, {"press CommandRestart", "press CommandHint"})},
          {"shown", with(5, {"press CommandSolution"})}};
}

// Each control at each yield, in games of their own: what it does must not hide what the next one does.
TEST(RandomPlay, FiresEveryControlAtEveryYieldOfAHintAndARound) {
  GameHome home;
  int fired = 0;
  for (const Situation& situation : Situations()) {
    for (const char* line : {"press CommandHint", "press CommandNew", "rounds 2"}) {
      for (const std::string& control : EveryControl()) {
        unsigned reached = 1;
        for (unsigned yield = 1; yield <= reached && !::testing::Test::HasFailure(); ++yield) {
          SCOPED_TRACE(situation.name + (": " + control) + " at " + std::to_string(yield) + " of " + line);
          RandomUser user(1);
          for (const std::string& each : situation.lines) user.Plan(each);
          user.PlanAt(yield, control);
          user.Plan(line);
          // And play goes on.
          user.Plan([&] {
            if (user.State().stockroom.RenewingLevel == 0) reached = user.Yields();
            return "tick";
          });
          for (const char* each :
               {"press CommandUndo", "press CommandSolution", "press CommandNew", "tick"}) {
            user.Plan(each);
          }
          EXPECT_EQ(user.Play(home), 0);
          fired += user.EventsInYields();
        }
      }
    }
  }
  EXPECT_GT(fired, 1000);
}

// Renews `level` from now on, with a random click and then `control` at yields spread over the whole run; in
// the first round, and in all rounds in which the last puzzle is looked for, at every yield if `every`.
class RenewalPlan {
 public:
  RenewalPlan(RandomUser& user, int level, bool every) : user_(user), level_(level), every_(every) {}

  void Begin(const std::vector<std::string>& controls) {
    controls_ = controls;
    if (every_) FireAtEveryYield();
    user_.Plan("press RenewLevel(" + std::to_string(level_) + ")");
    user_.Plan([this] { return GoOn(); });
  }

  // The puzzles filed at the end.
  [[nodiscard]] int Filed() const { return filed_; }

 private:
  static constexpr unsigned kYieldsOfARound = 250;  // some 220, and those of hints

  std::string GoOn() {
    const int filed = filed_ = user_.State().stockroom.RenewalCount(level_);
    if (user_.State().stockroom.RenewingLevel == 0) return "press CommandNew";
    if (filed == kPuzzlesPerLevel - 1 && every_) FireAtEveryYield();
    const bool spread = filed < kPuzzlesPerLevel - 5;
    if (spread) Fire(static_cast<unsigned>(1 + random_.Below(20 * kYieldsOfARound)));
    user_.Plan(spread ? "renew 20" : "renew 1");
    user_.Plan([this] { return GoOn(); });
    return "";
  }

  void FireAtEveryYield() {
    for (unsigned yield = 1; yield <= kYieldsOfARound; ++yield) Fire(yield);
  }

  void Fire(unsigned yield) {
    user_.PlanAt(yield, user_.Click());
    user_.PlanAt(yield, controls_[next_++ % controls_.size()]);
  }

  RandomUser& user_;
  int level_;
  bool every_;
  RandomSource random_{7};
  std::vector<std::string> controls_;
  std::size_t next_ = 0;
  int filed_ = 0;
};

// A renewal yields some hundred thousand times and more, so that every control at every one of them would take
// hours. Every control is fired at every yield of the first round and of the rounds for the last puzzle of one
// level, which are all the kinds of yields that grid, removal, uniqueness and rating have, and at yields spread
// over the whole run; and at some of the yields of a renewal of each other level.
TEST(RandomPlay, FiresEveryControlInTheMakingOfPuzzles) {
  const std::vector<std::string> controls = EveryControl();
  GameHome home;
  const auto renew = [&](int level, bool every, const std::vector<std::string>& fired) {
    RandomUser user(static_cast<std::uint64_t>(level));
    for (const char* line : {"press OptionType(3)", "press CommandNew"}) {
      user.Plan(level == 3 && line[6] == 'O' ? "press OptionType(4)" : line);
    }
    RenewalPlan plan(user, level, every);
    plan.Begin(fired);
    EXPECT_EQ(user.Play(home), 0);
    EXPECT_EQ(plan.Filed(), kPuzzlesPerLevel);
    return user.EventsInYields();
  };
  for (const std::string& control : controls) {
    SCOPED_TRACE(control);
    EXPECT_GT(renew(1, true, {control}), 400);
    if (::testing::Test::HasFailure()) return;
  }
  for (int level = 2; level <= kLevels; ++level) {
    EXPECT_GT(renew(level, false, controls), static_cast<int>(controls.size())) << level;
  }
}

}  // namespace
}  // namespace kestrel::testing
