// SPDX-License-Identifier: MIT
#include "ui/qt/device_painter.h"

#include <QFontMetrics>
#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

#include "ui/qt/look.h"

namespace kestrel {

namespace {

int WidestDigit(const QFontMetrics& metrics) {
  int widest = 0;
  for (char digit = '0'; digit <= '9'; ++digit) {
    widest = std::max(widest, metrics.horizontalAdvance(QLatin1Char(digit)));
  }
  return widest;
}

// Paints the text from x on, every digit in a slot of the same width; returns where it ended.
int PaintSlots(QPainter* painter, int x, int baseline, const QString& text, const QFontMetrics& metrics) {
  const int slot = WidestDigit(metrics);
  for (const QChar letter : text) {
    const int advance = metrics.horizontalAdvance(letter);
    const int width = letter.isDigit() ? slot : advance;
    if (painter != nullptr) painter->drawText(x + (width - advance) / 2, baseline, QString(letter));
    x += width;
  }
  return x;
}

// Takes the mnemonic's "&" out and gives the position of its letter, -1 for none.
qsizetype TakeMnemonic(QString& text) {
  const qsizetype at = text.indexOf(QLatin1Char('&'));
  if (at >= 0) text.remove(at, 1);
  return at;
}

int Start(const QRect& place, Align align, int width) {
  switch (align) {
    case Align::Left:
      return place.left();
    case Align::Right:
      return place.left() + place.width() - width;
    case Align::Centre:
      break;
  }
  return place.left() + (place.width() - width) / 2;
}

}  // namespace

int PixelGrid::At(double twips) const {
  return static_cast<int>(std::lround(twips * ratio_ / kTwipsPerPixel));
}

QRect PixelGrid::Rect(double left, double top, double width, double height) const {
  return {QPoint(At(left), At(top)), QPoint(At(left + width) - 1, At(top + height) - 1)};
}

QRect PixelGrid::Place(const Control& control) const {
  return Rect(control.left, control.top, control.width, control.height);
}

int PixelGrid::Pixels(double pixels) const {
  return std::max(1, static_cast<int>(std::lround(pixels * ratio_)));
}

int CapHeight(const QFont& font) {
  return static_cast<int>(std::lround(QFontMetricsF(font).capHeight()));
}

void PaintText(QPainter& painter, const QRect& place, Align align, const QString& text, Digits digits,
               bool mnemonic) {
  const QFontMetrics metrics(painter.font());
  // Rounded up, so that what is left over from an odd difference stands under the text, where letters hang
  // down.
  const int baseline = place.top() + (place.height() + CapHeight(painter.font())) / 2;
  if (digits == Digits::OneWidth) {
    const int width = PaintSlots(nullptr, 0, baseline, text, metrics);
    PaintSlots(&painter, Start(place, align, width), baseline, text, metrics);
    return;
  }
  QString shown = text;
  const qsizetype marked = mnemonic ? TakeMnemonic(shown) : -1;
  shown = metrics.elidedText(shown, Qt::ElideRight, place.width());
  const int x = Start(place, align, metrics.horizontalAdvance(shown));
  painter.drawText(x, baseline, shown);
  if (marked < 0 || marked >= shown.size()) return;
  const int line = std::max(1, static_cast<int>(std::lround(metrics.lineWidth())));
  const int from = x + metrics.horizontalAdvance(shown.left(marked));
  painter.fillRect(from, baseline + line, metrics.horizontalAdvance(shown[marked]), line,
                   painter.pen().color());
}

void UseDevicePixels(QPainter& painter) {
  const QTransform to_device = painter.deviceTransform();
  const QPointF origin = to_device.map(QPointF(0, 0));
  const QTransform whole = QTransform::fromTranslate(std::round(origin.x()), std::round(origin.y()));
  // deviceTransform() contains the world transform; what is left when that is taken away must be undone.
  const QTransform base = painter.worldTransform().inverted() * to_device;
  painter.setWorldTransform(whole * base.inverted());
}

DevicePainter::DevicePainter(QWidget& widget)
    : painter_(&widget), grid_(widget.devicePixelRatioF() * TheLook().zoom) {
  UseDevicePixels(painter_);
  const QPoint corner = widget.mapTo(widget.window(), QPoint(0, 0));
  const double ratio = widget.devicePixelRatioF();
  const auto round = [ratio](int value) { return static_cast<int>(std::lround(value * ratio)); };
  area_ = QRect(0, 0, round(corner.x() + widget.width()) - round(corner.x()),
                round(corner.y() + widget.height()) - round(corner.y()));
}

QRect DevicePainter::Area(double shrink) const {
  const int by = static_cast<int>(std::lround(shrink * grid_.Ratio()));
  return area_.adjusted(by, by, -by, -by);
}

void PaintRounded(QPainter& painter, const QRect& place, double radius, const QColor& fill,
                  const QColor& border, int line) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  // The outline is what the outer shape shows round the inner one: exact to the pixel on straight edges.
  if (line > 0) {
    painter.setBrush(border);
    painter.drawRoundedRect(place, radius, radius);
  }
  painter.setBrush(fill);
  const double inner = std::max(0.0, radius - line);
  painter.drawRoundedRect(place.adjusted(line, line, -line, -line), inner, inner);
  painter.restore();
}

void PaintFocus(QPainter& painter, const PixelGrid& grid, const QRect& place) {
  painter.setRenderHint(QPainter::Antialiasing);
  const double line = grid.Pixels(1);
  const double radius = grid.Pixels(3);
  painter.setPen(QPen(QColor(TheColours().accent), line));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(QRectF(place).adjusted(line / 2, line / 2, -line / 2, -line / 2), radius, radius);
}

}  // namespace kestrel
