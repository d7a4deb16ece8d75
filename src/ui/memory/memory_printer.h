// SPDX-License-Identifier: MIT
// A printer that reports what is printed. Used by the script front end and by tests.
#pragma once

#include "forms/page.h"
#include "ui/memory/transcript.h"

namespace kestrel {

// A4 with 10 units a millimetre, and a text metric that needs no fonts: a character is 0.55 of the point size
// wide and 1.2 of it high.
class MemoryPage final : public Page {
 public:
  explicit MemoryPage(Transcript& transcript) : transcript_(transcript) {}
  int Width() override { return 2100; }
  int Height() override { return 2970; }
  TextSize Measure(const TextStyle& style, std::string_view text) override;
  void Text(int x, int y, const TextStyle& style, std::string_view text) override;
  void Line(int x1, int y1, int x2, int y2, int width) override;
  void Box(int x1, int y1, int x2, int y2, int width) override;
  [[nodiscard]] bool NewPage() override;

  // The next page is page 1 again.
  void StartDocument() { page_ = 1; }

 private:
  Transcript& transcript_;
  int page_ = 1;
};

class MemoryPrinter final : public Printer {
 public:
  MemoryPrinter(bool available, Transcript& transcript)
      : available_(available), transcript_(transcript), page_(transcript) {}
  Page* SetUp() override { return available_ ? &page_ : nullptr; }
  [[nodiscard]] bool BeginDocument(std::string_view title) override;
  void EndDocument() override;

 private:
  bool available_;
  Transcript& transcript_;
  MemoryPage page_;
};

}  // namespace kestrel
