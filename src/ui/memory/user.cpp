// SPDX-License-Identifier: MIT
#include "ui/memory/user.h"

#include <algorithm>
#include <concepts>
#include <functional>

#include "core/text.h"

namespace kestrel {

namespace {

// Whether a control of this kind can be clicked at all.
template <class T>
concept Pressable = std::same_as<T, Button> || std::same_as<T, OptionButton> || std::same_as<T, CheckBox> ||
    std::same_as<T, Label> || std::same_as<T, Picture>;
template <class T>
concept Lines = std::same_as<T, ListBox> || std::same_as<T, ComboBox>;

// Chooses an option and takes the choice from the others of its array.
void ChooseOption(Forms& forms, ControlId chosen) {
  EachControl(forms, [&](FormId, ControlId id, auto& control) {
    if constexpr (std::same_as<std::remove_cvref_t<decltype(control)>, OptionButton>) {
      if (id.name == chosen.name) control.value = id.index == chosen.index;
    }
  });
}

// True when `id` has the full name `name`; spares making the names of controls that cannot match.
bool HasName(ControlId id, std::string_view name) {
  return name.starts_with(id.name) && FullName(id) == name;
}

bool Printable(char c) {
  return static_cast<unsigned char>(c) >= ' ';
}

void TypeKeys(TextBox& box, std::string_view text) {
  for (std::size_t i = 0; i < text.size();) {
    // A key is a character, not a byte.
    const std::size_t bytes = std::max<std::size_t>(CharacterBytes(text.substr(i)), 1);
    const std::string_view key = text.substr(i, bytes);
    i += bytes;
    const bool digit = key[0] >= '0' && key[0] <= '9';
    if (!Printable(key[0]) || (box.digits_only && !digit)) continue;
    if (box.max_length > 0 && CharacterCount(box.text) >= static_cast<std::size_t>(box.max_length)) continue;
    box.text += key;
  }
}

}  // namespace

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
        const Reach reach = Check(form, control);
        return reach == Reach::Done ? action(form, id, control) : reach;
      };
    }
  });
  return found ? found() : Reach::NoSuch;
}

Reach User::Check(FormId form, const Control& control) const {
  if (!desk_.Reachable(form)) return Reach::Modal;
  if (!control.visible || !game_.Controls().WindowOf(form).open) return Reach::Hidden;
  return control.enabled ? Reach::Done : Reach::Disabled;
}

void User::Send(FormId form, ControlId control, EventKind kind, Key key) {
  game_.Handle({.form = form, .control = control, .kind = kind, .key = key});
}

Reach User::Press(std::string_view name) {
  return Find(name, [this](FormId form, ControlId id, Pressable auto& control) {
    using Kind = std::remove_cvref_t<decltype(control)>;
    if constexpr (std::same_as<Kind, OptionButton>) {
      if (control.value) return Reach::Done;
      ChooseOption(game_.Controls(), id);
    }
    if constexpr (std::same_as<Kind, CheckBox>) control.value = !control.value;
    if constexpr (std::same_as<Kind, Label>) {
      if (!control.link && id.name != "LabelCount") return Reach::Done;
    }
    if constexpr (std::same_as<Kind, Picture>) {
      if (control.tab_index < 0) return Reach::Done;  // for the eye only
    }
    Send(form, id, EventKind::Click);
    return Reach::Done;
  });
}

Reach User::Release(std::string_view name, MouseButton button, int x, int y) {
  return Find(name, [&](FormId form, ControlId id, std::same_as<Label> auto&) {
    const bool on_board = id.digit != 0 || id.name == "LabelRow" || id.name == "LabelColumn";
    if (!on_board) return Reach::Done;
    game_.Handle({.form = form, .control = id, .kind = EventKind::Release, .button = button, .x = x, .y = y});
    return Reach::Done;
  });
}

Reach User::Select(std::string_view name, int index) {
  const Reach lines = Find(name, [&](FormId form, ControlId id, Lines auto& control) {
    if (index < -1 || index >= static_cast<int>(control.lines.size())) return Reach::NoSuch;
    control.index = index;
    Send(form, id, EventKind::Click);
    return Reach::Done;
  });
  if (lines != Reach::NoSuch) return lines;
  return Find(name, [&](FormId form, ControlId id, std::same_as<Slider> auto& control) {
    if (index < control.minimum || index > control.maximum) return Reach::NoSuch;
    control.value = index;
    Send(form, id, EventKind::Change);
    return Reach::Done;
  });
}

Reach User::DoubleClick(std::string_view name, int index) {
  return Find(name, [&](FormId form, ControlId id, std::same_as<ListBox> auto& control) {
    if (index < 0 || index >= static_cast<int>(control.lines.size())) return Reach::NoSuch;
    control.index = index;
    Send(form, id, EventKind::Click);
    Send(form, id, EventKind::DoubleClick);
    return Reach::Done;
  });
}

Reach User::Type(std::string_view name, std::string_view text) {
  return Find(name, [&](FormId, ControlId, std::same_as<TextBox> auto& control) {
    TypeKeys(control, text);
    return Reach::Done;
  });
}

Reach User::Clear(std::string_view name) {
  return Find(name, [](FormId, ControlId, std::same_as<TextBox> auto& control) {
    control.text.clear();
    return Reach::Done;
  });
}

Reach User::PressKey(std::string_view name, Key key) {
  return Find(name, [&](FormId form, ControlId id, std::same_as<TextBox> auto&) {
    Send(form, id, EventKind::Key, key);
    return Reach::Done;
  });
}

Reach User::Leave(std::string_view name) {
  return Find(name, [this](FormId form, ControlId id, std::same_as<TextBox> auto&) {
    Send(form, id, EventKind::Leave);
    return Reach::Done;
  });
}

Reach User::SetWindowState(WindowState state) {
  if (desk_.MainBlocked()) return Reach::Modal;
  Window& window = game_.Controls().main.window;
  if (window.state == state) return Reach::Done;
  window.state = state;
  Send(FormId::Main, {"MainWindow"}, EventKind::Resize);
  return Reach::Done;
}

Reach User::CloseMain() {
  if (desk_.MainBlocked()) return Reach::Modal;
  Send(FormId::Main, {"MainWindow"}, EventKind::Close);
  return Reach::Done;
}

Reach User::CloseDialog() {
  if (desk_.BoxOpen()) return Reach::Modal;
  const FormId form = desk_.ModalForm().value_or(FormId::Browser);
  if (!game_.Controls().WindowOf(form).open) return Reach::NoSuch;
  Send(form, {}, EventKind::Close);
  return Reach::Done;
}

void User::Tick() {
  if (game_.Controls().main.Timer1.enabled) Send(FormId::Main, {"Timer1"}, EventKind::Timer);
}

}  // namespace kestrel
