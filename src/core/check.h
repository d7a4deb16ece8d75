// SPDX-License-Identifier: MIT
// The check for what cannot happen, on in every build. Used where going on would do harm.
#pragma once

namespace kestrel {

[[noreturn]] void FailCheck(const char* file, int line);

// Ends the program, with the place on standard error, when `holds` is false. The place is the caller's; Clang
// 14 does not have std::source_location yet.
constexpr void Require(bool holds, const char* file = __builtin_FILE(), int line = __builtin_LINE()) {
  if (!holds) FailCheck(file, line);
}

}  // namespace kestrel
