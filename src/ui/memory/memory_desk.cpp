// SPDX-License-Identifier: MIT
#include "ui/memory/memory_desk.h"

#include <algorithm>
#include <array>

#include "ui/memory/json_string.h"

namespace kestrel {

namespace {

std::string_view IconName(MessageIcon icon) {
  constexpr std::array<std::string_view, 5> kNames = {"none", "critical", "exclamation", "information",
                                                      "question"};
  return kNames[static_cast<std::size_t>(icon)];
}

std::vector<Answer> ButtonsOf(MessageButtons buttons) {
  switch (buttons) {
    case MessageButtons::OkCancel:
      return {Answer::Ok, Answer::Cancel};
    case MessageButtons::YesNo:
      return {Answer::Yes, Answer::No};
    case MessageButtons::Ok:
      break;
  }
  return {Answer::Ok};
}

// The name by which scripts know a window.
std::string FormName(FormId form) {
  constexpr std::array<std::string_view, 4> kNames = {"MainWindow", "FormNamen", "FormPrint", "Browser"};
  return std::string(kNames[static_cast<std::size_t>(form)]);
}

}  // namespace

std::string_view ButtonCaption(Answer answer) {
  constexpr std::array<std::string_view, 5> kCaptions = {"", "OK", "Cancel", "Yes", "No"};
  return kCaptions[static_cast<std::size_t>(answer)];
}

Answer MemoryDesk::Message(const MessageBox& box) {
  std::vector<Answer> buttons = ButtonsOf(box.buttons);
  std::string captions;
  for (const Answer button : buttons) {
    captions += captions.empty() ? "" : ",";
    captions += ButtonCaption(button);
  }
  transcript_.Line("message " + JsonString(box.title) + " " + JsonString(box.text) + " " +
                   std::string(IconName(box.icon)) + " " + captions);
  return RunBox({.buttons = std::move(buttons)}).answer;
}

std::optional<std::string> MemoryDesk::Input(const InputBox& box) {
  transcript_.Line("input " + JsonString(box.title) + " " + JsonString(box.prompt) + " " +
                   JsonString(box.proposal));
  Box answered = RunBox({.buttons = {Answer::Ok, Answer::Cancel}, .is_input = true});
  if (answered.answer == Answer::Ended) return std::nullopt;
  return std::move(answered.text);
}

MemoryDesk::Box MemoryDesk::RunBox(Box box) {
  boxes_.push_back(std::move(box));
  while (!boxes_.back().answered && input_.NextAction()) {
  }
  Box done = std::move(boxes_.back());
  boxes_.pop_back();
  return done;
}

bool MemoryDesk::GiveAnswer(std::string_view text) {
  if (!BoxOpen()) return false;
  Box& box = boxes_.back();
  if (!box.is_input) return PressButton(box, text);
  box.text = text;
  return PressButton(box, ButtonCaption(Answer::Ok));
}

bool MemoryDesk::GiveCancel() {
  return BoxOpen() && PressButton(boxes_.back(), ButtonCaption(Answer::Cancel));
}

bool MemoryDesk::PressButton(Box& box, std::string_view caption) {
  const auto button = std::ranges::find(box.buttons, caption, ButtonCaption);
  if (button == box.buttons.end()) return false;
  box.answer = *button;
  box.answered = true;
  return true;
}

void MemoryDesk::Show(FormId form) {
  Window& window = forms_->WindowOf(form);
  if (window.open) return;
  window.open = true;
  if (window.modal) dialogs_.push_back(form);
  if (form != FormId::Main) transcript_.Line("dialog " + FormName(form) + " shown");
}

void MemoryDesk::Hide(FormId form) {
  Window& window = forms_->WindowOf(form);
  if (!window.open) return;
  window.open = false;
  std::erase(dialogs_, form);
  if (form != FormId::Main) transcript_.Line("dialog " + FormName(form) + " hidden");
}

bool MemoryDesk::WaitUntilHidden(FormId form) {
  while (forms_->WindowOf(form).open) {
    if (!input_.NextAction()) return false;
  }
  return true;
}

// The user's actions name the control themselves.
void MemoryDesk::Focus(FormId, ControlId) {
}

void MemoryDesk::Beep() {
  transcript_.Line("beep");
}

std::optional<FormId> MemoryDesk::ModalForm() const {
  if (dialogs_.empty()) return std::nullopt;
  return dialogs_.back();
}

bool MemoryDesk::Reachable(FormId form) const {
  return !BoxOpen() && (dialogs_.empty() || dialogs_.back() == form);
}

}  // namespace kestrel
