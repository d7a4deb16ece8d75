// SPDX-License-Identifier: MIT
// Writes PDF 1.6 (ISO 32000-1) with the operators that text, lines and rectangles need. All numbers are
// thousandths of a point until they are written.
#include "print/pdf_page.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <initializer_list>

#include "forms/texts.h"
#include "print/standard_fonts.h"

namespace kestrel {

namespace {

// A point is 1/72 inch, an inch 2540 units: 127 units are 3600 thousandths of a point.
constexpr std::int64_t kMilliPoints = 3600;
constexpr std::int64_t kUnits = 127;

// Not for negative numbers half way between two; nothing is printed there.
constexpr std::int64_t DivideRounded(std::int64_t numerator, std::int64_t denominator) {
  return (2 * numerator + (numerator < 0 ? -denominator : denominator)) / (2 * denominator);
}

constexpr std::int64_t ToMilliPoints(int units) {
  return DivideRounded(units * kMilliPoints, kUnits);
}

constexpr int ToUnits(std::int64_t milli_points) {
  return static_cast<int>(DivideRounded(milli_points * kUnits, kMilliPoints));
}

std::int64_t SizeInMilliPoints(const Font& font) {
  return std::llround(font.size * 1000);
}

// "12.345", without zeros at the end.
std::string Decimal(std::int64_t thousandths) {
  std::string text = thousandths < 0 ? "-" : "";
  const std::int64_t amount = thousandths < 0 ? -thousandths : thousandths;
  text += std::to_string(amount / 1000);
  if (amount % 1000 == 0) return text;
  text += '.' + std::to_string(1000 + amount % 1000).substr(1);
  while (text.back() == '0') text.pop_back();
  return text;
}

// Numbers with a blank behind each, as operands of an operator.
std::string Operands(std::initializer_list<std::int64_t> numbers) {
  std::string text;
  for (const std::int64_t number : numbers) text += Decimal(number) + ' ';
  return text;
}

// PDF counts from the bottom of the sheet.
std::int64_t FromBottom(int y) {
  return ToMilliPoints(PdfPage::kHeight - y);
}

// A text as a PDF string, in parentheses.
std::string Quoted(std::string_view text) {
  std::string quoted = "(";
  for (const char c : text) {
    if (c == '(' || c == ')' || c == '\\') quoted += '\\';
    quoted += Printable(c);
  }
  return quoted + ')';
}

// Collects the numbered objects of a file and knows where each begins.
class ObjectWriter {
 public:
  // Every file begins with bytes above 127, so that it is not taken for plain text.
  ObjectWriter() : file_("%PDF-1.6\n%\xE2\xE3\xCF\xD3\n") {}

  // Objects are numbered 1, 2, 3 ... in the order in which they are added.
  void Add(const std::string& body) {
    offsets_.push_back(file_.size());
    file_ += std::to_string(offsets_.size()) + " 0 obj\n" + body + "\nendobj\n";
  }

  void AddStream(const std::string& content) {
    Add("<< /Length " + std::to_string(content.size()) + " >>\nstream\n" + content + "endstream");
  }

  // Ends the file with the table of where objects begin; `trailer` names the two that a reader starts from.
  Bytes Finish(const std::string& trailer) {
    const std::size_t table = file_.size();
    const std::string size = std::to_string(offsets_.size() + 1);
    file_ += "xref\n0 " + size + "\n0000000000 65535 f \n";
    for (const std::size_t offset : offsets_) {
      const std::string digits = std::to_string(offset);
      file_ += std::string(10 - digits.size(), '0') + digits + " 00000 n \n";
    }
    file_ += "trailer\n<< /Size " + size + ' ' + trailer + " >>\nstartxref\n" + std::to_string(table) +
             "\n%%EOF\n";
    return {file_.begin(), file_.end()};
  }

