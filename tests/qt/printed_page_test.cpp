// SPDX-License-Identifier: MIT
// What a printer gets against the PDF file of the command line: the same places, read from both files.
#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTransform>
#include <QXmlStreamReader>
#include <algorithm>
#include <fstream>

#include "print/page_layout.h"
#include "support/temp_folder.h"
#include "support/test_stock.h"
#include "ui/qt/qt_printer.h"

namespace kestrel::testing {
namespace {

// The starts of all letters and the ends of all lines of a page, in the order in which they were drawn, in
// points from the upper left corner.
struct Places {
  std::vector<QPointF> letters;
  std::vector<QPointF> corners;
};

std::vector<double> Numbers(const QString& text) {
  static const QRegularExpression number("-?\\d+(\\.\\d+)?(e-?\\d+)?");
  std::vector<double> numbers;
  for (auto each = number.globalMatch(text); each.hasNext();)
    numbers.push_back(each.next().captured().toDouble());
  return numbers;
}

Places PlacesOf(const QString& svg) {
  QFile file(svg);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(svg);
  QXmlStreamReader reader(&file);
  Places places;
  int definitions = 0;
  while (!reader.atEnd()) {
    const auto token = reader.readNext();
    if (reader.name() == QLatin1String("defs"))
      definitions += token == QXmlStreamReader::StartElement ? 1 : -1;
    if (token != QXmlStreamReader::StartElement || definitions > 0) continue;
    const QXmlStreamAttributes attributes = reader.attributes();
    if (reader.name() == QLatin1String("use")) {
      places.letters.emplace_back(attributes.value("x").toDouble(), attributes.value("y").toDouble());
    } else if (reader.name() == QLatin1String("path") &&
               (attributes.hasAttribute("stroke-width") ||
                attributes.value("style").contains(QLatin1String("stroke-width")))) {
      const auto m = Numbers(attributes.value("transform").toString());
      const QTransform to_page =
          m.size() == 6 ? QTransform(m[0], m[1], m[2], m[3], m[4], m[5]) : QTransform();
      const auto points = Numbers(attributes.value("d").toString());
      QPolygonF shape;
      for (std::size_t i = 0; i + 1 < points.size(); i += 2) shape << QPointF(points[i], points[i + 1]);
      const QRectF box = to_page.map(shape).boundingRect();
      places.corners.push_back(box.topLeft());
      places.corners.push_back(box.bottomRight());
    }
  }
  return places;
}

// Each printed point in its turn; `blanks` of the expected ones may be missing, since Qt leaves out a blank that
// lies on something else.
void ExpectNear(const std::vector<QPointF>& printed, const std::vector<QPointF>& expected,
                std::size_t blanks) {
  constexpr double kTenthOfMillimetre = 0.1 * 72 / 25.4;
  std::size_t found = 0;
  for (const QPointF& point : expected) {
    if (found == printed.size()) break;
    const QPointF off = printed[found] - point;
    if (std::max(std::abs(off.x()), std::abs(off.y())) < kTenthOfMillimetre) ++found;
  }
  EXPECT_EQ(found, printed.size());
  EXPECT_TRUE(printed.size() <= expected.size() && printed.size() + blanks >= expected.size());
}

TEST(PrintedPage, StandsWhereThePdfFileHasIt) {
  if (QStandardPaths::findExecutable("pdftocairo").isEmpty()) GTEST_SKIP() << "pdftocairo is not installed";
  const TempFolder folder;
  const StockTable stock = MakeTestStock();
  const auto path = [&](const char* name) { return QString::fromStdString(folder.Path(name).string()); };
  const auto places = [&](const char* file, int page) {
    const QString number = QString::number(page);
    QProcess::execute("pdftocairo", {"-svg", "-noshrink", "-nocenter", "-f", number, "-l", number, path(file),
                                     path("page.svg")});
    return PlacesOf(path("page.svg"));
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
    const Places printed = places("printed.pdf", i + 1);
    const Places expected = places("file.pdf", i + 1);
    EXPECT_GT(expected.letters.size(), 40U);
    EXPECT_GE(expected.corners.size(), 2 * 17U);
    ExpectNear(printed.letters, expected.letters, 10);
    ExpectNear(printed.corners, expected.corners, 0);
  }
}

}  // namespace
}  // namespace kestrel::testing
