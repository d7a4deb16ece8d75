// SPDX-License-Identifier: MIT
// Rounds, nested events and the end of the program, with a game that does what each test wants.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QTest>
#include <ctime>
#include <stdexcept>

#include "qt/qt_game.h"

namespace kestrel::testing {
namespace {

class FakeGame final : public GameLoop {
 public:
  void Start() override {}
  void Handle(const Event& event) override {
    if (on_event) on_event(event);
  }
  bool Round() override {
    ++rounds;
    return on_round && on_round();
  }
  [[nodiscard]] bool WorkLeft() const override { return false; }
  [[nodiscard]] EndReason End() const override { return end; }
  Forms& Controls() override { return forms; }

  std::function<void(const Event&)> on_event;
  std::function<bool()> on_round;
  int rounds = 0;
  EndReason end = EndReason::None;
  Forms forms;
};

class DispatcherTest : public ::testing::Test {
 protected:
  DispatcherTest() {
    dispatcher.Attach(game, [] {});
    EXPECT_TRUE(dispatcher.Start());
  }
  // An event that says how deep it is.
  void Nested(int depth) {
    Event event;
    event.x = depth;
    dispatcher.Send(event);
  }
  FakeGame game;
  Dispatcher dispatcher;
};

TEST_F(DispatcherTest, EndsFromTwoDialogsDeep) {
  std::string log;
  game.on_event = [&](const Event& event) {
    if (event.x == 3) {
      game.end = EndReason::Fatal;
      return;
    }
    QDialog dialog;
    QTimer::singleShot(0, [&] { Nested(event.x + 1); });
    log += "open ";
    EXPECT_EQ(dialog.exec(), 0);
    log += "shut ";
    // No new loop comes up any more.
    QDialog late;
    EXPECT_EQ(late.exec(), 0);
  };
  QTimer::singleShot(0, [&] { Nested(1); });
  EXPECT_EQ(QApplication::exec(), 1);
  EXPECT_EQ(log, "open open shut shut ");
  EXPECT_EQ(dispatcher.ExitStatus(), 1);
  EXPECT_FALSE(dispatcher.KeepGoing());
  // Events after the end reach nobody.
  game.on_event = [](const Event&) { FAIL(); };
  dispatcher.Send({});
}

TEST_F(DispatcherTest, RunsNoRoundBehindADialog) {
  game.on_round = [] { return true; };  // there is always more to do
  QApplication::processEvents();
  const int before = game.rounds;
  game.on_event = [&](const Event&) {
    QDialog dialog;
    QTimer::singleShot(60, &dialog, &QDialog::reject);
    dialog.exec();
    EXPECT_EQ(game.rounds, before);
  };
  dispatcher.Send({});
  QApplication::processEvents();
  EXPECT_GT(game.rounds, before);
}

TEST_F(DispatcherTest, LetsEventsIntoALongRound) {
  int handled = 0;
  game.on_event = [&](const Event&) { ++handled; };
  game.on_round = [&] {
    QTimer::singleShot(1, [&] { dispatcher.Send({}); });
    const auto until = std::chrono::steady_clock::now() + std::chrono::milliseconds(kPatience);
    while (handled == 0 && std::chrono::steady_clock::now() < until) EXPECT_TRUE(dispatcher.KeepGoing());
    return false;
  };
  EXPECT_TRUE(QTest::qWaitFor([&] { return handled > 0; }, kPatience));
  EXPECT_EQ(handled, 1);
}

TEST_F(DispatcherTest, ReportsAnExceptionAndEnds) {
  game.on_event = [](const Event&) { throw std::runtime_error("thrown on purpose by a test"); };
  QTimer::singleShot(0, [&] { dispatcher.Send({}); });
  EXPECT_EQ(QApplication::exec(), 3);
  EXPECT_TRUE(dispatcher.Ended());
}

// The quit question inside a renewal: from the answer on nothing is filed, written or asked.
TEST(Ending, QuitsInMidRenewal) {
  QtGame game(3);
  const std::string stock = game.home_folder.Get("KestrelSudoku/sudstock.kpz");
  game.ExpectBox("Renew Selected Set of Sudokus", "OK");
  game.ExpectBox("Quit Kestrel Sudoku", "Yes");
  QTimer::singleShot(0, [&] {
    QTest::mouseClick(game.Widget("RenewLevel(5)"), Qt::LeftButton);
    QTimer::singleShot(30, [&] { game.Window().close(); });
  });
  EXPECT_EQ(QApplication::exec(), 0);
  EXPECT_EQ(game.front_end.TheGame().End(), EndReason::Quit);
  EXPECT_EQ(game.State().stockroom.RenewingLevel, 5);
  EXPECT_EQ(game.home_folder.Get("KestrelSudoku/sudstock.kpz"), stock);
}

// With a puzzle open and the clock running, the loop sleeps between ticks. The exact cost is for the
// measuring tool; here a loop that spins, which takes all the time that it can get, must be told from one
// that waits.
TEST(Idle, CostsNothing) {
  QtGame game(3);
  QEventLoop loop;
  QTimer::singleShot(1500, &loop, &QEventLoop::quit);
  const std::clock_t before = std::clock();
  loop.exec();
  // The test's own watch for boxes looks 500 times a second.
  EXPECT_LT(static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC, 0.3);
}

}  // namespace
}  // namespace kestrel::testing
