// SPDX-License-Identifier: MIT
// Qt's text box, list and slider with the events that the game wants from them. Used by the mirror.
#pragma once

#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QSlider>
#include <functional>

#include "forms/event.h"

namespace kestrel {

// Enter is always the box's own; Escape is when `escape_is_taken` says that no cancel button waits for it.
class TextField final : public QLineEdit {
 public:
  explicit TextField(QWidget* parent) : QLineEdit(parent) {}

  std::function<void(Key)> on_key;
  std::function<void()> on_leave;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
};

// A list of lines of which one or none is selected.
class LineList final : public QListWidget {
 public:
  explicit LineList(QWidget* parent);

  // The selected line from 0, -1 for none.
  [[nodiscard]] int Selected() const;
  void Select(int line);

 protected:
  // With nothing selected, Down and Home select the first line, Up and End the last.
  void keyPressEvent(QKeyEvent* event) override;
};

// A slider that answers over its whole height and goes to the value under the pointer.
class StepSlider final : public QSlider {
 public:
  explicit StepSlider(QWidget* parent);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  [[nodiscard]] int ValueAt(const QMouseEvent& event) const;
};

}  // namespace kestrel
