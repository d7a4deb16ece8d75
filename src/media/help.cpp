// SPDX-License-Identifier: MIT
#include "media/help.h"

#include <string>

namespace kestrel {

void Help::ShowPage(std::string_view file) {
  browser_.WebBrowser1.page = std::string(kHelpFolder) + std::string(file);
  view_.Navigate(browser_.WebBrowser1.page);
  screen_.Show(FormId::Browser);
}

}  // namespace kestrel
