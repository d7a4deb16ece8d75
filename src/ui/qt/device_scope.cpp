// SPDX-License-Identifier: MIT
#include "ui/qt/device_scope.h"

#include <QPaintDevice>
#include <cmath>

#include "ui/qt/look.h"

namespace kestrel {

namespace {

double ScreenRatio(const QPainter& painter) {
  return painter.device() != nullptr ? painter.device()->devicePixelRatioF() : 1;
}

}  // namespace

DeviceScope::DeviceScope(QPainter& painter, const QWidget* widget)
    : painter_(painter), screen_(ScreenRatio(painter)), grid_(screen_.Ratio() * TheLook().zoom) {
  painter_.save();
  UseDevicePixels(painter_);
  if (widget == nullptr) return;
  painter_.setFont(Scaled(widget->font()));
  corner_ = widget->mapTo(widget->window(), QPoint(0, 0));
}

QRect DeviceScope::Map(const QRect& logical) const {
  constexpr double kTwips = kTwipsPerPixel;
  const QRect in_window = logical.translated(corner_);
  return screen_
      .Rect(in_window.x() * kTwips, in_window.y() * kTwips, in_window.width() * kTwips,
            in_window.height() * kTwips)
      .translated(-screen_.At(corner_.x() * kTwips), -screen_.At(corner_.y() * kTwips));
}

QFont DeviceScope::Scaled(QFont font) const {
  if (font.pixelSize() > 0)
    font.setPixelSize(static_cast<int>(std::lround(font.pixelSize() * screen_.Ratio())));
  return font;
}

}  // namespace kestrel
