// SPDX-License-Identifier: MIT
// kestrel-sudoku: the game in its window.
#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

#include "host/command_line.h"
#include "host/program_folder.h"
#include "host/standard_streams.h"
#include "ui/qt/game_application.h"

namespace {

using namespace kestrel;

constexpr const char* kProgram = "kestrel-sudoku";

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
  PrepareStandardStreams();
  const std::vector<std::string> words(argv + (argc > 0 ? 1 : 0), argv + argc);
  std::string error;
  const auto options = ParseGameArguments(words, error);
  if (!options) return Complain(error);
  if (options->help) {
    PrintHelp(std::cout, kProgram, kGameSpec);
    return FinishOutput(kProgram) ? 0 : kExitUsage;
  }
  if (options->version) {
    std::cout << kProgram << " " KESTREL_VERSION "\n";
    return FinishOutput(kProgram) ? 0 : kExitUsage;
  }
  if (!options->screenshot.empty() && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
  if (!HasDisplay()) return Complain("there is no display; --screenshot FILE works without one");
  if (!qEnvironmentVariableIsSet("QT_LOGGING_RULES")) qInstallMessageHandler(DropMessage);
  return GameApplication(*options, options->program.empty() ? ProgramFolder() : options->program, argv).Run();
}
