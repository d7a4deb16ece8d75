// SPDX-License-Identifier: MIT
// A page whose printer is a file: PDF, or one picture a page. Used by the command line, and by any front end
// for want of a printer.
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "core/files.h"
#include "forms/page.h"

namespace kestrel {

enum class PageFormat : std::uint8_t { Pdf, Svg, Png };
enum class Paper : std::uint8_t { A4, Letter };

// What is drawn is kept until Finish; nobody stops the job. One unit is a hundredth of a millimetre of A4
// upright. On other paper the A4 sheet is made smaller as a whole and stands in the middle.
class FilePage : public Page {
 public:
  static constexpr int kWidth = 21000;
  static constexpr int kHeight = 29700;

  int Width() override { return kWidth; }
  int Height() override { return kHeight; }

  // Turns the page that is being drawn upside down, all that is on it.
  virtual void TurnUpsideDown() = 0;

  // The file with all pages that were ended by NewPage, or one file for each of them (SVG, PNG); at least one
  // page, empty if need be. What was drawn since is left out. `title` is what a reader shows as the title of
  // a PDF document. The same calls give the same bytes on the same machine.
  [[nodiscard]] virtual std::vector<Bytes> Finish(std::string_view title) const = 0;
};

// Null in a program that was built without the drawing library.
std::unique_ptr<FilePage> MakeFilePage(PageFormat format = PageFormat::Pdf, Paper paper = Paper::A4);

}  // namespace kestrel
