// SPDX-License-Identifier: MIT
// The program ends at every possible moment of a renewal: afterwards nothing may have been filed in the stock
// file, written, played or asked.
#include <gtest/gtest.h>

#include <sstream>

#include "host/host_files.h"
#include "support/game_home.h"
#include "ui/script/runner.h"

namespace kestrel::testing {
namespace {

// Runs something at the n-th question whether to go on; its answer is the one given.
class AtYield final : public Yield {
 public:
  explicit AtYield(int n, std::function<bool()> action) : n_(n), action_(std::move(action)) {}
  bool KeepGoing() override { return ++count_ == n_ ? action_() : true; }
  [[nodiscard]] bool Reached() const { return count_ >= n_; }

 private:
  int n_;
  std::function<bool()> action_;
  int count_ = 0;
};

constexpr std::string_view kRenewal = "press RenewLevel(1)\nanswer OK\nrenew 100000\n";

TEST(Ending, FrontEndStopsARenewalAtAnyYield) {
  GameHome home;
  home.Play("");
  const std::string stock = home.StockBytes();
  SystemCalls calls;
  HostFiles files(calls);
  for (int n = 1;; n += 1 + n / 2) {
    AtYield yield(n, [] { return false; });
    const Played played = home.Play(kRenewal, files, yield);
    if (!yield.Reached()) {
      EXPECT_TRUE(played.Has("stock written"));
      break;
    }
    ASSERT_FALSE(played.Has("stock written")) << n;
    ASSERT_EQ(played.Count("rounds"), 0) << n;
    ASSERT_EQ(home.StockBytes(), stock) << n;
    ASSERT_EQ(played.status, 0) << n;
  }
}

// The quit question is asked and answered with Yes while the generator or solver waits further up.
TEST(Ending, UserQuitsARenewalAtAnyYield) {
  GameHome home;
  home.Play("");
  const std::string stock = home.StockBytes();
  SystemCalls calls;
  HostFiles files(calls);
  for (int n = 1;; n += 1 + n / 2) {
    GameLoop* game = nullptr;
    std::istringstream script{std::string(kRenewal)};
    AtYield yield(n, [&] {
      script.str("answer Yes\necho still playing\n");
      game->Handle({.form = FormId::Main, .control = {"MainWindow"}, .kind = EventKind::Close});
      return true;
    });
    std::ostringstream output;
    std::ostringstream errors;
    ScriptRunner runner(home.options, files, yield, script, output, errors);
    game = &runner.PlayedGame();
    const int status = runner.Run();
    if (!yield.Reached()) break;
    ASSERT_EQ(status, 0) << errors.str();
    const std::string tail =
        "message \"Quit Kestrel Sudoku\" \"Do you really want to quit ?\" question Yes,No\nended\n";
    ASSERT_TRUE(output.str().ends_with(tail)) << n << output.str();
    ASSERT_EQ(home.StockBytes(), stock) << n;
  }
}

}  // namespace
}  // namespace kestrel::testing
