// SPDX-License-Identifier: MIT
// The view inside the help window. Used by media, implemented by every front end.
#pragma once

#include <string_view>

#include "core/grid.h"

namespace kestrel {

class HelpWindow {
 public:
  HelpWindow() = default;
  HelpWindow(const HelpWindow&) = delete;
  HelpWindow& operator=(const HelpWindow&) = delete;
  virtual ~HelpWindow() = default;

  // Sends the view to a page, full path in the written form; the front end maps the help folder to where the
  // pages are installed. A missing page is shown as an error page of the view's own.
  virtual void Navigate(std::string_view page) = 0;

  // The givens of a puzzle that has ended, whose solving the view from now on offers to show; null: none. What is
  // shown of one that is offered no more must go at once.
  virtual void OfferSolving(const DigitGrid* givens) = 0;
};

}  // namespace kestrel
