// SPDX-License-Identifier: MIT
#include "ui/qt/input_widgets.h"

#include <QMouseEvent>
#include <QStyle>
#include <QStyleOptionSlider>

#include "ui/qt/form_window.h"

namespace kestrel {

void TextField::keyPressEvent(QKeyEvent* event) {
  const int key = event->key();
  if (key == Qt::Key_Return || key == Qt::Key_Enter) {
    event->accept();
    if (on_key) on_key(Key::Enter);
    return;
  }
  const auto* form = dynamic_cast<FormWindow*>(window());
  if (key == Qt::Key_Escape && (form == nullptr || !form->CancelWaits())) {
    event->accept();
    if (on_key) on_key(Key::Escape);
    return;
  }
  QLineEdit::keyPressEvent(event);
}

void TextField::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  // A menu or another window in front is no leaving: the focus comes back by itself.
  const bool stays =
      event->reason() == Qt::PopupFocusReason || event->reason() == Qt::ActiveWindowFocusReason;
  if (!stays && on_leave) on_leave();
}

LineList::LineList(QWidget* parent) : QListWidget(parent) {
  setSelectionMode(QAbstractItemView::SingleSelection);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  setUniformItemSizes(true);
}

int LineList::Selected() const {
  const QList<QListWidgetItem*> items = selectedItems();
  return items.isEmpty() ? -1 : row(items.constFirst());
}

void LineList::Select(int line) {
  if (line == Selected()) return;
  if (line < 0) {
    clearSelection();
    setCurrentRow(-1);
  } else {
    setCurrentRow(line, QItemSelectionModel::ClearAndSelect);
    scrollToItem(item(line));
  }
}

void LineList::keyPressEvent(QKeyEvent* event) {
  const int key = event->key();
  const bool first = key == Qt::Key_Down || key == Qt::Key_Home;
  const bool last = key == Qt::Key_Up || key == Qt::Key_End;
  if ((first || last) && Selected() < 0 && count() > 0) return Select(first ? 0 : count() - 1);
  QListWidget::keyPressEvent(event);
}

StepSlider::StepSlider(QWidget* parent) : QSlider(Qt::Horizontal, parent) {
  setPageStep(1);
  setTickPosition(QSlider::TicksBelow);
  setTickInterval(1);
}

int StepSlider::ValueAt(const QMouseEvent& event) const {
  QStyleOptionSlider option;
  initStyleOption(&option);
  const int handle = style()->pixelMetric(QStyle::PM_SliderLength, &option, this);
  return QStyle::sliderValueFromPosition(minimum(), maximum(), event.position().toPoint().x() - handle / 2,
                                         width() - handle);
}

void StepSlider::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return event->ignore();
  setSliderDown(true);
  setValue(ValueAt(*event));
}

void StepSlider::mouseMoveEvent(QMouseEvent* event) {
  if (isSliderDown()) setValue(ValueAt(*event));
}

void StepSlider::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) setSliderDown(false);
}

}  // namespace kestrel
