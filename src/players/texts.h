// SPDX-License-Identifier: MIT
// The messages of the players dialog.
#pragma once

#include <string>
#include <string_view>

namespace kestrel::texts {

inline constexpr std::string_view kBlankName = "If you want to stay unknown,\nuse a nick name.";
inline constexpr std::string_view kBlankNameTitle = "My name is Nobody";
inline constexpr std::string_view kEmptyName =
    "Did you suffer from memory loss ?\nCome on, think very deeply, try to remember your own name.";
inline constexpr std::string_view kEmptyNameTitle = "Loss of memory ?";
inline constexpr std::string_view kNobody = "somebody else";  // a time of no player of this list
std::string NameInUse(std::string_view name);
std::string NameInUseTitle(std::string_view name);

}  // namespace kestrel::texts
