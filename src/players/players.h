// SPDX-License-Identifier: MIT
// The players by number, and who of them plays. Used by the players dialog and the main window.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/settings.h"
#include "forms/names_form.h"

namespace kestrel {

// Players are never deleted: a number, 1..PlayerCount, stays valid in the records of best times.
class Players {
 public:
  // Loads the players and who plays, and lists them in the dialog. Settings that are no whole numbers count
  // as 0, and so does a "Last_Player" that names nobody.
  void Setup_Players(Settings& settings, FormNamen& form);

  // Writes "Count" and all names.
  void SavePlayers(Settings& settings) const;
  // Writes who plays.
  void SaveLastPlayer(Settings& settings) const;

  [[nodiscard]] int PlayerCount() const { return static_cast<int>(names_.size()); }
  // All 16 characters of a name, blanks included; number 1..PlayerCount.
  [[nodiscard]] const std::string& PlayerNames(int number) const;
  // The name without the blanks at its end; empty for a number that is no player.
  [[nodiscard]] std::string Name(int number) const;

  // Adds a player, or renames number 1..PlayerCount; the name is padded or cut to 16 characters.
  void Add(std::string_view name);
  void Rename(int number, std::string_view name);

  int CurrentPlayer = 0;  // 0: free play

 private:
  std::vector<std::string> names_;
};

}  // namespace kestrel
