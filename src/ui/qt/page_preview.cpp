// SPDX-License-Identifier: MIT
#include "ui/qt/page_preview.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "ui/qt/device_painter.h"
#include "ui/qt/fonts.h"
#include "ui/qt/palette.h"
#include "ui/qt/text_conversion.h"

namespace kestrel {

namespace {

constexpr double kSheetWidth = 210;  // millimetres
constexpr double kMillimetresPerPoint = 25.4 / 72;

// Paints items in units of the page, of which a millimetre has `per_millimetre`; one is `pixels` large.
class ItemPainter {
 public:
  ItemPainter(QPainter& painter, double per_millimetre, double pixels)
      : painter_(painter), per_millimetre_(per_millimetre), pixels_(pixels) {}

  void Paint(const DrawnItem& item) {
    if (item.kind == DrawnItem::Kind::Text) return PaintLetters(item);
    // A hairline of paper must not vanish on the screen.
    constexpr double kThinnest = 0.5;
    QPen pen(Qt::black, std::max(item.width * kLineWidthStep / 100.0 * per_millimetre_, kThinnest / pixels_));
    pen.setCapStyle(Qt::FlatCap);
    pen.setJoinStyle(Qt::MiterJoin);
    painter_.setPen(pen);
    if (item.kind == DrawnItem::Kind::Line) {
      painter_.drawLine(item.x1, item.y1, item.x2, item.y2);
    } else {
      painter_.drawRect(QRect(QPoint(item.x1, item.y1), QSize(item.x2 - item.x1, item.y2 - item.y1)));
    }
  }

 private:
  // Without hinting and kerning: the letters stand where they do on paper, at any scale.
  void PaintLetters(const DrawnItem& item) {
    QFont font = ToQFont(item.style.font, 1);
    font.setPixelSize(
        static_cast<int>(std::lround(item.style.font.size * kMillimetresPerPoint * per_millimetre_)));
    font.setKerning(false);
    font.setHintingPreference(QFont::PreferNoHinting);
    painter_.setFont(font);
    painter_.setPen(ToQColor(item.style.colour, 0xFF000000));
    painter_.drawText(QPointF(item.x1, item.y1 + QFontMetricsF(font).ascent()), ToQString(item.text));
  }

  QPainter& painter_;
  double per_millimetre_;
  double pixels_;
};

QPixmap DrawSheet(const DrawnPage* page, const QSize& size) {
  QPixmap sheet(size);
  sheet.fill(Qt::white);
  if (page == nullptr) return sheet;
  QPainter painter(&sheet);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  const double unit = std::min(1.0 * size.width() / page->width, 1.0 * size.height() / page->height);
  painter.scale(unit, unit);
  ItemPainter items(painter, page->width / kSheetWidth, unit);
  for (const DrawnItem& item : page->items) items.Paint(item);
  return sheet;
}

}  // namespace

void PagePreview::Show(std::shared_ptr<const DrawnPage> page) {
  if (page == page_) return;
  page_ = std::move(page);
  sheet_ = QPixmap();
  update();
}

void PagePreview::paintEvent(QPaintEvent* /*event*/) {
  DevicePainter surface(*this);
  const QRect area = surface.Area();
  const int line = surface.Grid().Pixels(1);
  const QRect paper = area.adjusted(line, line, -line, -line);
  if (sheet_.size() != paper.size()) sheet_ = DrawSheet(page_.get(), paper.size());
  surface.Painter().fillRect(area, palette().color(QPalette::Mid));
  surface.Painter().drawPixmap(paper.topLeft(), sheet_);
}

}  // namespace kestrel
