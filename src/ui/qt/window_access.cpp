// SPDX-License-Identifier: MIT
#include "ui/qt/window_access.h"

#include <QAccessibleWidget>
#include <QList>

#include "ui/qt/form_window.h"
#include "ui/qt/small_widgets.h"

namespace kestrel {

namespace {

constexpr const char* kLeftOut = "readWithAnother";

// The panel of the start with its progress bars is gone once it is hidden.
bool IsRead(QObject* object) {
  const auto* panel = dynamic_cast<StartPanel*>(object);
  if (panel != nullptr && panel->isHidden()) return false;
  return object == nullptr || !object->property(kLeftOut).toBool();
}

class WindowInterface final : public QAccessibleWidget {
 public:
  explicit WindowInterface(FormWindow& window)
      : QAccessibleWidget(&window, window.isModal() ? QAccessible::Dialog : QAccessible::Window) {}

  int childCount() const override { return static_cast<int>(Children().size()); }

  QAccessibleInterface* child(int index) const override { return Children().value(index); }

  int indexOfChild(const QAccessibleInterface* wanted) const override {
    return static_cast<int>(Children().indexOf(wanted));
  }

 private:
  [[nodiscard]] QList<QAccessibleInterface*> Children() const {
    QList<QAccessibleInterface*> children;
    for (int i = 0; i < QAccessibleWidget::childCount(); ++i) {
      QAccessibleInterface* each = QAccessibleWidget::child(i);
      if (each != nullptr && IsRead(each->object())) children << each;
    }
    return children;
  }
};

QAccessibleInterface* MakeWindowInterface(const QString& /*class_name*/, QObject* object) {
  auto* window = dynamic_cast<FormWindow*>(object);
  return window == nullptr ? nullptr : new WindowInterface(*window);
}

}  // namespace

void InstallWindowAccess() {
  QAccessible::installFactory(MakeWindowInterface);
}

void LeaveToAnother(QWidget& widget) {
  widget.setProperty(kLeftOut, true);
}

}  // namespace kestrel
