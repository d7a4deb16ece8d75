// SPDX-License-Identifier: MIT
// The help pages, put together from their texts, the worked examples, the exercises and the stock. Used by
// make-help and by the test that compares the result with what is shipped.
//
// A page's text is HTML between lines that are instructions:
//
//   title X-Wing                         first line
//   summary 11 One digit, two rows ...   then one line for each technique that the page explains
//   @example KEY | heading               a worked example: heading, text, picture; nothing if there is none
//   @story KEY | what to spot             an example of the page in three pictures: spot it, see why, remove
//   @exercises                           links to the exercises of the page's techniques
//   @practice STEP ...                   with which puzzles to practise the techniques
//   @signs                               the table of all signs of the pictures
//   @techniques                          the table of all techniques
//   @ladder                              the practice puzzles of all techniques
//   @walk PART                           a part of the puzzle that is solved step by step (walk.h)
#pragma once

#include <string>

#include "core/stock_table.h"
#include "explain/example.h"
#include "explain/page_parts.h"

namespace kestrel::help {

struct SiteInput {
  HelpFiles texts;   // by page file name: "x_wing.html"
  HelpFiles styles;  // the style sheets by file name
  ExampleFile examples;
  ExampleFile exercises;
  const StockTable* stock = nullptr;  // null: the pages name no puzzles
};

struct Site {
  HelpFiles files;    // all of the help folder, pictures included
  std::string error;  // empty, or "x_wing.html: ..."; then `files` is not complete
};

Site BuildSite(const SiteInput& input);

}  // namespace kestrel::help
