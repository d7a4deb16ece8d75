// SPDX-License-Identifier: MIT
#include "forms/event.h"

namespace kestrel {

std::string FullName(ControlId id) {
  std::string name(id.name);
  if (id.index != kNoIndex) name += "(" + std::to_string(id.index) + ")";
  return name;
}

}  // namespace kestrel
