// SPDX-License-Identifier: MIT
#include "ui/qt/help_find.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTextBrowser>

#include "ui/qt/fonts.h"
#include "ui/qt/look.h"
#include "ui/qt/texts.h"

namespace kestrel {

HelpFind::HelpFind(QTextBrowser& view)
    : QFrame(&view), view_(view), words_(new QLineEdit(this)), answer_(new QLabel(this)) {
  setFrameShape(QFrame::StyledPanel);
  setAutoFillBackground(true);
  words_->setObjectName(QStringLiteral("HelpFindWords"));
  words_->setPlaceholderText(QLatin1String(texts::kFind));
  words_->setAccessibleName(QLatin1String(texts::kFind));
  answer_->setObjectName(QStringLiteral("HelpFindAnswer"));
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(6, 4, 6, 4);
  row->addWidget(words_, 1);
  const auto add = [&](const char* caption, QTextDocument::FindFlags flags) {
    auto* button = new QPushButton(QLatin1String(caption), this);
    button->setAutoDefault(false);
    row->addWidget(button);
    connect(button, &QPushButton::clicked, this, [this, flags] { Find(flags, false); });
  };
  add(texts::kFindPrevious, QTextDocument::FindBackward);
  add(texts::kFindNext, {});
  row->addWidget(answer_);
  connect(words_, &QLineEdit::textEdited, this, [this] { Find({}, true); });
  hide();
}

void HelpFind::Open() {
  Fit();
  show();
  raise();
  words_->selectAll();
  words_->setFocus(Qt::ShortcutFocusReason);
}

void HelpFind::Close() {
  hide();
  view_.setFocus(Qt::OtherFocusReason);
}

void HelpFind::Fit() {
  setFont(ToQFont(Font{}, TheLook().zoom));  // not the page's; and after a change of the size, too
  answer_->setMinimumWidth(answer_->fontMetrics().horizontalAdvance(QLatin1String(texts::kNotFound)) + 6);
  const int height = sizeHint().height();
  const auto room = [](const QScrollBar* bar, int thickness) { return bar->isVisible() ? thickness : 0; };
  const QScrollBar* side = view_.verticalScrollBar();
  const QScrollBar* below = view_.horizontalScrollBar();
  const QRect inside =
      view_.contentsRect().adjusted(0, 0, -room(side, side->width()), -room(below, below->height()));
  setGeometry(inside.left(), inside.bottom() + 1 - height, inside.width(), height);
}

void HelpFind::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Escape:
      Close();
      return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_F3:
      Find((event->modifiers() & Qt::ShiftModifier) != 0 ? QTextDocument::FindBackward
                                                         : QTextDocument::FindFlags{},
           false);
      return;
    default:
      QFrame::keyPressEvent(event);
  }
}

void HelpFind::Find(QTextDocument::FindFlags flags, bool typing) {
  if (typing) {
    QTextCursor start = view_.textCursor();
    start.setPosition(start.selectionStart());
    view_.setTextCursor(start);
  }
  const QString words = words_->text();
  bool found = words.isEmpty() || view_.find(words, flags);
  if (!found) {
    const QTextCursor before = view_.textCursor();
    view_.moveCursor((flags & QTextDocument::FindBackward) != 0 ? QTextCursor::End : QTextCursor::Start);
    found = view_.find(words, flags);
    if (!found) view_.setTextCursor(before);
  }
  answer_->setText(found ? QString() : QLatin1String(texts::kNotFound));
}

}  // namespace kestrel
