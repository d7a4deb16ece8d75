// SPDX-License-Identifier: MIT
#include "ui/qt/qt_ports.h"

#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QSpacerItem>
#include <QStyle>
#include <algorithm>
#include <cstdio>

#include "ui/qt/form_window.h"
#include "ui/qt/help_view.h"
#include "ui/qt/look.h"
#include "ui/qt/number_box.h"
#include "ui/qt/text_conversion.h"

namespace kestrel {

namespace {

constexpr int kBoxWidth = 5100;  // twips; room for the titles

QMessageBox::Icon ToQtIcon(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::Critical:
      return QMessageBox::Critical;
    case MessageIcon::Exclamation:
      return QMessageBox::Warning;
    case MessageIcon::Information:
      return QMessageBox::Information;
    case MessageIcon::Question:
      return QMessageBox::Question;
    case MessageIcon::None:
      break;
  }
  return QMessageBox::NoIcon;
}

struct BoxButton {
  Answer answer;
  QMessageBox::StandardButton button;
  const char* caption;
};

std::vector<BoxButton> ButtonsOf(MessageButtons buttons) {
  switch (buttons) {
    case MessageButtons::OkCancel:
      return {{Answer::Ok, QMessageBox::Ok, "&OK"}, {Answer::Cancel, QMessageBox::Cancel, "&Cancel"}};
    case MessageButtons::YesNo:
      return {{Answer::Yes, QMessageBox::Yes, "&Yes"}, {Answer::No, QMessageBox::No, "&No"}};
    case MessageButtons::Ok:
      break;
  }
  return {{Answer::Ok, QMessageBox::Ok, "&OK"}};
}

}  // namespace

// ---- QtAsker ----

Answer QtAsker::Message(const MessageBox& box) {
  if (dispatcher_.Ended()) return Answer::Ended;
  mirror_.Sync();
  QMessageBox widget(mirror_.TopWindow());
  widget.setObjectName(QStringLiteral("MessageBox"));
  widget.setWindowTitle(ToQString(box.title));
  widget.setTextFormat(Qt::PlainText);
  widget.setText(ToQString(box.text));
  widget.setIcon(ToQtIcon(box.icon));
  // One line stands beside the middle of the sign.
  if (auto* text = widget.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"))) {
    text->setMinimumHeight(
        std::max(text->sizeHint().height(), widget.style()->pixelMetric(QStyle::PM_MessageBoxIconSize)));
    text->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  }
  const std::vector<BoxButton> buttons = ButtonsOf(box.buttons);
  for (const BoxButton& each : buttons) {
    widget.addButton(each.button)->setText(QLatin1String(each.caption));
  }
  if (auto* grid = qobject_cast<QGridLayout*>(widget.layout())) {
    grid->addItem(new QSpacerItem(Logical(kBoxWidth), 0), grid->rowCount(), 0, 1, grid->columnCount());
  }
  widget.setDefaultButton((box.cancel_is_default ? buttons.back() : buttons.front()).button);
  widget.setEscapeButton(buttons.back().button);
  const int pressed = widget.exec();
  // A box that was cut short answers 0, which is none of its buttons.
  for (const BoxButton& each : buttons) {
    if (pressed == each.button && !dispatcher_.Ended()) return each.answer;
  }
  return Answer::Ended;
}

std::optional<std::string> QtAsker::Input(const InputBox& box) {
  if (dispatcher_.Ended()) return std::nullopt;
  mirror_.Sync();
  NumberBox widget(box, mirror_.TopWindow());
  if (box.level != 0) widget.ShowMap(records_(box.level), box.level);
  const bool accepted = widget.exec() == QDialog::Accepted;
  if (dispatcher_.Ended()) return std::nullopt;
  return accepted ? widget.Answer() : std::string();
}

// ---- UnattendedAsker ----

Answer UnattendedAsker::Message(const MessageBox& box) {
  std::fprintf(stderr, "%s: %s\n", box.title.c_str(), box.text.c_str());
  return ButtonsOf(box.buttons).back().answer;
}

std::optional<std::string> UnattendedAsker::Input(const InputBox& /*box*/) {
  return std::string();
}

// ---- QtScreen ----

int QtScreen::Width() {
  return Twips(QApplication::primaryScreen()->availableGeometry().width());
}

int QtScreen::Height() {
  return Twips(QApplication::primaryScreen()->availableGeometry().height());
}

void QtScreen::Show(FormId form) {
  Window& window = mirror_.Controls().WindowOf(form);
  if (window.open) return;
  window.open = true;
  FormWindow& widget = mirror_.WindowOf(form);
  mirror_.Sync();
  mirror_.FocusFirst(form);
  QPoint corner(Logical(window.left), Logical(window.top));
  if (form == FormId::Main) {
    on_main_();
    // The title bar stays in reach where the window is larger than the screen.
    const QRect screen = QApplication::primaryScreen()->availableGeometry();
    corner = {std::max(screen.x(), corner.x()), std::max(screen.y(), corner.y())};
  }
  if (form != FormId::Browser) widget.move(corner);
  if (window.state == WindowState::Maximized) {
    widget.showMaximized();
  } else {
    widget.show();
  }
}

void QtScreen::Hide(FormId form) {
  Window& window = mirror_.Controls().WindowOf(form);
  if (!window.open) return;
  window.open = false;
  if (FormWindow* widget = mirror_.ExistingWindow(form)) widget->hide();
  QEventLoop*& loop = waiting_[static_cast<std::size_t>(form)];
  if (loop != nullptr) loop->quit();
}

bool QtScreen::WaitUntilHidden(FormId form) {
  if (dispatcher_.Ended()) return false;
  mirror_.Sync();
  if (mirror_.Controls().WindowOf(form).open) {
    QEventLoop loop;
    QEventLoop*& waiting = waiting_[static_cast<std::size_t>(form)];
    waiting = &loop;
    loop.exec();
    waiting = nullptr;
  }
  return !dispatcher_.Ended();
}

void QtScreen::Focus(FormId form, ControlId control) {
  mirror_.Sync();
  if (QWidget* widget = mirror_.WidgetOf(form, control)) widget->setFocus();
}

void QtScreen::Beep() {
  QApplication::beep();
}

// ---- QtHelpWindow ----

void QtHelpWindow::Navigate(std::string_view page) {
  FormWindow& window = mirror_.WindowOf(FormId::Browser);
  mirror_.Help()->Navigate(page);
  if (!window.isVisible()) return;
  if (window.isMinimized()) window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
  window.raise();
  window.activateWindow();
}

}  // namespace kestrel
