// SPDX-License-Identifier: MIT
#include "qt/qt_game.h"

#include <QAbstractButton>
#include <QApplication>
#include <QTest>
#include <QWindow>

#include "core/stock_file.h"
#include "support/test_stock.h"
#include "ui/qt/board_access.h"
#include "ui/qt/text_conversion.h"

namespace kestrel::testing {

QtGame::QtGame(int level) {
  // The stock takes a moment to make and never changes.
  static const Bytes stock = EncodeStock(MakeTestStock());
  program_folder.Put(kStockFileName, {reinterpret_cast<const char*>(stock.data()), stock.size()});
  QObject::connect(&watch_, &QTimer::timeout, [this] { WatchBoxes(); });
  watch_.start(2);
  AllowLoops();
  if (level == kNotStarted) return;
  EXPECT_TRUE(front_end.Events().Start());
  Settle();
  if (level == 0) return;
  if (level != State().choices.SelectedLevel) ClickControl("OptionType(" + std::to_string(level) + ")");
  ClickControl("CommandNew");
}

void QtGame::Settle() {
  for (int i = 0; i < 3; ++i) {
    QApplication::processEvents();
    front_end.Events().RunWorkLeft();
  }
}

bool QtGame::WaitFor(const std::function<bool()>& what, int milliseconds) {
  return QTest::qWaitFor(what, milliseconds);
}

void QtGame::Expect(std::function<void(QWidget&)> action) {
  ForgetClosedBoxes();
  expected_.push_back(std::move(action));
}

void QtGame::ForgetClosedBoxes() {
  std::erase_if(seen_, [](const QPointer<QWidget>& each) {
    const QWidget* box = each.data();
    return box == nullptr || !box->isVisible();
  });
}

// Each new box is handed to the next expectation, outside this timer: the box may open another one.
void QtGame::WatchBoxes() {
  ForgetClosedBoxes();
  QWidget* modal = QApplication::activeModalWidget();
  if (modal == nullptr || std::find(seen_.begin(), seen_.end(), modal) != seen_.end()) return;
  seen_.emplace_back(modal);
  if (expected_.empty()) {
    const auto* box = qobject_cast<QMessageBox*>(modal);
    ADD_FAILURE() << "unexpected: " << qPrintable(modal->windowTitle()) << " "
                  << (box != nullptr ? qPrintable(box->text()) : "");
    modal->close();
    return;
  }
  QTimer::singleShot(0, modal, [modal, action = expected_.front()] { action(*modal); });
  expected_.pop_front();
}

void QtGame::ExpectBox(const QString& title, const QString& button) {
  Expect([title, button](QWidget& box) {
    EXPECT_EQ(box.windowTitle(), title);
    PressCaption(box, button);
  });
}

void AllowLoops() {
  QTimer::singleShot(0, [] { QCoreApplication::exit(); });
  QCoreApplication::exec();
}

void PressCaption(QWidget& box, const QString& caption) {
  for (QAbstractButton* button : box.findChildren<QAbstractButton*>()) {
    if (WithoutMnemonic(button->text().toStdString()) != caption) continue;
    button->click();
    return;
  }
  ADD_FAILURE() << "no button " << qPrintable(caption) << " in " << qPrintable(box.windowTitle());
  box.close();
}

void QtGame::Press(QPoint point, Qt::MouseButton button) {
  QTest::mousePress(Window().windowHandle(), button, Qt::NoModifier, point);
  Settle();
}

void QtGame::Release(QPoint point, Qt::MouseButton button) {
  QTest::mouseRelease(Window().windowHandle(), button, Qt::NoModifier, point);
  Settle();
}

void QtGame::Click(QPoint point, Qt::MouseButton button) {
  Press(point, button);
  Release(point, button);
}

void QtGame::ClickControl(std::string_view name) {
  QWidget* widget = Widget(name);
  ASSERT_NE(widget, nullptr) << name;
  const QPoint middle(widget->width() / 2, widget->height() / 2);
  if (widget->window() == &Window()) {
    Click(widget->mapTo(&Window(), middle));
  } else {
    QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, middle);
    Settle();
  }
}

QPoint QtGame::Corner(const Control& control) {
  return {control.left / kTwipsPerPixel, control.top / kTwipsPerPixel};
}

void QtGame::ClickMark(int cell, int digit, Qt::MouseButton button) {
  Click(Corner(Main().Mark(digit)(cell)) + QPoint(8, 8), button);
}

QWidget* QtGame::Widget(std::string_view name) {
  QWidget* found = nullptr;
  EachControl(Controls(), [&](FormId form, ControlId id, auto&) {
    if (FullName(id) == name) found = front_end.Windows().WidgetOf(form, id);
  });
  return found;
}

QObject* QtGame::Object(std::string_view name) {
  for (const auto& item : front_end.Windows().Board()->Items()) {
    if (item->objectName() == ToQString(name)) return item.get();
  }
  return Widget(name);
}

int QtGame::EmptyCell() {
  for (int cell = 0; cell < kCells; ++cell) {
    if (State().play.puzzle.CurrentDigits[cell] == 0) return cell;
  }
  return -1;
}

std::string QtGame::NextMark() {
  return "Mark" + std::to_string(SolutionOf(EmptyCell())) + "(" + std::to_string(EmptyCell()) + ")";
}

}  // namespace kestrel::testing
