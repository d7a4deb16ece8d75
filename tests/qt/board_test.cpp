// SPDX-License-Identifier: MIT
// The board under a real mouse: which press reaches which mark, and what is painted again for it.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QBackingStore>
#include <QHelpEvent>
#include <QPaintEvent>
#include <QTest>
#include <QToolTip>

#include "qt/qt_game.h"
#include "ui/qt/texts.h"
#include "view/texts.h"

namespace kestrel::testing {
namespace {

// Adds up what is painted on a widget.
class PaintWatch final : public QObject {
 public:
  explicit PaintWatch(QWidget& widget) { widget.installEventFilter(this); }
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::Paint) painted += static_cast<QPaintEvent*>(event)->region();
    return false;
  }
  QRegion painted;
};

// An open puzzle, and the mark that solves its first empty cell.
struct Play {
  explicit Play(int level) : game(level) {}
  QtGame game;
  int cell = game.EmptyCell();
  int digit = game.SolutionOf(cell);
  QPoint corner = QtGame::Corner(game.Main().Mark(digit)(cell));
  QPoint middle = corner + QPoint(8, 8);
  [[nodiscard]] int Steps() { return game.State().play.history.StepCount(); }
  [[nodiscard]] int Digit() { return game.State().play.puzzle.CurrentDigits[cell]; }
};

TEST(Board, CountsAReleaseOnlyInsideTheMark) {
  Play play(3);
  // Both borders are strict; the 17th pixel already belongs to the next mark.
  for (const QPoint missed : {QPoint(0, 8), QPoint(8, 0), QPoint(16, 8), QPoint(8, 16), QPoint(-20, 8)}) {
    play.game.Press(play.middle);
    play.game.Release(play.corner + missed);
    EXPECT_EQ(play.Steps(), 0) << missed.x() << "," << missed.y();
  }
  // A press beside the mark is not its press, wherever the button is let go.
  play.game.Press(play.corner - QPoint(0, 30));
  play.game.Release(play.middle);
  EXPECT_EQ(play.Digit(), 0);
  play.game.Click(play.middle, Qt::MiddleButton);
  EXPECT_EQ(play.Steps(), 0);
  play.game.Press(play.corner + QPoint(1, 1));
  play.game.Release(play.corner + QPoint(15, 15));
  EXPECT_EQ(play.Steps(), 1);
  EXPECT_EQ(play.Digit(), play.digit);
}

TEST(Board, GivesTheOverlapToTheLaterMark) {
  Play play(1);
  const QPoint first = QtGame::Corner(play.game.Main().Mark(1)(play.cell));
  // Pixel 16 of mark 1 is pixel 0 of mark 2, which gets the press and the release that follows.
  play.game.Press(first + QPoint(16, 8));
  play.game.Release(first + QPoint(20, 8));
  EXPECT_EQ(play.Digit(), 2);
}

TEST(Board, KeepsTheFirstPressWhileAnyButtonIsDown) {
  Play play(3);
  play.game.Press(play.middle, Qt::MiddleButton);
  play.game.Press(QtGame::Corner(play.game.Main().LabelRow(2)) + QPoint(17, 17), Qt::LeftButton);
  play.game.Release(play.middle, Qt::LeftButton);
  EXPECT_EQ(play.Digit(), play.digit);
  // By now the mark is hidden and gets nothing more.
  play.game.Release(play.middle, Qt::MiddleButton);
  EXPECT_EQ(play.Steps(), 1);
  EXPECT_EQ(play.game.State().headers.SelectedRow, 9);
}

TEST(Board, ShowsWhatCanBeClicked) {
  Play play(3);
  const auto hover = [&](QPoint point) {
    QTest::mouseMove(play.game.Window().windowHandle(), point);
    play.game.Settle();
    return play.game.front_end.Windows().Board()->cursor().shape();
  };
  EXPECT_EQ(hover(play.middle), Qt::PointingHandCursor);
  EXPECT_EQ(hover(play.corner + QPoint(0, 8)), Qt::ArrowCursor);
  // A mark that goes takes the hand with it, and a finger needs no pointer before it.
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(play.game.front_end.Windows().Board(), &leave);
  QTest::mousePress(play.game.Window().windowHandle(), Qt::LeftButton, {}, play.middle);
  EXPECT_EQ(play.game.front_end.Windows().Board()->cursor().shape(), Qt::PointingHandCursor);
  play.game.Release(QPoint(1, 1));
  hover(play.middle);
  play.game.Click(play.middle, Qt::RightButton);
  EXPECT_EQ(play.game.front_end.Windows().Board()->cursor().shape(), Qt::ArrowCursor);
}

TEST(Board, PaintsOnlyWhatChanged) {
  Play play(3);
  play.game.front_end.Choices().SetDigitLens(false);
  BoardWidget& board = *play.game.front_end.Windows().Board();
  QTest::mouseMove(play.game.Window().windowHandle(), QPoint(1, 1));
  play.game.Settle();
  PaintWatch watch(board);
  play.game.Click(play.middle, Qt::RightButton);
  // The mark, and at fractional scales the pixels it shares with its neighbours.
  const QRect mark = board.PlaceOf(play.game.Main().Mark(play.digit)(play.cell)).adjusted(-1, -1, 1, 1);
  EXPECT_TRUE((watch.painted - mark).isEmpty());

  watch.painted = QRegion();
  play.game.clock.now += 61;
  EXPECT_TRUE(play.game.WaitFor([&] { return play.game.Main().LabelTijd.caption == "01:01"; }));
  EXPECT_TRUE(watch.painted.isEmpty());
}

