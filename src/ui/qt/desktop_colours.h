// SPDX-License-Identifier: MIT
// Whether the desktop is light, dark or of high contrast. Asked for without waiting; used by the View menu's
// choice "as the desktop".
#pragma once

#include <QDBusMessage>
#include <QObject>
#include <QProcessEnvironment>
#include <functional>

#include "ui/qt/palette.h"
#include "view/view_settings.h"

namespace kestrel {

// Where there is no session bus, keeps Qt, which asks it for assistive tools, from starting one: that would
// take time and outlive the program. Before the QApplication is made.
void StartNoSessionBus();
// The environment as other programs are to get it: without the trace of the above.
[[nodiscard]] QProcessEnvironment EnvironmentForOthers();

class DesktopColours final : public QObject {
  Q_OBJECT

 public:
  // Knows what the environment says; light where it says nothing.
  DesktopColours();

  [[nodiscard]] Scheme SchemeFor(ColourChoice choice) const;

  // Asks the desktop's settings portal, if there is one, and listens to it from then on.
  void Watch();

  std::function<void()> on_change;

 private slots:
  void OnSettingChanged(const QDBusMessage& signal);

 private:
  void Ask(const QString& key);
  void Take(const QString& key, const QVariant& value);

  bool dark_ = false;
  bool high_contrast_ = false;
};

}  // namespace kestrel
