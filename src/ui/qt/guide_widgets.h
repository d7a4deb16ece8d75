// SPDX-License-Identifier: MIT
// What the guide shows: the card on the board before the first puzzle, and the line under the board. Used by
// the extras of the main window.
#pragma once

#include <QAbstractButton>
#include <QPushButton>
#include <QWidget>
#include <functional>

#include "view/guide.h"

namespace kestrel {

// A small cross.
class CloseCross final : public QAbstractButton {
 public:
  explicit CloseCross(QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;
};

// Says how to begin, and has a large button that does.
class GuideCard final : public QWidget {
 public:
  explicit GuideCard(QWidget* parent);
  // The level that Next would take.
  void SetLevel(const QString& name);
  void PlaceAll();
  [[nodiscard]] QPushButton& Next() { return next_; }

  std::function<void()> on_next;
  std::function<void()> on_close;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString level_;
  QPushButton next_;
  CloseCross cross_;
};

// One line of text, with a cross where it can be closed.
class GuideLine final : public QWidget {
 public:
  explicit GuideLine(QWidget* parent);
  void Show(const Guide& guide);
  void PlaceAll();

  std::function<void()> on_close;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString text_;
  CloseCross cross_;
};

}  // namespace kestrel
