// SPDX-License-Identifier: MIT
// The pieces that all help pages are put together from. Used by the parts of the site.
#pragma once

#include <map>
#include <string>
#include <string_view>

#include "explain/example.h"

namespace kestrel::help {

// The files of the help folder made so far, by name within it: "x_wing.html", "pictures/kite.svg".
using Files = std::map<std::string, std::string>;

// & < > and quotes as HTML has them.
std::string Escaped(std::string_view text);

// "X-Wing", "2 String Kite", "Avoidable Rectangle": the technique in a heading or sentence.
std::string NameOf(Technique technique);

// A position on the left of its picture; in a narrow window above it. `words` is HTML.
std::string BesidePicture(const std::string& words, const std::string& picture);

// The image of the position with its signs, whose drawing goes to the files under this name.
std::string SignedPicture(Files& files, const std::string& name, const Example& example);
// The same without any sign and, for a single, without candidates: what a player sees who has not found it yet.
std::string PlainPicture(Files& files, const std::string& name, const Example& example);
// What the signs in that picture mean: a paragraph.
std::string LegendOf(const Example& example);

}  // namespace kestrel::help
