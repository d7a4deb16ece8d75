// SPDX-License-Identifier: MIT
#include "ui/memory/user.h"

#include <concepts>
#include <functional>

namespace kestrel {

namespace {

// Whether a control of this kind can be clicked at all.
template <class T>
concept Pressable = std::same_as<T, Button> || std::same_as<T, OptionButton> || std::same_as<T, CheckBox> ||
    std::same_as<T, Label> || std::same_as<T, Picture>;
template <class T>
concept Lines = std::same_as<T, ListBox> || std::same_as<T, ComboBox>;

}  // namespace

bool HasName(ControlId id, std::string_view name) {
  const std::size_t length = id.name.size();
  if (name.size() < length || name[0] != id.name[0] || name[length - 1] != id.name[length - 1]) return false;
  return name.starts_with(id.name) && FullName(id) == name;
}

// Calls action(form, id, control) for the control of that name if it can be reached; the action returns
// NoSuch for a control of a kind that cannot take it.
template <class Action>
Reach User::Find(std::string_view name, Action action) {
  // An action may run the game, and the game other actions: the search must be over before.
  std::function<Reach()> found;
  EachControl(game_.Controls(), [&](FormId form, ControlId id, auto& control) {
    if (found || !HasName(id, name)) return;
    if constexpr (std::invocable<Action, FormId, ControlId, decltype(control)>) {
      found = [this, form, id, &control, &action] {
        const Reach reach = stage_.Check(form, id, control);
        return reach == Reach::Done ? action(form, id, control) : reach;
      };
    }
  });
  return found ? found() : Reach::NoSuch;
}

Reach User::Press(std::string_view name) {
  return Find(name, [this](FormId form, ControlId id, Pressable auto&) {
    stage_.Click(form, id);
    return Reach::Done;
  });
}

Reach User::Release(std::string_view name, MouseButton button, int x, int y) {
  return Find(name, [&](FormId, ControlId id, std::same_as<Label> auto&) {
    const bool on_board = id.digit != 0 || id.name == "LabelRow" || id.name == "LabelColumn";
    if (on_board) stage_.Release(id, button, x, y);
    return Reach::Done;
  });
}

Reach User::Select(std::string_view name, int index) {
  const Reach lines = Find(name, [&](FormId form, ControlId id, Lines auto& control) {
    if (index < -1 || index >= static_cast<int>(control.lines.size())) return Reach::NoSuch;
    stage_.SelectLine(form, id, index);
    return Reach::Done;
  });
  if (lines != Reach::NoSuch) return lines;
  return Find(name, [&](FormId form, ControlId id, std::same_as<Slider> auto& control) {
    if (index < control.minimum || index > control.maximum) return Reach::NoSuch;
    stage_.MoveSlider(form, id, index);
    return Reach::Done;
  });
}

Reach User::DoubleClick(std::string_view name, int index) {
  return Find(name, [&](FormId form, ControlId id, std::same_as<ListBox> auto& control) {
    if (index < 0 || index >= static_cast<int>(control.lines.size())) return Reach::NoSuch;
    stage_.DoubleClickLine(form, id, index);
    return Reach::Done;
  });
}

// Calls action(form, id) for the text box of that name.
template <class Action>
Reach User::FindTextBox(std::string_view name, Action action) {
  return Find(name, [&](FormId form, ControlId id, std::same_as<TextBox> auto&) {
    action(form, id);
    return Reach::Done;
  });
}

Reach User::Type(std::string_view name, std::string_view text) {
  return FindTextBox(name, [&](FormId form, ControlId id) { stage_.Type(form, id, text); });
}

Reach User::Clear(std::string_view name) {
  return FindTextBox(name, [&](FormId form, ControlId id) { stage_.Clear(form, id); });
}

Reach User::PressKey(std::string_view name, Key key) {
  return FindTextBox(name, [&](FormId form, ControlId id) { stage_.PressKey(form, id, key); });
}

Reach User::Leave(std::string_view name) {
  return FindTextBox(name, [&](FormId form, ControlId id) { stage_.Leave(form, id); });
}

bool User::MainBlocked() const {
  return stage_.BoxOpen() || stage_.ModalForm().has_value();
}

Reach User::SetWindowState(WindowState state) {
  if (MainBlocked()) return Reach::Modal;
  if (game_.Controls().main.window.state != state) stage_.SetWindowState(state);
  return Reach::Done;
}

Reach User::CloseMain() {
  if (MainBlocked()) return Reach::Modal;
  stage_.Close(FormId::Main);
  return Reach::Done;
}

Reach User::CloseDialog() {
  if (stage_.BoxOpen()) return Reach::Modal;
  const FormId form = stage_.ModalForm().value_or(FormId::Browser);
  if (!game_.Controls().WindowOf(form).open) return Reach::NoSuch;
  stage_.Close(form);
  return Reach::Done;
}

void User::Tick() {
  if (game_.Controls().main.Timer1.enabled) stage_.Tick();
}

}  // namespace kestrel
