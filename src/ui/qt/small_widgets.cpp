// SPDX-License-Identifier: MIT
#include "ui/qt/small_widgets.h"

#include <QAccessibleWidget>
#include <QFileInfo>
#include <QKeyEvent>
#include <QPainter>
#include <algorithm>

#include "forms/texts.h"
#include "ui/qt/device_painter.h"
#include "ui/qt/fonts.h"
#include "ui/qt/guide_widgets.h"
#include "ui/qt/look.h"
#include "ui/qt/text_conversion.h"

namespace kestrel {

namespace {

constexpr int kPadding = 5;  // between a ground's edge and its text, pixels of 96 dpi
constexpr int kTickWidth = 12;
constexpr std::size_t kMostPictureBytes = 16U << 20U;  // of a picture's file

bool OnlyDigitsAndColon(const QString& text) {
  for (const QChar letter : text) {
    if (!letter.isDigit() && letter != QLatin1Char(':')) return false;
  }
  return !text.isEmpty();
}

// The picture in the size that fits the scale best.
QPixmap LoadForRatio(const QString& path, double ratio) {
  const int times = ratio > 2 ? 3 : ratio > 1 ? 2 : 1;
  const QFileInfo file(path);
  const QString name = QStringLiteral("%1/%2@%3x.%4")
                           .arg(file.path(), file.completeBaseName(), QString::number(times), file.suffix());
  QPixmap pixmap(times > 1 && QFileInfo::exists(name) ? name : path);
  pixmap.setDevicePixelRatio(1);
  return pixmap;
}

// The name beside the logo's sign, which fills a square at its left, in the colour of texts.
void ColourName(QPixmap& logo) {
  QPainter painter(&logo);
  painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
  painter.fillRect(logo.height() + 1, 0, logo.width(), logo.height(), QColor(TheColours().text));
}

// A text; one that can be clicked is a link, which a reader's own walk reaches where the keyboard does not.
class TextInterface final : public QAccessibleWidget {
 public:
  explicit TextInterface(TextLabel& label)
      : QAccessibleWidget(&label, QAccessible::StaticText), label_(label) {}

  QAccessible::Role role() const override {
    return label_.OnClick() ? QAccessible::Link : QAccessible::StaticText;
  }
  QStringList actionNames() const override {
    return label_.OnClick() ? QStringList{pressAction()} : QStringList();
  }
  void doAction(const QString& action) override {
    if (actionNames().contains(action)) label_.OnClick()();
  }

