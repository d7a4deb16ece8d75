// SPDX-License-Identifier: MIT
// The composed messages of the players dialog.
#include "players/texts.h"

namespace kestrel::texts {

std::string NameInUse(std::string_view name) {
  return "Yeah yeah, I know there are more people having that name,\nbut " + std::string(name) +
         " is allready in use.\nA unique name is required,\nso, use your imagination.";
}

std::string NameInUseTitle(std::string_view name) {
  return "Oh no, not another " + std::string(name) + " !!!";
}

}  // namespace kestrel::texts
