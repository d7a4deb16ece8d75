// SPDX-License-Identifier: MIT
// Boxes and dialogs with real keys and clicks.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QSlider>
#include <QTableView>
#include <QTest>

#include "qt/qt_game.h"
#include "ui/qt/palette.h"

namespace kestrel::testing {
namespace {

// Types over what is in a field.
void Type(QLineEdit& field, const char* text) {
  field.setFocus();
  field.selectAll();
  QTest::keyClicks(&field, text);
}

TEST(Dialogs, OnlyYesQuits) {
  QtGame game(3);
  const auto close = [&game](EndReason expected) {
    game.Window().close();
    game.Settle();
    EXPECT_TRUE(game.Window().isVisible());
    EXPECT_EQ(game.front_end.TheGame().End(), expected);
  };
  game.Expect([](QWidget& box) { QTest::keyClick(&box, Qt::Key_Escape); });
  close(EndReason::None);
  game.Expect([](QWidget& box) { box.close(); });
  close(EndReason::None);
  game.ExpectBox("Quit Kestrel Sudoku", "Yes");
  close(EndReason::Quit);
}

TEST(Dialogs, OpenAsksUntilTheNumberFits) {
  QtGame game;
  game.Expect([](QWidget& box) {
    EXPECT_EQ(box.windowTitle(), "Sudoku number");
    auto* field = box.findChild<QLineEdit*>();
    EXPECT_EQ(field->selectedText(), "1");
    QTest::keyClicks(field, "101");
    PressCaption(box, "OK");
  });
  game.Expect([](QWidget& box) {
    // A click in the map fills the number in, and no more.
    auto* field = box.findChild<QLineEdit*>();
    auto* map = box.findChild<QTableView*>();
    const QRect place = map->visualRect(map->model()->index(4, 1));
    QTest::mouseClick(map->viewport(), Qt::LeftButton, {}, place.center());
    EXPECT_EQ(field->selectedText(), "42");
    QTest::keyClick(field, Qt::Key_Return);
  });
  game.ClickControl("CommandOpen");
  EXPECT_EQ(game.State().play.puzzle.PuzzleNumber, 42);
  game.ClickControl("CommandSolution");
  game.Expect([](QWidget& box) { QTest::keyClick(&box, Qt::Key_Escape); });
  game.ClickControl("CommandOpen");
  EXPECT_EQ(game.State().play.puzzle.PuzzleNumber, 42);
}

TEST(Records, FollowTheGame) {
  QtGame game(3);
  SudokuRecord& record = (*game.State().stockroom.stock)(3, 12);
  EXPECT_EQ(game.front_end.Records(), nullptr);
  game.ClickControl("StatusBar(4)");
  RecordsWindow* window = game.front_end.Records();
  ASSERT_NE(window, nullptr);
  const auto* map = window->findChild<QTableView*>();
  const auto twelve = [&] { return map->model()->index(1, 1).data(Qt::ToolTipRole).toString(); };
  EXPECT_EQ(twelve(), "Number 12: no best time yet");
  record.BestSeconds = 59;
  game.front_end.Events().Send({.control = {"Timer1"}, .kind = EventKind::Timer});
  EXPECT_EQ(twelve(), "Number 12: 00:59 by somebody else");
  EXPECT_TRUE(window->findChild<QListWidget*>()->item(0)->text().startsWith("somebody else: "));
  QTest::keyClick(window, Qt::Key_Escape);
  EXPECT_FALSE(window->isVisible());
}

// The text can be read on every shade, and a better time is darker.
TEST(Records, ShadesCanBeRead) {
  const QPalette palette = QApplication::palette();
  double last = 0;
  for (const double merit : {1.0, 0.5, 0.0}) {
    const QColor shade = ShadeOf(palette, merit);
    EXPECT_GE(ContrastRatio(palette.color(QPalette::Text), shade), 7);
    EXPECT_GT(shade.lightnessF(), last);
    last = shade.lightnessF();
  }
}

// What the recorded games cannot do: keys with nothing selected, and texts that must not be cut.
TEST(Dialogs, PlayersAnswerToKeys) {
  QtGame game;
  game.Expect([&game](QWidget& dialog) {
    FormNamen& form = game.Controls().names;
    auto* list = dialog.findChild<QListWidget*>("Naamlijst");
    auto* field = dialog.findChild<QLineEdit*>("NaamInvoerveld");
    EXPECT_EQ(dialog.focusWidget(), list);
    for (int i = 0; i < 2; ++i) {
      game.ClickControl("KnopNieuweSpeler");
      EXPECT_EQ(dialog.focusWidget(), field);
      Type(*field, "Ann");
      if (i == 1) {
        game.Expect([&dialog](QWidget& box) {
          EXPECT_EQ(box.parentWidget(), &dialog);
          const auto* text = box.findChild<QLabel*>("qt_msgbox_label");
          EXPECT_EQ(text->text().count('\n'), 3);
          EXPECT_GE(text->height(), text->sizeHint().height()) << "lines are cut";
          PressCaption(box, "OK");
        });
      }
      QTest::keyClick(field, Qt::Key_Return);
    }
    QTest::keyClick(field, Qt::Key_Escape);
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Home, Qt::Key_Up, Qt::Key_End}) {
      list->clearSelection();
      EXPECT_FALSE(form.KnopOK.enabled);
      QTest::keyClick(list, key);
      EXPECT_TRUE(form.KnopOK.enabled && form.Naamlijst.index == 0) << key;
    }
    game.ClickControl("KnopNieuweSpeler");
    Type(*field, "Bob");
    QTest::keyClick(field, Qt::Key_Return);
    list->setCurrentRow(0);
    QTest::keyClick(list, Qt::Key_Down);
    EXPECT_EQ(form.Naamlijst.index, 1);
    // Escape is the cancel button's again.
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
  });
  game.ClickControl("cmdPlayers");
  EXPECT_EQ(game.StillExpected(), 0U);
}

