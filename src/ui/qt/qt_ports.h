// SPDX-License-Identifier: MIT
// Windows, boxes and help as the game asks for them, done with Qt. Built by the front end.
#pragma once

#include <QEventLoop>
#include <array>
#include <functional>

#include "forms/asker.h"
#include "forms/help_window.h"
#include "forms/screen.h"
#include "players/records.h"
#include "ui/qt/dispatcher.h"
#include "ui/qt/mirror.h"

namespace kestrel {

// Message and input boxes over the topmost window.
class QtAsker final : public Asker {
 public:
  // The best times of a level, 1..5, to look at while a number is asked for.
  using RecordsOfLevel = std::function<LevelRecords(int level)>;

  // Both must outlive this object.
  QtAsker(Mirror& mirror, Dispatcher& dispatcher, RecordsOfLevel records)
      : mirror_(mirror), dispatcher_(dispatcher), records_(std::move(records)) {}

  [[nodiscard]] Answer Message(const MessageBox& box) override;
  [[nodiscard]] std::optional<std::string> Input(const InputBox& box) override;

 private:
  Mirror& mirror_;
  Dispatcher& dispatcher_;
  RecordsOfLevel records_;
};

// For a run that nobody watches: messages go to standard error, and are answered as by closing the box.
class UnattendedAsker final : public Asker {
 public:
  [[nodiscard]] Answer Message(const MessageBox& box) override;
  [[nodiscard]] std::optional<std::string> Input(const InputBox& box) override;
};

class QtScreen final : public Screen {
 public:
  // Both must outlive this object. `on_main` is called once, before the main window comes onto the screen.
  QtScreen(Mirror& mirror, Dispatcher& dispatcher, std::function<void()> on_main)
      : mirror_(mirror), dispatcher_(dispatcher), on_main_(std::move(on_main)) {}

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
  std::function<void()> on_main_;
  std::array<QEventLoop*, 4> waiting_{};  // the loop that waits for a form to be hidden
};

class QtHelpWindow final : public HelpWindow {
 public:
  explicit QtHelpWindow(Mirror& mirror) : mirror_(mirror) {}
  void Navigate(std::string_view page) override;
  void OfferSolving(const DigitGrid* givens) override { mirror_.OfferSolving(givens); }

 private:
  Mirror& mirror_;
};

}  // namespace kestrel
