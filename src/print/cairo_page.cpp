// SPDX-License-Identifier: MIT
// Pages drawn by cairo. Fonts are those that fontconfig finds, and travel inside the files. Places are measured
// without hinting, so they do not depend on the format.
#include <cairo-pdf.h>
#include <cairo-svg.h>
#include <cairo.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string>
#include <utility>

#include "core/check.h"
#include "forms/texts.h"
#include "print/file_page.h"

namespace kestrel {

namespace {

constexpr double kPointsPerInch = 72;
constexpr double kUnitsPerInch = 2540;
constexpr double kPointsPerUnit = kPointsPerInch / kUnitsPerInch;
constexpr double kDotsPerInch = 300;  // of pictures made of dots

// In points.
struct SheetSize {
  double width;
  double height;
};

SheetSize SizeOf(Paper paper) {
  if (paper == Paper::Letter) return {8.5 * kPointsPerInch, 11 * kPointsPerInch};
  return {FilePage::kWidth * kPointsPerUnit, FilePage::kHeight * kPointsPerUnit};
}

// The free fonts of the same measures as the names that the layout uses.
const char* FamilyOf(const Font& font) {
  if (font.family.starts_with("Times")) return "Liberation Serif";
  return font.family.starts_with("Courier") ? "Liberation Mono" : "Liberation Sans";
}

// One thing drawn: a text, or a line or box with its other corner.
struct Mark {
  enum class Kind : std::uint8_t { Text, Line, Box };
  Kind kind;
  int x, y;
  int x2 = 0, y2 = 0;
  int width = 0;  // of the line, in units
  TextStyle style;
  std::string text;
};

struct DrawnPage {
  std::vector<Mark> marks;
  bool upside_down = false;
};

template <class T, void (*destroy)(T*)>
struct Destroyer {
  void operator()(T* object) const { destroy(object); }
};
using Surface = std::unique_ptr<cairo_surface_t, Destroyer<cairo_surface_t, cairo_surface_destroy>>;
using Context = std::unique_ptr<cairo_t, Destroyer<cairo_t, cairo_destroy>>;
using Options =
    std::unique_ptr<cairo_font_options_t, Destroyer<cairo_font_options_t, cairo_font_options_destroy>>;

Context MakeContext(const Surface& surface) {
  Context context(cairo_create(surface.get()));
  const Options options(cairo_font_options_create());
  cairo_font_options_set_hint_style(options.get(), CAIRO_HINT_STYLE_NONE);
  cairo_font_options_set_hint_metrics(options.get(), CAIRO_HINT_METRICS_OFF);
  cairo_set_font_options(context.get(), options.get());
  return context;
}

void SetFont(cairo_t* context, const Font& font) {
  cairo_select_font_face(context, FamilyOf(font), CAIRO_FONT_SLANT_NORMAL,
                         font.bold ? CAIRO_FONT_WEIGHT_BOLD : CAIRO_FONT_WEIGHT_NORMAL);
  cairo_set_font_size(context, font.size / kPointsPerUnit);
}

// Cairo's texts are UTF-8 and must be valid; the layout's are plain ASCII but for names of files.
std::string Printable(std::string_view text) {
  std::string plain;
  for (const char c : text) plain += c >= ' ' && c <= '~' ? c : '?';
  return plain;
}

void Draw(cairo_t* context, const Mark& mark) {
  // Red is in the low byte.
  const auto part = [colour = mark.style.colour](int shift) { return (colour >> shift & 0xFFU) / 255.0; };
  cairo_set_source_rgb(context, part(0), part(8), part(16));
  if (mark.kind == Mark::Kind::Text) {
    SetFont(context, mark.style.font);
    cairo_font_extents_t font;
    cairo_font_extents(context, &font);
    cairo_move_to(context, mark.x, mark.y + font.ascent);
    cairo_show_text(context, mark.text.c_str());
    return;
  }
  cairo_set_line_width(context, mark.width);
  if (mark.kind == Mark::Kind::Line) {
    cairo_move_to(context, mark.x, mark.y);
    cairo_line_to(context, mark.x2, mark.y2);
  } else {
    cairo_rectangle(context, mark.x, mark.y, mark.x2 - mark.x, mark.y2 - mark.y);
  }
  cairo_stroke(context);
}

// Draws a page on a sheet, `scale` of the surface's units to the point.
void DrawPage(const Surface& surface, const DrawnPage& page, const SheetSize& sheet, double scale) {
  const Context context = MakeContext(surface);
  cairo_scale(context.get(), scale, scale);
  if (page.upside_down) {
    cairo_translate(context.get(), sheet.width, sheet.height);
    cairo_scale(context.get(), -1, -1);
  }
  const SheetSize a4 = SizeOf(Paper::A4);
  const double fit = std::min(sheet.width / a4.width, sheet.height / a4.height);
  cairo_translate(context.get(), (sheet.width - a4.width * fit) / 2, (sheet.height - a4.height * fit) / 2);
  cairo_scale(context.get(), fit * kPointsPerUnit, fit * kPointsPerUnit);
  for (const Mark& mark : page.marks) Draw(context.get(), mark);
}

cairo_status_t Append(void* bytes, const unsigned char* data, unsigned int length) {
  auto& all = *static_cast<Bytes*>(bytes);
  all.insert(all.end(), data, data + length);
  return CAIRO_STATUS_SUCCESS;
}

class CairoPage final : public FilePage {
 public:
  CairoPage(PageFormat format, Paper paper) : format_(format), sheet_(SizeOf(paper)) {}

