// SPDX-License-Identifier: MIT
#include "media/help.h"

#include <string>

namespace kestrel {

void Help::ShowPage(std::string_view file) {
  browser_.WebBrowser1.page = std::string(kHelpFolder) + std::string(file);
  view_.Navigate(browser_.WebBrowser1.page);
  screen_.Show(FormId::Browser);
}

void Help::OfferSolving(const DigitGrid* givens) {
  if (givens == nullptr ? !offered_ : offered_ == *givens) return;
  offered_ = givens == nullptr ? std::nullopt : std::optional(*givens);
  view_.OfferSolving(givens);
}

}  // namespace kestrel
