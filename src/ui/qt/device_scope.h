// SPDX-License-Identifier: MIT
// A painter in device pixels for the duration of one drawing call of the style.
#pragma once

#include <QPainter>
#include <QRect>
#include <QWidget>

#include "ui/qt/device_painter.h"

namespace kestrel {

class DeviceScope {
 public:
  // With a widget, takes its font and rounds edges where they are in its window, as the widget's own are.
  DeviceScope(QPainter& painter, const QWidget* widget);
  ~DeviceScope() { painter_.restore(); }
  DeviceScope(const DeviceScope&) = delete;
  DeviceScope& operator=(const DeviceScope&) = delete;

  // For lengths of the design, the present size included.
  [[nodiscard]] const PixelGrid& Grid() const { return grid_; }
  // A place in the widget's own pixels, which know the present size already.
  [[nodiscard]] QRect Map(const QRect& logical) const;

 private:
  [[nodiscard]] QFont Scaled(QFont font) const;

  QPainter& painter_;
  QPoint corner_;  // of the widget in its window
  PixelGrid screen_;
  PixelGrid grid_;
};

}  // namespace kestrel
