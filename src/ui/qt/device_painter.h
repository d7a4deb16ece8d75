// SPDX-License-Identifier: MIT
// Painting in whole device pixels at any screen scale. Used by all widgets that paint themselves.
#pragma once

#include <QPainter>
#include <QRect>
#include <QString>
#include <QWidget>

#include "forms/control.h"

namespace kestrel {

// Where twips fall on a surface with `ratio` device pixels per pixel of 96 dpi. Edges are rounded, not sizes,
// so that neighbours meet without gaps.
class PixelGrid {
 public:
  explicit PixelGrid(double ratio) : ratio_(ratio) {}

  [[nodiscard]] double Ratio() const { return ratio_; }
  [[nodiscard]] int At(double twips) const;
  [[nodiscard]] QRect Rect(double left, double top, double width, double height) const;
  [[nodiscard]] QRect Place(const Control& control) const;
  // A length in pixels of 96 dpi as at least one whole device pixel.
  [[nodiscard]] int Pixels(double pixels) const;

 private:
  double ratio_;
};

// The height of capital letters and digits above the baseline, in the font's pixels, rounded.
int CapHeight(const QFont& font);

enum class Digits { AsDesigned, OneWidth };

// Paints one line of text into `place`, centred vertically by the height of its capitals, cut with an
// ellipsis where it is too long. OneWidth gives every digit the width of the widest, so that a running clock
// stands still. A letter after "&" is underlined when `mnemonic` is set; the "&" must then be there on
// purpose.
void PaintText(QPainter& painter, const QRect& place, Align align, const QString& text,
               Digits digits = Digits::AsDesigned, bool mnemonic = false);

// A painter on a widget whose coordinates are the device's pixels, with the widget's top-left corner at (0,
// 0).
class DevicePainter {
 public:
  explicit DevicePainter(QWidget& widget);

  QPainter& Painter() { return painter_; }
  // Of the screen and of the present size together.
  [[nodiscard]] const PixelGrid& Grid() const { return grid_; }
  // The widget's whole area, `shrink` pixels of 96 dpi smaller on every side.
  [[nodiscard]] QRect Area(double shrink = 0) const;

 private:
  QPainter painter_;
  PixelGrid grid_;
  QRect area_;
};

// Makes a painter work in whole device pixels relative to (0, 0) of its present coordinates.
void UseDevicePixels(QPainter& painter);

// A filled rectangle with round corners and an outline of `line` device pixels, 0 for none; radius in device
// pixels.
void PaintRounded(QPainter& painter, const QRect& place, double radius, const QColor& fill,
                  const QColor& border = {}, int line = 0);

// The ring round what has the keyboard.
void PaintFocus(QPainter& painter, const PixelGrid& grid, const QRect& place);

}  // namespace kestrel