TEST(Dialogs, PrintChoicesAnswerToKeysAndMouse) {
  QtGame game(2);
  game.Expect([&game](QWidget& dialog) {
    FormPrint& form = game.Controls().print;
    // The slider goes where it is clicked, down to its lower edge.
    auto* slider = dialog.findChild<QSlider*>("PageSlider");
    QTest::mouseClick(slider, Qt::LeftButton, {}, QPoint(slider->width() - 3, slider->height() - 2));
    EXPECT_EQ(form.PageSlider.value, 10);
    QTest::mousePress(slider, Qt::LeftButton, {}, QPoint(2, 1));
    QTest::mouseMove(slider, QPoint(slider->width() / 2, 1));
    EXPECT_EQ(form.PageSlider.value, 6);
    QTest::mouseMove(slider, QPoint(2, 1));
    QTest::mouseRelease(slider, Qt::LeftButton);
    QTest::mouseMove(slider, QPoint(slider->width() / 2, 1));
    QTest::keyClick(slider, Qt::Key_Right);
    EXPECT_EQ(form.PageSlider.value, 2);
    QTest::keyClick(dialog.findChild<QComboBox*>("SudokuTypeKeuze"), Qt::Key_Down);
    EXPECT_EQ(form.SudokuTypeKeuze.index, 2);
    // What is typed and not left is taken with the dialog.
    Type(*dialog.findChild<QLineEdit*>("TextFrom"), "5x0");
    dialog.close();
  });
  game.ClickControl("CommandPrint");
  EXPECT_EQ(game.State().print_dialog.Remembered().first_number, 50);
}

TEST(Dialogs, KeysOfTheDesktopPressTheirButtons) {
  QtGame game(3);
  const int cell = game.EmptyCell();
  game.ClickMark(cell, game.SolutionOf(cell));
  const auto digit = [&] { return game.State().play.puzzle.CurrentDigits[cell] != 0; };
  const auto press = [&](Qt::Key key, Qt::KeyboardModifiers with = Qt::NoModifier) {
    game.Window().activateWindow();
    game.Settle();
    QTest::keyClick(&game.Window(), key, with);
    game.Settle();
  };
  press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_FALSE(digit());
  press(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_TRUE(digit());
  press(Qt::Key_Z, Qt::ControlModifier);
  press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_TRUE(digit());
  game.Expect([](QWidget& dialog) { dialog.close(); });
  press(Qt::Key_P, Qt::ControlModifier);
  EXPECT_EQ(game.StillExpected(), 0U);
  // Enter does not throw a level's best times away.
  game.Expect([](QWidget& box) { QTest::keyClick(&box, Qt::Key_Return); });
  game.ClickControl("RenewLevel(5)");
  EXPECT_EQ(game.State().stockroom.RenewingLevel, 0);
  press(Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_LT(ViewChoices::Size(), 100);
  press(Qt::Key_0, Qt::ControlModifier);
  press(Qt::Key_F1);
  EXPECT_TRUE(game.Controls().browser.window.open);
}

TEST(Dialogs, EnterTakesWhatTheCardProposes) {
  QtGame game;
  for (const auto& [key, level] : {std::pair{Qt::Key_F9, 0}, {Qt::Key_Return, 2}}) {
    QTest::keyClick(&game.Window(), key);
    game.Settle();
    EXPECT_EQ(game.State().play.puzzle.PuzzleLevel, level);
  }
  game.front_end.Choices().CloseGuide();
  game.ClickControl("CommandSolution");
  game.Window().setFocus();
  QTest::keyClick(&game.Window(), Qt::Key_Return);  // where no card proposes anything
  EXPECT_EQ(game.State().play.phase, PlayPhase::Over);
}

TEST(Dialogs, KeyboardReachesTheCommands) {
  QtGame game;
  QTest::keyClick(&game.Window(), Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), game.Widget("OptionType(2)"));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
  EXPECT_EQ(game.State().choices.SelectedLevel, 3);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), game.Widget("CommandNew"));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  game.Settle();
  EXPECT_EQ(game.State().play.puzzle.PuzzleLevel, 3);
  EXPECT_EQ(QApplication::focusWidget(), &game.Window());  // not the next button
  // By its letter, wherever the focus is.
  QTest::keyClick(&game.Window(), Qt::Key_T, Qt::AltModifier);
  EXPECT_TRUE(game.WaitFor([&] { return game.State().play.clock.ClockStopped; }));
  // A link is pressed by Enter, too.
  game.ExpectBox("Renew Selected Set of Sudokus", "Cancel");
  QWidget* link = game.Widget("RenewLevel(5)");
  link->setFocus();
  game.Main().CommandHelp.enabled = false;
  game.front_end.Windows().Sync();
  EXPECT_EQ(QApplication::focusWidget(), link);  // which another control does not take
  QTest::keyClick(link, Qt::Key_Return);
  EXPECT_EQ(game.State().stockroom.RenewingLevel, 0);
  EXPECT_EQ(game.StillExpected(), 0U);
}

}  // namespace
}  // namespace kestrel::testing
