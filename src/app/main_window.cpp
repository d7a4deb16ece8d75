// SPDX-License-Identifier: MIT
// kestrel-sudoku: the game in its window.
#include <QApplication>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <iostream>
#include <memory>
#include <span>
#include <string>
#include <system_error>

#include "core/host_clock.h"
#include "core/host_files.h"
#include "core/host_folders.h"
#include "core/settings_file.h"
#include "ui/qt/command_line.h"
#include "ui/qt/front_end.h"
#include "ui/qt/host_settings.h"

namespace {

using namespace kestrel;

// The data that belongs to this program: where it was installed, or in the tree that it was built from.
std::string DataOfProgram() {
  std::error_code error;
  const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error).parent_path();
  const std::filesystem::path installed = program / KESTREL_SHARE_FROM_BIN;
  const bool is_installed = std::filesystem::is_directory(installed, error);
  return (is_installed ? installed : program / KESTREL_DATA_FROM_BUILD).lexically_normal().string();
}

std::string Absolute(const std::string& path) {
  std::error_code error;
  const std::filesystem::path absolute = std::filesystem::absolute(path, error).lexically_normal();
  return error ? path : absolute.string();
}

// Keeps the platform's own messages off the terminal; what matters to the player comes in boxes.
void DropMessage(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
  if (type == QtCriticalMsg || type == QtFatalMsg)
    std::cerr << "kestrel-sudoku: " << qPrintable(text) << '\n';
}

bool HasDisplay() {
  return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
         qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

// The scale must be known to Qt before its application object is made; programs that the game starts, such as
// a web browser, must not see it.
class ScaleForQt {
 public:
  explicit ScaleForQt(double scale)
      : before_(qgetenv(kVariable)), was_set_(qEnvironmentVariableIsSet(kVariable)) {
    bool is_number = false;
    const double own = before_.toDouble(&is_number);
    qputenv(kVariable, QByteArray::number(scale * (is_number && own > 0 ? own : 1)));
  }
  ScaleForQt(const ScaleForQt&) = delete;
  ScaleForQt& operator=(const ScaleForQt&) = delete;
  ~ScaleForQt() {
    if (was_set_) {
      qputenv(kVariable, before_);
    } else {
      qunsetenv(kVariable);
    }
  }

 private:
  static constexpr const char* kVariable = "QT_SCALE_FACTOR";
  QByteArray before_;
  bool was_set_;
};

int Play(const GameOptions& options, int& argc, char** argv) {
  const bool unattended = !options.screenshot.empty();
  SystemCalls calls;
  HostFiles files(calls);
  HostFiles host_files(calls, PathForm::kHost);
  const std::string home = options.home.empty() ? std::string() : Absolute(options.home);
  const std::string settings_path = SettingsPath(options, home, files);
  SettingsFile settings_file(files, settings_path);
  SettingsInMemory settings_kept(settings_file);
  Settings& settings = unattended ? static_cast<Settings&>(settings_kept) : settings_file;
  const double scale = ChooseScale(options, settings);

  std::unique_ptr<QApplication> application;
  {
    const ScaleForQt for_qt(scale);
    QApplication::setDesktopSettingsAware(false);
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    application = std::make_unique<QApplication>(argc, argv);
  }
  QApplication::setApplicationName(QStringLiteral("kestrel-sudoku"));
  QApplication::setApplicationDisplayName(QString());
  QApplication::setDesktopFileName(QStringLiteral(KESTREL_DESKTOP_ID));
  SetUpLook();

  const std::string data = options.program.empty() ? DataOfProgram() : Absolute(options.program);
  const ProgramPlace program{data};
  HomeFolders folders(home);
  HostClock clock;
  ClockSeeds seeds;
  FrontEnd front_end({program, folders, files, host_files, settings, clock, seeds}, data + "/help",
                     unattended);
  return unattended ? front_end.TakeScreenshot(options.screenshot) : front_end.Run();
}

}  // namespace

int main(int argc, char** argv) {
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);
  const std::span<const char* const> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
  std::string error;
  const auto options = ParseGameArguments(arguments, error);
  if (!options) {
    std::cerr << "kestrel-sudoku: " << error << '\n';
    return kExitUsage;
  }
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
  if (!HasDisplay()) {
    std::cerr << "kestrel-sudoku: there is no display; --screenshot FILE works without one\n";
    return kExitUsage;
  }
  if (!qEnvironmentVariableIsSet("QT_LOGGING_RULES")) qInstallMessageHandler(DropMessage);
  int no_arguments = 1;  // all were the game's own
  return Play(*options, no_arguments, argv);
}
