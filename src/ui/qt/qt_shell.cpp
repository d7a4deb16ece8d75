// SPDX-License-Identifier: MIT
#include "ui/qt/qt_shell.h"

#include <QProcess>
#include <QStandardPaths>
#include <QStringList>

#include "ui/qt/text_conversion.h"

namespace kestrel {

namespace {

constexpr int kPatience = 3000;  // milliseconds for the desktop to answer

// True unless the desktop says that nothing is associated with HTML files.
bool DesktopHasBrowser() {
  const QString query = QStandardPaths::findExecutable(QStringLiteral("xdg-mime"));
  if (query.isEmpty()) return true;
  QProcess process;
  process.start(query, {QStringLiteral("query"), QStringLiteral("default"), QStringLiteral("text/html")});
  if (!process.waitForFinished(kPatience)) {
    process.kill();
    process.waitForFinished(kPatience);
    return false;
  }
  return !process.readAllStandardOutput().trimmed().isEmpty();
}

// The first program of $BROWSER, which separates several by colons.
QString BrowserOfEnvironment() {
  for (const QString& name : qEnvironmentVariable("BROWSER").split(QLatin1Char(':'), Qt::SkipEmptyParts)) {
    const QString program = QStandardPaths::findExecutable(name.section(QLatin1Char(' '), 0, 0));
    if (!program.isEmpty()) return program;
  }
  return {};
}

}  // namespace

std::optional<std::string> QtShell::FindExecutable(std::string_view /*path*/) {
  const QString opener = QStandardPaths::findExecutable(QStringLiteral("xdg-open"));
  if (!opener.isEmpty() && DesktopHasBrowser()) return opener.toStdString();
  QString program = BrowserOfEnvironment();
  if (program.isEmpty()) program = QStandardPaths::findExecutable(QStringLiteral("x-www-browser"));
  if (program.isEmpty()) return std::nullopt;
  return program.toStdString();
}

bool QtShell::Open(std::string_view program, std::string_view address) {
  return QProcess::startDetached(ToQString(program), {ToQString(address)});
}

}  // namespace kestrel
