// SPDX-License-Identifier: MIT
#include "explain/svg.h"

#include <cmath>
#include <cstdlib>

namespace kestrel {
namespace {

std::string Attribute(std::string_view name, std::string_view value) {
  return std::string(" ").append(name).append("=\"").append(value).append("\"");
}
std::string Attribute(std::string_view name, double value) {
  return Attribute(name, SvgNumber(value));
}

std::string Look(const Stroke& look) {
  std::string text = Attribute("fill", look.fill != nullptr ? look.fill : "none");
  if (look.line != nullptr) text += Attribute("stroke", look.line) + Attribute("stroke-width", look.width);
  if (look.dashes != nullptr) text += Attribute("stroke-dasharray", look.dashes);
  return text + "/>\n";
}

}  // namespace

std::string SvgNumber(double value) {
  const long tenths = std::lround(value * 10);
  const long whole = std::labs(tenths) / 10;
  const long rest = std::labs(tenths) % 10;
  std::string number = (tenths < 0 ? "-" : "") + std::to_string(whole);
  if (rest != 0) number += '.' + std::to_string(rest);
  return number;
}

std::string Escaped(std::string_view text) {
  std::string escaped;
  for (const char c : text) {
    switch (c) {
      case '&':
        escaped += "&amp;";
        break;
      case '<':
        escaped += "&lt;";
        break;
      case '>':
        escaped += "&gt;";
        break;
      case '"':
        escaped += "&quot;";
        break;
      default:
        escaped += static_cast<unsigned char>(c) < ' ' && c != '\n' ? '?' : c;
    }
  }
  return escaped;
}

// One font name, which every system has or has a likeness of: Qt takes a list of names for the name of a font.
Svg::Svg(int width, int height, std::string_view title, std::string_view description) {
  const std::string size = std::to_string(width) + ' ' + std::to_string(height);
  text_ = "<svg xmlns=\"http://www.w3.org/2000/svg\"" + Attribute("width", width) +
          Attribute("height", height) + Attribute("viewBox", "0 0 " + size) +
          " font-family=\"Arial\" text-anchor=\"middle\">\n<title>" + Escaped(title) + "</title>\n";
  if (!description.empty()) text_ += "<desc>" + Escaped(description) + "</desc>\n";
}

void Svg::Rect(Point corner, double width, double height, const Stroke& look, double rounding) {
  text_ += "<rect" + Attribute("x", corner.x) + Attribute("y", corner.y) + Attribute("width", width) +
           Attribute("height", height);
  if (rounding > 0) text_ += Attribute("rx", rounding);
  text_ += Look(look);
}

void Svg::Circle(Point middle, double radius, const Stroke& look) {
  text_ +=
      "<circle" + Attribute("cx", middle.x) + Attribute("cy", middle.y) + Attribute("r", radius) + Look(look);
}

void Svg::Path(std::string_view data, const Stroke& look, std::string_view more) {
  text_ += "<path" + Attribute("d", data);
  text_.append(more);
  text_ += Look(look);
}

void Svg::Text(Point middle, double size, bool bold, const char* colour, std::string_view text) {
  OpenTexts(size, bold, colour);
  TextIn(middle, size, text);
  CloseTexts();
}

void Svg::OpenTexts(double size, bool bold, const char* colour) {
  text_ += "<g" + Attribute("font-size", size) + (bold ? " font-weight=\"bold\"" : "") +
           Attribute("fill", colour) + ">\n";
}

void Svg::TextIn(Point middle, double size, std::string_view text) {
  // Digits and capitals of the font are 0.69 of its size high.
  text_ += "<text" + Attribute("x", middle.x) + Attribute("y", middle.y + 0.345 * size) + ">" +
           Escaped(text) + "</text>\n";
}

}  // namespace kestrel
