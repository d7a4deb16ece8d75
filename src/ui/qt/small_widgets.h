// SPDX-License-Identifier: MIT
// The widgets that paint themselves: labels, links, pictures, progress bars, status panels, and the panel
// that covers the board during start-up. Used by the mirror.
#pragma once

#include <QAbstractButton>
#include <QPixmap>
#include <QProgressBar>
#include <QWidget>
#include <cstdint>
#include <functional>
#include <string>

#include "core/files.h"
#include "forms/control.h"
#include "ui/qt/device_painter.h"

namespace kestrel {

// A label's part of the frame round a row of two.
enum class RowFrame : std::uint8_t { None, LeftEnd, RightEnd };

// A text on a ground.
class TextLabel final : public QWidget {
 public:
  explicit TextLabel(QWidget* parent) : QWidget(parent) {}
  void Show(const Label& label);
  // Makes the label act: hand pointer, brighter under the pointer.
  void SetClick(std::function<void()> click);
  [[nodiscard]] const std::function<void()>& OnClick() const { return click_; }
  void SetFrame(RowFrame frame);
  // A frame and a tick, of the clock of a solved puzzle.
  void SetSolved(bool on);
  // A hairline along the upper edge, where one group of a list ends and the next begins.
  void SetRule(bool on);
  [[nodiscard]] const QString& Caption() const { return caption_; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void PaintGround(QPainter& painter, const PixelGrid& grid, const QRect& area) const;
  void PaintFrame(QPainter& painter, const PixelGrid& grid, const QRect& area) const;

  QString caption_;
  Label label_;
  std::function<void()> click_;
  RowFrame frame_ = RowFrame::None;
  bool rule_ = false;
  bool solved_ = false;
};

// A text that acts: underlined under the pointer, reached and pressed by the keyboard as well.
class LinkLabel final : public QAbstractButton {
 public:
  explicit LinkLabel(QWidget* parent);
  void Show(const Label& label);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void PaintArrow(QPainter& painter, const QRect& place) const;
  Label label_;
};

// A picture from a file, or one that stands in where the control names none; can be clicked.
class PictureButton final : public QAbstractButton {
 public:
  // `stand_in` is a host path; beside it, name@2x.png and name@3x.png serve larger scales. `files`, which must outlive
  // this object, reads the pictures that controls name.
  PictureButton(const QString& stand_in, Files& files, QWidget* parent)
      : QAbstractButton(parent), stand_in_(stand_in), files_(files) {}
  void Show(const Picture& picture);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString stand_in_;
  Files& files_;
  QPixmap pixmap_;
};

// The start-up panel: the program's name over five rows, each for a level's progress bar.
class StartPanel final : public QWidget {
 public:
  explicit StartPanel(QWidget* parent) : QWidget(parent) {}

 protected:
  void paintEvent(QPaintEvent* event) override;
};

// A slim bar; a higher one says "Hard: 37 of 100" beside it as well.
class SlimProgress final : public QProgressBar {
 public:
  explicit SlimProgress(QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

// One panel of the status bar.
class StatusLabel final : public QWidget {
 public:
  explicit StatusLabel(QWidget* parent) : QWidget(parent) {}
  void Show(const StatusPanel& panel);
  [[nodiscard]] const QString& Caption() const { return caption_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString caption_;
  Font font_;
};

// Makes Qt describe the labels to assistive tools as the texts that they are.
void InstallLabelAccess();

}  // namespace kestrel
