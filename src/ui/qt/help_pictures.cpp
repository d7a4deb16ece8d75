// SPDX-License-Identifier: MIT
#include "ui/qt/help_pictures.h"

#include <QPainter>
#include <QTextFormat>
#include <algorithm>
#include <cstring>

namespace kestrel {

void* HelpPictures::qt_metacast(const char* name) {
  if (std::strcmp(name, qobject_interface_iid<QTextObjectInterface*>()) == 0) {
    return static_cast<QTextObjectInterface*>(this);
  }
  return QObject::qt_metacast(name);
}

QSvgRenderer& HelpPictures::Picture(const QTextFormat& format) {
  const QString name = format.toImageFormat().name();
  std::shared_ptr<QSvgRenderer>& picture = pictures_[name];
  if (!picture) picture = std::make_shared<QSvgRenderer>(read_(name));
  return *picture;
}

QSizeF HelpPictures::intrinsicSize(QTextDocument* /*document*/, int /*position*/, const QTextFormat& format) {
  // As the page says, so that only what comes into view is read; a page has dozens.
  QSizeF size(format.toImageFormat().width(), format.toImageFormat().height());
  if (size.isEmpty()) size = Picture(format).viewBoxF().size();
  if (size.isEmpty()) return {0, 0};
  size *= zoom_;
  const double shrink = std::min({1.0, largest_.width() / size.width(), largest_.height() / size.height()});
  return size * shrink;
}

void HelpPictures::drawObject(QPainter* painter, const QRectF& rect, QTextDocument* /*document*/,
                              int /*position*/, const QTextFormat& format) {
  QSvgRenderer& picture = Picture(format);
  if (!picture.isValid()) return;
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  picture.render(painter, rect);
  painter->restore();
}

}  // namespace kestrel
