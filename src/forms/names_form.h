// SPDX-License-Identifier: MIT
// The controls of the players dialog.
#pragma once

#include <concepts>
#include <type_traits>

#include "forms/event.h"

namespace kestrel {

struct FormNamen {
  Window window;
  Label LabelInstruction;
  ListBox Naamlijst;        // line i - 1 is player i
  TextBox NaamInvoerveld;   // enabled while a name is typed
  Label LabelTyping;        // how typing ends; visible while a name is typed
  Button KnopNieuweSpeler;  // new
  Button KnopWijzigen;      // edit
  Button KnopOK;
  Button KnopAnnuleren;  // cancel
  Button CommandFree;

  friend bool operator==(const FormNamen&, const FormNamen&) = default;
};

FormNamen MakeFormNamen();

template <class Form, class Visit>
requires std::same_as<std::remove_const_t<Form>, FormNamen>
void EachControl(Form& form, Visit&& visit) {
  visit(ControlId{"FormNamen"}, form.window);
  visit(ControlId{"LabelInstruction"}, form.LabelInstruction);
  visit(ControlId{"Naamlijst"}, form.Naamlijst);
  visit(ControlId{"NaamInvoerveld"}, form.NaamInvoerveld);
  visit(ControlId{"LabelTyping"}, form.LabelTyping);
  visit(ControlId{"KnopNieuweSpeler"}, form.KnopNieuweSpeler);
  visit(ControlId{"KnopWijzigen"}, form.KnopWijzigen);
  visit(ControlId{"KnopOK"}, form.KnopOK);
  visit(ControlId{"KnopAnnuleren"}, form.KnopAnnuleren);
  visit(ControlId{"CommandFree"}, form.CommandFree);
}

}  // namespace kestrel
