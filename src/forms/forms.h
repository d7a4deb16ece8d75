// SPDX-License-Identifier: MIT
// All forms together, as the game owns them and the front ends show them.
#pragma once

#include "forms/browser_form.h"
#include "forms/main_window.h"
#include "forms/names_form.h"
#include "forms/print_form.h"

namespace kestrel {

struct Forms {
  MainWindow main = MakeMainWindow();
  FormNamen names = MakeFormNamen();
  FormPrint print = MakeFormPrint();
  Browser browser = MakeBrowser();

  Window& WindowOf(FormId form) {
    switch (form) {
      case FormId::Names:
        return names.window;
      case FormId::Print:
        return print.window;
      case FormId::Browser:
        return browser.window;
      case FormId::Main:
        break;
    }
    return main.window;
  }
};

// Calls visit(FormId, ControlId, control) for every control of every form.
template <class F, class Visit>
requires std::same_as<std::remove_const_t<F>, Forms>
void EachControl(F& forms, Visit&& visit) {
  const auto with_form = [&visit](FormId form) {
    return [&visit, form](ControlId id, auto& control) { visit(form, id, control); };
  };
  EachControl(forms.main, with_form(FormId::Main));
  EachControl(forms.names, with_form(FormId::Names));
  EachControl(forms.print, with_form(FormId::Print));
  EachControl(forms.browser, with_form(FormId::Browser));
}

}  // namespace kestrel
