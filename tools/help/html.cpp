// SPDX-License-Identifier: MIT
#include "help/html.h"

#include "explain/board_picture.h"
#include "explain/names.h"
#include "solver/technique_table.h"

namespace kestrel::help {
namespace {

std::string Image(const std::string& name, const std::string& words) {
  return "<img src=\"pictures/" + name + ".svg\" width=\"" + std::to_string(kPictureWidth) + "\" height=\"" +
         std::to_string(kPictureHeight) + "\" alt=\"" + Escaped(words) + "\">";
}

}  // namespace

std::string Escaped(std::string_view text) {
  std::string html;
  for (const char c : text) {
    switch (c) {
      case '&':
        html += "&amp;";
        break;
      case '<':
        html += "&lt;";
        break;
      case '>':
        html += "&gt;";
        break;
      case '"':
        html += "&quot;";
        break;
      default:
        html += c;
    }
  }
  return html;
}

std::string NameOf(Technique technique) {
  if (technique == Technique::AvoidableRectangle) return "Avoidable Rectangle";  // shortened in the window
  return std::string(RowOf(technique).caption);
}

std::string BesidePicture(const std::string& words, const std::string& picture) {
  return "<table class=\"example\">\n<tr><td class=\"reason\">\n" + words + "</td>\n<td class=\"picture\">" +
         picture + "</td></tr>\n</table>\n";
}

std::string SignedPicture(Files& files, const std::string& name, const Example& example) {
  files["pictures/" + name + ".svg"] = BoardPicture(example);
  return Image(name, PictureInWords(example));
}

std::string PlainPicture(Files& files, const std::string& name, const Example& example) {
  Example plain = example;
  plain.finding = {};
  plain.finding.technique = Technique::NakedSingle;
  if (example.finding.placed_cell >= 0) plain.marks = {};
  files["pictures/" + name + ".svg"] = BoardPicture(plain);
  return Image(name, "Sudoku board without signs.");
}

std::string LegendOf(const Example& example) {
  const Finding& finding = example.finding;
  std::vector<std::string> signs;
  bool fin = false;
  bool link = false;
  bool pivot = false;
  bool solved = false;
  for (const PatternCell& part : finding.pattern) {
    fin = fin || part.role == Role::Fin;
    link = link || part.role == Role::Link;
    pivot = pivot || part.role == Role::Pivot;
    solved = solved || example.digits[part.cell] != 0;
  }
  if (solved) signs.emplace_back("a large ring stands for a solved corner");
  signs.emplace_back("a disc stands for a candidate of the pattern");
  if (pivot) signs.emplace_back("a disc with a ring for one of the pivot");
  if (link) signs.emplace_back("a hollow disc for one that connects two others");
  if (fin) signs.emplace_back("a diamond for a fin");
  if (!finding.removals.empty()) signs.emplace_back("a struck square for a candidate that is removed");
  return "<p class=\"legend\">In the picture, " + Joined(signs) + ".</p>\n";
}

}  // namespace kestrel::help
