// SPDX-License-Identifier: MIT
// The widgets against the controls: each shows what its control says, and what the user changes arrives
// there.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QRadioButton>
#include <QSlider>
#include <QTest>

#include "qt/qt_game.h"

namespace kestrel::testing {
namespace {

// A change that the logic makes reaches the widget and does not come back as the user's.
TEST(Mirror, DoesNotEchoTheLogic) {
  QtGame game;
  game.Expect([&game](QWidget& dialog) {
    FormPrint& form = game.Controls().print;
    const std::string before = form.LabelTo.caption;
    form.PageSlider.value = 4;
    form.SudokuTypeKeuze.index = 2;
    form.OptionAantal(0).value = false;
    form.OptionAantal(2).value = true;
    game.front_end.Windows().Sync();
    EXPECT_EQ(dialog.findChild<QSlider*>("PageSlider")->value(), 4);
    EXPECT_EQ(dialog.findChild<QComboBox*>("SudokuTypeKeuze")->currentIndex(), 2);
    EXPECT_TRUE(dialog.findChild<QRadioButton*>("OptionAantal(2)")->isChecked());
    EXPECT_FALSE(dialog.findChild<QRadioButton*>("OptionAantal(0)")->isChecked());
    EXPECT_EQ(form.LabelTo.caption, before);
    dialog.close();
  });
  game.ClickControl("CommandPrint");
  EXPECT_EQ(game.StillExpected(), 0U);
}

TEST(Mirror, FollowsTheWindow) {
  QtGame game(3);
  game.Window().move(37, 41);
  game.Settle();
  EXPECT_EQ(game.Main().window.left, 37 * 15);
  EXPECT_EQ(game.Main().window.top, 41 * 15);
  game.clock.now += 5;
  EXPECT_TRUE(game.WaitFor([&] { return game.Main().LabelTijd.caption == "00:05"; }));
  game.Window().setWindowState(Qt::WindowMinimized);
  game.Settle();
  EXPECT_EQ(game.Main().window.state, WindowState::Minimized);
  EXPECT_TRUE(game.State().play.clock.ClockPaused);
  game.clock.now += 600;
  game.Window().setWindowState(Qt::WindowNoState);
  game.Settle();
  EXPECT_FALSE(game.State().play.clock.ClockPaused);
  game.clock.now += 1;
  EXPECT_TRUE(game.WaitFor([&] { return game.Main().LabelTijd.caption == "00:06"; }));
}

}  // namespace
}  // namespace kestrel::testing
