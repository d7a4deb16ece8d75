// SPDX-License-Identifier: MIT
// The widgets against the controls: each shows what its control says, and what the user changes arrives
// there.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QRadioButton>
#include <QSlider>
#include <QTest>

#include "qt/qt_game.h"
#include "ui/qt/input_widgets.h"
#include "ui/qt/small_widgets.h"
#include "ui/qt/text_conversion.h"

namespace kestrel::testing {
namespace {

// What a widget shows of its control.
template <class C>
void ExpectShown(const QWidget& widget, const C& control) {
  if constexpr (requires { control.value; }) {
    const char* property = std::is_same_v<C, ProgressBar> ? "value" : "checked";
    EXPECT_EQ(widget.property(property).toInt(), static_cast<int>(control.value));
  } else if constexpr (std::is_same_v<C, Button>) {
    EXPECT_EQ(widget.property("text").toString(), WithMnemonic(control.caption, control.mnemonic));
  } else if constexpr (std::is_same_v<C, StatusPanel>) {
    EXPECT_EQ(dynamic_cast<const StatusLabel&>(widget).Caption(), ToQString(control.caption));
  } else if constexpr (std::is_same_v<C, Label>) {
    const auto* text = dynamic_cast<const TextLabel*>(&widget);
    EXPECT_EQ(text != nullptr ? text->Caption() : widget.property("text").toString(),
              ToQString(control.caption));
  }
}

int ExpectAllShown(QtGame& game) {
  int compared = 0;
  EachControl(game.Main(), [&](ControlId id, auto& control) {
    QWidget* widget = game.front_end.Windows().WidgetOf(FormId::Main, id);
    if (widget == nullptr) return;
    ++compared;
    const std::string name = FullName(id);
    SCOPED_TRACE(name);
    EXPECT_EQ(widget->objectName().toStdString(), name);
    EXPECT_EQ(widget->isEnabled(), control.enabled);
    EXPECT_EQ(!widget->isHidden(), control.visible);
    EXPECT_EQ(widget->mapTo(&game.Window(), QPoint(0, 0)), QtGame::Corner(control));
    const TipState state{game.State().play.puzzle.MarksAreCandidates(), 0};
    const std::string tip = StateTip(game.Main(), state, id);
    EXPECT_EQ(widget->toolTip(), ToQString(tip.empty() ? control.tooltip : tip));
    EXPECT_FALSE(widget->accessibleName().isEmpty() && !widget->isHidden() && id.name != "StatusBar");
    ExpectShown(*widget, control);
  });
  EXPECT_EQ(game.Window().windowTitle(), ToQString(game.Main().window.caption));
  return compared;
}

TEST(Mirror, ShowsTheControlsInEveryState) {
  QtGame game;
  // All but window, timer, and what the board paints.
  EXPECT_EQ(ExpectAllShown(game), 44 + 3 + 5 + 5 + 6 + 3 + 11 + 5);
  for (const char* pressed : {"OptionType(3)", "CommandNew", "CommandHint", "CommandSolution"}) {
    game.ClickControl(pressed);
    ExpectAllShown(game);
  }
  EXPECT_EQ(game.Main().StatusBar(1).caption, "Level: Medium");
}

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
