// SPDX-License-Identifier: MIT
// A top-level window: the main window, a dialog or the help window. It decides nothing; what the user does to
// it goes to whoever made it. Used by the mirror.
#pragma once

#include <QPushButton>
#include <QWidget>
#include <functional>

#include "forms/event.h"

namespace kestrel {

// True while a dialog or box that is not the widget's own window is open in front of it.
[[nodiscard]] bool BehindDialog(const QWidget& widget);

class FormWindow final : public QWidget {
 public:
  FormWindow(FormId form, bool modal, QWidget* parent);

  [[nodiscard]] FormId Form() const { return form_; }

  // The buttons that Enter and Escape press.
  void SetDefaultButton(QPushButton* button) { default_button_ = button; }
  void SetCancelButton(QPushButton* button) { cancel_button_ = button; }
  // True when Escape would press the cancel button.
  [[nodiscard]] bool CancelWaits() const;

  std::function<void()> on_close;             // the close button; the window stays
  std::function<void(WindowState)> on_state;  // minimised, maximised, restored
  std::function<void()> on_place;             // moved or resized
  std::function<void(QPainter&)> on_paint;    // what is painted under the controls

 protected:
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  FormId form_;
  QPushButton* default_button_ = nullptr;
  QPushButton* cancel_button_ = nullptr;
};

}  // namespace kestrel
