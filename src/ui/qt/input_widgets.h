// SPDX-License-Identifier: MIT
// Qt's text box and list with the events that the game wants from them. Used by the mirror.
#pragma once

#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
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
};

}  // namespace kestrel
