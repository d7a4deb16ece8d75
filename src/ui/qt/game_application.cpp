// SPDX-License-Identifier: MIT
#include "ui/qt/game_application.h"

#include <filesystem>
#include <system_error>

namespace kestrel {

namespace {

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

// The working folder may change while the program runs, the game's folders must not.
std::string Absolute(const std::string& path) {
  if (path.empty()) return path;
  std::error_code error;
  std::string absolute = std::filesystem::absolute(path, error).lexically_normal().string();
  if (error) return path;
  while (absolute.size() > 1 && absolute.ends_with('/')) absolute.pop_back();
  return absolute;
}

}  // namespace

GameApplication::GameApplication(const GameOptions& options, const std::string& data, char** argv)
    : options_(options),
      home_(Absolute(options.home)),
      program_{Absolute(data)},
      settings_file_(files_, SettingsPath(options, home_, files_)),
      settings_(Unattended() ? static_cast<Settings&>(settings_kept_) : settings_file_) {
  MakeApplication(argv);
  SetUpLook();
  front_end_ = std::make_unique<FrontEnd>(
      HostPorts{program_, folders_, files_, host_files_, settings_, clock_, seeds_},
      program_.folder + "/help", Unattended());
}

void GameApplication::MakeApplication(char** argv) {
  const ScaleForQt for_qt(ChooseScale(options_, settings_));
  // One look everywhere, whatever the desktop's theme is.
  QApplication::setDesktopSettingsAware(false);
  QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  application_ = std::make_unique<QApplication>(argc_, argv);
  QApplication::setApplicationName(QStringLiteral("kestrel-sudoku"));
  QApplication::setDesktopFileName(QStringLiteral("example.kestrel_sudoku.KestrelSudoku"));
}

int GameApplication::Run() {
  return Unattended() ? front_end_->TakeScreenshot(options_.screenshot) : front_end_->Run();
}

bool HasDisplay() {
  return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
         qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

}  // namespace kestrel