 private:
  TextLabel& label_;
};

QAccessibleInterface* MakeLabelInterface(const QString& /*class_name*/, QObject* object) {
  if (auto* text = dynamic_cast<TextLabel*>(object)) return new TextInterface(*text);
  if (dynamic_cast<StatusLabel*>(object) != nullptr || dynamic_cast<GuideLine*>(object) != nullptr) {
    return new QAccessibleWidget(qobject_cast<QWidget*>(object), QAccessible::StaticText);
  }
  return nullptr;
}

// The font, smaller where the digits would not fit: a step counter has room for four.
void UseFontThatFits(QPainter& painter, QFont font, const QString& digits, int width) {
  while (font.pixelSize() > 1 && QFontMetrics(font).horizontalAdvance(digits) > width) {
    font.setPixelSize(font.pixelSize() - 1);
  }
  painter.setFont(font);
}

// The frame of the clock of a solved puzzle, and a tick left of the time.
void PaintTick(QPainter& painter, const PixelGrid& grid, const QRect& area) {
  const QColor colour(TheColours().solved);
  const int line = grid.Pixels(2);
  const QRect inner = area.adjusted(line, line, -line, -line);
  painter.save();
  painter.setClipRegion(QRegion(area) - inner);
  painter.fillRect(area, colour);
  painter.setClipping(false);
  painter.setRenderHint(QPainter::Antialiasing);
  const double unit = grid.Ratio();
  const QPointF middle(area.left() + 11 * unit, area.top() + area.height() / 2.0);
  painter.setPen(QPen(colour, 3 * unit, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPolyline(QPolygonF({middle + QPointF(-4.5, 0.5) * unit, middle + QPointF(-1.5, 4) * unit,
                                  middle + QPointF(5, -4.5) * unit}));
  painter.restore();
}

}  // namespace

void InstallLabelAccess() {
  QAccessible::installFactory(MakeLabelInterface);
}

// ---- TextLabel ----

void TextLabel::Show(const Label& label) {
  label_ = label;
  caption_ = ToQString(label.caption);
  update();
}

void TextLabel::SetRule(bool on) {
  if (rule_ == on) return;
  rule_ = on;
  update();
}

void TextLabel::SetClick(std::function<void()> click) {
  click_ = std::move(click);
  setCursor(Qt::PointingHandCursor);
}

void TextLabel::SetFrame(RowFrame frame) {
  if (frame_ == frame) return;
  frame_ = frame;
  update();
}

void TextLabel::SetSolved(bool on) {
  if (solved_ == on) return;
  solved_ = on;
  update();
}

void TextLabel::enterEvent(QEnterEvent* event) {
  if (click_) update();
  QWidget::enterEvent(event);
}

void TextLabel::leaveEvent(QEvent* event) {
  if (click_) update();
  QWidget::leaveEvent(event);
}

void TextLabel::mouseReleaseEvent(QMouseEvent* event) {
  if (click_ && event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) click_();
}

void TextLabel::PaintGround(QPainter& painter, const PixelGrid& grid, const QRect& area) const {
  const Colours& colours = TheColours();
  const bool ground = !label_.transparent && label_.back != kWindowColour;
  const bool hovered = click_ && underMouse();
  if (ground)
    painter.fillRect(area, hovered ? QColor(colours.hover) : colours.Of(label_.back, colours.window));
  if (rule_) {
    painter.fillRect(area.left(), area.top(), area.width(), grid.Pixels(1), QColor(colours.thin_line));
  }
}

void TextLabel::PaintFrame(QPainter& painter, const PixelGrid& grid, const QRect& area) const {
  if (frame_ == RowFrame::None) return;
  const int line = grid.Pixels(2);
  const QColor colour(TheColours().accent);
  painter.fillRect(area.left(), area.top(), area.width(), line, colour);
  painter.fillRect(area.left(), area.top() + area.height() - line, area.width(), line, colour);
  const int end = frame_ == RowFrame::LeftEnd ? area.left() : area.left() + area.width() - line;
  painter.fillRect(end, area.top(), line, area.height(), colour);
}

void TextLabel::paintEvent(QPaintEvent* /*event*/) {
  DevicePainter surface(*this);
  QPainter& painter = surface.Painter();
  const PixelGrid& grid = surface.Grid();
  const Colours& colours = TheColours();
  QRect area = surface.Area();
  PaintGround(painter, grid, area);
  PaintFrame(painter, grid, area);
  if (solved_) PaintTick(painter, grid, area);
  painter.setFont(ToQFont(label_.font, grid.Ratio()));
  painter.setPen(label_.enabled ? colours.Of(label_.fore, colours.text) : QColor(colours.disabled_text));
  const int padding = grid.Pixels(kPadding);
  if (!label_.transparent && label_.back != kWindowColour) area.adjust(padding, 0, -padding, 0);
  if (OnlyDigitsAndColon(caption_)) {
    if (solved_) area.setLeft(area.left() + grid.Pixels(kTickWidth));
    UseFontThatFits(painter, painter.font(), caption_, area.width());
    return PaintText(painter, area, label_.align, caption_, Digits::OneWidth);
  }
  if (area.height() >= 2 * painter.fontMetrics().height()) {
    painter.drawText(area, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, caption_);
    return;
  }
  PaintText(painter, area, label_.align, caption_);
}

// ---- LinkLabel ----

LinkLabel::LinkLabel(QWidget* parent) : QAbstractButton(parent) {
  setFocusPolicy(Qt::TabFocus);
}

void LinkLabel::Show(const Label& label) {
  label_ = label;
  setText(ToQString(label.caption));
  setCursor(label.enabled ? Qt::PointingHandCursor : Qt::ArrowCursor);
  update();
}

void LinkLabel::enterEvent(QEnterEvent* event) {
  update();
  QAbstractButton::enterEvent(event);
}

void LinkLabel::leaveEvent(QEvent* event) {
  update();
  QAbstractButton::leaveEvent(event);
}

void LinkLabel::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    click();
    return;
  }
  QAbstractButton::keyPressEvent(event);
}

// A pointer to the right; the caption ">" alone would be easy to miss.
void LinkLabel::PaintArrow(QPainter& painter, const QRect& place) const {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(underMouse() ? TheColours().thick_line : TheColours().accent));
  const double size = place.height() * 0.95;
  const QPointF tip(place.right() - size * 0.1, place.top() + place.height() / 2.0);
  const double shaft = size * 0.16;
  painter.drawPolygon(
      QPolygonF({tip, tip + QPointF(-size * 0.55, -size * 0.5), tip + QPointF(-size * 0.55, -shaft),
                 tip + QPointF(-size * 1.1, -shaft), tip + QPointF(-size * 1.1, shaft),
                 tip + QPointF(-size * 0.55, shaft), tip + QPointF(-size * 0.55, size * 0.5)}));
}

