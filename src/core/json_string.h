// SPDX-License-Identifier: MIT
// Texts as JSON strings. Used by the command line's JSON output and the transcripts of the in-memory front
// end.
#pragma once

#include <string>
#include <string_view>

namespace kestrel {

// The text as a JSON string, quotes included. UTF-8 stays as it is; bytes that are not UTF-8 become U+FFFD.
std::string JsonString(std::string_view text);

}  // namespace kestrel
