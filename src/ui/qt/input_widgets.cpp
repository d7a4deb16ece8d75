// SPDX-License-Identifier: MIT
#include "ui/qt/input_widgets.h"

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

}  // namespace kestrel
