// SPDX-License-Identifier: MIT
// The names of the fonts on the printed page and of the preview pictures.
#pragma once

#include <array>
#include <string_view>

namespace kestrel::names {

inline constexpr std::string_view kTextFont = "Arial";
inline constexpr std::string_view kDigitFont = "Times New Roman";

// For 1, 2 and 4 puzzles a page; in the program folder.
inline constexpr std::array<std::string_view, 3> kPreviews = {"PRN1.GIF", "PRN2.GIF", "PRN4.GIF"};
inline constexpr std::array<std::string_view, 3> kPreviewsWithSolutions = {"PRN1S.GIF", "PRN2S.GIF",
                                                                           "PRN4S.GIF"};

}  // namespace kestrel::names
