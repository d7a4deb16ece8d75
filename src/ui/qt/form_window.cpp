// SPDX-License-Identifier: MIT
#include "ui/qt/form_window.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QPainter>

namespace kestrel {

namespace {

Qt::WindowFlags FlagsFor(FormId form) {
  switch (form) {
    case FormId::Main:
      return Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
             Qt::WindowCloseButtonHint;
    case FormId::Browser:
      return Qt::Window;
    default:
      return Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
  }
}

WindowState StateOf(Qt::WindowStates states) {
  if ((states & Qt::WindowMinimized) != 0) return WindowState::Minimized;
  return (states & Qt::WindowMaximized) != 0 ? WindowState::Maximized : WindowState::Normal;
}

}  // namespace

FormWindow::FormWindow(FormId form, bool modal, QWidget* parent)
    : QWidget(parent, FlagsFor(form)), form_(form) {
  if (modal) setWindowModality(Qt::ApplicationModal);
}

bool BehindDialog(const QWidget& widget) {
  const QWidget* modal = QApplication::activeModalWidget();
  return modal != nullptr && modal != widget.window();
}

bool FormWindow::CancelWaits() const {
  return cancel_button_ != nullptr && cancel_button_->isEnabled() && cancel_button_->isVisible();
}

void FormWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (on_close) on_close();
}

void FormWindow::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::WindowStateChange && on_state) on_state(StateOf(windowState()));
}

void FormWindow::moveEvent(QMoveEvent* event) {
  QWidget::moveEvent(event);
  if (on_place) on_place();
}

void FormWindow::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  if (on_place) on_place();
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && CancelWaits()) {
    cancel_button_->click();
    return;
  }
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    if (auto* focused = qobject_cast<QPushButton*>(focusWidget())) {
      focused->click();
    } else if (default_button_ != nullptr && default_button_->isVisible()) {
      default_button_->click();
    }
    return;
  }
  QWidget::keyPressEvent(event);
}

void FormWindow::paintEvent(QPaintEvent* event) {
  QWidget::paintEvent(event);
  if (!on_paint) return;
  QPainter painter(this);
  on_paint(painter);
}

}  // namespace kestrel
