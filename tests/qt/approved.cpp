// SPDX-License-Identifier: MIT
#include "qt/approved.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QCursor>
#include <QDebug>
#include <QDir>
#include <QGuiApplication>
#include <QImageWriter>
#include <QMetaProperty>
#include <QPaintEngine>
#include <QPainter>
#include <QScrollBar>
#include <QSlider>
#include <QStyle>
#include <QStyleFactory>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <memory>

#include "support/approved.h"

namespace kestrel::testing {

namespace {

constexpr int kPlace = 16;          // pixels
constexpr int kOtherColour = 40;    // of 255, in any channel
constexpr int kOtherPixels = 5;     // in a place
constexpr double kOtherGround = 3;  // of 255, in the mean of a place
constexpr double kOtherInk = 5;     // the same where letters are
constexpr int kRoomForText = 2;     // pixels by which letters may stand elsewhere

// Paints nothing and keeps where texts would stand.
class TextFinder final : public QImage, private QPaintEngine {
 public:
  explicit TextFinder(QSize size) : QImage(size, Format_Mono), QPaintEngine(AllFeatures) {}
  QRegion texts;

  [[nodiscard]] QPaintEngine* paintEngine() const override { return const_cast<TextFinder*>(this); }

 private:
  bool begin(QPaintDevice*) override { return true; }
  bool end() override { return true; }
  [[nodiscard]] Type type() const override { return User; }
  void updateState(const QPaintEngineState& next) override {
    if (next.state().testFlag(DirtyTransform)) transform_ = next.transform();
  }
  void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
  void drawPath(const QPainterPath&) override {}
  void drawPolygon(const QPointF*, int, PolygonDrawMode) override {}
  void drawTextItem(const QPointF& at, const QTextItem& item) override {
    const QRectF place(at.x(), at.y() - item.ascent(), item.width(), item.ascent() + item.descent());
    texts += transform_.mapRect(place).toAlignedRect().adjusted(-kRoomForText, 0, kRoomForText, 0);
  }

