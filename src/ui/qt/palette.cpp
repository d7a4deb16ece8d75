// SPDX-License-Identifier: MIT
#include "ui/qt/palette.h"

#include <algorithm>
#include <cmath>

namespace kestrel {

namespace {

using namespace colours;

// Relative luminance of an sRGB colour, 0 to 1.
double Luminance(const QColor& colour) {
  const auto linear = [](double value) {
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

void SetDisabled(QPalette& palette) {
  for (const QPalette::ColorRole role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::PlaceholderText}) {
    palette.setColor(QPalette::Disabled, role, kDisabledText);
  }
  palette.setColor(QPalette::Disabled, QPalette::Base, kWindow);
  palette.setColor(QPalette::Disabled, QPalette::Button, kDisabledButton);
}

}  // namespace

QColor ToQColor(Colour colour, QRgb fallback) {
  if (colour == kWindowColour || colour == kWindowTextColour) return QColor::fromRgb(fallback);
  return {static_cast<int>(colour & 255U), static_cast<int>((colour >> 8U) & 255U),
          static_cast<int>((colour >> 16U) & 255U)};
}

QColor DisabledFace(const QColor& face) {
  const QColor pale(kDisabledButton);
  const auto mix = [](int one, int other) { return (one + 4 * other) / 5; };
  return {mix(face.red(), pale.red()), mix(face.green(), pale.green()), mix(face.blue(), pale.blue())};
}

QPalette CalmPalette() {
  QPalette palette(QColor::fromRgb(kButton), QColor::fromRgb(kWindow));
  palette.setColor(QPalette::WindowText, kText);
  palette.setColor(QPalette::Text, kText);
  palette.setColor(QPalette::ButtonText, kText);
  palette.setColor(QPalette::PlaceholderText, kDisabledText);
  palette.setColor(QPalette::Base, kPaper);
  palette.setColor(QPalette::AlternateBase, kGivenCell);
  palette.setColor(QPalette::Highlight, kAccent);
  palette.setColor(QPalette::HighlightedText, kAccentText);
  palette.setColor(QPalette::Link, kLink);
  palette.setColor(QPalette::LinkVisited, kLink);
  palette.setColor(QPalette::ToolTipBase, kTooltip);
  palette.setColor(QPalette::ToolTipText, kText);
  SetDisabled(palette);
  return palette;
}

double ContrastRatio(const QColor& one, const QColor& other) {
  const double a = Luminance(one) + 0.05;
  const double b = Luminance(other) + 0.05;
  return std::max(a, b) / std::min(a, b);
}

}  // namespace kestrel
