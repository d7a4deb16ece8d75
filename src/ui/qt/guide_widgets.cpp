// SPDX-License-Identifier: MIT
#include "ui/qt/guide_widgets.h"

#include <QPainter>

#include "ui/qt/board_painter.h"
#include "ui/qt/device_painter.h"
#include "ui/qt/fonts.h"
#include "ui/qt/look.h"
#include "ui/qt/text_conversion.h"
#include "ui/qt/texts.h"

namespace kestrel {

namespace {

// The cells that the card covers, in the middle of the board.
constexpr QPoint kCardFirst(2, 3);
constexpr QPoint kCardLast(6, 5);
// Pixels of 96 dpi; on the card, and the line between board and commands.
constexpr int kCardWidth = (CellEdge(kCardLast.x() + 1) - CellEdge(kCardFirst.x())) / kTwipsPerPixel + 2;
constexpr QRect kCardNext(88, 84, 123, 38);
constexpr QRect kLine(64, 587, 513, 12);
constexpr int kCross = 16;

QRect ScaledRect(const PixelGrid& grid, const QRect& pixels) {
  return grid.Rect(pixels.x() * kTwipsPerPixel, pixels.y() * kTwipsPerPixel, pixels.width() * kTwipsPerPixel,
                   pixels.height() * kTwipsPerPixel);
}

QRect LogicalRect(const QRect& pixels) {
  return ScaledRect(PixelGrid(TheLook().zoom), pixels);
}

}  // namespace

// ---- CloseCross ----

CloseCross::CloseCross(QWidget* parent) : QAbstractButton(parent) {
  setObjectName(QStringLiteral("CloseGuide"));
  setToolTip(QLatin1String(texts::kCloseGuide));
  setAccessibleName(toolTip());
  setCursor(Qt::PointingHandCursor);
  setFocusPolicy(Qt::TabFocus);
}

void CloseCross::enterEvent(QEnterEvent* event) {
  update();
  QAbstractButton::enterEvent(event);
}

void CloseCross::leaveEvent(QEvent* event) {
  update();
  QAbstractButton::leaveEvent(event);
}

void CloseCross::paintEvent(QPaintEvent* /*event*/) {
  DevicePainter surface(*this);
  QPainter& painter = surface.Painter();
  const Colours& colours = TheColours();
  if (underMouse() || hasFocus()) {
    PaintRounded(painter, surface.Area(), surface.Grid().Pixels(3),
                 isDown() ? colours.pressed : colours.hover);
  }
  const double reach = 3.2 * surface.Grid().Ratio();
  const QPointF middle = QRectF(surface.Area()).center();
  const QRectF arms(middle - QPointF(reach, reach), middle + QPointF(reach, reach));
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor(colours.text), 1.3 * surface.Grid().Ratio(), Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(arms.topLeft(), arms.bottomRight());
  painter.drawLine(arms.topRight(), arms.bottomLeft());
}

// ---- GuideCard ----

GuideCard::GuideCard(QWidget* parent) : QWidget(parent), next_(this), cross_(this) {
  setObjectName(QStringLiteral("GuideCard"));
  setAccessibleName(QLatin1String(texts::kCardTitle));
  next_.setObjectName(QStringLiteral("GuideNext"));
  next_.setText(QLatin1String(texts::kCardNext));
  next_.setAutoDefault(false);
  next_.setFocusPolicy(Qt::TabFocus);
  connect(&next_, &QPushButton::clicked, this, [this] { on_next(); });
  connect(&cross_, &QAbstractButton::clicked, this, [this] { on_close(); });
  PlaceAll();
}

void GuideCard::SetLevel(const QString& name) {
  if (name == level_) return;
  level_ = name;
  update();
}

void GuideCard::PlaceAll() {
  setGeometry(RectOnLines(PixelGrid(TheLook().zoom), kCardFirst, kCardLast));
  next_.setGeometry(LogicalRect(kCardNext));
  next_.setFont(ToQFont(Font{"MS Sans Serif", 12, true}, TheLook().zoom));
  cross_.setGeometry(LogicalRect(QRect(kCardWidth - kCross - 6, 6, kCross, kCross)));
}

void GuideCard::paintEvent(QPaintEvent* /*event*/) {
  DevicePainter surface(*this);
  QPainter& painter = surface.Painter();
  const PixelGrid& grid = surface.Grid();
  const Colours& colours = TheColours();
  PaintRounded(painter, surface.Area(), 0, colours.paper, colours.thick_line, grid.Pixels(2));
  painter.setPen(QColor(colours.text));
  painter.setFont(ToQFont(Font{"MS Sans Serif", 11.25, true}, grid.Ratio()));
  PaintText(painter, ScaledRect(grid, QRect(0, 35, kCardWidth, 20)), Align::Centre,
            QLatin1String(texts::kCardTitle));
  painter.setFont(ToQFont(Font{"MS Sans Serif", 9, false}, grid.Ratio()));
  PaintText(painter, ScaledRect(grid, QRect(0, 57, kCardWidth, 18)), Align::Centre,
            QLatin1String(texts::kCardLevel).arg(level_));
  PaintText(painter, ScaledRect(grid, QRect(0, 131, kCardWidth, 20)), Align::Centre,
            QLatin1String(texts::kCardHelp));
}

// ---- GuideLine ----

GuideLine::GuideLine(QWidget* parent) : QWidget(parent), cross_(this) {
  setObjectName(QStringLiteral("GuideLine"));
  connect(&cross_, &QAbstractButton::clicked, this, [this] { on_close(); });
  PlaceAll();
  hide();
}

void GuideLine::Show(const Guide& guide) {
  text_ = ToQString(guide.line);
  setAccessibleName(text_);
  cross_.setVisible(guide.can_close);
  setVisible(!guide.line.empty());
  update();
}

void GuideLine::PlaceAll() {
  setGeometry(LogicalRect(kLine));
  cross_.setGeometry(LogicalRect(QRect(kLine.width() - kCross, 0, kCross, kLine.height())));
}

void GuideLine::paintEvent(QPaintEvent* /*event*/) {
  DevicePainter surface(*this);
  QPainter& painter = surface.Painter();
  const PixelGrid& grid = surface.Grid();
  PaintRounded(painter, surface.Area(), grid.Pixels(4), TheColours().note);
  painter.setPen(QColor(TheColours().text));
  painter.setFont(ToQFont(Font{}, grid.Ratio()));
  // A little higher than the middle: what hangs down must fit as well.
  PaintText(painter, ScaledRect(grid, QRect(0, 0, kLine.width(), kLine.height() - 2)), Align::Centre, text_);
}

}  // namespace kestrel
