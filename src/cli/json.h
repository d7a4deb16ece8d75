// SPDX-License-Identifier: MIT
// Writes one JSON object on one line. Used by the commands' `--format json`.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/json_string.h"

namespace kestrel {

// The version of the objects that the commands write; goes up when a member changes its meaning.
inline constexpr int kJsonSchema = 1;

class JsonObject {
 public:
  JsonObject& Add(std::string_view name, std::string_view text) { return AddRaw(name, JsonString(text)); }
  JsonObject& Add(std::string_view name, std::int64_t number) { return AddRaw(name, std::to_string(number)); }
  // `json` is a complete JSON value.
  JsonObject& AddRaw(std::string_view name, std::string_view json);

  std::string Text() const { return "{" + members_ + "}"; }

 private:
  std::string members_;
};

// An object that begins with the schema version, as every line of output does.
JsonObject JsonLine();

class JsonArray {
 public:
  JsonArray& Add(std::string_view text) { return AddRaw(JsonString(text)); }
  JsonArray& Add(std::int64_t number) { return AddRaw(std::to_string(number)); }
  JsonArray& AddRaw(std::string_view json);

  std::string Text() const { return "[" + values_ + "]"; }

 private:
  std::string values_;
};

}  // namespace kestrel
