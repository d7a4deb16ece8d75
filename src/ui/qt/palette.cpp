// SPDX-License-Identifier: MIT
#include "ui/qt/palette.h"

#include <algorithm>
#include <cmath>

namespace kestrel {

namespace {

// In the order of the struct; C++ checks the names.
constexpr Colours kLight = {
    .window = 0xFFF2F3F5,
    .text = 0xFF111418,
    .disabled_text = 0xFF5A6169,
    .paper = 0xFFFFFFFF,
    .given_cell = 0xFFE4E8F0,
    .given = 0xFF0000A0,
    .mark = 0xFF4A4F57,
    .filled_in = 0xFF4A4F57,
    .ghost = 0xFFC9CED6,
    .hover = 0xFFCFE0FC,
    .pressed = 0xFFADCBF8,
    .lens = 0xFFFFE9B8,
    .lines = 0xFFEEF3FB,
    .given_lines = 0xFFD9E1EF,
    .thin_line = 0xFF7A838E,
    .thick_line = 0xFF20262D,
    .selected_header = 0xFFFF0000,
    .selected_ground = 0xFF0D1117,  // dark enough for the pure red
    .target = 0xFFC62828,
    .solved = 0xFF1E7B34,
    .link = 0xFF1A4FA3,
    .accent = 0xFF2B62B8,
    .accent_text = 0xFFFFFFFF,
    .warning = 0xFFB45309,
    .button = 0xFFFFFFFF,
    .disabled_button = 0xFFECEEF1,
    .border = 0xFF474F58,
    .disabled_border = 0xFFB4BBC3,
    .tooltip = 0xFFFFFDF0,
    .track = 0xFFDDE1E6,
    .note = 0xFFE3ECFB,
    .black = 0xFF000000,
    .white = 0xFFFFFFFF,
    .light_yellow = 0xFFFFFFC0,
    .light_green = 0xFFC0FFC0,
    .light_cyan = 0xFFC0FFFF,
    .light_blue = 0xFFC0C0FF,
    .light_red = 0xFFFF8080,
};

constexpr Colours kDark = {
    .window = 0xFF1E2227,
    .text = 0xFFF2F4F7,
    .disabled_text = 0xFFA3ABB5,
    .paper = 0xFF262B31,
    .given_cell = 0xFF333A43,
    .given = 0xFF9CC1FF,
    .mark = 0xFFB4BCC6,
    .filled_in = 0xFFB4BCC6,
    .ghost = 0xFF3E4650,
    .hover = 0xFF304973,
    .pressed = 0xFF22375B,
    .lens = 0xFF54451A,
    .lines = 0xFF2D343D,
    .given_lines = 0xFF3B4450,
    .thin_line = 0xFF8995A2,
    .thick_line = 0xFFC9D1D9,
    .selected_header = 0xFFFF8A80,
    .selected_ground = 0xFF3B1F22,
    .target = 0xFFFF6B61,
    .solved = 0xFF7FD08F,
    .link = 0xFF8AB4F8,
    .accent = 0xFF8AB4F8,
    .accent_text = 0xFF12161B,
    .warning = 0xFFFFB454,
    .button = 0xFF333941,
    .disabled_button = 0xFF262B31,
    .border = 0xFFA1ACB8,
    .disabled_border = 0xFF4A535E,
    .tooltip = 0xFF2F353D,
    .track = 0xFF3A424C,
    .note = 0xFF26344B,
    .black = 0xFFF2F4F7,
    .white = 0xFF262B31,
    .light_yellow = 0xFF4A4617,
    .light_green = 0xFF1F4A27,
    .light_cyan = 0xFF174648,
    .light_blue = 0xFF33356B,
    .light_red = 0xFF7A2A2A,
};

constexpr Colours kHighContrast = {
    .window = 0xFF000000,
    .text = 0xFFFFFFFF,
    .disabled_text = 0xFFB8B8B8,
    .paper = 0xFF000000,
    .given_cell = 0xFF1C1C1C,
    .given = 0xFFFFFF66,
    .mark = 0xFFFFFFFF,
    .filled_in = 0xFFC8EEFF,
    .ghost = 0xFF5A5A5A,
    .hover = 0xFF004C99,
    .pressed = 0xFF00366E,
    .lens = 0xFF5C4A00,
    .lines = 0xFF262626,
    .given_lines = 0xFF303030,
    .thin_line = 0xFFA8A8A8,
    .thick_line = 0xFFFFFFFF,
    .selected_header = 0xFFFF9E9E,
    .selected_ground = 0xFF2A0000,
    .target = 0xFFFF8080,
    .solved = 0xFF7CFF9B,
    .link = 0xFF9ECBFF,
    .accent = 0xFF9ECBFF,
    .accent_text = 0xFF000000,
    .warning = 0xFFFFC266,
    .button = 0xFF000000,
    .disabled_button = 0xFF1C1C1C,
    .border = 0xFFFFFFFF,
    .disabled_border = 0xFF7A7A7A,
    .tooltip = 0xFF000000,
    .track = 0xFF303030,
    .note = 0xFF00243F,
    .black = 0xFFFFFFFF,
    .white = 0xFF000000,
    .light_yellow = 0xFF3A3600,
    .light_green = 0xFF003B0A,
    .light_cyan = 0xFF003A3C,
    .light_blue = 0xFF23235C,
    .light_red = 0xFF5C0000,
};

// Relative luminance of an sRGB colour, 0 to 1.
double Luminance(const QColor& colour) {
  const auto linear = [](double value) {
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

void SetDisabled(QPalette& palette, const Colours& colours) {
  for (const QPalette::ColorRole role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::PlaceholderText}) {
    palette.setColor(QPalette::Disabled, role, colours.disabled_text);
  }
  palette.setColor(QPalette::Disabled, QPalette::Base, colours.window);
  palette.setColor(QPalette::Disabled, QPalette::Button, colours.disabled_button);
}

}  // namespace

QColor Colours::Of(Colour colour, QRgb fallback) const {
  switch (colour) {
    case kBlack:
      return black;
    case kRed:
      return selected_header;
    case kDarkBlue:
      return given;
    case kWhite:
      return white;
    case kLightYellow:
      return light_yellow;
    case kLightGreen:
      return light_green;
    case kLightCyan:
      return light_cyan;
    case kLightBlue:
      return light_blue;
    case kLightRed:
      return light_red;
    default:
      return ToQColor(colour, fallback);
  }
}

const Colours& ColoursOf(Scheme scheme) {
  if (scheme == Scheme::Dark) return kDark;
  return scheme == Scheme::HighContrast ? kHighContrast : kLight;
}

QColor ToQColor(Colour colour, QRgb fallback) {
  if (colour == kWindowColour || colour == kWindowTextColour) return QColor::fromRgb(fallback);
  return {static_cast<int>(colour & 255U), static_cast<int>((colour >> 8U) & 255U),
          static_cast<int>((colour >> 16U) & 255U)};
}

QColor DisabledFace(const Colours& colours, const QColor& face) {
  const QColor plain(colours.disabled_button);
  const auto mix = [](int one, int other) { return (one + 4 * other) / 5; };
  return {mix(face.red(), plain.red()), mix(face.green(), plain.green()), mix(face.blue(), plain.blue())};
}

QColor HoverFace(const QColor& face) {
  return face.lightness() > 127 ? face.darker(106) : face.darker(118);
}

QColor PressedFace(const QColor& face) {
  return face.lightness() > 127 ? face.darker(115) : face.darker(140);
}

QPalette ToQPalette(const Colours& colours) {
  QPalette palette(QColor::fromRgb(colours.button), QColor::fromRgb(colours.window));
  palette.setColor(QPalette::WindowText, colours.text);
  palette.setColor(QPalette::Text, colours.text);
  palette.setColor(QPalette::ButtonText, colours.text);
  palette.setColor(QPalette::PlaceholderText, colours.disabled_text);
  palette.setColor(QPalette::Base, colours.paper);
  palette.setColor(QPalette::AlternateBase, colours.given_cell);
  palette.setColor(QPalette::Highlight, colours.accent);
  palette.setColor(QPalette::HighlightedText, colours.accent_text);
  palette.setColor(QPalette::Link, colours.link);
  palette.setColor(QPalette::LinkVisited, colours.link);
  palette.setColor(QPalette::ToolTipBase, colours.tooltip);
  palette.setColor(QPalette::ToolTipText, colours.text);
  SetDisabled(palette, colours);
  return palette;
}

double ContrastRatio(const QColor& one, const QColor& other) {
  const double a = Luminance(one) + 0.05;
  const double b = Luminance(other) + 0.05;
  return std::max(a, b) / std::min(a, b);
}

}  // namespace kestrel
