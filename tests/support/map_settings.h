// SPDX-License-Identifier: MIT
// Settings in memory.
#pragma once

#include <map>
#include <string>

#include "core/settings.h"

namespace kestrel::testing {

class MapSettings final : public Settings {
 public:
  std::string Read(std::string_view section, std::string_view key, std::string_view fallback) override {
    ++reads;
    const auto value = values.find(std::string(section) + "/" + std::string(key));
    return value == values.end() ? std::string(fallback) : value->second;
  }
  bool Write(std::string_view section, std::string_view key, std::string_view value) override {
    values[std::string(section) + "/" + std::string(key)] = value;
    return true;
  }
  std::map<std::string, std::string> values;
  int reads = 0;
};

}  // namespace kestrel::testing
