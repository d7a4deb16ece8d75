// SPDX-License-Identifier: MIT
// The players dialog: add, rename and choose players. Used by the main window.
//
// Two modes. Choosing: the list is enabled, the text box is not. Typing: the other way round, and of the
// buttons only "Free Play" is enabled; with no line selected the typed name is a new player's, otherwise it
// renames the selected one.
#pragma once

#include <string>
#include <string_view>

#include "core/settings.h"
#include "forms/asker.h"
#include "forms/names_form.h"
#include "forms/screen.h"
#include "players/players.h"

namespace kestrel {

class PlayersDialog {
 public:
  // All must outlive this object.
  PlayersDialog(FormNamen& form, Players& players, Settings& settings, Asker& asker, Screen& screen)
      : form_(form), players_(players), settings_(settings), asker_(asker), screen_(screen) {}

  // Runs the dialog over the main window until it is hidden. False: the program is ending.
  [[nodiscard]] bool Run(const Window& over);

  // An event of the form. Whatever the user decides is saved at once.
  void Handle(const Event& event);

 private:
  void Activate();
  void Click(std::string_view name);
  void ListClick();
  void Ok();
  void FreePlay();
  void Hide();
  void TypeNewPlayer();
  void TypeNewName();
  void StartTyping();
  void EndTyping();
  void Enter();
  [[nodiscard]] bool Refused(const std::string& name);
  void Complain(std::string_view title, std::string_view text);
  void FocusList();

  FormNamen& form_;
  Players& players_;
  Settings& settings_;
  Asker& asker_;
  Screen& screen_;
};

}  // namespace kestrel
