// SPDX-License-Identifier: MIT
#include "ui/qt/desktop_colours.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QFileInfo>

namespace kestrel {

namespace {

constexpr const char* kAddress = "DBUS_SESSION_BUS_ADDRESS";
constexpr const char* kNoBus = "disabled:";

constexpr const char* kService = "org.freedesktop.portal.Desktop";
constexpr const char* kPath = "/org/freedesktop/portal/desktop";
constexpr const char* kInterface = "org.freedesktop.portal.Settings";
constexpr const char* kAppearance = "org.freedesktop.appearance";
constexpr const char* kColourScheme = "color-scheme";  // 1: dark, 2: light
constexpr const char* kContrast = "contrast";          // 1: high

// The portal wraps a value once or twice, after its age.
QVariant Unwrapped(QVariant value) {
  while (value.canConvert<QDBusVariant>()) value = value.value<QDBusVariant>().variant();
  return value;
}

}  // namespace

void StartNoSessionBus() {
  if (qEnvironmentVariableIsSet(kAddress)) return;
  const QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
  if (folder.isEmpty() || !QFileInfo::exists(folder + QStringLiteral("/bus"))) qputenv(kAddress, kNoBus);
}

QProcessEnvironment EnvironmentForOthers() {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  if (environment.value(kAddress) == QLatin1String(kNoBus)) environment.remove(kAddress);
  return environment;
}

DesktopColours::DesktopColours() {
  const QString theme = qEnvironmentVariable("GTK_THEME");
  dark_ = theme.contains(QLatin1String("dark"), Qt::CaseInsensitive);
  high_contrast_ = theme.contains(QLatin1String("HighContrast"), Qt::CaseInsensitive);
}

Scheme DesktopColours::SchemeFor(ColourChoice choice) const {
  switch (choice) {
    case ColourChoice::Light:
      return Scheme::Light;
    case ColourChoice::Dark:
      return Scheme::Dark;
    case ColourChoice::HighContrast:
      return Scheme::HighContrast;
    case ColourChoice::Desktop:
      break;
  }
  if (high_contrast_) return Scheme::HighContrast;
  return dark_ ? Scheme::Dark : Scheme::Light;
}

void DesktopColours::Watch() {
  QDBusConnection bus = QDBusConnection::sessionBus();
  if (!bus.isConnected()) return;
  bus.connect(kService, kPath, kInterface, QStringLiteral("SettingChanged"), this,
              SLOT(OnSettingChanged(QDBusMessage)));
  Ask(kColourScheme);
  Ask(kContrast);
}

void DesktopColours::Ask(const QString& key) {
  QDBusMessage call = QDBusMessage::createMethodCall(kService, kPath, kInterface, QStringLiteral("Read"));
  call << QString(kAppearance) << key;
  auto* watcher = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call), this);
  connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, key, watcher] {
    const QDBusPendingReply<QVariant> reply = *watcher;
    watcher->deleteLater();
    // A desktop without a portal, or without this setting, leaves what was known.
    if (!reply.isError()) Take(key, reply.value());
  });
}

// Group, key and value.
void DesktopColours::OnSettingChanged(const QDBusMessage& signal) {
  const QList<QVariant> arguments = signal.arguments();
  if (arguments.size() != 3 || arguments[0].toString() != QLatin1String(kAppearance)) return;
  Take(arguments[1].toString(), arguments[2]);
}

void DesktopColours::Take(const QString& key, const QVariant& value) {
  const bool on = Unwrapped(value).toUInt() == 1;
  if (key == QLatin1String(kColourScheme)) dark_ = on;
  if (key == QLatin1String(kContrast)) high_contrast_ = on;
  if (on_change) on_change();
}

}  // namespace kestrel
