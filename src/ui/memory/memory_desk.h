// SPDX-License-Identifier: MIT
// The windows and boxes of the in-memory front end: which are open, and what waits for an answer. Used by
// User and the script front end.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "forms/asker.h"
#include "forms/ports.h"
#include "forms/screen.h"
#include "ui/memory/transcript.h"

namespace kestrel {

// Whoever plays the user: lets the game wait inside a box or dialog while further actions arrive.
class InputSource {
 public:
  InputSource() = default;
  InputSource(const InputSource&) = delete;
  InputSource& operator=(const InputSource&) = delete;
  virtual ~InputSource() = default;
  // Does the next action. False: there is none any more, the program is to end where it stands.
  [[nodiscard]] virtual bool NextAction() = 0;
};

// "OK", "Cancel", "Yes", "No".
std::string_view ButtonCaption(Answer answer);

class MemoryDesk final : public Asker, public Screen {
 public:
  // The size of the screen, 1920 x 1080 pixels.
  static constexpr int kScreenWidth = 1920 * kTwipsPerPixel;
  static constexpr int kScreenHeight = 1080 * kTwipsPerPixel;

  // Both must outlive this object.
  MemoryDesk(InputSource& input, Transcript& transcript) : input_(input), transcript_(transcript) {}

  // The forms to show and hide; before Start.
  void Attach(Forms& forms) { forms_ = &forms; }

  // Asker
  [[nodiscard]] Answer Message(const MessageBox& box) override;
  [[nodiscard]] std::optional<std::string> Input(const InputBox& box) override;

  // Screen
  int Width() override { return kScreenWidth; }
  int Height() override { return kScreenHeight; }
  void Show(FormId form) override;
  void Hide(FormId form) override;
  [[nodiscard]] bool WaitUntilHidden(FormId form) override;
  void Focus(FormId form, ControlId control) override;
  void Beep() override;

  // True while a message or input box is open; nothing else gets input then.
  [[nodiscard]] bool BoxOpen() const { return !boxes_.empty(); }
  // The modal dialog that is open, if any.
  [[nodiscard]] std::optional<FormId> ModalForm() const;
  // True when the main window gets no input.
  [[nodiscard]] bool MainBlocked() const { return BoxOpen() || ModalForm().has_value(); }
  // True when a form gets input: it is not behind a box or a modal dialog.
  [[nodiscard]] bool Reachable(FormId form) const;

  // Presses a button of the open message box, or answers the open input box; false when there is no such
  // button or box.
  bool GiveAnswer(std::string_view text);
  bool GiveCancel();

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

  InputSource& input_;
  Transcript& transcript_;
  Forms* forms_ = nullptr;
  std::vector<Box> boxes_;
  std::vector<FormId> dialogs_;  // modal, the last one on top
};

}  // namespace kestrel