  TextSize Measure(const TextStyle& style, std::string_view text) override {
    SetFont(ruler_.get(), style.font);
    cairo_text_extents_t extents;
    cairo_text_extents(ruler_.get(), Printable(text).c_str(), &extents);
    cairo_font_extents_t font;
    cairo_font_extents(ruler_.get(), &font);
    return {.width = static_cast<int>(std::lround(extents.x_advance)),
            .height = static_cast<int>(std::lround(font.ascent + font.descent))};
  }

  void Text(int x, int y, const TextStyle& style, std::string_view text) override {
    page_.marks.push_back({Mark::Kind::Text, x, y, 0, 0, 0, style, Printable(text)});
  }
  void Line(int x1, int y1, int x2, int y2, int width) override {
    page_.marks.push_back({Mark::Kind::Line, x1, y1, x2, y2, width * kLineWidthStep, {}, {}});
  }
  void Box(int x1, int y1, int x2, int y2, int width) override {
    page_.marks.push_back({Mark::Kind::Box, x1, y1, x2, y2, width * kLineWidthStep, {}, {}});
  }
  [[nodiscard]] bool NewPage() override {
    pages_.push_back(std::exchange(page_, {}));
    return true;
  }
  void TurnUpsideDown() override { page_.upside_down = true; }

  [[nodiscard]] std::vector<Bytes> Finish(std::string_view title) const override {
    static const std::vector<DrawnPage> kEmptyPage(1);
    const std::vector<DrawnPage>& pages = pages_.empty() ? kEmptyPage : pages_;
    std::vector<Bytes> files;
    if (format_ == PageFormat::Pdf) {
      files.push_back(Document(pages, title));
    } else {
      for (const DrawnPage& page : pages) files.push_back(Picture(page));
    }
    return files;
  }

 private:
  [[nodiscard]] Bytes Document(const std::vector<DrawnPage>& pages, std::string_view title) const {
    Bytes bytes;
    const Surface surface(cairo_pdf_surface_create_for_stream(Append, &bytes, sheet_.width, sheet_.height));
    cairo_pdf_surface_set_metadata(surface.get(), CAIRO_PDF_METADATA_TITLE, std::string(title).c_str());
    cairo_pdf_surface_set_metadata(surface.get(), CAIRO_PDF_METADATA_CREATOR,
                                   std::string(texts::kProductName).c_str());
    // Without this the time of the day gets in, and no two files are the same.
    cairo_pdf_surface_set_metadata(surface.get(), CAIRO_PDF_METADATA_CREATE_DATE, "");
    for (const DrawnPage& page : pages) {
      DrawPage(surface, page, sheet_, 1);
      cairo_surface_show_page(surface.get());
    }
    cairo_surface_finish(surface.get());
    Require(cairo_surface_status(surface.get()) == CAIRO_STATUS_SUCCESS);
    return bytes;
  }

  [[nodiscard]] Bytes Picture(const DrawnPage& page) const {
    return format_ == PageFormat::Svg ? Drawing(page) : Dots(page);
  }

  [[nodiscard]] Bytes Drawing(const DrawnPage& page) const {
    Bytes bytes;
    const Surface surface(cairo_svg_surface_create_for_stream(Append, &bytes, sheet_.width, sheet_.height));
    DrawPage(surface, page, sheet_, 1);
    cairo_surface_finish(surface.get());
    Require(cairo_surface_status(surface.get()) == CAIRO_STATUS_SUCCESS);
    return bytes;
  }

  [[nodiscard]] Bytes Dots(const DrawnPage& page) const {
    constexpr double kScale = kDotsPerInch / kPointsPerInch;
    const auto dots = [](double points) { return static_cast<int>(std::lround(points * kScale)); };
    Bytes bytes;
    const Surface surface(
        cairo_image_surface_create(CAIRO_FORMAT_RGB24, dots(sheet_.width), dots(sheet_.height)));
    const Context paper(cairo_create(surface.get()));
    cairo_set_source_rgb(paper.get(), 1, 1, 1);
    cairo_paint(paper.get());
    DrawPage(surface, page, sheet_, kScale);
    Require(cairo_surface_write_to_png_stream(surface.get(), Append, &bytes) == CAIRO_STATUS_SUCCESS);
    return bytes;
  }

  PageFormat format_;
  SheetSize sheet_;
  Surface ruler_surface_{cairo_recording_surface_create(CAIRO_CONTENT_COLOR, nullptr)};
  Context ruler_ = MakeContext(ruler_surface_);  // for measuring only; one unit a unit
  DrawnPage page_;                               // that is being drawn
  std::vector<DrawnPage> pages_;                 // those that are done
};

}  // namespace

std::unique_ptr<FilePage> MakeFilePage(PageFormat format, Paper paper) {
  return std::make_unique<CairoPage>(format, paper);
}

}  // namespace kestrel
