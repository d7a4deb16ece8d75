// SPDX-License-Identifier: MIT
// The help pages, put together from their texts, the worked examples and the stock. Used by make-help and by
// the test that compares the result with what is shipped.
//
// A page's text is HTML between lines that are instructions:
//
//   title X-Wing                         first line
//   summary 11 One digit, two rows ...   then one line for each technique that the page explains
//   @example KEY | heading               a worked example: heading, picture, text; nothing if there is none
//   @occurrence STEP ...                 how often the techniques are needed in the stock, and where
//   @techniques                          the table of all techniques
#pragma once

#include <map>
#include <string>

#include "core/stock_table.h"
#include "explain/example.h"

namespace kestrel::help {

struct SiteInput {
  std::map<std::string, std::string> texts;  // by page file name: "x_wing.html"
  std::string style;                         // the style sheet
  ExampleFile examples;
  const StockTable* stock = nullptr;  // null: the pages tell nothing about how often
};

struct Site {
  std::map<std::string, std::string> files;  // by name within the help folder, pictures included
  std::string error;                         // empty, or "x_wing.html: ..."; then `files` is not complete
};

// All files of the help folder but the PNG pictures, which are rendered from the SVG ones.
Site BuildSite(const SiteInput& input);

// & < > and quotes as HTML has them.
std::string Escaped(std::string_view text);

}  // namespace kestrel::help
