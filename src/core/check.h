// SPDX-License-Identifier: MIT
// The check for what cannot happen, on in every build. Used where going on would do harm.
#pragma once

#include <source_location>

namespace kestrel {

[[noreturn]] void FailCheck(const std::source_location& where);

// Ends the program, with the place on standard error, when `holds` is false.
constexpr void Require(bool holds, const std::source_location& where = std::source_location::current()) {
  if (!holds) FailCheck(where);
}

}  // namespace kestrel
