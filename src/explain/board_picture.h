// SPDX-License-Identifier: MIT
// Positions as SVG: the board as the game's window shows it, with the signs of explain/signs.h on it. One drawing
// for pages, exercises, stories and walkthroughs. Plain SVG Tiny 1.2 with text as text, a title and a description
// inside, no style sheet and no script: browsers and Qt's renderer draw it alike.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>

#include "explain/example.h"
#include "explain/palette.h"
#include "explain/signs.h"

namespace kestrel {

// Width and height of every picture of a board, in pixels at scale 1.
inline constexpr int kPictureWidth = 564;
inline constexpr int kPictureHeight = 562;

// How much of an example a picture shows.
enum class Frame : std::uint8_t {
  Plain,   // the position alone, for an exercise
  Spot,    // what to look for: the pattern in its lines and boxes
  Reason,  // and what follows from it: what ties it together, where candidates go
  Whole,   // and the candidates that are removed or the digit that goes in
};

struct BoardPicture {
  std::string svg;    // a whole document, from <svg to </svg> and a line end
  SignSet signs;      // what was drawn, for the legend
  std::string words;  // the description inside, also for an alt text
};

BoardPicture DrawBoard(const Example& example, Frame frame = Frame::Whole,
                       const Palette& palette = kLightPalette);

// A digit that a single puts into a cell.
struct Placement {
  int cell;   // 0..80
  int digit;  // 1..9
};

// The board after a run of singles: what was placed is marked and numbered in its order. `after` is the position at
// the end of the run; its finding is not looked at.
BoardPicture DrawSingles(const Example& after, std::span<const Placement> placements,
                         const Palette& palette = kLightPalette);

// One picture of a story in three: spot the pattern, why it works, what is removed.
struct StoryFrame {
  std::string_view heading;
  std::string text;
  BoardPicture picture;
};
// The example must not be a single.
std::array<StoryFrame, 3> DrawStory(const Example& example, const Palette& palette = kLightPalette);

}  // namespace kestrel
