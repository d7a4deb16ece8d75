// SPDX-License-Identifier: MIT
#include "ui/qt/style.h"

#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QStyleOption>
#include <algorithm>
#include <cmath>
#include <optional>

#include "ui/qt/device_painter.h"
#include "ui/qt/fonts.h"
#include "ui/qt/palette.h"

namespace kestrel {

namespace {

constexpr int kIndicator = 13;    // pixels of 96 dpi
constexpr int kIndicatorGap = 6;  // to the text
constexpr int kSignSize = 32;     // in a message box
constexpr double kButtonRadius = 4;

double ScreenRatio(const QPainter& painter) {
  return painter.device() != nullptr ? painter.device()->devicePixelRatioF() : 1;
}

// A painter in device pixels for the duration of one drawing call.
class DeviceScope {
 public:
  DeviceScope(QPainter& painter, const QWidget* widget)
      : painter_(painter), screen_(ScreenRatio(painter)), grid_(screen_.Ratio() * TheLook().zoom) {
    painter_.save();
    UseDevicePixels(painter_);
    if (widget == nullptr) return;
    painter_.setFont(Scaled(widget->font()));
    corner_ = widget->mapTo(widget->window(), QPoint(0, 0));
  }
  ~DeviceScope() { painter_.restore(); }
  DeviceScope(const DeviceScope&) = delete;
  DeviceScope& operator=(const DeviceScope&) = delete;

  // For lengths of the design, the present size included.
  [[nodiscard]] const PixelGrid& Grid() const { return grid_; }
  // A place in the widget's own pixels, which know the present size already.
  // Edges are rounded where they are in the window, as the widget's own are.
  [[nodiscard]] QRect Map(const QRect& logical) const {
    constexpr double kTwips = kTwipsPerPixel;
    const QRect in_window = logical.translated(corner_);
    return screen_
        .Rect(in_window.x() * kTwips, in_window.y() * kTwips, in_window.width() * kTwips,
              in_window.height() * kTwips)
        .translated(-screen_.At(corner_.x() * kTwips), -screen_.At(corner_.y() * kTwips));
  }

 private:
  [[nodiscard]] QFont Scaled(QFont font) const {
    if (font.pixelSize() > 0) {
      font.setPixelSize(static_cast<int>(std::lround(font.pixelSize() * screen_.Ratio())));
    }
    return font;
  }

