// SPDX-License-Identifier: MIT
// The window as assistive tools see it: a game played through the accessibility interface alone.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAccessible>
#include <stdexcept>

#include "qt/qt_game.h"

namespace kestrel::testing {
namespace {

QAccessibleInterface& Access(QtGame& game, std::string_view name) {
  QAccessibleInterface* access = QAccessible::queryAccessibleInterface(game.Object(name));
  if (access == nullptr) throw std::runtime_error(std::string(name) + " cannot be reached");
  return *access;
}

QStringList Actions(QtGame& game, std::string_view name) {
  return Access(game, name).actionInterface()->actionNames();
}

void Do(QtGame& game, std::string_view name, const QString& action) {
  Access(game, name).actionInterface()->doAction(action);
  game.Settle();
}

QString Press() {
  return QAccessibleActionInterface::pressAction();
}

TEST(Access, TreeLeadsToEveryMarkAndBack) {
  QtGame game(3);
  QAccessibleInterface* board = QAccessible::queryAccessibleInterface(game.front_end.Windows().Board());
  // As a table, its cells are the board's, and know their headers.
  QAccessibleTableInterface* table = board->tableInterface();
  ASSERT_NE(table, nullptr);
  QAccessibleInterface* cell = table->cellAt(2, 6);
  EXPECT_EQ(cell, &Access(game, "Grid(24)"));
  EXPECT_EQ(board->indexOfChild(cell), 24);
  EXPECT_TRUE(cell->tableCellInterface()->rowIndex() == 2 && cell->tableCellInterface()->columnIndex() == 6);
  EXPECT_EQ(cell->tableCellInterface()->rowHeaderCells().constFirst(), &Access(game, "LabelRow(2)"));
  EXPECT_EQ(cell->tableCellInterface()->columnHeaderCells().constFirst(), &Access(game, "LabelColumn(6)"));
  EXPECT_EQ(table->rowDescription(2).toStdString(), "row C");
  EXPECT_TRUE(table->selectRow(2) && table->selectColumn(6));
  EXPECT_TRUE(cell->tableCellInterface()->isSelected() && table->selectedCells() == QList{cell});
  // The window is one, and has no start-up bars any more.
  QAccessibleInterface* window = QAccessible::queryAccessibleInterface(&game.Window());
  EXPECT_EQ(window->role(), QAccessible::Window);
  EXPECT_EQ(window->indexOfChild(&Access(game, "Picture3")), -1);
  for (int i = 0; i < window->childCount(); ++i) EXPECT_EQ(window->indexOfChild(window->child(i)), i);
  // What is under a point is what the mouse would reach there.
  QAccessibleInterface* mark = &Access(game, game.NextMark());
  EXPECT_EQ(board->childAt(mark->rect().center().x(), mark->rect().center().y()), mark);
  EXPECT_EQ(board->childAt(board->rect().x(), board->rect().y()), nullptr);
}

TEST(Access, MarksOfferTheirActions) {
  QtGame medium(3);
  const std::string name = medium.NextMark();
  EXPECT_EQ(Actions(medium, name), QStringList({Press(), "discard"}));
  Do(medium, name, "discard");
  EXPECT_EQ(medium.State().play.history.StepCount(), 1);
  EXPECT_TRUE(Access(medium, name).state().invisible);
  EXPECT_TRUE(Actions(medium, name).isEmpty());
  Do(medium, name, Press());
  EXPECT_EQ(medium.State().play.history.StepCount(), 1);

  QtGame easy(2);
  EXPECT_EQ(Actions(easy, easy.NextMark()), QStringList({Press()}));
}

// Assistive tools press nothing behind a dialog, and what they toggle goes back.
TEST(Access, StopsAtDialogs) {
  QtGame game(3);
  game.Expect([&game](QWidget& dialog) {
    Do(game, game.NextMark(), Press());
    EXPECT_EQ(game.State().play.history.StepCount(), 0);
    Do(game, "RenewLevel(5)", Press());  // would ask
    Do(game, "CommandSolution", Press());
    game.WaitFor([&] { return game.State().play.clock.ClockStopped; }, 300);
    EXPECT_FALSE(game.State().play.clock.ClockStopped);
    dialog.close();
  });
  game.ClickControl("cmdPlayers");
  game.ClickControl("CommandSolution");
  game.Main().chkSound.enabled = true;
  game.front_end.Windows().Sync();
  const bool sounds = game.Main().chkSound.value;
  const auto checked = [&game](const char* name) {
    return qobject_cast<QAbstractButton*>(game.Widget(name))->isChecked();
  };
  game.Expect([&](QWidget& dialog) {
    Do(game, "chkSound", QAccessibleActionInterface::toggleAction());
    Do(game, "OptionType(2)", QAccessibleActionInterface::toggleAction());
    EXPECT_TRUE(game.Main().chkSound.value == sounds && game.State().choices.SelectedLevel == 3);
    EXPECT_TRUE(checked("chkSound") == sounds && checked("OptionType(3)") && !checked("OptionType(2)"));
    dialog.close();
  });
  game.ClickControl("cmdPlayers");
  EXPECT_EQ(game.StillExpected(), 0U);
}

// A row of the technique list opens its page for who cannot click on it.
TEST(Access, TechniqueRowsAreLinks) {
  QtGame game(3);
  QWidget* row = game.Widget("LabelCount(6)");
  QTest::mouseClick(row, Qt::RightButton);
  QTest::mousePress(row, Qt::LeftButton);
  QTest::mouseRelease(row, Qt::LeftButton, {}, QPoint(-20, 5));
  EXPECT_FALSE(game.Controls().browser.window.open);
  QTest::mouseClick(row, Qt::LeftButton);
  EXPECT_TRUE(game.Controls().browser.window.open);
  game.front_end.Windows().WindowOf(FormId::Browser).close();
  game.Settle();
  EXPECT_FALSE(game.Controls().browser.window.open);
  Do(game, "LabelCount(6)", Press());
  EXPECT_TRUE(game.Controls().browser.window.open);
}

}  // namespace
}  // namespace kestrel::testing
