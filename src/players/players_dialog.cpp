// SPDX-License-Identifier: MIT
#include "players/players_dialog.h"

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

void PlayersDialog::Handle(const Event& event) {
  const std::string_view name = event.control.name;
  if (event.kind == EventKind::Close) {
    Hide();
  } else if (event.kind == EventKind::Key && name == "NaamInvoerveld") {
    event.key == Key::Enter ? Enter() : EndTyping();
  } else if (event.kind == EventKind::DoubleClick && name == "Naamlijst") {
    ListClick();
    if (form_.Naamlijst.index >= 0) Ok();
  } else if (event.kind != EventKind::Click) {
    return;
  } else if (name == "Naamlijst") {
    ListClick();
  } else if (name == "KnopOK") {
    Ok();
  } else if (name == "KnopAnnuleren") {
    Hide();
  } else if (name == "CommandFree") {
    FreePlay();
  } else if (name == "KnopNieuweSpeler") {
    form_.Naamlijst.index = -1;
    StartTyping();
  } else if (name == "KnopWijzigen") {
    form_.NaamInvoerveld.text = players_.Name(form_.Naamlijst.index + 1);
    StartTyping();
  }
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