  QPainter& painter_;
  QPoint corner_;  // of the widget in its window
  PixelGrid screen_;
  PixelGrid grid_;
};

bool Has(const QStyleOption& option, QStyle::StateFlag flag) {
  return (option.state & flag) != 0;
}

QColor TextColour(const QStyleOption& option) {
  return Has(option, QStyle::State_Enabled) ? QColor(TheColours().text) : QColor(TheColours().disabled_text);
}

// The ring round what has the keyboard.
void PaintFocus(QPainter& painter, const DeviceScope& scope, const QRect& place) {
  painter.setRenderHint(QPainter::Antialiasing);
  const double line = scope.Grid().Pixels(1);
  const double radius = scope.Grid().Pixels(3);
  painter.setPen(QPen(QColor(TheColours().accent), line));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(QRectF(place).adjusted(line / 2, line / 2, -line / 2, -line / 2), radius, radius);
}

// Dialogs, and every window that asks to have its ground painted by the style.
bool HasEdge(const QWidget& widget) {
  return widget.isWindow() && ((widget.windowFlags() & Qt::WindowType_Mask) == Qt::Dialog ||
                               widget.testAttribute(Qt::WA_StyledBackground));
}

// A line round a window that opens over the game's: in dark colours they could not be told apart.
void PaintEdge(QPainter& painter, const DeviceScope& scope, const QRect& place) {
  const double line = scope.Grid().Pixels(1);
  painter.setPen(QPen(QColor(TheColours().thin_line), line, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(QRectF(place).adjusted(line / 2, line / 2, -line / 2, -line / 2));
}

QColor ButtonFace(const Colours& colours, const QStyleOptionButton& option) {
  const QColor face = option.palette.color(QPalette::Active, QPalette::Button);
  const bool coloured = face != QColor(colours.button);
  if (!Has(option, QStyle::State_Enabled)) {
    return coloured ? DisabledFace(colours, face) : QColor(colours.disabled_button);
  }
  if (Has(option, QStyle::State_Sunken)) return coloured ? PressedFace(face) : QColor(colours.pressed);
  if (Has(option, QStyle::State_MouseOver)) return coloured ? HoverFace(face) : QColor(colours.hover);
  return face;
}

// Makes the painter's font smaller until the text keeps clear of the borders.
void FitText(QPainter& painter, QString text, int width) {
  text.remove('&');
  QFont font = painter.font();
  while (font.pixelSize() > 6 && QFontMetrics(font).horizontalAdvance(text) > width) {
    font.setPixelSize(font.pixelSize() - 1);
  }
  painter.setFont(font);
}

void PaintButton(const QStyleOptionButton& option, QPainter& painter, const QWidget* widget) {
  const DeviceScope scope(painter, widget);
  const Colours& colours = TheColours();
  const QRect place = scope.Map(option.rect);
  const bool enabled = Has(option, QStyle::State_Enabled);
  const bool is_default = (option.features & QStyleOptionButton::DefaultButton) != 0;
  const QColor border = !enabled ? colours.disabled_border : is_default ? colours.accent : colours.border;
  const int line = scope.Grid().Pixels(is_default && enabled ? 2 : 1);
  PaintRounded(painter, place, kButtonRadius * scope.Grid().Ratio(), ButtonFace(colours, option), border,
               line);
  if (Has(option, QStyle::State_HasFocus) && Has(option, QStyle::State_KeyboardFocusChange)) {
    const int inset = scope.Grid().Pixels(is_default ? 3 : 2);
    PaintFocus(painter, scope, place.adjusted(inset, inset, -inset, -inset));
  }
  painter.setPen(TextColour(option));
  const int padding = scope.Grid().Pixels(1);
  FitText(painter, option.text, place.width() - 2 * (line + padding));
  PaintText(painter, place.adjusted(padding, 0, -padding, 0), Align::Centre, option.text, Digits::AsDesigned,
            true);
}

void PaintIndicator(const QStyleOption& option, QPainter& painter, const DeviceScope& scope, bool round) {
  const QRect row = scope.Map(option.rect);
  const int size = scope.Grid().Pixels(kIndicator);
  const QRect place(row.left(), row.top() + (row.height() - size) / 2, size, size);
  const bool enabled = Has(option, QStyle::State_Enabled);
  const Colours& colours = TheColours();
  const QColor ground = !enabled                               ? colours.disabled_button
                        : Has(option, QStyle::State_Sunken)    ? colours.pressed
                        : Has(option, QStyle::State_MouseOver) ? colours.hover
                                                               : colours.paper;
  const QColor border = enabled ? colours.border : colours.disabled_border;
  PaintRounded(painter, place, round ? size / 2.0 : scope.Grid().Pixels(3), ground, border,
               scope.Grid().Pixels(1));
  if (!Has(option, QStyle::State_On)) return;
  painter.setRenderHint(QPainter::Antialiasing);
  const QColor ink = enabled ? colours.accent : colours.disabled_text;
  const double unit = size / 13.0;
  if (round) {
    const double inset = 3.5 * unit;
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    painter.drawEllipse(QRectF(place).adjusted(inset, inset, -inset, -inset));
    return;
  }
  const QPointF corner = place.topLeft();
  painter.setPen(QPen(ink, 2 * unit, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPolyline(QPolygonF({corner + QPointF(3.2, 6.8) * unit, corner + QPointF(5.6, 9.2) * unit,
                                  corner + QPointF(9.8, 3.9) * unit}));
}

void PaintChoice(const QStyleOptionButton& option, QPainter& painter, const QWidget* widget, bool round) {
  const DeviceScope scope(painter, widget);
  PaintIndicator(option, painter, scope, round);
  const int start = scope.Grid().Pixels(kIndicator + kIndicatorGap);
  const QRect text_place = scope.Map(option.rect).adjusted(start, 0, 0, 0);
  painter.setPen(TextColour(option));
  PaintText(painter, text_place, Align::Left, option.text, Digits::AsDesigned, true);
  if (!Has(option, QStyle::State_HasFocus) || !Has(option, QStyle::State_KeyboardFocusChange)) return;
  const int width = painter.fontMetrics().horizontalAdvance(QString(option.text).remove('&'));
  const int around = scope.Grid().Pixels(3);
  const int height = scope.Grid().Pixels(17);
  const QRect ring(text_place.left() - around, text_place.top() + (text_place.height() - height) / 2,
                   width + 2 * around, height);
  PaintFocus(painter, scope, ring);
}

QColor BorderColour(const QStyleOption& option) {
  return Has(option, QStyle::State_Enabled) ? TheColours().border : TheColours().disabled_border;
}

// The outline of a text box or list; its ground stays as it is.
void PaintOutline(const QStyleOption& option, QPainter& painter) {
  const DeviceScope scope(painter, nullptr);
  const QRect place = scope.Map(option.rect);
  const int line = scope.Grid().Pixels(1);
  painter.setClipRegion(QRegion(place) - place.adjusted(line, line, -line, -line));
  painter.fillRect(place, BorderColour(option));
}

void PaintComboBox(const QStyleOptionComboBox& option, QPainter& painter) {
  const DeviceScope scope(painter, nullptr);
  const Colours& colours = TheColours();
  const QRect place = scope.Map(option.rect);
  const bool hovered = Has(option, QStyle::State_MouseOver) && Has(option, QStyle::State_Enabled);
  PaintRounded(painter, place, kButtonRadius * scope.Grid().Ratio(), hovered ? colours.hover : colours.button,
               Has(option, QStyle::State_HasFocus) ? QColor(colours.accent) : BorderColour(option),
               scope.Grid().Pixels(1));
  const double unit = scope.Grid().Ratio();
  const QPointF middle(place.right() - 11 * unit, place.center().y() + 0.5);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(TextColour(option), 1.5 * unit, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPolyline(QPolygonF(
      {middle + QPointF(-4, -2) * unit, middle + QPointF(0, 2) * unit, middle + QPointF(4, -2) * unit}));
}

void PaintSlider(const QStyleOptionSlider& option, QPainter& painter, const QRect& groove,
                 const QRect& handle) {
  const DeviceScope scope(painter, nullptr);
  const Colours& colours = TheColours();
  const QRect track = scope.Map(groove);
  const QRect grip = scope.Map(handle);
  const int height = scope.Grid().Pixels(4);
  const QRect bar(track.left(), grip.center().y() - height / 2, track.width(), height);
  PaintRounded(painter, bar, height / 2.0, colours.track, BorderColour(option), scope.Grid().Pixels(1));
  const bool enabled = Has(option, QStyle::State_Enabled);
  const int size = std::min(grip.width(), grip.height());
  const QRect knob(grip.center().x() - size / 2, grip.center().y() - size / 2, size, size);
  PaintRounded(painter, knob, size / 2.0, enabled ? colours.accent : colours.disabled_button,
               Has(option, QStyle::State_HasFocus) ? QColor(colours.text) : BorderColour(option),
               scope.Grid().Pixels(Has(option, QStyle::State_HasFocus) ? 2 : 1));
}

// The sign of a message box: a coloured shape with a white symbol on it.
struct BoxSign {
  QRgb colour;
  char symbol;
  bool triangle;
};

std::optional<BoxSign> SignOf(QStyle::StandardPixmap standard) {
  switch (standard) {
    case QStyle::SP_MessageBoxInformation:
      return BoxSign{TheColours().accent, 'i', false};
    case QStyle::SP_MessageBoxQuestion:
      return BoxSign{TheColours().accent, '?', false};
    case QStyle::SP_MessageBoxWarning:
      return BoxSign{TheColours().warning, '!', true};
    case QStyle::SP_MessageBoxCritical:
      return BoxSign{TheColours().target, 'x', false};
    default:
      return std::nullopt;
  }
}

QPixmap PaintSign(const BoxSign& sign, int size) {
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
    painter.drawLine(QPointF(11, 11), QPointF(21, 21));
    painter.drawLine(QPointF(21, 11), QPointF(11, 21));
    return pixmap;
  }
  painter.setFont(ToQFont(Font{"Arial", 16.5, true}, 1));
  const QRect place(0, sign.triangle ? 3 : 0, 32, 32);
  PaintText(painter, place, Align::Centre, QString(QLatin1Char(sign.symbol)));
  return pixmap;
}

}  // namespace

CalmStyle::CalmStyle(const Look& look) : QProxyStyle(QStringLiteral("Fusion")), look_(look) {
}

void CalmStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const {
  if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option)) {
    if (element == CE_PushButton) return PaintButton(*button, *painter, widget);
    if (element == CE_RadioButton) return PaintChoice(*button, *painter, widget, true);
    if (element == CE_CheckBox) return PaintChoice(*button, *painter, widget, false);
  }
  QProxyStyle::drawControl(element, option, painter, widget);
  if (element != CE_TabBarTabShape || !Has(*option, State_Selected)) return;
  // The base's own sign of the chosen tab is lost on dark grounds.
  painter->fillRect(option->rect.adjusted(2, option->rect.height() - 4, -2, 0), TheColours().accent);
}

void CalmStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                   QPainter* painter, const QWidget* widget) const {
  if (const auto* box = qstyleoption_cast<const QStyleOptionComboBox*>(option); box != nullptr) {
    if (control == CC_ComboBox && !box->editable) return PaintComboBox(*box, *painter);
  }
  const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
  if (control == CC_Slider && slider != nullptr && slider->orientation == Qt::Horizontal) {
    return PaintSlider(*slider, *painter, subControlRect(CC_Slider, option, SC_SliderGroove, widget),
                       subControlRect(CC_Slider, option, SC_SliderHandle, widget));
  }
  QProxyStyle::drawComplexControl(control, option, painter, widget);
}

void CalmStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
  if (element == PE_FrameFocusRect) {
    const DeviceScope scope(*painter, nullptr);
    return PaintFocus(*painter, scope, scope.Map(option->rect));
  }
  if (element == PE_Widget && widget != nullptr && HasEdge(*widget)) {
    const DeviceScope scope(*painter, nullptr);
    return PaintEdge(*painter, scope, scope.Map(widget->rect()));
  }
  if (element == PE_FrameLineEdit || element == PE_Frame) return PaintOutline(*option, *painter);
  QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void CalmStyle::polish(QWidget* widget) {
  QProxyStyle::polish(widget);
  if (HasEdge(*widget)) widget->setAttribute(Qt::WA_StyledBackground);
}

int CalmStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* return_data) const {
  switch (hint) {
    case SH_DialogButtonBox_ButtonsHaveIcons:
    case SH_EtchDisabledText:
    case SH_DitherDisabledText:
    case SH_MessageBox_CenterButtons:
      return 0;
    case SH_UnderlineShortcut:
      return 1;
    case SH_Table_GridLineColor:
      return static_cast<int>(TheColours().thin_line);
    default:
      return QProxyStyle::styleHint(hint, option, widget, return_data);
  }
}

int CalmStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
  switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
      return Zoomed(kIndicator);
    case PM_MessageBoxIconSize:
      return Zoomed(kSignSize);
    case PM_RadioButtonLabelSpacing:
    case PM_CheckBoxLabelSpacing:
      return Zoomed(kIndicatorGap);
    default: {
      // What is a line stays a line.
      const int plain = QProxyStyle::pixelMetric(metric, option, widget);
      return plain > 2 ? Zoomed(plain) : plain;
    }
  }
}

int CalmStyle::Zoomed(int length) const {
  return static_cast<int>(std::lround(length * look_.zoom));
}

// The whole control answers to the mouse, not only its text.
QRect CalmStyle::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const {
  if (element == SE_CheckBoxClickRect || element == SE_RadioButtonClickRect) return option->rect;
  return QProxyStyle::subElementRect(element, option, widget);
}

QIcon CalmStyle::standardIcon(StandardPixmap standard, const QStyleOption* option,
                              const QWidget* widget) const {
  const std::optional<BoxSign> sign = SignOf(standard);
  if (!sign) return QProxyStyle::standardIcon(standard, option, widget);
  QIcon icon;
  for (const int size : {32, 40, 48, 64, 96, 128}) icon.addPixmap(PaintSign(*sign, size));
  return icon;
}

QSize CalmStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                                  const QWidget* widget) const {
  QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
  if (type == CT_PushButton) size = size.expandedTo(QSize(Zoomed(80), Zoomed(27)));
  return size;
}

}  // namespace kestrel
