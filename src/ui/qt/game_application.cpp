// SPDX-License-Identifier: MIT
#include "ui/qt/game_application.h"

#include <fontconfig/fontconfig.h>

#include <cstdio>
#include <filesystem>
#include <system_error>
#include <thread>

#include "ui/qt/desktop_colours.h"

namespace kestrel {

namespace {

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
  files_.KeepName(program_.folder);
  MakeApplication(argv);
  const DesktopLook desktop = DesktopLookAtStart();
  SetUpApplication(FirstLook(desktop));
  front_end_ = std::make_unique<FrontEnd>(
      HostPorts{program_, folders_, files_, host_files_, settings_, clock_, seeds_},
      program_.folder + "/help", Unattended(), desktop);
}

void GameApplication::MakeApplication(char** argv) {
  // One look everywhere, whatever the desktop's theme is.
  QApplication::setDesktopSettingsAware(false);
  QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  StartNoSessionBus();
  // Reading what fonts there are takes as long as the screen takes to answer: both at the same time.
  const std::jthread fonts([] { (void)FcInit(); });
  application_ = std::make_unique<QApplication>(argc_, argv);
  QApplication::setApplicationName(QStringLiteral("kestrel-sudoku"));
  QApplication::setDesktopFileName(QStringLiteral("example.kestrel_sudoku.KestrelSudoku"));
}

Look GameApplication::FirstLook(const DesktopLook& desktop) {
  const ViewSettings before = LoadViewSettings(settings_);
  ViewSettings view = before;
  if (options_.scale) view.size = static_cast<int>(*options_.scale * 100);
  SaveViewSettings(settings_, view, before);
  const int size = SizeAtStart(view.size);
  if (options_.scale && size != view.size) {
    std::fprintf(stderr, "kestrel-sudoku: the screen is too small for scale %g; %g is used\n",
                 *options_.scale, size / 100.0);
  }
  return {DesktopColours(desktop).SchemeFor(view.colours), size / 100.0};
}

int GameApplication::Run() {
  return Unattended() ? front_end_->TakeScreenshot(options_.screenshot) : front_end_->Run();
}

bool HasDisplay() {
  return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
         qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

}  // namespace kestrel
