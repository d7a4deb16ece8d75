// SPDX-License-Identifier: MIT
// The recorded games in tests/scripts, played on whatever front end. Used by the tests of the transcripts.
//
// Lines for the tests in a script (comments to the script program):
//   #option --no-sound    options for the runs that follow
//   #without Assign.wav   that file is missing from the program folder
//   #fill 2 1             stands for the marks that solve puzzle 1 of level 2
//   #restart              ends the run; another one follows in the same home
// A file of the same name ending in .ini is the settings file at the start.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "support/game_home.h"

namespace kestrel::testing {

class RecordedGame {
 public:
  explicit RecordedGame(const std::string& name);
  static std::vector<std::string> Names();

  // Plays a run on some front end.
  using PlayRun = std::function<Played(GameHome& home, const std::string& run)>;

  // Plays the runs one after the other in one home; what they print, and how they end.
  [[nodiscard]] std::string Play(const PlayRun& play) const;

  // The stored transcript.
  [[nodiscard]] std::string Expected() const;
  void Store(const std::string& transcript) const;

 private:
  std::filesystem::path script_;
  std::filesystem::path expected_;
};

}  // namespace kestrel::testing
