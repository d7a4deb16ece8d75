// SPDX-License-Identifier: MIT
#include "players/players_dialog.h"

#include <algorithm>
#include <array>
#include <utility>

#include "core/check.h"
#include "core/global.h"
#include "players/texts.h"

namespace kestrel {

bool PlayersDialog::Run(const Window& over) {
  form_.window.left = over.left + (over.width - form_.window.width) / 2;
  form_.window.top = over.top + (over.height - form_.window.height) / 2;
  screen_.Show(FormId::Names);
  Activate();
  return screen_.WaitUntilHidden(FormId::Names);
}

// An event that no control of this form sends is a mistake of the program.
void PlayersDialog::Handle(const Event& event) {
  switch (event.kind) {
    case EventKind::Close:
      return Hide();
    case EventKind::Click:
      return Click(event.control.name);
    case EventKind::DoubleClick:
      Require(event.control.name == "Naamlijst");
      ListClick();
      if (form_.Naamlijst.index >= 0) Ok();
      return;
    case EventKind::Key:
      Require(event.control.name == "NaamInvoerveld");
      return event.key == Key::Enter ? Enter() : EndTyping();
    case EventKind::Leave:
      return;  // typing goes on until it is ended by a key or a button
    default:
      Require(false);
  }
}

void PlayersDialog::Click(std::string_view name) {
  using Dialog = PlayersDialog;
  static constexpr auto kHandlers = std::to_array<std::pair<std::string_view, void (Dialog::*)()>>({
      {"Naamlijst", &Dialog::ListClick},
      {"KnopOK", &Dialog::Ok},
      {"KnopAnnuleren", &Dialog::Hide},
      {"CommandFree", &Dialog::FreePlay},
      {"KnopNieuweSpeler", &Dialog::TypeNewPlayer},
      {"KnopWijzigen", &Dialog::TypeNewName},
  });
  const auto handler = std::ranges::find(kHandlers, name, &decltype(kHandlers)::value_type::first);
  Require(handler != kHandlers.end());
  (this->*handler->second)();
}

void PlayersDialog::Activate() {
  FocusList();
  form_.Naamlijst.index = -1;
  ListClick();
}

void PlayersDialog::ListClick() {
  const bool selected = form_.Naamlijst.index >= 0;
  form_.KnopOK.enabled = selected;
  form_.KnopWijzigen.enabled = selected;
}

void PlayersDialog::Ok() {
  players_.CurrentPlayer = form_.Naamlijst.index + 1;
  players_.SaveLastPlayer(settings_);
  Hide();
}

// Holds for this run only: who played last stays saved.
void PlayersDialog::FreePlay() {
  players_.CurrentPlayer = 0;
  Hide();
}

// A name that was being typed is dropped: at the next opening no line is selected, and a renaming would have
// become a new player.
void PlayersDialog::Hide() {
  if (form_.NaamInvoerveld.enabled) EndTyping();
  screen_.Hide(FormId::Names);
}

void PlayersDialog::TypeNewPlayer() {
  form_.Naamlijst.index = -1;
  StartTyping();
}

void PlayersDialog::TypeNewName() {
  form_.NaamInvoerveld.text = players_.Name(form_.Naamlijst.index + 1);
  StartTyping();
}

void PlayersDialog::StartTyping() {
  form_.KnopWijzigen.enabled = false;
  form_.KnopNieuweSpeler.enabled = false;
  form_.KnopAnnuleren.enabled = false;
  form_.KnopOK.enabled = false;
  form_.Naamlijst.enabled = false;
  form_.NaamInvoerveld.enabled = true;
  form_.LabelTyping.visible = true;
  screen_.Focus(FormId::Names, {"NaamInvoerveld"});
}

void PlayersDialog::EndTyping() {
  form_.NaamInvoerveld.text.clear();
  form_.NaamInvoerveld.enabled = false;
  form_.LabelTyping.visible = false;
  ListClick();
  form_.KnopNieuweSpeler.enabled = true;
  form_.KnopAnnuleren.enabled = true;
  form_.Naamlijst.enabled = true;
  FocusList();
}

void PlayersDialog::Enter() {
  std::string name = form_.NaamInvoerveld.text;
  if (Refused(name)) return;
  StripTrailingBlanks(name);
  if (form_.Naamlijst.index < 0) {
    players_.Add(name);
    form_.Naamlijst.lines.push_back(name);
    form_.Naamlijst.index = players_.PlayerCount() - 1;
  } else {
    form_.Naamlijst.lines[static_cast<std::size_t>(form_.Naamlijst.index)] = name;
    players_.Rename(form_.Naamlijst.index + 1, name);
  }
  players_.SavePlayers(settings_);
  EndTyping();
}

// Complains about a name that cannot be taken, and stays in typing mode.
bool PlayersDialog::Refused(const std::string& typed) {
  std::string name = typed;
  StripTrailingBlanks(name);
  if (name.empty()) {
    if (typed.empty()) {
      Complain(texts::kEmptyNameTitle, texts::kEmptyName);
    } else {
      Complain(texts::kBlankNameTitle, texts::kBlankName);
    }
    return true;
  }
  for (int i = 1; i <= players_.PlayerCount(); ++i) {
    if (i == form_.Naamlijst.index + 1 || players_.Name(i) != name) continue;
    Complain(texts::NameInUseTitle(name), texts::NameInUse(name));
    return true;
  }
  return false;
}

void PlayersDialog::Complain(std::string_view title, std::string_view text) {
  screen_.Beep();
  // Nothing follows the message, whether it was answered or the program is ending.
  (void)asker_.Message({std::string(title), std::string(text), MessageIcon::Information, MessageButtons::Ok});
}

void PlayersDialog::FocusList() {
  screen_.Focus(FormId::Names, {"Naamlijst"});
}

}  // namespace kestrel
