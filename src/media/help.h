// SPDX-License-Identifier: MIT
// The help window: which page it shows. Used by the main window.
#pragma once

#include <optional>
#include <string_view>

#include "core/grid.h"
#include "forms/browser_form.h"
#include "forms/help_window.h"
#include "forms/screen.h"

namespace kestrel {

// The help pages, in the written form; the front ends map this folder to where the pages are installed.
inline constexpr std::string_view kHelpFolder = R"(C:\Orvex_Help\Kestrel_Sudoku\)";
inline constexpr std::string_view kHelpIndex = "index.html";

class Help {
 public:
  // All must outlive this object.
  Help(Browser& browser, HelpWindow& view, Screen& screen)
      : browser_(browser), view_(view), screen_(screen) {}

  // Sends the help window to a page (file name in the help folder) and brings it on the screen, if it is not
  // there. The main window stays usable.
  void ShowPage(std::string_view file);

  // Lets the help window show how the puzzle with these givens is solved; null: that of no puzzle any more. May be
  // called over and over.
  void OfferSolving(const DigitGrid* givens);
  [[nodiscard]] const std::optional<DigitGrid>& Offered() const { return offered_; }

 private:
  Browser& browser_;
  HelpWindow& view_;
  std::optional<DigitGrid> offered_;
  Screen& screen_;
};

}  // namespace kestrel
