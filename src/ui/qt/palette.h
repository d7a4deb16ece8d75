// SPDX-License-Identifier: MIT
// The one palette of the program, light whatever the desktop's theme is. Used by everything that paints.
#pragma once

#include <QColor>
#include <QPalette>

#include "forms/control.h"

namespace kestrel {

namespace colours {

inline constexpr QRgb kWindow = 0xFFF2F3F5;
inline constexpr QRgb kPaper = 0xFFFFFFFF;  // cells, lists, text boxes
inline constexpr QRgb kText = 0xFF1B1F24;
inline constexpr QRgb kDisabledText = 0xFF5A6169;  // still readable: disabled buttons keep their meaning
inline constexpr QRgb kMark = 0xFF4A4F57;
inline constexpr QRgb kDeafMark = 0xFF6B727A;   // while the board takes no clicks
inline constexpr QRgb kGivenCell = 0xFFF4F6FA;  // givens differ from own digits by more than their hue
inline constexpr QRgb kThinLine = 0xFF9AA3AD;
inline constexpr QRgb kThickLine = 0xFF20262D;
inline constexpr QRgb kHover = 0xFFE8F0FE;  // under a mark or header that can be clicked
inline constexpr QRgb kPressed = 0xFFCFE0FC;
inline constexpr QRgb kSelectedHeader = 0xFF0D1117;  // dark enough for the pure red of a selected header
inline constexpr QRgb kTargetCell = 0xFFC62828;      // frame of the cell that Reset Cell works on
inline constexpr QRgb kLink = 0xFF1A4FA0;
inline constexpr QRgb kAccent = 0xFF2B62B8;  // selection, progress, focus
inline constexpr QRgb kAccentText = 0xFFFFFFFF;
inline constexpr QRgb kWarning = 0xFFB45309;
inline constexpr QRgb kButton = 0xFFFFFFFF;
inline constexpr QRgb kDisabledButton = 0xFFECEEF1;
inline constexpr QRgb kBorder = 0xFF474F58;  // 3 to 1 on every button face and on the window
inline constexpr QRgb kDisabledBorder = 0xFFB4BBC3;
inline constexpr QRgb kTooltip = 0xFFFFFDF0;
inline constexpr QRgb kTrack = 0xFFDDE1E6;  // the empty part of progress bars and sliders

}  // namespace colours

// A colour of a control as the screen shows it; `fallback` stands for the window's own ground or text.
QColor ToQColor(Colour colour, QRgb fallback);

// The ground of a disabled button whose face is `face`: the same hue, paler.
QColor DisabledFace(const QColor& face);

// The palette of all widgets, the disabled group included.
QPalette CalmPalette();

// Contrast of two colours after WCAG 2.1, from 1 (none) to 21 (black on white).
double ContrastRatio(const QColor& one, const QColor& other);

}  // namespace kestrel
