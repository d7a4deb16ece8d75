// SPDX-License-Identifier: MIT
// Windows, boxes and help as the game asks for them, done with Qt. Built by the front end.
#pragma once

#include <QEventLoop>
#include <array>

#include "forms/asker.h"
#include "forms/help_window.h"
#include "forms/screen.h"
#include "ui/qt/dispatcher.h"
#include "ui/qt/mirror.h"

namespace kestrel {

// Message and input boxes over the topmost window.
class QtAsker final : public Asker {
 public:
  // Both must outlive this object.
  QtAsker(Mirror& mirror, Dispatcher& dispatcher) : mirror_(mirror), dispatcher_(dispatcher) {}

  [[nodiscard]] Answer Message(const MessageBox& box) override;
  [[nodiscard]] std::optional<std::string> Input(const InputBox& box) override;

 private:
  Mirror& mirror_;
  Dispatcher& dispatcher_;
};

// For a run that nobody watches: messages go to standard error, and are answered as by closing the box.
class UnattendedAsker final : public Asker {
 public:
  [[nodiscard]] Answer Message(const MessageBox& box) override;
  [[nodiscard]] std::optional<std::string> Input(const InputBox& box) override;
};

class QtScreen final : public Screen {
 public:
  // Both must outlive this object.
  QtScreen(Mirror& mirror, Dispatcher& dispatcher) : mirror_(mirror), dispatcher_(dispatcher) {}

  int Width() override;
  int Height() override;
  void Show(FormId form) override;
  void Hide(FormId form) override;
  [[nodiscard]] bool WaitUntilHidden(FormId form) override;
  void Focus(FormId form, ControlId control) override;
  void Beep() override;

 private:
  Mirror& mirror_;
  Dispatcher& dispatcher_;
  std::array<QEventLoop*, 4> waiting_{};  // the loop that waits for a form to be hidden
};

class QtHelpWindow final : public HelpWindow {
 public:
  explicit QtHelpWindow(Mirror& mirror) : mirror_(mirror) {}
  void Navigate(std::string_view page) override;

 private:
  Mirror& mirror_;
};

}  // namespace kestrel
