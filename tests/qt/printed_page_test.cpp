// SPDX-License-Identifier: MIT
// What a printer gets against the PDF file of the command line: the same ink in the same places.
#include <gtest/gtest.h>

#include <QImage>
#include <QProcess>
#include <QStandardPaths>
#include <algorithm>

#include "print/page_layout.h"
#include "support/temp_folder.h"
#include "support/test_stock.h"
#include "ui/qt/qt_printer.h"

namespace kestrel::testing {
namespace {

constexpr int kDotsPerInch = 127;  // five a millimetre

// The dark dots of a picture, and how many of them have no ink beside them in the other one.
struct Ink {
  int dots = 0, strays = 0;
};

Ink InkOf(const QImage& picture, const QImage& other) {
  const auto inked = [&](int x, int y) {
    for (int near = 0; near < 9; ++near) {
      const QPoint dot(x + near % 3 - 1, y + near / 3 - 1);
      if (other.valid(dot) && qGray(other.pixel(dot)) < 200) return true;
    }
    return false;
  };
  Ink ink;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      if (qGray(picture.pixel(x, y)) >= 128) continue;
      ++ink.dots;
      ink.strays += inked(x, y) ? 0 : 1;
    }
  }
  return ink;
}

TEST(PrintedPage, StandsWhereThePdfFileHasIt) {
  if (QStandardPaths::findExecutable("pdftoppm").isEmpty()) GTEST_SKIP() << "pdftoppm is not installed";
  const TempFolder folder;
  const StockTable stock = MakeTestStock();
  const auto path = [&](const char* name) { return QString::fromStdString(folder.Path(name).string()); };
  const auto picture = [&](const char* file, int page) {
    const QString number = QString::number(page);
    QProcess::execute("pdftoppm", {"-r", QString::number(kDotsPerInch), "-gray", "-singlefile", "-f", number,
                                   path(file), path("page")});
    return QImage(path("page.pgm"));
  };
  const auto print = [&](Page& page, int combination) {
    PrintSettings settings;
    settings.level_index = 4;
    settings.first_number = 20;
    settings.per_page = 1 << combination % 3;
    settings.with_solutions = combination / 3 % 2 != 0;
    settings.with_pencil_marks = combination / 6 != 0;
    EXPECT_TRUE(PageLayout(page, MeasurePage(page.Width(), page.Height()), stock, settings).PrintPages());
  };
  constexpr int kCombinations = 12;
  QtPage printer(QtPage::IntoFile{path("printed.pdf")});
  ASSERT_TRUE(printer.Usable() && printer.Begin("Test"));
  const auto pdf = MakeFilePage();
  if (!pdf) GTEST_SKIP() << "built without the drawing library";
  for (int i = 0; i < kCombinations; ++i) {
    print(printer, i);
    print(*pdf, i);
  }
  printer.End(true);
  const Bytes bytes = pdf->Finish("Test").front();
  folder.Put("file.pdf", {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
  for (int i = 0; i < kCombinations; ++i) {
    SCOPED_TRACE(i);
    const QImage printed = picture("printed.pdf", i + 1), expected = picture("file.pdf", i + 1);
    const Ink there = InkOf(printed, expected), back = InkOf(expected, printed);
    EXPECT_GT(there.dots, 10'000);
    EXPECT_LE(there.strays + back.strays, 20) << there.strays << " and " << back.strays;
  }
}

}  // namespace
}  // namespace kestrel::testing
