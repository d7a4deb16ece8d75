// SPDX-License-Identifier: MIT
// The pieces that all help pages are put together from, in the few tags and styles that the help window knows. Used by
// the tool that makes the pages, and for the page that the help window shows of a puzzle.
#pragma once

#include <map>
#include <string>
#include <string_view>

#include "explain/board_picture.h"

namespace kestrel {

// Files of the help folder, by name within it: "x_wing.html", "pictures/kite.svg".
using HelpFiles = std::map<std::string, std::string>;

// "X-Wing", "2 String Kite", "Avoidable Rectangle": the technique in a heading or sentence.
std::string NameOf(Technique technique);

// A link; the words are plain text.
std::string Link(const std::string& target, const std::string& words);

// A whole page. `name` is the title of the window, `title` the heading; `links` is the HTML of the line over and under the
// content, after the links that every page has to all pages but itself, which is `file`.
std::string HelpPage(const std::string& file, const std::string& name, const std::string& title,
                     const std::string& links, const std::string& content);

// A position on the left of its picture; in a narrow window above it. `words` is HTML.
std::string BesidePicture(const std::string& words, const std::string& picture);

// An image of the picture, whose drawing goes to the files under this name.
std::string Image(HelpFiles& files, const std::string& name, const BoardPicture& picture);

// What the signs of a picture mean: a small table with a sample of each, or nothing when there are none.
std::string Legend(HelpFiles& files, const SignSet& signs);
// The same of all signs there are, and what they look like.
std::string SignTable(HelpFiles& files);

}  // namespace kestrel
