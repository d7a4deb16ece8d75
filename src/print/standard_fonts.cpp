// SPDX-License-Identifier: MIT
// The advance widths of the standard PDF fonts, from their published core metrics.
#include "print/standard_fonts.h"

#include <array>
#include <cstdint>

namespace kestrel {

namespace {

using Widths = std::array<std::int16_t, kLastCharacter - kFirstCharacter + 1>;

// From blank to tilde; an apostrophe and a grave accent stand in the two places where the fonts' own encoding
// has curly quotes.
constexpr Widths kHelvetica = {
    278, 278, 355, 556, 556, 889, 667, 191, 333, 333, 389, 584, 278, 333,  278, 278, 556, 556, 556,
    556, 556, 556, 556, 556, 556, 556, 278, 278, 584, 584, 584, 556, 1015, 667, 667, 722, 722, 667,
    611, 778, 722, 278, 500, 667, 556, 833, 722, 778, 667, 778, 722, 667,  611, 722, 667, 944, 667,
    667, 611, 278, 278, 278, 469, 556, 333, 556, 556, 500, 556, 556, 278,  556, 556, 222, 222, 500,
    222, 833, 556, 556, 556, 556, 333, 500, 278, 556, 500, 722, 500, 500,  500, 334, 260, 334, 584};
constexpr Widths kHelveticaBold = {
    278, 333, 474, 556, 556, 889, 722, 238, 333, 333, 389, 584, 278, 333, 278, 278, 556, 556, 556,
    556, 556, 556, 556, 556, 556, 556, 333, 333, 584, 584, 584, 611, 975, 722, 722, 722, 722, 667,
    611, 778, 722, 278, 556, 722, 611, 833, 722, 778, 667, 778, 722, 667, 611, 722, 667, 944, 667,
    667, 611, 333, 278, 333, 584, 556, 333, 556, 611, 556, 611, 556, 333, 611, 611, 278, 278, 556,
    278, 889, 611, 611, 611, 611, 389, 556, 333, 611, 556, 778, 556, 556, 500, 389, 280, 389, 584};
constexpr Widths kTimes = {250, 333, 408, 500, 500, 833, 778, 180, 333, 333, 500, 564, 250, 333, 250, 278,
                           500, 500, 500, 500, 500, 500, 500, 500, 500, 500, 278, 278, 564, 564, 564, 444,
                           921, 722, 667, 667, 722, 611, 556, 722, 722, 333, 389, 722, 611, 889, 722, 722,
                           556, 722, 667, 556, 611, 722, 722, 944, 722, 722, 611, 333, 278, 333, 469, 500,
                           333, 444, 500, 444, 500, 444, 333, 500, 500, 278, 278, 500, 278, 778, 500, 500,
                           500, 500, 333, 389, 278, 500, 500, 722, 500, 500, 444, 480, 200, 480, 541};
constexpr Widths kTimesBold = {
    250, 333, 555, 500, 500, 1000, 833, 278, 333, 333, 500, 570, 250, 333, 250, 278, 500, 500,  500,
    500, 500, 500, 500, 500, 500,  500, 333, 333, 570, 570, 570, 500, 930, 722, 667, 722, 722,  667,
    611, 778, 778, 389, 500, 778,  667, 944, 722, 778, 611, 778, 722, 556, 667, 722, 722, 1000, 722,
    722, 667, 333, 278, 333, 581,  500, 333, 500, 556, 444, 556, 444, 333, 500, 556, 278, 333,  556,
    278, 833, 556, 500, 556, 556,  444, 389, 333, 556, 500, 722, 500, 500, 444, 394, 220, 394,  520};
constexpr Widths kCourier = [] {
  Widths widths{};
  widths.fill(600);
  return widths;
}();

// Heights above and below the baseline are those of Arial, Times New Roman and Courier New, for which the
// fonts stand in: the layout centres by them.
constexpr std::array<StandardFont, kStandardFonts> kFonts = {{
    {"Helvetica", 905, 212, kHelvetica},
    {"Helvetica-Bold", 905, 212, kHelveticaBold},
    {"Times-Roman", 891, 216, kTimes},
    {"Times-Bold", 891, 216, kTimesBold},
    {"Courier", 833, 300, kCourier},
    {"Courier-Bold", 833, 300, kCourier},
}};

}  // namespace

int StandardFontIndex(const Font& font) {
  const int family = font.family.starts_with("Times") ? 1 : font.family.starts_with("Courier") ? 2 : 0;
  return 2 * family + (font.bold ? 1 : 0);
}

const StandardFont& StandardFontAt(int index) {
  return kFonts[index];
}

std::int64_t TextWidth(const StandardFont& font, std::string_view text) {
  std::int64_t width = 0;
  for (const char c : text) width += font.widths[static_cast<std::size_t>(Printable(c) - kFirstCharacter)];
  return width;
}

}  // namespace kestrel
