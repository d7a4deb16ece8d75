// SPDX-License-Identifier: MIT
#include "ui/qt/box_signs.h"

#include <QIconEngine>
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

// On a square of 32 by 32.
void PaintSign(QPainter& painter, const Sign& sign) {
  painter.setRenderHint(QPainter::Antialiasing);
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
    return;
  }
  painter.setFont(ToQFont(Font{"Arial", 16.5, true}, 1));
  const QRect place(0, sign.triangle ? 3 : 0, 32, 32);
  PaintText(painter, place, Align::Centre, QString(QLatin1Char(sign.symbol)));
}

// As sharp as the screen, whatever its scale.
class SignEngine final : public QIconEngine {
 public:
  explicit SignEngine(const Sign& sign) : sign_(sign) {}
  void paint(QPainter* painter, const QRect& rect, QIcon::Mode /*mode*/, QIcon::State /*state*/) override {
    painter->save();
    painter->translate(rect.topLeft());
    painter->scale(rect.width() / 32.0, rect.height() / 32.0);
    PaintSign(*painter, sign_);
    painter->restore();
  }
  [[nodiscard]] QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, pixmap.rect(), mode, state);
    return pixmap;
  }
  [[nodiscard]] QIconEngine* clone() const override { return new SignEngine(sign_); }

 private:
  Sign sign_;
};

}  // namespace

QIcon BoxSign(QStyle::StandardPixmap standard) {
  const std::optional<Sign> sign = SignOf(standard);
  return sign ? QIcon(new SignEngine(*sign)) : QIcon();
}

}  // namespace kestrel
