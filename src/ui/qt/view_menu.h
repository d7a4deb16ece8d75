// SPDX-License-Identifier: MIT
// The View menu behind its small button: size, colours, digit lens, records. Made by the main window.
#pragma once

#include <QMenu>
#include <QPushButton>
#include <functional>
#include <memory>

#include "ui/qt/view_choices.h"

namespace kestrel {

class ViewMenu final : public QPushButton {
 public:
  // `choices` must outlive the menu.
  ViewMenu(ViewChoices& choices, QWidget* parent);

  // After a change of the look.
  void PlaceButton();

  // Opens the records; the menu has no entry for them while this is empty.
  std::function<void()> on_records;

 private:
  void AddShortcuts();
  void Step(int direction);
  void FillMenu();
  void AddSizes();
  void AddColours();
  QAction* AddChoice(const QString& text, bool chosen, bool possible, const std::function<void()>& choose);

  ViewChoices& choices_;
  QMenu menu_;
};

}  // namespace kestrel
