// SPDX-License-Identifier: MIT
// The texts of the web link.
#pragma once

#include <string_view>

namespace kestrel::texts {

inline constexpr std::string_view kNoBrowser = "Could not find associated Browser";
inline constexpr std::string_view kNoBrowserTitle = "Browser Not Found";
inline constexpr std::string_view kPageNotOpened = "Web Page not Opened";
inline constexpr std::string_view kPageNotOpenedTitle = "URL Failed";

}  // namespace kestrel::texts
