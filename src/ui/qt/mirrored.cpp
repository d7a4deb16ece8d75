// SPDX-License-Identifier: MIT
#include "ui/qt/mirrored.h"

#include "ui/qt/device_painter.h"
#include "ui/qt/look.h"

namespace kestrel {

namespace {

bool SamePlace(const Control& one, const Control& other) {
  return one.left == other.left && one.top == other.top && one.width == other.width &&
         one.height == other.height;
}

// Qt would pass the focus of a control that stops working on to the next one: the same key pressed again
// would then do something else. A window that takes the focus itself, as the main window does, gets it.
void TakeFocusBack(QWidget& widget) {
  QWidget* window = widget.window();
  if (widget.hasFocus() && window->focusPolicy() != Qt::NoFocus) window->setFocus();
}

}  // namespace

void ShowCommon(QWidget& widget, const Control& now, const Control* before, const QString& caption) {
  if (before == nullptr || !SamePlace(now, *before)) {
    // Inside Picture3 places are still those of the window.
    QRect place = PixelGrid(TheLook().zoom).Place(now);
    if (QWidget* parent = widget.parentWidget(); parent != nullptr && !parent->isWindow()) {
      place.translate(-parent->pos());
    }
    widget.setGeometry(place);
  }
  if (!now.enabled || !now.visible) TakeFocusBack(widget);
  if (before == nullptr || now.enabled != before->enabled) widget.setEnabled(now.enabled);
  if (before == nullptr || now.tooltip != before->tooltip) {
    widget.setToolTip(ToQString(now.tooltip));
    widget.setAccessibleDescription(ToQString(now.tooltip));
  }
  QString spoken = now.spoken.empty() ? caption : ToQString(now.spoken);
  if (spoken.isEmpty()) spoken = ToQString(now.tooltip);
  if (widget.accessibleName() != spoken) widget.setAccessibleName(spoken);
  if (before == nullptr || now.visible != before->visible) widget.setVisible(now.visible);
}

}  // namespace kestrel
