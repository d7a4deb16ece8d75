// SPDX-License-Identifier: MIT
#include "ui/qt/announcer.h"

#include <QAccessible>
#include <QAccessibleObject>

#include "ui/qt/board_access.h"
#include "ui/qt/board_widget.h"

namespace kestrel {

namespace {

// A notification is read when it says that it shows now. It is no part of the tree that a reader walks.
class NoticeInterface final : public QAccessibleObject {
 public:
  explicit NoticeInterface(Announcer& announcer) : QAccessibleObject(&announcer), announcer_(announcer) {}

  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(announcer_.Board().window());
  }
  int childCount() const override { return 0; }
  QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
  int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Name ? announcer_.Text() : QString();
  }
  QAccessible::Role role() const override { return QAccessible::Notification; }
  QAccessible::State state() const override { return {}; }
  QWindow* window() const override { return announcer_.Board().window()->windowHandle(); }

 private:
  Announcer& announcer_;
};

QAccessibleInterface* MakeAnnouncerInterface(const QString& /*class_name*/, QObject* object) {
  auto* announcer = dynamic_cast<Announcer*>(object);
  return announcer == nullptr ? nullptr : new NoticeInterface(*announcer);
}

}  // namespace

Announcer::Announcer(BoardWidget& board) : board_(board) {
  QAccessible::installFactory(MakeAnnouncerInterface);
}

void Announcer::Sync() {
  if (!QAccessible::isActive()) return;
  const News news = news_.Since(board_.Main());
  if (news.text.empty()) return;
  QString text = QString::fromStdString(news.text);
  if (news.cell >= 0) {
    text = board_.Items()[static_cast<std::size_t>(news.cell)]->SpokenName() + QStringLiteral("; ") + text;
  }
  Say(text);
}

void Announcer::Say(const QString& text) {
  text_ = text;
  QAccessibleEvent event(this, QAccessible::ObjectShow);
  QAccessible::updateAccessibility(&event);
}

}  // namespace kestrel
