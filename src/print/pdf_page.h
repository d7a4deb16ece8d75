// SPDX-License-Identifier: MIT
// A page whose printer is a PDF file. Used by the command line, and by any front end for want of a printer.
//
// The same calls give the same bytes: no dates, no random ids, no floating point in places and sizes. The
// file needs no embedded fonts; it uses the standard ones.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/files.h"
#include "forms/page.h"

namespace kestrel {

// A4 upright; one unit is a hundredth of a millimetre. No call fails, and nobody stops the job. Characters
// other than those of ASCII are printed as question marks.
class PdfPage final : public Page {
 public:
  static constexpr int kWidth = 21000;
  static constexpr int kHeight = 29700;

  int Width() override { return kWidth; }
  int Height() override { return kHeight; }
  TextSize Measure(const TextStyle& style, std::string_view text) override;
  void Text(int x, int y, const TextStyle& style, std::string_view text) override;
  void Line(int x1, int y1, int x2, int y2, int width) override;
  void Box(int x1, int y1, int x2, int y2, int width) override;
  [[nodiscard]] bool NewPage() override;

  // The file with all pages that were ended by NewPage; one at least, empty if need be. What was drawn since
  // is left out. `title` is what a reader shows as the document's title.
  [[nodiscard]] Bytes Finish(std::string_view title) const;

 private:
  // What the page's graphics state was last set to; written again only when it changes.
  struct State {
    int font = -1;
    std::int64_t size = 0;  // thousandths of a point
    Colour colour = kBlack;
    int width = -1;
  };

  void SetStyle(int font, std::int64_t size, Colour colour);
  void SetLineWidth(int width);

  State state_;
  std::string content_;             // of the page that is being drawn
  std::vector<std::string> pages_;  // the contents of those that are done
};

}  // namespace kestrel
