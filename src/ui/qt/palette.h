// SPDX-License-Identifier: MIT
// The colours of the windows: three palettes, the same roles in each. Everything that paints takes its
// colours from the palette of the present look (look.h).
#pragma once

#include <QColor>
#include <QPalette>
#include <cstdint>

#include "forms/control.h"

namespace kestrel {

enum class Scheme : std::uint8_t { Light, Dark, HighContrast };

struct Colours {
  QRgb window;         // the ground of the windows
  QRgb text;           // on window and paper; own digits
  QRgb disabled_text;  // still readable: disabled buttons keep their meaning
  QRgb paper;          // cells, lists, text boxes
  QRgb given_cell;     // ground of the givens, which differ from own digits by more than their hue
  QRgb given;          // a given's digit
  QRgb mark;
  QRgb filled_in;    // a digit that Solution put in
  QRgb ghost;        // marks while no puzzle is open: there, but not alive
  QRgb hover;        // under a mark, header or button that can be clicked
  QRgb pressed;      // the same while the button is down
  QRgb lens;         // under the equals of the digit below the pointer
  QRgb lines;        // under the cells of its row, column and box
  QRgb given_lines;  // the same under a given
  QRgb thin_line, thick_line;
  QRgb selected_header;  // ink, and the ground that it needs
  QRgb selected_ground;
  QRgb target;  // frame of the cell that Reset Cell works on; sign of an error
  QRgb solved;  // the board's lines and the clock's frame once the puzzle is solved
  QRgb link;
  QRgb accent, accent_text;  // selection, progress, focus, signs
  QRgb warning;
  QRgb button, disabled_button;
  QRgb border;  // 3 to 1 on every button face and on the window
  QRgb disabled_border;
  QRgb tooltip;
  QRgb track;  // the empty part of progress bars and sliders
  QRgb note;   // ground of the guide's line
  // What the game's named colours are here: hue and meaning stay, the lightness follows the palette.
  QRgb black, white, light_yellow, light_green, light_cyan, light_blue, light_red;

  // A colour of a control; `fallback` stands for the window's own ground or text.
  [[nodiscard]] QColor Of(Colour colour, QRgb fallback) const;
};

const Colours& ColoursOf(Scheme scheme);

// A colour of a control as it is, for paper; `fallback` stands for the window's own ground or text.
QColor ToQColor(Colour colour, QRgb fallback);

// The ground of a disabled button whose face is `face`: the same hue, nearer to the plain one.
QColor DisabledFace(const Colours& colours, const QColor& face);

// The ground of a coloured button under the pointer, and while it is pressed: further from its text.
QColor HoverFace(const QColor& face);
QColor PressedFace(const QColor& face);

// The palette of all widgets, the disabled group included.
QPalette ToQPalette(const Colours& colours);

// Contrast of two colours after WCAG 2.1, from 1 (none) to 21 (black on white).
double ContrastRatio(const QColor& one, const QColor& other);

}  // namespace kestrel
