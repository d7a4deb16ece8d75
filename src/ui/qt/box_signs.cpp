// SPDX-License-Identifier: MIT
#include "ui/qt/box_signs.h"

#include <QPainter>
#include <QPixmap>
#include <optional>

#include "ui/qt/device_painter.h"
#include "ui/qt/fonts.h"
#include "ui/qt/look.h"

namespace kestrel {

namespace {

// A coloured shape with a symbol on it.
struct Sign {
  QRgb colour;
  char symbol;
  bool triangle;
};

std::optional<Sign> SignOf(QStyle::StandardPixmap standard) {
  switch (standard) {
    case QStyle::SP_MessageBoxInformation:
      return Sign{TheColours().accent, 'i', false};
    case QStyle::SP_MessageBoxQuestion:
      return Sign{TheColours().accent, '?', false};
    case QStyle::SP_MessageBoxWarning:
      return Sign{TheColours().warning, '!', true};
    case QStyle::SP_MessageBoxCritical:
      return Sign{TheColours().target, 'x', false};
    default:
      return std::nullopt;
  }
}

QPixmap PaintSign(const Sign& sign, int size) {
  QPixmap pixmap(size, size);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(size / 32.0, size / 32.0);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(sign.colour));
  if (sign.triangle) {
    painter.setPen(QPen(QColor(sign.colour), 3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolygon(QPolygonF({QPointF(16, 4), QPointF(29.5, 27), QPointF(2.5, 27)}));
  } else {
    painter.drawEllipse(QRectF(1, 1, 30, 30));
  }
  painter.setPen(QPen(QColor(TheColours().accent_text), 3.4, Qt::SolidLine, Qt::RoundCap));
  if (sign.symbol == 'x') {
    const QRectF arms(11, 11, 10, 10);
    painter.drawLine(arms.topLeft(), arms.bottomRight());
    painter.drawLine(arms.topRight(), arms.bottomLeft());
    return pixmap;
  }
  painter.setFont(ToQFont(Font{"Arial", 16.5, true}, 1));
  const QRect place(0, sign.triangle ? 3 : 0, 32, 32);
  PaintText(painter, place, Align::Centre, QString(QLatin1Char(sign.symbol)));
  return pixmap;
}

}  // namespace

QIcon BoxSign(QStyle::StandardPixmap standard) {
  QIcon icon;
  const std::optional<Sign> sign = SignOf(standard);
  if (!sign) return icon;
  for (const int size : {32, 40, 48, 64, 96, 128}) icon.addPixmap(PaintSign(*sign, size));
  return icon;
}

}  // namespace kestrel
