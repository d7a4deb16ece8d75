// SPDX-License-Identifier: MIT
// The colours of the pictures. A picture is drawn in one palette and carries plain colour values: the help window's
// renderer knows no style sheets. Two colours are the same in the light palette only if they are in the dark one, so
// that a page can put the dark ones in their place by style.
#pragma once

namespace kestrel {

struct Palette {
  const char* paper;        // background of the picture
  const char* ink;          // box lines, headers
  const char* thin;         // cell lines
  const char* mark;         // candidates
  const char* given;        // digits of the puzzle
  const char* digit;        // digits found since
  const char* cause;        // signs of the pattern
  const char* on_cause;     // digits on them
  const char* gone;         // signs of what is removed
  const char* gone_ground;  // background of those
  const char* unit_wash;    // lines and boxes in which the pattern lies
  const char* lose_wash;    // lines, boxes and cells that lose candidates
};

inline constexpr Palette kLightPalette{"#ffffff", "#20262d", "#9aa3ad", "#4a4f57", "#0000a0", "#000000",
                                       "#1a56a8", "#ffffff", "#b3261e", "#fdeceb", "#e3edfa", "#fbf1d9"};
inline constexpr Palette kDarkPalette{"#1e2227", "#e4e7eb", "#59626d", "#b6bec8", "#93bbff", "#f3f5f7",
                                      "#7db1f7", "#1e2227", "#ff9087", "#4b2624", "#25374f", "#483d20"};
// Every text 7 to 1 and every line 3 to 1 on each ground.
inline constexpr Palette kContrastPalette{"#000000", "#ffffff", "#a8a8a8", "#f0f0f0", "#ffff66", "#ffffff",
                                          "#8ccbff", "#000000", "#ffb3a8", "#330a00", "#00264d", "#332b00"};

}  // namespace kestrel
