// SPDX-License-Identifier: MIT
// Writes the few elements of SVG Tiny 1.2 that the pictures use.
#pragma once

#include <string>
#include <string_view>

namespace kestrel {

struct Point {
  double x;
  double y;
};

// A number with at most one decimal and no superfluous ".0".
std::string SvgNumber(double value);
// Text for contents and attributes of HTML and SVG: & < > and " as entities, characters that these may not hold as '?'.
std::string Escaped(std::string_view text);

// The look of a shape; a null colour is "none".
struct Stroke {
  const char* fill = nullptr;
  const char* line = nullptr;
  double width = 0;
  const char* dashes = nullptr;
};

class Svg {
 public:
  // Opens the document. The description may be empty.
  Svg(int width, int height, std::string_view title, std::string_view description);

  void Rect(Point corner, double width, double height, const Stroke& look, double rounding = 0);
  void Circle(Point middle, double radius, const Stroke& look);
  void Path(std::string_view data, const Stroke& look, std::string_view more = {});
  // Text with its middle, not its base line, at the point.
  void Text(Point middle, double size, bool bold, const char* colour, std::string_view text);
  // Several texts of one kind in a group, which is shorter: TextIn between OpenTexts and CloseTexts.
  void OpenTexts(double size, bool bold, const char* colour);
  void TextIn(Point middle, double size, std::string_view text);
  void CloseTexts() { text_ += "</g>\n"; }

  // The whole document.
  [[nodiscard]] std::string Finished() const { return text_ + "</svg>\n"; }

 private:
  std::string text_;
};

}  // namespace kestrel
