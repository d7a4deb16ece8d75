// SPDX-License-Identifier: MIT
#include "ui/memory/memory_desk.h"

#include <algorithm>
#include <type_traits>

#include "core/text.h"
#include "ui/memory/transcript.h"

namespace kestrel {

namespace {

void TypeKeys(TextBox& box, std::string_view text) {
  for (std::size_t i = 0; i < text.size();) {
    // A key is a character, not a byte.
    const std::size_t bytes = std::max<std::size_t>(CharacterBytes(text.substr(i)), 1);
    const std::string_view key = text.substr(i, bytes);
    i += bytes;
    const bool printable = static_cast<unsigned char>(key[0]) >= ' ';
    const bool digit = key[0] >= '0' && key[0] <= '9';
    if (!printable || (box.digits_only && !digit)) continue;
    if (box.max_length > 0 && CharacterCount(box.text) >= static_cast<std::size_t>(box.max_length)) continue;
    box.text += key;
  }
}

}  // namespace

void MemoryDesk::Attach(GameLoop& game, InputSource& input) {
  game_ = &game;
  input_ = &input;
}

// ---- what the game asks ----

Answer MemoryDesk::Message(const MessageBox& box) {
  return RunBox({.buttons = AnswersOf(box.buttons)}).answer;
}

std::optional<std::string> MemoryDesk::Input(const InputBox& /*box*/) {
  Box answered = RunBox({.buttons = {Answer::Ok, Answer::Cancel}, .is_input = true});
  if (answered.answer == Answer::Ended) return std::nullopt;
  return std::move(answered.text);
}

MemoryDesk::Box MemoryDesk::RunBox(Box box) {
  boxes_.push_back(std::move(box));
  while (!boxes_.back().answered && input_->NextAction()) {
  }
  Box done = std::move(boxes_.back());
  boxes_.pop_back();
  return done;
}

void MemoryDesk::Show(FormId form) {
  Window& window = game_->Controls().WindowOf(form);
  if (window.open) return;
  window.open = true;
  if (window.modal) dialogs_.push_back(form);
}

void MemoryDesk::Hide(FormId form) {
  game_->Controls().WindowOf(form).open = false;
  std::erase(dialogs_, form);
}

bool MemoryDesk::WaitUntilHidden(FormId form) {
  while (game_->Controls().WindowOf(form).open) {
    if (!input_->NextAction()) return false;
  }
  return true;
}

// ---- what the user meets ----

std::optional<FormId> MemoryDesk::ModalForm() const {
  if (dialogs_.empty()) return std::nullopt;
  return dialogs_.back();
}

Reach MemoryDesk::Check(FormId form, ControlId /*id*/, const Control& control) {
  if (BoxOpen() || (!dialogs_.empty() && dialogs_.back() != form)) return Reach::Modal;
  if (!control.visible || !game_->Controls().WindowOf(form).open) return Reach::Hidden;
  return control.enabled ? Reach::Done : Reach::Disabled;
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

// ---- what the user does ----

// Calls change(control) for the control of that name, if it is of a kind that `change` takes.
template <class Change>
void MemoryDesk::With(ControlId id, Change change) {
  EachControl(game_->Controls(), [&](FormId, ControlId each, auto& control) {
    if constexpr (std::is_invocable_v<Change, decltype(control)>) {
      if (each == id) change(control);
    }
  });
}

void MemoryDesk::Send(FormId form, ControlId id, EventKind kind, Key key) {
  game_->Handle({.form = form, .control = id, .kind = kind, .key = key});
}

void MemoryDesk::Click(FormId form, ControlId id) {
  bool reacts = true;
  With(id, [&](Label& label) { reacts = label.link || id.name == "LabelCount"; });
  With(id, [&](Picture& picture) { reacts = picture.tab_index >= 0; });
  With(id, [&](CheckBox& box) { box.value = !box.value; });
  With(id, [&](OptionButton& option) { reacts = !option.value; });
  if (!reacts) return;
  EachControl(game_->Controls(), [&](FormId, ControlId each, auto& other) {
    if constexpr (std::is_same_v<std::remove_cvref_t<decltype(other)>, OptionButton>) {
      if (each.name == id.name) other.value = each.index == id.index;
    }
  });
  Send(form, id, EventKind::Click);
}

void MemoryDesk::Release(ControlId id, MouseButton button, int x, int y) {
  game_->Handle({.control = id, .kind = EventKind::Release, .button = button, .x = x, .y = y});
}

void MemoryDesk::SelectLine(FormId form, ControlId id, int line) {
  With(id, [line](ListBox& list) { list.index = line; });
  With(id, [line](ComboBox& combo) { combo.index = line; });
  Send(form, id, EventKind::Click);
}

void MemoryDesk::DoubleClickLine(FormId form, ControlId id, int line) {
  SelectLine(form, id, line);
  Send(form, id, EventKind::DoubleClick);
}

void MemoryDesk::MoveSlider(FormId form, ControlId id, int value) {
  With(id, [value](Slider& slider) { slider.value = value; });
  Send(form, id, EventKind::Change);
}

void MemoryDesk::Type(FormId /*form*/, ControlId id, std::string_view text) {
  With(id, [text](TextBox& box) { TypeKeys(box, text); });
}

void MemoryDesk::Clear(FormId /*form*/, ControlId id) {
  With(id, [](TextBox& box) { box.text.clear(); });
}

void MemoryDesk::PressKey(FormId form, ControlId id, Key key) {
  Send(form, id, EventKind::Key, key);
}

void MemoryDesk::Leave(FormId form, ControlId id) {
  Send(form, id, EventKind::Leave);
}

void MemoryDesk::SetWindowState(WindowState state) {
  game_->Controls().main.window.state = state;
  Send(FormId::Main, {"MainWindow"}, EventKind::Resize);
}

void MemoryDesk::Close(FormId form) {
  Send(form, form == FormId::Main ? ControlId{"MainWindow"} : ControlId{}, EventKind::Close);
}

void MemoryDesk::Tick() {
  Send(FormId::Main, {"Timer1"}, EventKind::Timer);
}

}  // namespace kestrel
