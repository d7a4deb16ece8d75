// SPDX-License-Identifier: MIT
// The picture of a worked example as SVG: the board as the game's window shows it, with the pattern and what
// it removes marked on the candidates. Used for the help pages.
#pragma once

#include <string>

#include "explain/example.h"

namespace kestrel {

// Width and height of every picture, in pixels at scale 1.
inline constexpr int kPictureWidth = 564;
inline constexpr int kPictureHeight = 562;

// The drawing. Signs, never told apart by colour alone:
//
//   filled disc    a candidate of the pattern          hollow disc  one that links two others
//   ringed disc    a candidate of the pivot            diamond      a fin
//   struck square  a removed candidate               large ring   a digit in place that belongs to the
//   pattern dark header    a line in which the pattern lies    framed header  a line that it covers
std::string BoardPicture(const Example& example);

// True when candidates are removed from the lines and boxes that the technique covers; these get a background of
// their own in its pictures. Otherwise the covers only connect parts of the pattern.
bool CoversLose(Technique technique);

// The same in words, for readers who do not see it: "Board with ... marked".
std::string PictureInWords(const Example& example);

}  // namespace kestrel
