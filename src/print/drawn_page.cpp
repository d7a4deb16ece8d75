// SPDX-License-Identifier: MIT
#include "print/drawn_page.h"

#include <string>
#include <string_view>

#include "print/page_layout.h"

namespace kestrel {

namespace {

// As large as the paper, and with its measures; what is drawn goes into the list.
class DrawingPage final : public Page {
 public:
  DrawingPage(Page& paper, DrawnPage& page) : paper_(paper), page_(page) {
    page_.width = paper.Width();
    page_.height = paper.Height();
  }

  int Width() override { return page_.width; }
  int Height() override { return page_.height; }
  TextSize Measure(const TextStyle& style, std::string_view text) override {
    return paper_.Measure(style, text);
  }
  void Text(int x, int y, const TextStyle& style, std::string_view text) override {
    page_.items.push_back({DrawnItem::Kind::Text, x, y, x, y, 0, style, std::string(text)});
  }
  void Line(int x1, int y1, int x2, int y2, int width) override {
    page_.items.push_back({DrawnItem::Kind::Line, x1, y1, x2, y2, width, {}, {}});
  }
  void Box(int x1, int y1, int x2, int y2, int width) override {
    page_.items.push_back({DrawnItem::Kind::Box, x1, y1, x2, y2, width, {}, {}});
  }
  [[nodiscard]] bool NewPage() override { return true; }

 private:
  Page& paper_;
  DrawnPage& page_;
};

}  // namespace

std::shared_ptr<const DrawnPage> DrawFirstPage(Page& paper, const StockTable& stock, PrintSettings settings) {
  settings.pages = 1;
  auto drawn = std::make_shared<DrawnPage>();
  DrawingPage page(paper, *drawn);
  // Nobody stops this page.
  (void)PageLayout(page, MeasurePage(page.Width(), page.Height()), stock, settings).PrintPages();
  return drawn;
}

}  // namespace kestrel
