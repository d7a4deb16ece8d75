// SPDX-License-Identifier: MIT
#include "help/html.h"

#include "explain/svg.h"
#include "solver/technique_table.h"

namespace kestrel::help {

std::string NameOf(Technique technique) {
  if (technique == Technique::AvoidableRectangle) return "Avoidable Rectangle";  // shortened in the window
  return std::string(RowOf(technique).caption);
}

std::string BesidePicture(const std::string& words, const std::string& picture) {
  return "<table class=\"example\">\n<tr><td class=\"reason\">\n" + words + "</td>\n<td class=\"picture\">" +
         picture + "</td></tr>\n</table>\n";
}

std::string Image(Files& files, const std::string& name, const Picture& picture) {
  files["pictures/" + name + ".svg"] = picture.svg;
  return "<img src=\"pictures/" + name + ".svg\" width=\"" + std::to_string(kPictureWidth) + "\" height=\"" +
         std::to_string(kPictureHeight) + "\" alt=\"" + Escaped(picture.words) + "\">";
}

std::string Legend(Files& files, const SignSet& signs) {
  if (signs.empty()) return {};
  std::string html = "<table class=\"legend\">\n";
  const std::string size = std::to_string(kSampleSize * 3 / 4);
  for (const Sign sign : signs) {
    const SignWords words = WordsOf(sign);
    const std::string file = "pictures/sign-" + std::to_string(static_cast<int>(sign) + 1) + ".svg";
    files[file] = SignSample(sign);
    html += "<tr><td><img src=\"" + file + "\" width=\"" + size + "\" height=\"" + size + "\" alt=\"" +
            Escaped(words.look) + "\"></td><td>" + Escaped(words.meaning) + "</td></tr>\n";
  }
  return html + "</table>\n";
}

}  // namespace kestrel::help
