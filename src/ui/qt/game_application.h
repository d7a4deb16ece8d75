// SPDX-License-Identifier: MIT
// The whole program around the window: host files, settings, Qt's application object, front end. Used by the
// game's start and by the program that measures it.
#pragma once

#include <QApplication>
#include <memory>
#include <string>

#include "core/settings_file.h"
#include "host/command_line.h"
#include "host/host_clock.h"
#include "host/host_files.h"
#include "host/host_settings.h"
#include "ui/qt/front_end.h"

namespace kestrel {

class GameApplication {
 public:
  // `data` is the host folder of stock, sounds, previews and help pages. The options decide where the user's
  // files are, the scale, and whether anybody is there to answer boxes.
  GameApplication(const GameOptions& options, const std::string& data, char** argv);

  [[nodiscard]] FrontEnd& TheFrontEnd() { return *front_end_; }

  // Plays, or takes the picture that the options ask for. The exit status.
  int Run();

 private:
  [[nodiscard]] bool Unattended() const { return !options_.screenshot.empty(); }
  void MakeApplication(char** argv);
  // The colours and the size to start with; a scale of the command line is remembered.
  [[nodiscard]] Look FirstLook(const DesktopLook& desktop);

  GameOptions options_;
  std::string home_;
  ProgramPlace program_;
  SystemCalls calls_;
  HostFiles files_{calls_};
  HostFiles host_files_{calls_, PathForm::kHost};
  SettingsFile settings_file_;
  SettingsInMemory settings_kept_{settings_file_};
  Settings& settings_;
  HomeFolders folders_{home_};
  HostClock clock_;
  ClockSeeds seeds_;
  int argc_ = 1;  // all other arguments were the game's own
  std::unique_ptr<QApplication> application_;
  std::unique_ptr<FrontEnd> front_end_;
};

// True when there is a screen to open a window on, or the environment says how to do without.
bool HasDisplay();

}  // namespace kestrel
