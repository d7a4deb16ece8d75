// SPDX-License-Identifier: MIT
#include "ui/qt/shortcuts.h"

#include <QAbstractButton>
#include <QKeySequence>
#include <QShortcut>
#include <initializer_list>
#include <utility>

#include "ui/qt/form_window.h"

namespace kestrel {

void InstallShortcuts(Mirror& mirror) {
  const std::initializer_list<std::pair<const char*, const char*>> keys = {{"Ctrl+Z", "CommandUndo"},
                                                                           {"Ctrl+Y", "CommandRedo"},
                                                                           {"Ctrl+Shift+Z", "CommandRedo"},
                                                                           {"Ctrl+P", "CommandPrint"},
                                                                           {"F1", "CommandHelp"}};
  for (const auto& [key, name] : keys) {
    auto* button = qobject_cast<QAbstractButton*>(mirror.WidgetOf(FormId::Main, {name}));
    auto* shortcut = new QShortcut(QKeySequence(QLatin1String(key)), &mirror.WindowOf(FormId::Main));
    // Pressed for good when the button is: a disabled one does nothing.
    QObject::connect(shortcut, &QShortcut::activated, button, &QAbstractButton::click);
  }
}

}  // namespace kestrel
