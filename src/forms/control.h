// SPDX-License-Identifier: MIT
// The passive controls: what a control shows, as plain data. The game writes the fields, the front ends show
// them; a front end writes only what the user changed (checked, index, text, value) before it reports it.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/check.h"

namespace kestrel {

// A 24-bit colour with red in the low byte, or one of the window's own colours.
using Colour = std::uint32_t;
inline constexpr Colour kWindowColour = 0x80000005;      // the ground of the window
inline constexpr Colour kWindowTextColour = 0x80000008;  // text on it
inline constexpr Colour kBlack = 0;
inline constexpr Colour kRed = 255;
inline constexpr Colour kDarkBlue = 0xA00000;
inline constexpr Colour kWhite = 0xFFFFFF;
inline constexpr Colour kLightYellow = 0xC0FFFF;
inline constexpr Colour kLightGreen = 0xC0FFC0;
inline constexpr Colour kLightCyan = 0xFFFFC0;
inline constexpr Colour kLightBlue = 0xFFC0C0;
inline constexpr Colour kLightRed = 0x8080FF;

// A font by its family name (always one of the literals of this program) and its size in points.
struct Font {
  std::string_view family = "MS Sans Serif";
  double size = 8.25;
  bool bold = false;
  friend bool operator==(const Font&, const Font&) = default;
};

inline constexpr int kTwipsPerPixel = 15;  // at 96 dpi and scale 1

// What all controls have in common. Places and sizes are in twips, from the top-left corner of the window.
struct Control {
  bool visible = true;
  bool enabled = true;
  bool transparent = false;  // the ground is not painted
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
  int tab_index = -1;  // place in the keyboard's order, -1: the keyboard does not reach it
  Colour fore = kWindowTextColour;
  Colour back = kWindowColour;
  Font font;
  std::string tooltip;
  std::string tag;
  std::string spoken;  // name for screen readers where the caption does not say enough
  friend bool operator==(const Control&, const Control&) = default;
};

inline void Place(Control& control, int left, int top, int width, int height) {
  control.left = left;
  control.top = top;
  control.width = width;
  control.height = height;
}

enum class Align : std::uint8_t { Left, Right, Centre };

struct Label : Control {
  std::string caption;
  Align align = Align::Left;
  bool link = false;  // looks and acts like a link: hand pointer, underlined under the pointer
  friend bool operator==(const Label&, const Label&) = default;
};

// `mnemonic` is the letter of the caption that, with Alt, acts as a click; 0: none, or the caption has its
// own "&".
struct Button : Control {
  std::string caption;
  char mnemonic = 0;
  bool is_default = false;  // Enter presses it
  bool is_cancel = false;   // Escape presses it
  friend bool operator==(const Button&, const Button&) = default;
};

struct OptionButton : Control {
  std::string caption;
  char mnemonic = 0;
  bool value = false;  // chosen; of the options of one array at most one is
  friend bool operator==(const OptionButton&, const OptionButton&) = default;
};

struct CheckBox : Control {
  std::string caption;
  char mnemonic = 0;
  bool value = false;
  friend bool operator==(const CheckBox&, const CheckBox&) = default;
};

struct ListBox : Control {
  std::vector<std::string> lines;
  int index = -1;  // selected line from 0, -1: none
  friend bool operator==(const ListBox&, const ListBox&) = default;
};

// A drop-down list without a text field of its own.
struct ComboBox : Control {
  std::vector<std::string> lines;
  int index = -1;
  friend bool operator==(const ComboBox&, const ComboBox&) = default;
};

// The two limits hold for what the user types; the front end keeps them key by key.
struct TextBox : Control {
  std::string text;
  int max_length = 0;        // characters, 0: no limit
  bool digits_only = false;  // other printable keys are dropped
  friend bool operator==(const TextBox&, const TextBox&) = default;
};

struct Slider : Control {
  int minimum = 0;
  int maximum = 0;
  int value = 0;
  friend bool operator==(const Slider&, const Slider&) = default;
};

struct ProgressBar : Control {
  int minimum = 0;
  int maximum = 100;
  int value = 0;
  friend bool operator==(const ProgressBar&, const ProgressBar&) = default;
};

// One panel of a status bar.
struct StatusPanel : Control {
  std::string caption;
  friend bool operator==(const StatusPanel&, const StatusPanel&) = default;
};

// `file` is a path in the game's written form (folders end in a backslash); empty: nothing to show.
struct Picture : Control {
  std::string file;
  friend bool operator==(const Picture&, const Picture&) = default;
};

struct WebView : Control {
  std::string page;  // the page it was last sent to, full path in the written form
  friend bool operator==(const WebView&, const WebView&) = default;
};

struct Timer : Control {
  int interval = 0;  // milliseconds; fires while enabled
  friend bool operator==(const Timer&, const Timer&) = default;
};

enum class WindowState : std::uint8_t { Normal, Minimized, Maximized };

// left and top: place on the screen; width and height: the inner area.
struct Window : Control {
  std::string caption;
  WindowState state = WindowState::Normal;
  bool open = false;   // on screen; written by the front end when it shows or hides the window
  bool modal = false;  // the windows under it get no input while it is open
  friend bool operator==(const Window&, const Window&) = default;
};

// A control array with indices First .. First + Count - 1, read as `Grid(40)`.
template <class T, int First, int Count>
struct ControlArray {
  static constexpr int kFirst = First;
  static constexpr int kCount = Count;
  std::array<T, Count> items{};

  T& operator()(int index) {
    Require(index >= First && index < First + Count);
    return items[static_cast<std::size_t>(index - First)];
  }
  const T& operator()(int index) const {
    Require(index >= First && index < First + Count);
    return items[static_cast<std::size_t>(index - First)];
  }
  friend bool operator==(const ControlArray&, const ControlArray&) = default;
};

}  // namespace kestrel
