// SPDX-License-Identifier: MIT
// The desktop's associations of files with programs. Used by media, implemented by every front end.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kestrel {

class Shell {
 public:
  Shell() = default;
  Shell(const Shell&) = delete;
  Shell& operator=(const Shell&) = delete;
  virtual ~Shell() = default;

  // The program that is associated with a file (path in the written form); nothing when there is none. Where
  // the desktop goes by kind of file and not by program, any text that Open understands.
  virtual std::optional<std::string> FindExecutable(std::string_view path) = 0;

  // Starts `program` on an address, without waiting for its end. False when it could not be started, or
  // failed at once.
  virtual bool Open(std::string_view program, std::string_view address) = 0;
};

}  // namespace kestrel