void LinkLabel::paintEvent(QPaintEvent* /*event*/) {
  DevicePainter surface(*this);
  QPainter& painter = surface.Painter();
  const QRect area = surface.Area();
  if (hasFocus()) PaintFocus(painter, surface.Grid(), area);
  if (text() == QLatin1String(">")) {
    PaintArrow(painter, area);
    return;
  }
  QFont font = ToQFont(label_.font, surface.Grid().Ratio());
  font.setUnderline(isEnabled() && (underMouse() || hasFocus()));
  painter.setFont(font);
  const Colours& colours = TheColours();
  painter.setPen(isEnabled() ? colours.Of(label_.fore, colours.link) : QColor(colours.disabled_text));
  const int inset = surface.Grid().Pixels(2);
  PaintText(painter, area.adjusted(inset, 0, -inset, 0), label_.align, text());
}

// ---- PictureButton ----

void PictureButton::Show(const Picture& picture) {
  pixmap_ = QPixmap();
  if (!picture.file.empty()) {
    Bytes file;
    if (files_.Read(picture.file, kMostPictureBytes, file))
      pixmap_.loadFromData(file.data(), static_cast<uint>(file.size()));
  } else if (!stand_in_.isEmpty()) {
    pixmap_ = LoadForRatio(stand_in_, devicePixelRatioF() * TheLook().zoom);
    if (!pixmap_.isNull() && TheLook().scheme != Scheme::Light) ColourName(pixmap_);
  }
  const bool acts = picture.tab_index >= 0;
  setFocusPolicy(acts ? Qt::TabFocus : Qt::NoFocus);
  setCursor(acts ? Qt::PointingHandCursor : Qt::ArrowCursor);
  update();
}

void PictureButton::paintEvent(QPaintEvent* /*event*/) {
  DevicePainter surface(*this);
  QPainter& painter = surface.Painter();
  const QRect area = surface.Area();
  if (!pixmap_.isNull()) {
    const QSize size = pixmap_.size().scaled(area.size(), Qt::KeepAspectRatio);
    const QRect place(area.left() + (area.width() - size.width()) / 2,
                      area.top() + (area.height() - size.height()) / 2, size.width(), size.height());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(place, pixmap_);
  }
  if (hasFocus()) PaintFocus(painter, surface.Grid(), area);
}

