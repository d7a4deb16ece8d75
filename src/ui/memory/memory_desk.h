// SPDX-License-Identifier: MIT
// The windows and boxes of the in-memory front end: which are open, what waits for an answer, and controls
// that are written by the user's doings. Used by the script front end.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "ui/memory/stage.h"

namespace kestrel {

class MemoryDesk final : public Stage {
 public:
  void Attach(GameLoop& game, InputSource& input) override;

  // Asker
  [[nodiscard]] Answer Message(const MessageBox& box) override;
  [[nodiscard]] std::optional<std::string> Input(const InputBox& box) override;

  // Screen and help window
  void Show(FormId form) override;
  void Hide(FormId form) override;
  [[nodiscard]] bool WaitUntilHidden(FormId form) override;
  // The user's actions name the control themselves.
  void Focus(FormId, ControlId) override {}
  void Beep() override {}
  void Navigate(std::string_view) override {}
  void OfferSolving(const DigitGrid* /*givens*/) override {}

  // Stage
  [[nodiscard]] bool BoxOpen() const override { return !boxes_.empty(); }
  [[nodiscard]] std::optional<FormId> ModalForm() const override;
  [[nodiscard]] Reach Check(FormId form, ControlId id, const Control& control) override;
  bool GiveAnswer(std::string_view text) override;
  bool GiveCancel() override;
  void Click(FormId form, ControlId id) override;
  void Release(ControlId id, MouseButton button, int x, int y) override;
  void SelectLine(FormId form, ControlId id, int line) override;
  void DoubleClickLine(FormId form, ControlId id, int line) override;
  void MoveSlider(FormId form, ControlId id, int value) override;
  void Type(FormId form, ControlId id, std::string_view text) override;
  void Clear(FormId form, ControlId id) override;
  void PressKey(FormId form, ControlId id, Key key) override;
  void Leave(FormId form, ControlId id) override;
  void SetWindowState(WindowState state) override;
  void Close(FormId form) override;
  void Tick() override;

 private:
  // An open box. A message box has buttons; in an input box every text is an answer.
  struct Box {
    std::vector<Answer> buttons;
    bool is_input = false;
    Answer answer = Answer::Ended;
    std::string text = {};
    bool answered = false;
  };

  Box RunBox(Box box);
  bool PressButton(Box& box, std::string_view caption);
  template <class Change>
  void With(ControlId id, Change change);
  void Send(FormId form, ControlId id, EventKind kind, Key key = Key::None);

  GameLoop* game_ = nullptr;
  InputSource* input_ = nullptr;
  std::vector<Box> boxes_;
  std::vector<FormId> dialogs_;  // modal, the last one on top
};

}  // namespace kestrel
