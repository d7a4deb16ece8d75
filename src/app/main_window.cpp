// SPDX-License-Identifier: MIT
// kestrel-sudoku: the game in its window.
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <span>
#include <string>

#include "host/command_line.h"
#include "host/program_folder.h"
#include "ui/qt/game_application.h"

namespace {

using namespace kestrel;

// Keeps the platform's own messages off the terminal; what matters to the player comes in boxes.
void DropMessage(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
  // A display that is named but cannot be opened is the user's affair, not a crash.
  if (type == QtFatalMsg && text.contains(QLatin1String("platform plugin"))) {
    std::cerr << "kestrel-sudoku: the display cannot be opened; --screenshot FILE works without one"
              << std::endl;
    std::_Exit(kExitUsage);
  }
  if (type == QtCriticalMsg || type == QtFatalMsg) {
    std::cerr << "kestrel-sudoku: " << qPrintable(text) << '\n';
  }
}

int Complain(const std::string& what) {
  std::cerr << "kestrel-sudoku: " << what << '\n';
  return kExitUsage;
}

}  // namespace

int main(int argc, char** argv) {
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);
  const std::span<const char* const> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
  std::string error;
  const auto options = ParseGameArguments(arguments, error);
  if (!options) return Complain(error);
  if (options->help) {
    std::cout << GameHelp();
    return 0;
  }
  if (options->version) {
    std::cout << "kestrel-sudoku " KESTREL_VERSION "\n";
    return 0;
  }
  if (!options->screenshot.empty() && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
  if (!HasDisplay()) return Complain("there is no display; --screenshot FILE works without one");
  if (!qEnvironmentVariableIsSet("QT_LOGGING_RULES")) qInstallMessageHandler(DropMessage);
  return GameApplication(*options, options->program.empty() ? ProgramFolder() : options->program, argv).Run();
}
