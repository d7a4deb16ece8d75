// SPDX-License-Identifier: MIT
// The board as one widget: 81 cells, 729 pencil marks and 18 headers, painted from the controls of the main
// window. It turns the mouse into Release events, and repaints only what changed.
#pragma once

#include <QPointF>
#include <QRegion>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

#include "forms/main_window.h"
#include "ui/qt/board_painter.h"
#include "ui/qt/event_sink.h"

namespace kestrel {

class BoardItem;
class ViewChoices;

class BoardWidget final : public QWidget {
 public:
  // All must outlive the widget. `marks_are_candidates` tells whether marks can be discarded now.
  BoardWidget(MainWindow& main, EventSink& sink, std::function<bool()> marks_are_candidates,
              ViewChoices& choices, QWidget* parent);
  ~BoardWidget() override;

  // Schedules the repainting of everything that differs from what was shown last.
  void Sync();

  // After a change of the look.
  void ApplyLook();

  // What stands out now under the digit lens.
  [[nodiscard]] const std::optional<DigitLens>& Lens() const { return pointer_look_.lens; }

  // A click as by the mouse in the middle of a mark or header, for assistive tools; nothing where the mouse
  // would reach nothing.
  void Click(const BoardSpot& spot, MouseButton button);

  [[nodiscard]] bool MarksAreCandidates() const { return marks_are_candidates_(); }
  [[nodiscard]] const MainWindow& Main() const { return main_; }
  // The place of a mark, header or cell on this widget, in its own coordinates.
  [[nodiscard]] QRect PlaceOf(const Control& control) const;

  // The objects that stand for cells, marks and headers towards assistive tools, named as their controls:
  // first the cells, then the marks of digit 1 for all cells, of digit 2 and so on, then rows, then columns.
  [[nodiscard]] const std::vector<std::unique_ptr<BoardItem>>& Items() const { return items_; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  bool event(QEvent* event) override;

 private:
  struct Shown;

  [[nodiscard]] const Label& ControlOf(const BoardSpot& spot) const;
  // The mark or header that gets a press at a point.
  [[nodiscard]] BoardSpot SpotAt(QPointF point) const;
  // The same, but nothing where a release would not count.
  [[nodiscard]] BoardSpot LiveSpotAt(QPointF point) const;
  void SendRelease(const BoardSpot& spot, MouseButton button, int x, int y);
  void SetHover(const BoardSpot& spot);
  void FollowPointer();
  [[nodiscard]] std::optional<DigitLens> LensUnderPointer() const;
  void UpdateLens();
  void Invalidate(const QRect& device);
  void ShowHelpTip(QPoint where, QPoint global);

  void SyncLabels(int& changed);
  bool SyncLabel(const Label& now, Label& shown, const QRect& place);

  MainWindow& main_;
  EventSink& sink_;
  std::function<bool()> marks_are_candidates_;
  ViewChoices& choices_;
  std::unique_ptr<Shown> shown_;
  std::vector<std::unique_ptr<BoardItem>> items_;
  QRegion dirty_;
  BoardSpot captured_;  // got the press, gets the releases
  BoardPointer pointer_look_;
  QTimer rest_;      // the pointer rests when it runs out
  QPointF pointer_;  // last seen; only valid while the pointer is inside
  bool inside_ = false;
};

}  // namespace kestrel
