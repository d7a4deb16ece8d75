// SPDX-License-Identifier: MIT
// The user's settings: texts under a section and a key. Implemented by core/settings_file.h.
#pragma once

#include <string>
#include <string_view>

namespace kestrel {

class Settings {
 public:
  Settings() = default;
  Settings(const Settings&) = delete;
  Settings& operator=(const Settings&) = delete;
  virtual ~Settings() = default;

  // The value of a key, or `fallback` when it was never written. Section and key are case-sensitive.
  virtual std::string Read(std::string_view section, std::string_view key, std::string_view fallback) = 0;

  // Stores a value. False when it could not be saved; Read gives it all the same for as long as the program
  // runs, and the next Write tries to save it again.
  virtual bool Write(std::string_view section, std::string_view key, std::string_view value) = 0;
};

}  // namespace kestrel
