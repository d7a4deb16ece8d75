// SPDX-License-Identifier: MIT
// Paints the drawings of the help pages: as sharp as the screen is, and never wider than the page. Used by the
// help view.
#pragma once

#include <QHash>
#include <QObject>
#include <QSvgRenderer>
#include <QTextObjectInterface>
#include <functional>
#include <memory>

namespace kestrel {

// Stands in for Qt's own way with images, which makes a bitmap of a drawing and knows no greatest width.
class HelpPictures final : public QObject, public QTextObjectInterface {
 public:
  // `read` gives the SVG text of an image's address, nothing when there is none.
  HelpPictures(QObject* parent, std::function<QByteArray(const QString& name)> read)
      : QObject(parent), read_(std::move(read)) {}

  // How much larger than drawn pictures are painted where there is room.
  void SetZoom(double zoom) { zoom_ = zoom; }
  // No picture is painted larger than this.
  void SetLargest(QSizeF size) { largest_ = size; }
  // Forgets what was read: another page, other colours.
  void Forget() { pictures_.clear(); }

  // How a document finds out that this object draws; Qt's own compiler would write the same.
  void* qt_metacast(const char* name) override;

  QSizeF intrinsicSize(QTextDocument* document, int position, const QTextFormat& format) override;
  void drawObject(QPainter* painter, const QRectF& rect, QTextDocument* document, int position,
                  const QTextFormat& format) override;

 private:
  QSvgRenderer& Picture(const QTextFormat& format);

  std::function<QByteArray(const QString&)> read_;
  QSizeF largest_{564, 562};
  double zoom_ = 1;
  QHash<QString, std::shared_ptr<QSvgRenderer>> pictures_;
};

}  // namespace kestrel
