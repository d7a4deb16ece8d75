// SPDX-License-Identifier: MIT
#include "ui/qt/style.h"

#include <QPainter>
#include <QStyleOption>
#include <algorithm>
#include <array>
#include <cmath>

#include "ui/qt/box_signs.h"
#include "ui/qt/device_painter.h"
#include "ui/qt/device_scope.h"
#include "ui/qt/fonts.h"
#include "ui/qt/palette.h"

namespace kestrel {

namespace {

constexpr int kIndicator = 13;    // pixels of 96 dpi
constexpr int kIndicatorGap = 6;  // to the text
constexpr int kSignSize = 32;     // in a message box
constexpr double kButtonRadius = 4;

bool Has(const QStyleOption& option, QStyle::StateFlag flag) {
  return (option.state & flag) != 0;
}

QColor TextColour(const QStyleOption& option) {
  return Has(option, QStyle::State_Enabled) ? QColor(TheColours().text) : QColor(TheColours().disabled_text);
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
    PaintFocus(painter, scope.Grid(), place.adjusted(inset, inset, -inset, -inset));
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
  PaintFocus(painter, scope.Grid(), ring);
}

QColor BorderColour(const QStyleOption& option) {
  return Has(option, QStyle::State_Enabled) ? TheColours().border : TheColours().disabled_border;
}

// The outline of a text box, list or menu; its ground stays as it is.
void PaintOutline(const QStyleOption& option, QPainter& painter, const QColor& colour) {
  const DeviceScope scope(painter, nullptr);
  const QRect place = scope.Map(option.rect);
  const int line = scope.Grid().Pixels(1);
  painter.setClipRegion(QRegion(place) - place.adjusted(line, line, -line, -line));
  painter.fillRect(place, colour);
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

// A bar whose handle can be told from the ground in every palette; Fusion derives both from one colour.
void PaintScrollBar(const QStyleOptionSlider& option, QPainter& painter, const QRect& handle,
                    const std::array<QRect, 2>& arrows) {
  const DeviceScope scope(painter, nullptr);
  const Colours& colours = TheColours();
  const bool across = option.orientation == Qt::Horizontal;
  const bool held =
      Has(option, QStyle::State_Sunken) && option.activeSubControls == QStyle::SC_ScrollBarSlider;
  painter.fillRect(scope.Map(option.rect), QColor(colours.window));
  const int inset = scope.Grid().Pixels(3);
  const QRect grip = scope.Map(handle).adjusted(across ? 0 : inset, across ? inset : 0, across ? 0 : -inset,
                                                across ? -inset : 0);
  PaintRounded(painter, grip, std::min(grip.width(), grip.height()) / 2.0,
               held ? QColor(colours.accent) : BorderColour(option));
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(BorderColour(option));
  for (std::size_t i = 0; i < arrows.size(); ++i) {
    const QRectF place = scope.Map(arrows[i]);
    const double size = std::min(place.width(), place.height()) / 4;
    const double tip = i == 0 ? -size : size;
    QPolygonF arrow({QPointF(-size, -tip / 2), QPointF(size, -tip / 2), QPointF(0, tip / 2)});
    if (across) arrow = QTransform().rotate(-90).map(arrow);
    painter.drawPolygon(arrow.translated(place.center()));
  }
}

void PaintTab(const QStyleOptionTab& option, QPainter& painter) {
  const DeviceScope scope(painter, nullptr);
  const Colours& colours = TheColours();
  const bool chosen = Has(option, QStyle::State_Selected);
  const bool hovered = Has(option, QStyle::State_MouseOver) && !chosen;
  // Each shares its edge with the next one.
  const int line = scope.Grid().Pixels(1);
  const bool last = option.position == QStyleOptionTab::End || option.position == QStyleOptionTab::OnlyOneTab;
  const QRect place = scope.Map(option.rect).adjusted(0, 0, last ? 0 : line, 0);
  PaintRounded(painter, place, 0,
               hovered  ? colours.hover
               : chosen ? colours.paper
                        : colours.window,
               colours.thin_line, line);
  const int strip = scope.Grid().Pixels(4);
  if (chosen)
    painter.fillRect(place.adjusted(line, place.height() - strip, -line, 0), QColor(colours.accent));
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
  const auto* tab = qstyleoption_cast<const QStyleOptionTab*>(option);
  if (element == CE_TabBarTabShape && tab != nullptr) return PaintTab(*tab, *painter);
  const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
  if (element == CE_MenuItem && item != nullptr && item->menuItemType == QStyleOptionMenuItem::Separator) {
    return painter->fillRect(item->rect.left(), item->rect.center().y(), item->rect.width(), 1,
                             QColor(TheColours().thin_line));
  }
  QProxyStyle::drawControl(element, option, painter, widget);
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
  if (control == CC_ScrollBar && slider != nullptr) {
    const auto part = [&](SubControl each) { return subControlRect(CC_ScrollBar, option, each, widget); };
    return PaintScrollBar(*slider, *painter, part(SC_ScrollBarSlider),
                          {part(SC_ScrollBarSubLine), part(SC_ScrollBarAddLine)});
  }
  QProxyStyle::drawComplexControl(control, option, painter, widget);
}

void CalmStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
  if (element == PE_FrameFocusRect) {
    const DeviceScope scope(*painter, nullptr);
    return PaintFocus(*painter, scope.Grid(), scope.Map(option->rect));
  }
  if (element == PE_Widget && widget != nullptr && HasEdge(*widget)) {
    const DeviceScope scope(*painter, nullptr);
    return PaintEdge(*painter, scope, scope.Map(widget->rect()));
  }
  if (element == PE_FrameLineEdit || element == PE_Frame) {
    return PaintOutline(*option, *painter, BorderColour(*option));
  }
  if (element == PE_FrameMenu) return PaintOutline(*option, *painter, TheColours().border);
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
    case PM_MenuPanelWidth:
      return 1;
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
  const QIcon sign = BoxSign(standard);
  return sign.isNull() ? QProxyStyle::standardIcon(standard, option, widget) : sign;
}

QSize CalmStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                                  const QWidget* widget) const {
  QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
  if (type == CT_PushButton) size = size.expandedTo(QSize(Zoomed(80), Zoomed(27)));
  return size;
}

}  // namespace kestrel
