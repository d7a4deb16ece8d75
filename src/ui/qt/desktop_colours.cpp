// SPDX-License-Identifier: MIT
#include "ui/qt/desktop_colours.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QSettings>
#include <QStandardPaths>
#include <QXmlStreamReader>
#include <optional>
#include <utility>

namespace kestrel {

namespace {

constexpr const char* kAddress = "DBUS_SESSION_BUS_ADDRESS";
constexpr const char* kNoBus = "disabled:";

constexpr const char* kService = "org.freedesktop.portal.Desktop";
constexpr const char* kPath = "/org/freedesktop/portal/desktop";
constexpr const char* kInterface = "org.freedesktop.portal.Settings";
constexpr const char* kAppearance = "org.freedesktop.appearance";
constexpr const char* kColourScheme = "color-scheme";
constexpr unsigned int kDark = 1;
constexpr unsigned int kLight = 2;
constexpr const char* kContrast = "contrast";
constexpr unsigned int kHigh = 1;

// The portal wraps a value once or twice, after its age.
QVariant Unwrapped(QVariant value) {
  while (value.canConvert<QDBusVariant>()) value = value.value<QDBusVariant>().variant();
  return value;
}

bool IsDark(const QColor& ground) {
  return ground.lightness() < 128;
}

DesktopLook LookOfTheme(const QString& name) {
  const auto says = [&](const char* word) { return name.contains(QLatin1String(word), Qt::CaseInsensitive); };
  return {says("dark") || says("inverse"), says("HighContrast")};
}

// A settings file of the user, or of the system; empty when there is none.
QString ConfigFile(const char* name) {
  return QStandardPaths::locate(QStandardPaths::GenericConfigLocation, QLatin1String(name));
}

QVariant Setting(const char* file, const char* group, const char* key) {
  const QString path = ConfigFile(file);
  if (path.isEmpty()) return {};
  return QSettings(path, QSettings::IniFormat)
      .value(QLatin1String(group) + QLatin1Char('/') + QLatin1String(key));
}

// Red, green, blue.
std::optional<DesktopLook> LookOfKde() {
  const QStringList ground = Setting("kdeglobals", "Colors:Window", "BackgroundNormal").toStringList();
  if (ground.size() < 3) return std::nullopt;
  DesktopLook look = LookOfTheme(Setting("kdeglobals", "General", "ColorScheme").toString());
  look.dark = IsDark(QColor(ground[0].toInt(), ground[1].toInt(), ground[2].toInt()));
  return look;
}

std::optional<DesktopLook> LookOfLxqt() {
  const QColor ground(Setting("lxqt/lxqt.conf", "Palette", "window_color").toString());
  if (!ground.isValid()) return std::nullopt;
  return DesktopLook{IsDark(ground), false};
}

std::optional<DesktopLook> LookOfXfce() {
  QFile file(ConfigFile("xfce4/xfconf/xfce-perchannel-xml/xsettings.xml"));
  if (!file.open(QIODevice::ReadOnly)) return std::nullopt;
  for (QXmlStreamReader xml(&file); !xml.atEnd(); xml.readNext()) {
    const QXmlStreamAttributes property = xml.attributes();
    if (!xml.isStartElement() || property.value(QLatin1String("name")) != QLatin1String("ThemeName"))
      continue;
    return LookOfTheme(property.value(QLatin1String("value")).toString());
  }
  return std::nullopt;
}

std::optional<DesktopLook> LookOfGtk() {
  const char* file = "gtk-3.0/settings.ini";
  const QString theme = Setting(file, "Settings", "gtk-theme-name").toString();
  const QVariant prefer_dark = Setting(file, "Settings", "gtk-application-prefer-dark-theme");
  if (theme.isEmpty() && !prefer_dark.isValid()) return std::nullopt;
  DesktopLook look = LookOfTheme(theme);
  look.dark = look.dark || prefer_dark.toBool();
  return look;
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

DesktopLook DesktopLookAtStart() {
  if (const QString theme = qEnvironmentVariable("GTK_THEME"); !theme.isEmpty()) return LookOfTheme(theme);
  if (qEnvironmentVariableIsSet("QT_QPA_PLATFORMTHEME") &&
      IsDark(QGuiApplication::palette().color(QPalette::Window)))
    return {true, false};
  const QString desktop = qEnvironmentVariable("XDG_CURRENT_DESKTOP");
  std::optional<DesktopLook> look;
  for (const auto& [name, ask] :
       {std::pair{"KDE", &LookOfKde}, {"LXQt", &LookOfLxqt}, {"XFCE", &LookOfXfce}}) {
    if (!look && desktop.contains(QLatin1String(name), Qt::CaseInsensitive)) look = ask();
  }
  if (!look) look = LookOfGtk();
  return look.value_or(DesktopLook());
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
  if (now_.high_contrast) return Scheme::HighContrast;
  return now_.dark ? Scheme::Dark : Scheme::Light;
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
  const unsigned int said = Unwrapped(value).toUInt();
  if (key == QLatin1String(kColourScheme)) now_.dark = said == kDark || (said != kLight && at_start_.dark);
  if (key == QLatin1String(kContrast)) now_.high_contrast = said == kHigh || at_start_.high_contrast;
  if (on_change) on_change();
}

}  // namespace kestrel
