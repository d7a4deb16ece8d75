// SPDX-License-Identifier: MIT
#include "explain/page_parts.h"

#include <utility>

#include "explain/svg.h"
#include "solver/technique_table.h"

namespace kestrel {
namespace {

// The image of a sign by itself.
std::string Sample(HelpFiles& files, Sign sign) {
  const std::string file = "pictures/sign-" + std::to_string(static_cast<int>(sign) + 1) + ".svg";
  files[file] = SignSample(sign);
  const std::string size = std::to_string(kSampleSize * 3 / 4);
  return "<img src=\"" + file + "\" width=\"" + size + "\" height=\"" + size + "\" alt=\"" +
         Escaped(WordsOf(sign).look) + "\">";
}

}  // namespace

std::string NameOf(Technique technique) {
  if (technique == Technique::AvoidableRectangle) return "Avoidable Rectangle";  // shortened in the window
  return std::string(RowOf(technique).caption);
}

std::string Link(const std::string& target, const std::string& words) {
  return "<a href=\"" + target + "\">" + Escaped(words) + "</a>";
}

std::string HelpPage(const std::string& file, const std::string& name, const std::string& title,
                     const std::string& links, const std::string& content) {
  std::string line = "<p class=\"navigation\">";
  for (const auto& [target, words] :
       {std::pair("index.html", "Contents"), {"first_steps.html", "First steps"}, {"words.html", "Words"}}) {
    if (file != target) line += Link(target, words) + " &nbsp; ";
  }
  line += links + "</p>\n";
  return "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
         "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
         "<meta name=\"color-scheme\" content=\"light dark\">\n<title>" +
         Escaped(name) +
         "</title>\n<link rel=\"stylesheet\" type=\"text/css\" href=\"help.css\">\n"
         "<link rel=\"stylesheet\" href=\"browser.css\">\n"
         "<link rel=\"stylesheet\" media=\"(prefers-color-scheme: dark)\" href=\"help_dark.css\">\n"
         "<link rel=\"stylesheet\" media=\"(prefers-color-scheme: dark) and (prefers-contrast: more)\" "
         "href=\"help_contrast.css\">\n"
         "</head>\n<body>\n" +
         line + "<h1>" + Escaped(title) + "</h1>\n" + content + line + "</body>\n</html>\n";
}

std::string BesidePicture(const std::string& words, const std::string& picture) {
  return "<table class=\"example\">\n<tr><td class=\"reason\">\n" + words + "</td>\n<td class=\"picture\">" +
         picture + "</td></tr>\n</table>\n";
}

std::string Image(HelpFiles& files, const std::string& name, const BoardPicture& picture) {
  files["pictures/" + name + ".svg"] = picture.svg;
  return "<img src=\"pictures/" + name + ".svg\" width=\"" + std::to_string(kPictureWidth) + "\" height=\"" +
         std::to_string(kPictureHeight) + "\" alt=\"" + Escaped(picture.words) + "\">";
}

std::string Legend(HelpFiles& files, const SignSet& signs) {
  if (signs.empty()) return {};
  std::string html = "<table class=\"legend\">\n";
  for (const Sign sign : signs) {
    html += "<tr><td>" + Sample(files, sign) + "</td><td>" + Escaped(WordsOf(sign).meaning) + "</td></tr>\n";
  }
  return html + "</table>\n";
}

std::string SignTable(HelpFiles& files) {
  std::string html = "<table class=\"legend\">\n";
  for (int i = 0; i <= static_cast<int>(Sign::Bar); ++i) {
    const auto sign = static_cast<Sign>(i);
    const auto& [look, meaning] = WordsOf(sign);
    html += "<tr><td>" + Sample(files, sign) + "</td><td>" + Escaped(look) + "</td><td>" + Escaped(meaning) +
            "</td></tr>\n";
  }
  return html + "</table>\n";
}

}  // namespace kestrel
