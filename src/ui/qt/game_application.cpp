// SPDX-License-Identifier: MIT
#include "ui/qt/game_application.h"

#include <QScreen>
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <system_error>

#include "forms/main_window.h"

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

// Off screen, windows may be larger than what stands in for a screen.
bool HasRealScreen() {
  return QGuiApplication::primaryScreen() != nullptr &&
         QGuiApplication::platformName() != QLatin1String("offscreen");
}

// How many times larger the screen is than the main window with its title bar, in the tighter direction.
double ScreensInWindows() {
  constexpr double kTitleBar = 30;
  const Window window = MakeMainWindow().window;
  const QSize screen = QGuiApplication::primaryScreen()->availableSize();
  return std::min(screen.width() / (1.0 * window.width / kTwipsPerPixel),
                  screen.height() / (1.0 * window.height / kTwipsPerPixel + kTitleBar));
}

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

// What size the screen has at a scale is known only when the application has been made with it.
void GameApplication::MakeApplication(char** argv) {
  const double wanted = ChooseScale(options_, settings_);
  MakeApplication(argv, wanted);
  if (wanted == 1 || !HasRealScreen()) return;
  const double fitting = FittingScale(wanted, wanted * ScreensInWindows());
  if (fitting == wanted) return;
  std::fprintf(stderr, "kestrel-sudoku: the screen is too small for scale %g; %g is used\n", wanted, fitting);
  application_.reset();
  MakeApplication(argv, fitting);
}

void GameApplication::MakeApplication(char** argv, double scale) {
  const ScaleForQt for_qt(scale);
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
