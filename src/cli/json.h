// SPDX-License-Identifier: MIT
// JSON objects, one a line. Used by the commands' `--format json`.
#pragma once

#include <nlohmann/json.hpp>
#include <string>

namespace kestrel {

// The version of the objects that the commands write; goes up when a member changes its meaning.
inline constexpr int kJsonSchema = 1;

// Keeps its members in the order in which they were added.
using Json = nlohmann::ordered_json;

// An object that begins with the schema version, as every line of output does.
Json JsonLine();

// The value on one line, with the line's end. Bytes that are not UTF-8 become U+FFFD.
std::string JsonText(const Json& value);

}  // namespace kestrel
