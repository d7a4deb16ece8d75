// SPDX-License-Identifier: MIT
// What a user can do to the controls by their names, with the rules of a real window: what is disabled, hidden
// or behind a modal dialog gets nothing. Used by the script front end and by tests.
#pragma once

#include <string_view>

#include "ui/memory/stage.h"

namespace kestrel {

// True when `name` is the full name of the control. Quick where it is not: a search asks a thousand controls, most of
// them in arrays whose names differ in the first or last letter.
bool HasName(ControlId id, std::string_view name);

class User {
 public:
  // Both must outlive this object.
  User(GameLoop& game, Stage& stage) : game_(game), stage_(stage) {}

  // `name` is a control's full name: "CommandNew", "OptionType(3)".
  Reach Press(std::string_view name);
  Reach Release(std::string_view name, MouseButton button, int x, int y);
  // A line of a list or combo, -1 for none, or a value of a slider.
  Reach Select(std::string_view name, int index);
  Reach DoubleClick(std::string_view name, int index);
  // Types after the present text; what the box does not take is dropped.
  Reach Type(std::string_view name, std::string_view text);
  Reach Clear(std::string_view name);
  Reach PressKey(std::string_view name, Key key);
  Reach Leave(std::string_view name);

  // True when the main window gets no input.
  [[nodiscard]] bool MainBlocked() const;
  // The main window's state; nothing happens when it has that state.
  Reach SetWindowState(WindowState state);
  // The close button of the main window, or of the dialog or else the help window that is open.
  Reach CloseMain();
  Reach CloseDialog();

  // Lets Timer1 fire, if it is enabled.
  void Tick();

 private:
  template <class Action>
  Reach Find(std::string_view name, Action action);
  template <class Action>
  Reach FindTextBox(std::string_view name, Action action);

  GameLoop& game_;
  Stage& stage_;
};

}  // namespace kestrel
