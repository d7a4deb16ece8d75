// SPDX-License-Identifier: MIT
#include "ui/qt/qt_shell.h"

#include <unistd.h>

#include <QEventLoop>
#include <QProcess>
#include <QStandardPaths>
#include <QStringList>
#include <QTimer>

#include "ui/qt/desktop_colours.h"
#include "ui/qt/text_conversion.h"

namespace kestrel {

namespace {

constexpr int kPatience = 3000;    // milliseconds for the desktop to answer
constexpr int kTimeToFail = 2000;  // within which a starter that opens nothing gives up

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

// A starter that hands over to a running browser comes back soon, a browser itself stays. What is still
// running in the end must outlive the program, so its object is never deleted.
bool QtShell::Open(std::string_view program, std::string_view address) {
  auto* process = new QProcess;
  process->setProcessChannelMode(QProcess::ForwardedChannels);
  process->setStandardInputFile(QProcess::nullDevice());
  process->setProcessEnvironment(EnvironmentForOthers());
  // An interrupt from the terminal is not meant for the browser.
  process->setChildProcessModifier([] { ::setsid(); });
  QEventLoop wait;
  QObject::connect(process, &QProcess::finished, &wait, &QEventLoop::quit);
  QObject::connect(process, &QProcess::errorOccurred, &wait, &QEventLoop::quit);
  process->start(ToQString(program), {ToQString(address)});
  QTimer::singleShot(kTimeToFail, &wait, &QEventLoop::quit);
  if (process->state() != QProcess::NotRunning) wait.exec(QEventLoop::ExcludeUserInputEvents);
  const bool running = process->state() != QProcess::NotRunning;
  const bool opened = running || (process->error() == QProcess::UnknownError &&
                                  process->exitStatus() == QProcess::NormalExit && process->exitCode() == 0);
  if (running) {
    QObject::connect(process, &QProcess::finished, process, &QObject::deleteLater);
  } else {
    process->deleteLater();
  }
  return opened;
}

}  // namespace kestrel
