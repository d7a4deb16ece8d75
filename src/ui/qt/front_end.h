// SPDX-License-Identifier: MIT
// The game with all of its Qt front end, built in the order in which the parts need each other. Used by the
// game's start and by tests.
#pragma once

#include <memory>
#include <string>

#include "core/clock.h"
#include "core/files.h"
#include "core/global.h"
#include "core/random_source.h"
#include "core/settings.h"
#include "forms/ports.h"
#include "game/game.h"
#include "ui/qt/announcer.h"
#include "ui/qt/dispatcher.h"
#include "ui/qt/mirror.h"
#include "ui/qt/qt_ports.h"
#include "ui/qt/qt_printer.h"
#include "ui/qt/qt_shell.h"
#include "ui/qt/qt_sound_device.h"
#include "ui/qt/records_window.h"
#include "ui/qt/view_choices.h"

namespace kestrel {

// What Qt has no part in. Everything must outlive the front end.
struct HostPorts {
  const ProgramPlace& program;
  SpecialFolders& folders;
  Files& files;
  Files& host_files;  // takes paths as the host spells them
  Settings& settings;
  Clock& clock;
  SeedSource& seeds;
};

class FrontEnd {
 public:
  // Needs a QApplication. `help_folder` is a host path. When unattended, nobody is there to answer a box. `desktop` is
  // what it looks like as long as nothing else is heard.
  FrontEnd(const HostPorts& host, const std::string& help_folder, bool unattended = false,
           const DesktopLook& desktop = {});

  [[nodiscard]] Game& TheGame() { return game_; }
  [[nodiscard]] Mirror& Windows() { return mirror_; }
  [[nodiscard]] Dispatcher& Events() { return dispatcher_; }
  [[nodiscard]] ViewChoices& Choices() { return choices_; }

  // The window "Records" with a level's best times, 1..5; the chosen level's with 0.
  void OpenRecords(int level = 0);
  // Null while it was never opened.
  [[nodiscard]] RecordsWindow* Records() const { return records_.get(); }

  // Start-up, the main loop until the program ends, and the exit status.
  int Run();

  // Start-up, the next puzzle of the selected level, and a picture of the main window in a file of the kind
  // that its name says. The exit status.
  int TakeScreenshot(const std::string& file);

 private:
  void PrepareMainWindow();

  Dispatcher dispatcher_;
  DesktopColours desktop_;
  ViewChoices choices_;
  Mirror mirror_;
  QtAsker asker_;
  UnattendedAsker unattended_asker_;
  QtScreen screen_;
  QtSoundDevice sound_;
  QtHelpWindow help_;
  QtShell shell_;
  QtPrinter printer_;
  Game game_;
  std::unique_ptr<RecordsWindow> records_;
  std::unique_ptr<Announcer> announcer_;  // from when the main window is there
};

// Everything about the application that does not change: fonts, icon; then the look. Before the first window.
void SetUpApplication(const Look& look = {});

}  // namespace kestrel
