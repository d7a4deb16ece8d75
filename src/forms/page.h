// SPDX-License-Identifier: MIT
// A sheet of paper to draw on, and the printer it comes from. Used by print; implemented by the front ends
// and by the PDF writer.
#pragma once

#include <string>
#include <string_view>

#include "forms/control.h"

namespace kestrel {

// How a text looks; the font's size is in points.
struct TextStyle {
  Font font;
  Colour colour = kBlack;
};

struct TextSize {
  int width = 0;
  int height = 0;
};

// What a line width of 1 is on paper, in hundredths of a millimetre, on every printer: thin lines (2) have
// 0.12 mm, thick ones (8) 0.48 mm.
inline constexpr int kLineWidthStep = 6;

// All places and sizes are in the printer's units, from the top-left corner of the paper. A call that fails
// is skipped.
class Page {
 public:
  Page() = default;
  Page(const Page&) = delete;
  Page& operator=(const Page&) = delete;
  virtual ~Page() = default;

  // The size of the paper, the same from one SetUp of the printer to the next.
  virtual int Width() = 0;
  virtual int Height() = 0;

  // The size of one line of text.
  virtual TextSize Measure(const TextStyle& style, std::string_view text) = 0;

  // Prints one line of text with its top-left corner at (x, y).
  virtual void Text(int x, int y, const TextStyle& style, std::string_view text) = 0;

  // `width` is the line width as the layout gives it, in steps of kLineWidthStep.
  virtual void Line(int x1, int y1, int x2, int y2, int width) = 0;
  virtual void Box(int x1, int y1, int x2, int y2, int width) = 0;

  // Ends this page; what is drawn next goes to a new one. False: stop, the user cancelled the job or the
  // program is ending.
  [[nodiscard]] virtual bool NewPage() = 0;
};

class Printer {
 public:
  Printer() = default;
  Printer(const Printer&) = delete;
  Printer& operator=(const Printer&) = delete;
  virtual ~Printer() = default;

  // Sets the standard printer to A4, portrait, medium quality, and gives its page for measuring and printing;
  // null when the printer cannot be talked to. The page is good until the next SetUp.
  virtual Page* SetUp() = 0;

  // Starts a document, as far as something must be done for it (asking for a file's name); `title` can be a
  // file's name. False: the user cancelled it, print nothing.
  [[nodiscard]] virtual bool BeginDocument(std::string_view title) = 0;

  // Ends the document that BeginDocument started, also one that NewPage stopped: then what has not been sent
  // yet is thrown away. A page that was only just begun is not printed.
  virtual void EndDocument() = 0;

  // After EndDocument: what became of the document, for the user; empty where there is nothing to say.
  [[nodiscard]] virtual std::string Outcome() const { return {}; }
};

}  // namespace kestrel