// ---- StartPanel ----

void StartPanel::paintEvent(QPaintEvent* /*event*/) {
  DevicePainter surface(*this);
  QPainter& painter = surface.Painter();
  const QRect area = surface.Area();
  PaintRounded(painter, area, 0, TheColours().paper, TheColours().thick_line, surface.Grid().Pixels(2));
  painter.setPen(QColor(TheColours().text));
  painter.setFont(ToQFont(Font{"Arial", 30, true}, surface.Grid().Ratio()));
  const QRect upper(area.left(), area.top(), area.width(), area.height() / 2);
  PaintText(painter, upper, Align::Centre, ToQString(texts::kProductName));
  painter.setFont(ToQFont(Font{}, surface.Grid().Ratio()));
  for (const QObject* child : children()) {
    const auto* bar = qobject_cast<const QWidget*>(child);
    if (bar == nullptr) continue;
    const PixelGrid& grid = surface.Grid();
    const double twips = kTwipsPerPixel / TheLook().zoom;
    const QRect row =
        grid.Rect(0, (bar->y() - 4) * twips, (bar->x() - 10) * twips, (bar->height() + 8) * twips);
    PaintText(painter, row, Align::Right, bar->accessibleName());
  }
}

// ---- SlimProgress ----

SlimProgress::SlimProgress(QWidget* parent) : QProgressBar(parent) {
  setFormat(QStringLiteral("%v of %m"));
}

void SlimProgress::paintEvent(QPaintEvent* /*event*/) {
  DevicePainter surface(*this);
  QPainter& painter = surface.Painter();
  const Colours& colours = TheColours();
  QRect bar = surface.Area();
  painter.setFont(ToQFont(Font{}, surface.Grid().Ratio()));
  const QFontMetrics metrics(painter.font());
  if (bar.height() > metrics.height() - surface.Grid().Pixels(2)) {
    painter.setPen(QColor(colours.text));
    PaintText(painter, bar, Align::Left, text());
    // As if all were done, so that the bar does not move while the number grows.
    const QString longest = format()
                                .replace(QLatin1String("%v of"), QString::number(maximum()) + " of")
                                .replace(QLatin1String("%m"), QString::number(maximum()));
    bar.setLeft(bar.left() + metrics.horizontalAdvance(longest) + surface.Grid().Pixels(6));
    const int height = surface.Grid().Pixels(8);
    bar = QRect(bar.left(), bar.top() + (bar.height() - height) / 2, bar.width(), height);
  }
  const int range = std::max(1, maximum() - minimum());
  const int filled = bar.width() * (value() - minimum()) / range;
  const double radius = bar.height() / 2.0;
  PaintRounded(painter, bar, radius, colours.track);
  painter.setClipRect(bar.left(), bar.top(), filled, bar.height());
  PaintRounded(painter, bar, radius, colours.accent);
}

// ---- StatusLabel ----

void StatusLabel::Show(const StatusPanel& panel) {
  caption_ = ToQString(panel.caption);
  font_ = panel.font;
  update();
}

void StatusLabel::paintEvent(QPaintEvent* /*event*/) {
  DevicePainter surface(*this);
  QPainter& painter = surface.Painter();
  const QRect area = surface.Area();
  const int line = surface.Grid().Pixels(1);
  painter.fillRect(area.left(), area.top(), area.width(), line, QColor(TheColours().thin_line));
  const int inset = surface.Grid().Pixels(5);
  if (x() > 0) {
    painter.fillRect(area.left(), area.top() + inset, line, area.height() - 2 * inset,
                     QColor(TheColours().thin_line));
  }
  painter.setFont(ToQFont(font_, surface.Grid().Ratio()));
  painter.setPen(QColor(TheColours().text));
  const int padding = surface.Grid().Pixels(8);
  PaintText(painter, area.adjusted(padding, line, -line, 0), Align::Left, caption_);
}

}  // namespace kestrel
