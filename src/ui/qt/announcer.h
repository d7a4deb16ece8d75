// SPDX-License-Identifier: MIT
// Has a screen reader say what happened away from the keyboard's place. Used by the front end.
#pragma once

#include <QObject>
#include <QString>

#include "view/spoken_news.h"

namespace kestrel {

class BoardWidget;

// Stands towards assistive tools for a notification of the main window.
class Announcer final : public QObject {
 public:
  // `board` must outlive this object.
  explicit Announcer(BoardWidget& board);

  // Says what is new on the board since the last call, if anybody listens.
  void Sync();

  // Says this, if anybody listens.
  void Say(const QString& text);

  [[nodiscard]] const QString& Text() const { return text_; }
  [[nodiscard]] BoardWidget& Board() const { return board_; }

 private:
  BoardWidget& board_;
  SpokenNews news_;
  QString text_;
};

}  // namespace kestrel
