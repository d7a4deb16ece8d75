// SPDX-License-Identifier: MIT
#include "ui/qt/palette.h"

#include <algorithm>
#include <cmath>
#include <vector>

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

std::vector<TextOnGround> CollectTextPairs() {
  const QColor text(kText);
  const QColor disabled(kDisabledText);
  std::vector<TextOnGround> pairs = {
      {"window", text, kWindow},
      {"list or text box", text, kPaper},
      {"disabled on the window", disabled, kWindow},
      {"disabled list or text box", disabled, kWindow},
      {"own digit", text, kPaper},
      {"given digit", ToQColor(kDarkBlue, kText), kGivenCell},
      {"mark", QColor(kMark), kPaper},
      {"mark of a disabled board", QColor(kDeafMark), kPaper},
      {"mark under the pointer", QColor(kMark), kHover},
      {"pressed mark", QColor(kMark), kPressed},
      {"header", ToQColor(kBlack, kText), kWindow},
      {"header under the pointer", ToQColor(kBlack, kText), kHover},
      {"selected header", ToQColor(kRed, kText), kSelectedHeader},
      {"link", QColor(kLink), kWindow},
      {"selected line", QColor(kAccentText), kAccent},
      {"tooltip", text, kTooltip},
      {"sign of a warning", QColor(kAccentText), kWarning},
      {"sign of an error", QColor(kAccentText), kTargetCell},
      {"progress, empty part", text, kTrack},
      {"progress, filled part", QColor(kAccentText), kAccent},
      {"button", text, kButton},
      {"button under the pointer", text, kHover},
      {"pressed button", text, kPressed},
      {"disabled button", disabled, kDisabledButton},
  };
  for (const Colour face : {kWhite, kLightYellow, kLightGreen, kLightCyan, kLightBlue}) {
    pairs.push_back({"technique or clock", text, ToQColor(face, kWindow)});
  }
  for (const Colour face : {kLightGreen, kLightRed}) {
    pairs.push_back({"coloured button", text, ToQColor(face, kWindow)});
    pairs.push_back({"disabled coloured button", disabled, DisabledFace(ToQColor(face, kWindow))});
  }
  return pairs;
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

std::span<const TextOnGround> AllTextPairs() {
  static const std::vector<TextOnGround> kPairs = CollectTextPairs();
  return kPairs;
}

}  // namespace kestrel