// What is painted piece by piece is what the whole would be.
TEST(Board, LeavesNothingAsItWas) {
  Play play(3);
  MainWindow& main = play.game.Main();
  FormWindow& window = play.game.Window();
  const auto expect_fresh = [&](const std::string& after) {
    const QImage shown = dynamic_cast<QImage&>(*window.backingStore()->paintDevice()).copy();
    EXPECT_TRUE(shown == window.grab().toImage().convertToFormat(shown.format())) << after;
  };
  for (int digit = 1; digit <= 9; ++digit) {
    int cell = 0;
    while (!main.Mark(digit)(cell).visible) ++cell;
    play.game.ClickMark(cell, digit, Qt::RightButton);
    expect_fresh("discarding");
    play.game.ClickControl("CommandUndo");
    expect_fresh("undoing");
  }
  BoardWidget& board = *play.game.front_end.Windows().Board();
  const auto point_at = [&](QPoint point) {
    QTest::mouseMove(window.windowHandle(), point);
    play.game.Settle();
    expect_fresh("pointing");
  };
  point_at(play.middle);
  EXPECT_TRUE(play.game.WaitFor([&] { return board.Lens().has_value(); }));
  play.game.Press(play.middle);
  expect_fresh("pressing");
  point_at(play.middle + QPoint(0, 40));
  point_at(play.middle);
  play.game.Release(play.middle, Qt::LeftButton);
  point_at(QtGame::Corner(main.LabelRow(play.cell / 9)) + QPoint(17, 17));
  EXPECT_TRUE(play.game.WaitFor([&] { return !board.Lens().has_value(); }));
  play.game.Settle();
  expect_fresh("the lens has gone");
  play.game.Click(QtGame::Corner(main.LabelRow(play.cell / 9)) + QPoint(17, 17));
  play.game.Click(QtGame::Corner(main.LabelColumn(play.cell % 9)) + QPoint(17, 17));
  for (const char* each : {"CommandResetCell", "CommandHint", "CommandSolution", "CommandNew"}) {
    expect_fresh(std::string("before ") + each);
    play.game.ClickControl(each);
  }
  expect_fresh("opening");
}

TEST(Board, SaysHowToPlayBesideTheCells) {
  for (const int level : {1, 3}) {
    QtGame game(level);
    BoardWidget& board = *game.front_end.Windows().Board();
    const auto tip_at = [&](QPoint point) {
      QHelpEvent event(QEvent::ToolTip, point, board.mapToGlobal(point));
      QApplication::sendEvent(&board, &event);
      return QToolTip::text();
    };
    const QPoint cell = QtGame::Corner(game.Main().Grid(40)) + QPoint(20, 20);
    const QString tip = tip_at({60, 300});
    EXPECT_EQ(tip, level == 1 ? texts::kKeypadTip : texts::kMarksTip);
    EXPECT_EQ(tip_at({234, 300}), tip);  // the line between two boxes
    EXPECT_EQ(tip_at({581, 300}), tip);
    for (const QPoint elsewhere : {cell, QPoint(20, 20), QPoint(47, 300)}) {
      tip_at({60, 300});
      tip_at(elsewhere);
      EXPECT_TRUE(game.WaitFor([] { return QToolTip::text().isEmpty(); }, 5000)) << elsewhere.x();
    }
    EXPECT_EQ(tip_at(QtGame::Corner(game.Main().LabelRow(0)) + QPoint(9, 9)).toStdString(),
              texts::kHeaderTip);
    const auto* line = game.Window().findChild<QWidget*>("GuideLine");
    EXPECT_TRUE(line->isVisible());
    line->findChild<QAbstractButton*>()->click();
    EXPECT_FALSE(line->isVisible());
  }
}

TEST(Board, FollowsTheViewMenuAtOnce) {
  Play play(3);
  ViewChoices& choices = play.game.front_end.Choices();
  choices.SetSize(150);
  play.game.Settle();
  EXPECT_EQ(play.game.Window().size(), QSize(1152, 987));
  // A mark is where it is painted.
  const QPoint middle = (play.corner + QPoint(8, 8)) * 1.5;
  QTest::mouseMove(play.game.Window().windowHandle(), middle);
  BoardWidget& board = *play.game.front_end.Windows().Board();
  EXPECT_TRUE(play.game.WaitFor([&] { return board.Lens().has_value(); }));
  EXPECT_EQ(board.Lens()->digit, play.digit);
  choices.SetDigitLens(false);
  QTest::mouseMove(play.game.Window().windowHandle(), middle + QPoint(1, 0));
  EXPECT_TRUE(play.game.WaitFor([&] { return !board.Lens().has_value(); }));
  play.game.Click(middle);
  EXPECT_EQ(play.Digit(), play.digit);
  choices.SetSize(124);
  EXPECT_EQ(ViewChoices::Size(), 150);
  choices.SetSize(100);
}

}  // namespace
}  // namespace kestrel::testing
