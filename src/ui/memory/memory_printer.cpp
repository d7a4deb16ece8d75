// SPDX-License-Identifier: MIT
#include "ui/memory/memory_printer.h"

#include <cmath>
#include <initializer_list>

#include "core/text.h"
#include "ui/memory/json_string.h"

namespace kestrel {

namespace {

constexpr double kUnitsPerPoint = 254.0 / 72.0;

int Units(double points) {
  return static_cast<int>(std::lround(points * kUnitsPerPoint));
}

std::string Join(std::string line, std::initializer_list<int> numbers) {
  for (const int number : numbers) line += " " + std::to_string(number);
  return line;
}

}  // namespace

TextSize MemoryPage::Measure(const TextStyle& style, std::string_view text) {
  return {static_cast<int>(CharacterCount(text)) * Units(0.55 * style.font.size),
          Units(1.2 * style.font.size)};
}

void MemoryPage::Text(int x, int y, const TextStyle& style, std::string_view text) {
  transcript_.Line(Join("print text", {x, y}) + " " + Points(style.font.size) + " " +
                   TruthValue(style.font.bold) + " " + std::to_string(style.colour) + " " +
                   JsonString(style.font.family) + " " + JsonString(text));
}

void MemoryPage::Line(int x1, int y1, int x2, int y2, int width) {
  transcript_.Line(Join("print line", {x1, y1, x2, y2, width}));
}

void MemoryPage::Box(int x1, int y1, int x2, int y2, int width) {
  transcript_.Line(Join("print box", {x1, y1, x2, y2, width}));
}

bool MemoryPage::NewPage() {
  transcript_.Line(Join("page", {page_++}));
  return true;
}

bool MemoryPrinter::BeginDocument(std::string_view /*title*/) {
  page_.StartDocument();
  return true;
}

void MemoryPrinter::EndDocument() {
  transcript_.Line("document ended");
}

}  // namespace kestrel
