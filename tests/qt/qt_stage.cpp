// SPDX-License-Identifier: MIT
#include "qt/qt_stage.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QListWidget>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPointer>
#include <QSlider>
#include <QStyle>
#include <QTest>
#include <QWindow>

#include "qt/qt_game.h"
#include "ui/qt/board_widget.h"
#include "ui/qt/form_window.h"
#include "ui/qt/input_widgets.h"
#include "ui/qt/shortcuts.h"
#include "ui/qt/small_widgets.h"
#include "ui/qt/text_conversion.h"

namespace kestrel::testing {

namespace {

void ClickAt(QWidget& widget, QPoint point, Qt::KeyboardModifiers keys = Qt::NoModifier) {
  QTest::mouseClick(widget.window()->windowHandle(), Qt::LeftButton, keys,
                    widget.mapTo(widget.window(), point));
}

// The box or dialog that has all input.
QWidget* Modal() {
  return QApplication::activeModalWidget();
}

QAbstractButton* ButtonOf(QWidget& box, std::string_view caption) {
  for (QAbstractButton* button : box.findChildren<QAbstractButton*>()) {
    if (WithoutMnemonic(button->text().toStdString()) == ToQString(caption)) return button;
  }
  return nullptr;
}

// What a widget shows of its control.
template <class C>
void ExpectShown(const QWidget& widget, const C& control) {
  if constexpr (requires { control.value; }) {
    const char* property = std::is_same_v<decltype(control.value), int> ? "value" : "checked";
    EXPECT_EQ(widget.property(property).toInt(), static_cast<int>(control.value));
  } else if constexpr (std::is_same_v<C, Button>) {
    EXPECT_EQ(widget.property("text").toString(), WithMnemonic(control.caption, control.mnemonic));
  } else if constexpr (std::is_same_v<C, StatusPanel>) {
    EXPECT_EQ(dynamic_cast<const StatusLabel&>(widget).Caption(), ToQString(control.caption));
  } else if constexpr (std::is_same_v<C, TextBox>) {
    EXPECT_EQ(widget.property("text").toString(), ToQString(control.text));
  } else if constexpr (std::is_same_v<C, ComboBox>) {
    EXPECT_EQ(widget.property("currentIndex").toInt(), control.index);
  } else if constexpr (std::is_same_v<C, ListBox>) {
    const auto& list = dynamic_cast<const LineList&>(widget);
    EXPECT_EQ(list.Selected(), control.index);
    ASSERT_EQ(list.count(), static_cast<int>(control.lines.size()));
    for (int i = 0; i < list.count(); ++i) EXPECT_EQ(list.item(i)->text(), ToQString(control.lines[i]));
  } else if constexpr (std::is_same_v<C, Label>) {
    const auto* text = dynamic_cast<const TextLabel*>(&widget);
    EXPECT_EQ(text != nullptr ? text->Caption() : widget.property("text").toString(),
              ToQString(control.caption));
  }
}

// Over what is in the field.
void TypeAll(QLineEdit& field, std::string_view text) {
  for (const char32_t key : ToQString(text).toUcs4()) {
    QTest::sendKeyEvent(QTest::Click, &field, Qt::Key_unknown, QString::fromUcs4(&key, 1), Qt::NoModifier);
  }
}

}  // namespace

QtStage::QtStage()
    : mirror_(sink_,
              {[this] {
                 return TipState{state_->play.puzzle.MarksAreCandidates(), state_->stockroom.RenewingLevel};
               },
               choices_, files_, QString()}),
      asker_(mirror_, dispatcher_,
             [this](int level) { return RecordsOf(*state_->stockroom.stock, state_->players, level); }),
      screen_(mirror_, dispatcher_, [this] { InstallShortcuts(mirror_); }),
      help_(mirror_) {
  AllowLoops();
}

void QtStage::Attach(GameLoop& game, InputSource& input) {
  state_ = &dynamic_cast<Game&>(game).State();
  game_.game = &game;
  input_ = &input;
  mirror_.Attach(game.Controls());
  dispatcher_.Attach(game_, [this] { mirror_.Sync(); });
}

// ---- boxes and dialogs: while one waits, its own loop takes the next lines ----

template <class Wait>
auto QtStage::Play(const std::function<bool()>& over, Wait wait) {
  QTimer lines;
  bool busy = false;
  QObject::connect(&lines, &QTimer::timeout, [&] {
    if (busy || over()) return;
    busy = true;
    if (!input_->NextAction()) {
      game_.cut_short = true;
      QCoreApplication::exit();
    }
    busy = false;
  });
  lines.start(0);
  return wait();
}

Answer QtStage::Message(const MessageBox& box) {
  QPointer<QWidget> open;
  return Play(
      [&] {
        if (open == nullptr) open = Modal();
        return open == nullptr || !open->isVisible();
      },
      [&] { return asker_.Message(box); });
}

std::optional<std::string> QtStage::Input(const InputBox& box) {
  QPointer<QWidget> open;
  return Play(
      [&] {
        if (open == nullptr) open = Modal();
        return open == nullptr || !open->isVisible();
      },
      [&] { return asker_.Input(box); });
}

bool QtStage::WaitUntilHidden(FormId form) {
  return Play([&] { return !mirror_.Controls().WindowOf(form).open; },
              [&] { return screen_.WaitUntilHidden(form); });
}

bool QtStage::BoxOpen() const {
  return Modal() != nullptr && dynamic_cast<FormWindow*>(Modal()) == nullptr;
}

std::optional<FormId> QtStage::ModalForm() const {
  for (const FormId form : {FormId::Names, FormId::Print}) {
    const FormWindow* window = mirror_.ExistingWindow(form);
    if (window != nullptr && window->isVisible()) return form;
  }
  return std::nullopt;
}

bool QtStage::GiveAnswer(std::string_view text) {
  if (!BoxOpen()) return false;
  if (auto* field = Modal()->findChild<QLineEdit*>()) {
    QTest::keyClick(field, Qt::Key_Delete);  // what was proposed is selected
    TypeAll(*field, text);
    text = "OK";
  }
  QAbstractButton* button = ButtonOf(*Modal(), text);
  if (button != nullptr) ClickAt(*button, button->rect().center());
  return button != nullptr;
}

bool QtStage::GiveCancel() {
  QAbstractButton* button = BoxOpen() ? ButtonOf(*Modal(), "Cancel") : nullptr;
  if (button != nullptr) ClickAt(*button, button->rect().center());
  return button != nullptr;
}

// ---- controls ----

void QtStage::CompareAll() {
  const TipState state{state_->play.puzzle.MarksAreCandidates(), state_->stockroom.RenewingLevel};
  EachControl(mirror_.Controls(), [&](FormId form, ControlId id, auto& control) {
    using Kind = std::remove_cvref_t<decltype(control)>;
    const FormWindow* window = mirror_.ExistingWindow(form);
    if (window == nullptr || !window->isVisible()) return;
    if constexpr (std::is_same_v<Kind, kestrel::Window>) {
      EXPECT_EQ(window->windowTitle(), ToQString(control.caption));
      return;
    }
    const QWidget* widget = mirror_.WidgetOf(form, id);
    if (widget == nullptr) return;
    const std::string name = FullName(id);
    SCOPED_TRACE(name);
    EXPECT_EQ(widget->objectName().toStdString(), name);
    EXPECT_EQ(widget->isEnabled(), control.enabled);
    EXPECT_EQ(!widget->isHidden(), control.visible);
    EXPECT_EQ(widget->mapTo(window, QPoint(0, 0)), QtGame::Corner(control));
    const std::string tip = StateTip(mirror_.Controls().main, state, id);
    EXPECT_EQ(widget->toolTip(), ToQString(tip.empty() ? control.tooltip : tip));
    EXPECT_FALSE(widget->accessibleName().isEmpty() && !widget->isHidden() && id.name != "StatusBar");
    ExpectShown(*widget, control);
  });
}

// What the board paints has no widget.
Reach QtStage::Check(FormId form, ControlId id, const Control& control) {
  mirror_.Sync();
  CompareAll();
  FormWindow* window = mirror_.ExistingWindow(form);
  if (Modal() != nullptr && Modal() != window) return Reach::Modal;
  if (window == nullptr || !window->isVisible()) return Reach::Hidden;
  const QWidget* widget = mirror_.WidgetOf(form, id);
  if (!(widget == nullptr ? control.visible : widget->isVisible())) return Reach::Hidden;
  return (widget == nullptr ? control.enabled : widget->isEnabled()) ? Reach::Done : Reach::Disabled;
}

QWidget& QtStage::Live(FormId form, ControlId id) {
  return *mirror_.WidgetOf(form, id);
}

void QtStage::Click(FormId form, ControlId id) {
  QWidget* widget = mirror_.WidgetOf(form, id);
  // A check box answers where its sign and its text are.
  if (widget != nullptr) ClickAt(*widget, QPoint(std::min(8, widget->width() / 2), widget->height() / 2));
}

void QtStage::Release(ControlId id, MouseButton button, int x, int y) {
  const MainWindow& main = mirror_.Controls().main;
  const Label& label = id.digit != 0           ? main.Mark(id.digit)(id.index)
                       : id.name == "LabelRow" ? main.LabelRow(id.index)
                                               : main.LabelColumn(id.index);
  const auto which = button == MouseButton::Left    ? Qt::LeftButton
                     : button == MouseButton::Right ? Qt::RightButton
                                                    : Qt::MiddleButton;
  const auto send = [&](QEvent::Type type, int left, int top, Qt::MouseButtons down) {
    const QPointF point((left + 0.5) / kTwipsPerPixel, (top + 0.5) / kTwipsPerPixel);
    BoardWidget& board = *mirror_.Board();
    QMouseEvent event(type, point, board.mapToGlobal(point), which, down, Qt::NoModifier);
    QApplication::sendEvent(&board, &event);
  };
  send(QEvent::MouseButtonPress, label.left + 120, label.top + 120, which);
  send(QEvent::MouseButtonRelease, label.left + x, label.top + y, Qt::NoButton);
}

void QtStage::SelectLine(FormId form, ControlId id, int line) {
  QWidget& widget = Live(form, id);
  if (auto* combo = qobject_cast<QComboBox*>(&widget)) {
    combo->showPopup();
    combo->view()->setCurrentIndex(combo->model()->index(line, 0));
    QTest::keyClick(combo->view(), Qt::Key_Return);
    return;
  }
  auto& list = dynamic_cast<QListWidget&>(widget);
  const int clicked = line < 0 ? list.currentRow() : line;
  if (clicked < 0) return;
  list.scrollToItem(list.item(clicked));
  ClickAt(*list.viewport(), list.visualItemRect(list.item(clicked)).center(),
          line < 0 ? Qt::ControlModifier : Qt::NoModifier);
}

void QtStage::DoubleClickLine(FormId form, ControlId id, int line) {
  auto& list = dynamic_cast<QListWidget&>(Live(form, id));
  list.scrollToItem(list.item(line));
  const QPoint point = list.visualItemRect(list.item(line)).center();
  QTest::mouseDClick(list.window()->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                     list.viewport()->mapTo(list.window(), point));
}

void QtStage::MoveSlider(FormId form, ControlId id, int value) {
  auto& slider = dynamic_cast<QSlider&>(Live(form, id));
  const int handle = slider.style()->pixelMetric(QStyle::PM_SliderLength, nullptr, &slider);
  const int x =
      QStyle::sliderPositionFromValue(slider.minimum(), slider.maximum(), value, slider.width() - handle);
  ClickAt(slider, QPoint(x + handle / 2, slider.height() / 2));
}

// With the focus in it.
QLineEdit& QtStage::Field(FormId form, ControlId id) {
  auto& field = dynamic_cast<QLineEdit&>(Live(form, id));
  if (!field.hasFocus()) field.setFocus(Qt::MouseFocusReason);
  return field;
}

void QtStage::Type(FormId form, ControlId id, std::string_view text) {
  QLineEdit& field = Field(form, id);
  field.end(false);
  TypeAll(field, text);
}

void QtStage::Clear(FormId form, ControlId id) {
  QLineEdit& field = Field(form, id);
  field.selectAll();
  QTest::keyClick(&field, Qt::Key_Delete);
}

void QtStage::PressKey(FormId form, ControlId id, Key key) {
  QTest::keyClick(&Field(form, id), key == Key::Enter ? Qt::Key_Return : Qt::Key_Escape);
}

void QtStage::Leave(FormId form, ControlId id) {
  QTest::keyClick(&Field(form, id), Qt::Key_Tab);
}

void QtStage::SetWindowState(WindowState state) {
  mirror_.WindowOf(FormId::Main)
      .setWindowState(state == WindowState::Minimized   ? Qt::WindowMinimized
                      : state == WindowState::Maximized ? Qt::WindowMaximized
                                                        : Qt::WindowNoState);
}

void QtStage::Close(FormId form) {
  mirror_.WindowOf(form).close();
}

void QtStage::Tick() {
  Event tick;
  tick.control = {"Timer1"};
  tick.kind = EventKind::Timer;
  dispatcher_.Send(tick);
}

}  // namespace kestrel::testing
