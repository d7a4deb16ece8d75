// SPDX-License-Identifier: MIT
// Texts of transcripts as JSON strings. By hand, because the bytes are a promise to those who compare transcripts:
// a library may escape a tab in either of two ways.
#pragma once

#include <string>
#include <string_view>

namespace kestrel {

// The text as a JSON string, quotes included. UTF-8 stays as it is; bytes that are not UTF-8 become U+FFFD.
std::string JsonString(std::string_view text);

}  // namespace kestrel