 private:
  std::string file_;
  std::vector<std::size_t> offsets_;
};

// The numbers of the objects: these three, then the fonts, then two for each page.
constexpr int kCatalog = 1;
constexpr int kPageTree = 2;
constexpr int kInfo = 3;
constexpr int kFirstFont = 4;
constexpr int kFirstPage = kFirstFont + kStandardFonts;

std::string Reference(int object) {
  return std::to_string(object) + " 0 R";
}

std::string FontName(int font) {
  return "/F" + std::to_string(font + 1);
}

std::string PageTree(std::size_t pages) {
  std::string kids;
  for (std::size_t i = 0; i < pages; ++i) kids += ' ' + Reference(kFirstPage + 2 * static_cast<int>(i));
  std::string fonts;
  for (int font = 0; font < kStandardFonts; ++font) {
    fonts += ' ' + FontName(font) + ' ' + Reference(kFirstFont + font);
  }
  return "<< /Type /Pages /Count " + std::to_string(pages) + " /Kids [" + kids + " ] /MediaBox [ 0 0 " +
         Operands({ToMilliPoints(PdfPage::kWidth), ToMilliPoints(PdfPage::kHeight)}) +
         "] /Resources << /Font <<" + fonts + " >> >> >>";
}

}  // namespace

TextSize PdfPage::Measure(const TextStyle& style, std::string_view text) {
  const StandardFont& font = StandardFontAt(StandardFontIndex(style.font));
  const std::int64_t size = SizeInMilliPoints(style.font);
  return {.width = ToUnits(DivideRounded(TextWidth(font, text) * size, 1000)),
          .height = ToUnits(DivideRounded((font.ascent + font.descent) * size, 1000))};
}

void PdfPage::Text(int x, int y, const TextStyle& style, std::string_view text) {
  const int font = StandardFontIndex(style.font);
  const std::int64_t size = SizeInMilliPoints(style.font);
  SetStyle(font, size, style.colour);
  const std::int64_t baseline = FromBottom(y) - DivideRounded(StandardFontAt(font).ascent * size, 1000);
  content_ += "BT " + Operands({ToMilliPoints(x), baseline}) + "Td " + Quoted(text) + " Tj ET\n";
}

void PdfPage::Line(int x1, int y1, int x2, int y2, int width) {
  SetLineWidth(width);
  content_ += Operands({ToMilliPoints(x1), FromBottom(y1)}) + "m " +
              Operands({ToMilliPoints(x2), FromBottom(y2)}) + "l S\n";
}

void PdfPage::Box(int x1, int y1, int x2, int y2, int width) {
  SetLineWidth(width);
  const std::int64_t left = ToMilliPoints(x1);
  const std::int64_t bottom = FromBottom(y2);
  content_ += Operands({left, bottom, ToMilliPoints(x2) - left, FromBottom(y1) - bottom}) + "re S\n";
}

bool PdfPage::NewPage() {
  pages_.push_back(std::move(content_));
  content_.clear();
  state_ = State();
  return true;
}

Bytes PdfPage::Finish(std::string_view title) const {
  static const std::vector<std::string> kEmptyPage(1);
  const std::vector<std::string>& pages = pages_.empty() ? kEmptyPage : pages_;
  ObjectWriter objects;
  // Readers print the sheet as it is, without fitting it to the margins of the printer.
  objects.Add("<< /Type /Catalog /Pages " + Reference(kPageTree) +
              " /ViewerPreferences << /DisplayDocTitle true /PrintScaling /None >> /Lang (en) >>");
  objects.Add(PageTree(pages.size()));
  objects.Add("<< /Title " + Quoted(title) + " /Producer " + Quoted(texts::kProductName) + " >>");
  for (int font = 0; font < kStandardFonts; ++font) {
    objects.Add("<< /Type /Font /Subtype /Type1 /Encoding /WinAnsiEncoding /BaseFont /" +
                std::string(StandardFontAt(font).name) + " >>");
  }
  int next = kFirstPage;
  for (const std::string& content : pages) {
    objects.Add("<< /Type /Page /Parent " + Reference(kPageTree) + " /Contents " + Reference(next + 1) +
                " >>");
    objects.AddStream(content);
    next += 2;
  }
  return objects.Finish("/Root " + Reference(kCatalog) + " /Info " + Reference(kInfo));
}

void PdfPage::SetStyle(int font, std::int64_t size, Colour colour) {
  if (font != state_.font || size != state_.size) {
    content_ += FontName(font) + ' ' + Decimal(size) + " Tf\n";
  }
  if (colour != state_.colour) {
    // Red is in the low byte.
    for (int shift = 0; shift <= 16; shift += 8) {
      content_ += Decimal(DivideRounded(std::int64_t{1000} * (colour >> shift & 0xFFU), 255)) + ' ';
    }
    content_ += "rg\n";
  }
  state_.font = font;
  state_.size = size;
  state_.colour = colour;
}

void PdfPage::SetLineWidth(int width) {
  if (width == state_.width) return;
  content_ += Decimal(ToMilliPoints(width * kLineWidthStep)) + " w\n";
  state_.width = width;
}

}  // namespace kestrel
