// SPDX-License-Identifier: MIT
// How the program ends from any depth: a flag that is set once, and ports that look at it. Used by the game.
#pragma once

#include "core/yield.h"
#include "forms/asker.h"
#include "forms/ports.h"
#include "forms/screen.h"

namespace kestrel {

// Once set it stays: every computation stops at its next step, every question is answered "ended", and all
// calls return normally.
class Ending {
 public:
  void Set(EndReason reason) {
    if (reason_ == EndReason::None) reason_ = reason;
  }
  [[nodiscard]] bool IsSet() const { return reason_ != EndReason::None; }
  [[nodiscard]] EndReason Reason() const { return reason_; }

 private:
  EndReason reason_ = EndReason::None;
};

// The front end's yield, as the game's computations see it.
class EndingYield final : public Yield {
 public:
  EndingYield(Yield& inner, Ending& ending) : inner_(inner), ending_(ending) {}

  [[nodiscard]] bool KeepGoing() override {
    if (!ending_.IsSet() && !inner_.KeepGoing()) ending_.Set(EndReason::Killed);
    return !ending_.IsSet();
  }

 private:
  Yield& inner_;
  Ending& ending_;
};

// The front end's questions, as the game's logic sees them.
class EndingAsker final : public Asker {
 public:
  EndingAsker(Asker& inner, Ending& ending) : inner_(inner), ending_(ending) {}

  [[nodiscard]] Answer Message(const MessageBox& box) override {
    const Answer answer = ending_.IsSet() ? Answer::Ended : inner_.Message(box);
    // The program may have ended behind the box, whatever its answer.
    if (answer == Answer::Ended) ending_.Set(EndReason::Killed);
    return ending_.IsSet() ? Answer::Ended : answer;
  }

  [[nodiscard]] std::optional<std::string> Input(const InputBox& box) override {
    std::optional<std::string> text;
    if (!ending_.IsSet()) text = inner_.Input(box);
    if (!text) ending_.Set(EndReason::Killed);
    return ending_.IsSet() ? std::nullopt : text;
  }

 private:
  Asker& inner_;
  Ending& ending_;
};

// The front end's windows, as the game's logic sees them.
class EndingScreen final : public Screen {
 public:
  EndingScreen(Screen& inner, Ending& ending) : inner_(inner), ending_(ending) {}

  int Width() override { return inner_.Width(); }
  int Height() override { return inner_.Height(); }
  void Show(FormId form) override {
    if (!ending_.IsSet()) inner_.Show(form);
  }
  void Hide(FormId form) override {
    if (!ending_.IsSet()) inner_.Hide(form);
  }
  [[nodiscard]] bool WaitUntilHidden(FormId form) override {
    if (!ending_.IsSet() && !inner_.WaitUntilHidden(form)) ending_.Set(EndReason::Killed);
    return !ending_.IsSet();
  }
  void Focus(FormId form, ControlId control) override {
    if (!ending_.IsSet()) inner_.Focus(form, control);
  }
  void Beep() override {
    if (!ending_.IsSet()) inner_.Beep();
  }

 private:
  Screen& inner_;
  Ending& ending_;
};

}  // namespace kestrel
