// SPDX-License-Identifier: MIT
// The signs of the pictures: each has one meaning wherever it stands, and no two are told apart by colour alone. The
// legend of a picture or page is made from the signs that were drawn.
#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <string_view>

#include "explain/palette.h"

namespace kestrel {

// In the order in which a legend names them.
enum class Sign : std::uint8_t {
  Pattern,  // a candidate of the pattern
  Target,   // the same, of the digit that is removed elsewhere
  Link,     // a candidate that ties two parts of the pattern together
  Fin,
  Pivot,     // round a cell
  InPlace,   // a digit on the board that the reason rests on
  Placed,    // the digit that goes in
  Entered,   // one of several digits placed in a row of singles
  Removed,   // a candidate that is removed
  BaseUnit,  // a row, column or box in which the pattern lies
  Losing,    // a row, column, box or part of it that loses candidates
  Tie,       // a row, column or box that ties the pattern together
  Bar,       // joins what belongs together
};
using SignSet = std::set<Sign>;

struct SignWords {
  std::string_view look;     // "filled disc"
  std::string_view meaning;  // "a candidate of the pattern"
};
SignWords WordsOf(Sign sign);

// "Filled disc: a candidate of the pattern. Struck square: ..." in plain text, only for the signs given.
std::string LegendText(const SignSet& signs);

// The sign by itself as a small SVG picture, kSampleSize pixels square, for a legend.
inline constexpr int kSampleSize = 30;
std::string SignSample(Sign sign, const Palette& palette = kLightPalette);

}  // namespace kestrel
