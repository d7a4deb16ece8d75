// SPDX-License-Identifier: MIT
// A page that was laid out and waits to be looked at: the print dialog draws it, the front ends show it.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "forms/control.h"
#include "forms/page.h"

namespace kestrel {

// One call of Page; places in units of the page.
struct DrawnItem {
  enum class Kind : std::uint8_t { Text, Line, Box };
  Kind kind = Kind::Text;
  int x1 = 0;  // a text's upper left corner
  int y1 = 0;
  int x2 = 0;
  int y2 = 0;
  int width = 0;    // of the line, in steps of kLineWidthStep
  TextStyle style;  // of a text
  std::string text;
};

// An A4 sheet upright; its size says what a unit is.
struct DrawnPage {
  int width = 0;
  int height = 0;
  std::vector<DrawnItem> items;
};

// Shows a drawn page as large as it fits; none: an empty sheet. A page is never changed once it is shown.
struct PageView : Control {
  std::shared_ptr<const DrawnPage> page;
  friend bool operator==(const PageView&, const PageView&) = default;
};

}  // namespace kestrel
