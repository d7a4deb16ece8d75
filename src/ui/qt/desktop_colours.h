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

// What a desktop looks like.
struct DesktopLook {
  bool dark = false;
  bool high_contrast = false;
  friend bool operator==(const DesktopLook&, const DesktopLook&) = default;
};

// What can be known without asking another program, for desktops without a settings portal; light where nothing is.
// The first of these that says anything: the environment's GTK_THEME, the palette of a platform theme that Qt was
// told to use, the settings file of KDE, LXQt or Xfce where that is the desktop, GTK's settings file. Before the
// application gets a palette of its own.
DesktopLook DesktopLookAtStart();

class DesktopColours final : public QObject {
  Q_OBJECT

 public:
  // Shows `at_start` until the portal has answered, and where it has no preference.
  explicit DesktopColours(const DesktopLook& at_start) : at_start_(at_start), now_(at_start) {}

  [[nodiscard]] Scheme SchemeFor(ColourChoice choice) const;

  // Asks the desktop's settings portal, if there is one, and listens to it from then on.
  void Watch();

  std::function<void()> on_change;

 private slots:
  void OnSettingChanged(const QDBusMessage& signal);

 private:
  void Ask(const QString& key);
  void Take(const QString& key, const QVariant& value);

  DesktopLook at_start_;
  DesktopLook now_;
};

}  // namespace kestrel
