// SPDX-License-Identifier: MIT
// The pieces that all help pages are put together from. Used by the parts of the site.
#pragma once

#include <map>
#include <string>
#include <string_view>

#include "explain/board_picture.h"

namespace kestrel::help {

// The files of the help folder made so far, by name within it: "x_wing.html", "pictures/kite.svg".
using Files = std::map<std::string, std::string>;

// "X-Wing", "2 String Kite", "Avoidable Rectangle": the technique in a heading or sentence.
std::string NameOf(Technique technique);

// A position on the left of its picture; in a narrow window above it. `words` is HTML.
std::string BesidePicture(const std::string& words, const std::string& picture);

// An image of the picture, whose drawing goes to the files under this name.
std::string Image(Files& files, const std::string& name, const Picture& picture);

// What the signs of a picture mean: a small table with a sample of each, or nothing when there are none.
std::string Legend(Files& files, const SignSet& signs);

}  // namespace kestrel::help
