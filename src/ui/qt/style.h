// SPDX-License-Identifier: MIT
// The look of the standard widgets: quiet, drawn in whole device pixels. Set for the whole
// application.
#pragma once

#include <QProxyStyle>

#include "ui/qt/look.h"

namespace kestrel {

// Buttons, options, check boxes, combo boxes, sliders, scroll bars, tabs, frames and the signs of message boxes are
// drawn here, with borders that can be seen in every palette; everything else comes from Fusion, which is on every
// system.
class CalmStyle final : public QProxyStyle {
 public:
  explicit CalmStyle(const Look& look);
  [[nodiscard]] const Look& GetLook() const { return look_; }

  using QProxyStyle::polish;
  void polish(QWidget* widget) override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* return_data) const override;
  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
  QRect subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const override;
  QIcon standardIcon(StandardPixmap standard, const QStyleOption* option,
                     const QWidget* widget) const override;
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                         const QWidget* widget) const override;

 private:
  // A length of the design in the present size.
  [[nodiscard]] int Zoomed(int length) const;

  Look look_;
};

}  // namespace kestrel