  QTransform transform_;
};

// What was seen in one place.
struct Sums {
  int other = 0;
  int pixels = 0;
  std::array<int, 3> change{};
};

void Add(Sums& sums, QRgb now, QRgb approved) {
  const std::array change = {qRed(now) - qRed(approved), qGreen(now) - qGreen(approved),
                             qBlue(now) - qBlue(approved)};
  bool other = false;
  for (std::size_t i = 0; i < 3; ++i) {
    sums.change[i] += change[i];
    other = other || std::abs(change[i]) > kOtherColour;
  }
  sums.other += other ? 1 : 0;
  ++sums.pixels;
}

bool MeanBeyond(const Sums& sums, double most) {
  return std::ranges::any_of(sums.change,
                             [&](int change) { return std::abs(change) > most * kPlace * kPlace; });
}

QImage SideBySide(const QImage& approved, const Picture& now, const QRegion& difference) {
  QImage marked = now.image;
  QPainter marker(&marked);
  marker.fillRect(marked.rect(), QColor(255, 255, 255, 160));
  for (const QRect& place : difference) marker.drawImage(place, now.image, place);
  marker.setPen(QPen(Qt::red, 1));
  for (const QRect& place : difference) marker.drawRect(place.adjusted(0, 0, -1, -1));
  marker.end();
  const int height = std::max(approved.height(), now.image.height());
  QImage all(approved.width() + 2 * marked.width() + 20, height, QImage::Format_RGB32);
  all.fill(Qt::magenta);
  QPainter painter(&all);
  painter.drawImage(0, 0, approved);
  painter.drawImage(approved.width() + 10, 0, now.image);
  painter.drawImage(approved.width() + marked.width() + 20, 0, marked);
  return all;
}

void Save(const QImage& image, const QString& file) {
  QImageWriter writer(file, "png");
  writer.setCompression(100);
  EXPECT_TRUE(writer.write(image)) << qPrintable(file);
}

// A file of tests/qt/pictures. Those of ending ".newer" are for newer releases of Qt, which put a few things, like the
// slider's knob, a pixel or two elsewhere. A scale other than the design's has files of its own.
QString FileOf(const std::string& name, const char* ending = "") {
  const double ratio = qGuiApp->devicePixelRatio();
  const QString scale = ratio == 1 ? QString() : QString("_at_%1").arg(std::lround(100 * ratio));
  return QStringLiteral(KESTREL_SOURCE_DIR "/tests/qt/pictures/") + name.c_str() + scale + ending + ".png";
}

QImage Approved(const std::string& name, const char* ending = "") {
  return QImage(FileOf(name, ending)).convertToFormat(QImage::Format_RGB32);
}

// What Qt, its fonts and its own widgets look like on this machine, without anything of the game.
QImage DrawnByQt() {
  QImage image(360, 300, QImage::Format_RGB32);
  image.fill(QColor(240, 244, 250));
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  int top = 20;
  for (const double points : {7.0, 8.5, 9.0, 10.0, 11.0, 13.0, 20.0}) {
    QFont font("Liberation Sans");
    font.setPointSizeF(points);
    font.setBold(points == 11);
    painter.setFont(font);
    painter.drawText(8, top, QString("Qt %1: 123456789 naked pair, wing & fish").arg(qVersion()));
    top += static_cast<int>(2 * points);
  }
  painter.setPen(QPen(QColor(20, 90, 160, 200), 1.25));
  for (int i = 0; i < 12; ++i) painter.drawEllipse(QPointF(20 + 28.3 * i, 180.4), 9 + i / 3.0, 9);
  for (int i = 0; i < 12; ++i) painter.drawLine(QPointF(8 + 28.3 * i, 200), QPointF(30 + 26.1 * i, 214.7));
  const std::unique_ptr<QStyle> style(QStyleFactory::create("Fusion"));
  QSlider slider(Qt::Horizontal);
  QScrollBar bar(Qt::Horizontal);
  for (QWidget* widget : std::initializer_list<QWidget*>{&slider, &bar}) {
    widget->setStyle(style.get());
    widget->setPalette(style->standardPalette());
    widget->resize(300, 24);
    top = widget == &slider ? 225 : 260;
    painter.drawPixmap(20, top, widget->grab());
  }
  painter.end();
  return image;
}

// Whether this machine draws to the pixel what the one drew on which the pictures were approved.
bool DrawsAlike() {
  static const bool alike = DrawnByQt() == Approved("drawn_by_qt");
  return alike;
}

QRegion OtherPixels(const QImage& now, const QImage& approved) {
  if (now.size() != approved.size()) return now.rect();
  QRegion other;
  for (int y = 0; y < now.height(); ++y) {
    for (int x = 0; x < now.width(); ++x) {
      if (now.pixel(x, y) != approved.pixel(x, y)) other += QRect(x, y, 1, 1);
    }
  }
  return other;
}

// One line for each that can be seen, those within further to the right.
void WriteAccess(QAccessibleInterface& each, QPoint origin, int depth, QString& lines) {
  const QAccessible::State state = each.state();
  if (state.invisible) return;
  quint64 bits = 0;
  static_assert(sizeof state == sizeof bits);
  std::memcpy(&bits, &state, sizeof bits);
  const QRect place = each.rect().translated(-origin);
  QStringList parts;
  for (const auto text : {QAccessible::Name, QAccessible::Description, QAccessible::Value, QAccessible::Help})
    parts << each.text(text);
  if (auto* action = each.actionInterface(); action != nullptr) {
    for (const QString& name : action->actionNames())
      parts << name + ':' + action->localizedActionName(name) + ':' +
                   action->localizedActionDescription(name);
  }
  if (auto* cell = each.tableCellInterface(); cell != nullptr) {
    parts << QString("cell %1 %2 %3").arg(cell->rowIndex()).arg(cell->columnIndex()).arg(cell->isSelected());
  }
  lines += QString(depth, ' ') + QString("%1 %2 %3,%4 %5x%6 ")
                                     .arg(each.role())
                                     .arg(bits, 0, 16)
                                     .arg(place.x())
                                     .arg(place.y())
                                     .arg(place.width())
                                     .arg(place.height());
  lines += parts.join('|').replace('\n', ' ') + '\n';
  for (int i = 0; i < each.childCount(); ++i) {
    QAccessibleInterface* child = each.child(i);
    if (child == nullptr) continue;
    if (child->parent() != &each || each.indexOfChild(child) != i) lines += "astray: ";
    WriteAccess(*child, origin, depth + 1, lines);
  }
}

QString TextOf(const QMetaProperty& property, const QVariant& value) {
  if (property.isEnumType()) return QString::number(value.toInt());
  if (value.canConvert<QCursor>()) return QString::number(value.value<QCursor>().shape());
  if (value.canConvert<QRect>() || value.canConvert<QSize>()) return QDebug::toString(value);
  return value.toString();
}

void WriteProperties(const QObject& each, QString& lines) {
  static const QWidget plain;
  lines += QString(each.metaObject()->className()) + ' ' + each.objectName();
  for (int i = 0; i < each.metaObject()->propertyCount(); ++i) {
    const QMetaProperty property = each.metaObject()->property(i);
    const QString name = property.name();
    // Times that pass, folders of this run, what another program may change, and what is said already.
    static const QStringList kLeftOut = {"remainingTime",  "source",         "searchPaths", "html",
                                         "baseUrl",        "isActiveWindow", "objectName",  "frameGeometry",
                                         "normalGeometry", "frameSize",      "size",        "width",
                                         "height",         "rect",           "x",           "y"};
    if (kLeftOut.contains(name)) continue;
    const QString text = TextOf(property, property.read(&each));
    const int usual = plain.metaObject()->indexOfProperty(property.name());
    if (usual >= 0 && text == TextOf(property, plain.metaObject()->property(usual).read(&plain))) continue;
    if (!text.isEmpty()) lines += ' ' + name + '=' + QString(text).replace('\n', ' ');
  }
  lines += '\n';
}

}  // namespace

Picture TakePicture(QWidget& widget) {
  TextFinder finder(widget.size());
  widget.render(&finder);
  const QImage image = widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
  const double ratio = image.devicePixelRatio();
  return {image, QTransform::fromScale(ratio, ratio).map(finder.texts)};
}

QRegion Difference(const Picture& now, const QImage& approved) {
  if (now.image.size() != approved.size()) return now.image.rect();
  QImage letters(now.image.size(), QImage::Format_Grayscale8);
  letters.fill(0);
  QPainter painter(&letters);
  for (const QRect& text : now.texts) painter.fillRect(text, Qt::white);
  painter.end();
  QRegion difference;
  // Each place overlaps its neighbours by half.
  for (int top = 0; top < letters.height(); top += kPlace / 2) {
    for (int left = 0; left < letters.width(); left += kPlace / 2) {
      const QRect place = QRect(left, top, kPlace, kPlace) & letters.rect();
      Sums lines;
      Sums texts;
      for (int y = place.top(); y <= place.bottom(); ++y) {
        for (int x = place.left(); x <= place.right(); ++x) {
          Add(letters.constScanLine(y)[x] != 0 ? texts : lines, now.image.pixel(x, y), approved.pixel(x, y));
        }
      }
      if (lines.other >= kOtherPixels || MeanBeyond(lines, kOtherGround) || MeanBeyond(texts, kOtherInk)) {
        difference += place;
      }
    }
  }
  return difference;
}

void ExpectApproved(const std::string& name, const Picture& now) {
  const QByteArray renew = qgetenv("KESTREL_RENEW");
  if (renew == "1") {
    Save(now.image, FileOf(name));
    Save(DrawnByQt(), FileOf("drawn_by_qt"));
  }
  const QImage approved = Approved(name);
  const bool exactly = renew != "1" && DrawsAlike();
  const QRegion difference = exactly ? OtherPixels(now.image, approved) : Difference(now, approved);
  if (difference.isEmpty()) return;
  if (renew == "newer") Save(now.image, FileOf(name, ".newer"));
  if (!exactly && QFile::exists(FileOf(name, ".newer")) &&
      Difference(now, Approved(name, ".newer")).isEmpty())
    return;
  QDir().mkpath("pictures");
  const QString beside = QDir("pictures").absoluteFilePath(QString::fromStdString(name) + ".png");
  Save(SideBySide(approved, now, difference), beside);
  const QRect place = difference.boundingRect();
  ADD_FAILURE() << name << " is not as approved, first at " << place.x() << "," << place.y() << ": see "
                << qPrintable(beside);
}

void ExpectApprovedInside(const std::string& name, QWidget& window) {
  if (!DrawsAlike()) return;
  QString inside;
  WriteAccess(*QAccessible::queryAccessibleInterface(&window), window.mapToGlobal(QPoint()), 0, inside);
  WriteProperties(window, inside);
  for (const QObject* each : window.findChildren<QObject*>()) WriteProperties(*each, inside);
  kestrel::ExpectApproved("qt/pictures/" + name + ".inside", inside.toStdString());
}

}  // namespace kestrel::testing
