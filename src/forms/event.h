// SPDX-License-Identifier: MIT
// How controls are named and how the front ends report what the user did. Used by the forms, the game and all
// front ends.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "forms/control.h"

namespace kestrel {

enum class FormId : std::uint8_t { Main, Names, Print, Browser };

inline constexpr int kNoIndex = -1;

// A control by its name (one of the literals in the forms' EachControl) and, in an array, its index. A pencil
// mark also says its digit, 1..9; its index is the cell.
struct ControlId {
  std::string_view name;
  int index = kNoIndex;
  int digit = 0;
  friend bool operator==(const ControlId&, const ControlId&) = default;
};

// "CommandNew", "OptionType(3)".
std::string FullName(ControlId id);

enum class EventKind : std::uint8_t {
  Click,  // a button, option button, check box, label or picture was clicked; a list line or combo entry
          // was selected (also by the keyboard); value, index are already in the control
  DoubleClick,  // a list line; a Click for the line came before
  Release,      // a mouse button came up over a mark or header: button, x, y
  Change,       // the user moved a slider: value is already in the control
  Key,          // Enter or Escape in a text box; all other keys just change its text
  Leave,        // the focus left a text box
  Timer,        // a timer fired
  Resize,       // the main window changed to `state`; state is already in the control
  Close,        // the close button of a window; the front end leaves the window open
};

enum class MouseButton : std::uint8_t { None = 0, Left = 1, Right = 2, Middle = 4 };
enum class Key : std::uint8_t { None = 0, Enter = 13, Escape = 27 };

struct Event {
  FormId form = FormId::Main;
  ControlId control;
  EventKind kind = EventKind::Click;
  MouseButton button = MouseButton::None;  // Release
  int x = 0;                               // Release: twips from the control's top-left corner
  int y = 0;
  Key key = Key::None;  // Key
};

}  // namespace kestrel
