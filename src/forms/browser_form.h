// SPDX-License-Identifier: MIT
// The controls of the help window.
#pragma once

#include <concepts>
#include <type_traits>

#include "forms/event.h"

namespace kestrel {

// When the window is resized, the view gets the window's width less kBrowserMarginX and its height less
// kBrowserMarginY (twips).
inline constexpr int kBrowserMarginX = 255;
inline constexpr int kBrowserMarginY = 525;

struct Browser {
  Window window;
  WebView WebBrowser1;

  friend bool operator==(const Browser&, const Browser&) = default;
};

Browser MakeBrowser();

template <class Form, class Visit>
requires std::same_as<std::remove_const_t<Form>, Browser>
void EachControl(Form& form, Visit&& visit) {
  visit(ControlId{"Browser"}, form.window);
  visit(ControlId{"WebBrowser1"}, form.WebBrowser1);
}

}  // namespace kestrel
