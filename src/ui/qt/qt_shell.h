// SPDX-License-Identifier: MIT
// The desktop's associations, by the tools of the XDG utilities where they are installed. Built by the front
// end.
#pragma once

#include "forms/shell.h"

namespace kestrel {

class QtShell final : public Shell {
 public:
  // The desktop goes by kind of file: the answer is the program that opens a file of that kind with the
  // desktop's choice. Nothing when the desktop has no choice for it, and no browser is named otherwise.
  std::optional<std::string> FindExecutable(std::string_view path) override;
  bool Open(std::string_view program, std::string_view address) override;
};

}  // namespace kestrel
