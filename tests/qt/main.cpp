// SPDX-License-Identifier: MIT
// Starts the tests of the window off screen; what Qt complains about fails the test that is running.
#include <gtest/gtest.h>

#include <QApplication>

#include "ui/qt/front_end.h"

namespace {

void FailOnWarning(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
  if (type == QtDebugMsg || type == QtInfoMsg) return;
  // The machine's own doing: no session, no sound server, no screen and no windows that could be raised, a locale that is not UTF-8 (Qt 6.8).
  for (const char* expected : {"XDG_RUNTIME_DIR", "PulseAudio", "audio device", "runtime directory",
                               "propagateSizeHints", "Detected locale", "plugin does not support"}) {
    if (text.contains(QLatin1String(expected))) return;
  }
  ADD_FAILURE() << qPrintable(text);
}

}  // namespace

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  if (qEnvironmentVariableIsEmpty("FONTCONFIG_FILE"))
    qputenv("FONTCONFIG_FILE", KESTREL_SOURCE_DIR "/tests/qt/fonts.conf");
  qputenv("CUPS_SERVER", "localhost:1");  // without the printers of this machine
  qInstallMessageHandler(FailOnWarning);
  QApplication::setDesktopSettingsAware(false);
  QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  const QApplication application(argc, argv);
  kestrel::SetUpApplication();
  return RUN_ALL_TESTS();
}
