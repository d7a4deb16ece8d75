// SPDX-License-Identifier: MIT
#include "ui/qt/board_widget.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QToolTip>
#include <cmath>

#include "core/grid.h"
#include "ui/qt/board_access.h"
#include "ui/qt/form_window.h"
#include "ui/qt/palette.h"
#include "ui/qt/texts.h"

namespace kestrel {

namespace {

constexpr int kBoardWidth = 8790;  // headers, cells, outer line; the technique list's marker begins here
constexpr int kBoardHeight = 8850;
constexpr int kTooManyRects = 60;  // from here on one big rectangle is cheaper

int Twips(double logical) {
  return static_cast<int>(std::floor(logical * kTwipsPerPixel));
}

bool Contains(const Control& control, int x, int y) {
  return x >= control.left && x < control.left + control.width && y >= control.top &&
         y < control.top + control.height;
}

bool Reachable(const Control& control, int x, int y) {
  return control.visible && control.enabled && Contains(control, x, y);
}

MouseButton ToMouseButton(Qt::MouseButton button) {
  switch (button) {
    case Qt::LeftButton:
      return MouseButton::Left;
    case Qt::RightButton:
      return MouseButton::Right;
    case Qt::MiddleButton:
      return MouseButton::Middle;
    default:
      return MouseButton::None;
  }
}

ControlId IdOf(const BoardSpot& spot) {
  switch (spot.kind) {
    case BoardSpot::Kind::Row:
      return {"LabelRow", spot.index};
    case BoardSpot::Kind::Column:
      return {"LabelColumn", spot.index};
    default:
      return {kMarkNames[static_cast<std::size_t>(spot.digit - 1)], spot.index};
  }
}

}  // namespace

// What the screen shows, or is about to once the scheduled repaint has run.
struct BoardWidget::Shown {
  ControlArray<Label, 0, kCells> Grid;
  ControlArray<MarkArray, 1, 9> Mark;
  ControlArray<Label, 0, 9> LabelRow;
  ControlArray<Label, 0, 9> LabelColumn;
  std::optional<int> target;
};

BoardWidget::BoardWidget(MainWindow& main, EventSink& sink, std::function<bool()> marks_are_candidates,
                         QWidget* parent)
    : QWidget(parent),
      main_(main),
      sink_(sink),
      marks_are_candidates_(std::move(marks_are_candidates)),
      shown_(std::make_unique<Shown>(Shown{main.Grid, main.Mark, main.LabelRow, main.LabelColumn, {}})),
      items_(MakeBoardItems(*this)) {
  setObjectName("Board");
  setAccessibleName(texts::kBoard);
  setGeometry(0, 0, kBoardWidth / kTwipsPerPixel, kBoardHeight / kTwipsPerPixel);
  setMouseTracking(true);
  setAttribute(Qt::WA_OpaquePaintEvent);
}

BoardWidget::~BoardWidget() = default;

QRect BoardWidget::PlaceOf(const Control& control) const {
  return PixelGrid(1).Place(control);
}

// ---- showing ----

void BoardWidget::Invalidate(const QRect& device) {
  const double ratio = devicePixelRatioF();
  const QRectF logical(device.x() / ratio, device.y() / ratio, device.width() / ratio,
                       device.height() / ratio);
  dirty_ += logical.toAlignedRect();
}

bool BoardWidget::SyncLabel(const Label& now, Label& shown, const QRect& place) {
  if (now == shown) return false;
  shown = now;
  Invalidate(place);
  return true;
}

void BoardWidget::SyncLabels(int& changed) {
  const BoardPainter painter(main_, devicePixelRatioF());
  for (int cell = 0; cell < kCells; ++cell) {
    bool spoken = SyncLabel(main_.Grid(cell), shown_->Grid(cell), painter.CellRect(cell));
    changed += spoken ? 1 : 0;
    for (int digit = 1; digit <= 9; ++digit) {
      if (!SyncLabel(main_.Mark(digit)(cell), shown_->Mark(digit)(cell), painter.MarkRect(digit, cell))) {
        continue;
      }
      ++changed;
      spoken = true;
    }
    if (spoken) TellNameChanged(*items_[static_cast<std::size_t>(cell)]);
  }
}

void BoardWidget::Sync() {
  const BoardPainter painter(main_, devicePixelRatioF());
  int changed = 0;
  SyncLabels(changed);
  const std::optional<int> target = painter.TargetCell();
  bool headers = target != shown_->target;
  shown_->target = target;
  for (int line = 0; line < kUnitSize; ++line) {
    const BoardSpot row{BoardSpot::Kind::Row, line, 0};
    const BoardSpot column{BoardSpot::Kind::Column, line, 0};
    headers |= SyncLabel(main_.LabelRow(line), shown_->LabelRow(line), painter.SpotRect(row));
    headers |= SyncLabel(main_.LabelColumn(line), shown_->LabelColumn(line), painter.SpotRect(column));
  }
  if (dirty_.isEmpty() && !headers) return;
  // The frame of the cell that both headers name moves with them.
  if (headers || changed > kTooManyRects) {
    update();
  } else {
    update(dirty_);
  }
  dirty_ = QRegion();
  FollowPointer();
}

void BoardWidget::paintEvent(QPaintEvent* event) {
  DevicePainter surface(*this);
  const double ratio = surface.Grid().Ratio();
  QRegion region;
  for (const QRect& rect : event->region()) {
    region += QRectF(rect.x() * ratio, rect.y() * ratio, rect.width() * ratio, rect.height() * ratio)
                  .toAlignedRect();
  }
  BoardPainter(main_, ratio)
      .Paint(surface.Painter(), region, hover_, captured_.kind != BoardSpot::Kind::None);
}

// ---- mouse ----

const Label& BoardWidget::ControlOf(const BoardSpot& spot) const {
  switch (spot.kind) {
    case BoardSpot::Kind::Row:
      return main_.LabelRow(spot.index);
    case BoardSpot::Kind::Column:
      return main_.LabelColumn(spot.index);
    default:
      return main_.Mark(spot.digit)(spot.index);
  }
}

BoardSpot BoardWidget::SpotAt(QPointF point) const {
  const int x = Twips(point.x());
  const int y = Twips(point.y());
  for (int line = 0; line < kUnitSize; ++line) {
    if (Reachable(main_.LabelRow(line), x, y)) return {BoardSpot::Kind::Row, line, 0};
    if (Reachable(main_.LabelColumn(line), x, y)) return {BoardSpot::Kind::Column, line, 0};
  }
  for (int cell = 0; cell < kCells; ++cell) {
    if (!Contains(main_.Grid(cell), x, y)) continue;
    // Where marks overlap, the later one lies on top.
    for (int digit = 9; digit >= 1; --digit) {
      if (Reachable(main_.Mark(digit)(cell), x, y)) return {BoardSpot::Kind::Mark, cell, digit};
    }
  }
  return {};
}

BoardSpot BoardWidget::LiveSpotAt(QPointF point) const {
  const BoardSpot spot = SpotAt(point);
  if (spot.kind == BoardSpot::Kind::None) return spot;
  const Label& control = ControlOf(spot);
  const int limit = spot.kind == BoardSpot::Kind::Mark ? kMarkPitch : kHeaderSize;
  const int x = Twips(point.x()) - control.left;
  const int y = Twips(point.y()) - control.top;
  return x > 0 && x < limit && y > 0 && y < limit ? spot : BoardSpot{};
}

void BoardWidget::mousePressEvent(QMouseEvent* event) {
  pointer_ = event->position();
  inside_ = true;
  // While a button is down, the control that got the first press has the mouse.
  if (event->buttons() == event->button()) captured_ = SpotAt(pointer_);
  FollowPointer();
  if (captured_.kind != BoardSpot::Kind::None) update(PlaceOf(ControlOf(captured_)));
}

void BoardWidget::mouseDoubleClickEvent(QMouseEvent* event) {
  mousePressEvent(event);
}

void BoardWidget::mouseReleaseEvent(QMouseEvent* event) {
  pointer_ = event->position();
  const BoardSpot spot = captured_;
  if (event->buttons() == Qt::NoButton) captured_ = {};
  FollowPointer();
  if (spot.kind == BoardSpot::Kind::None) return;
  const Label& control = ControlOf(spot);
  update(PlaceOf(control));
  SendRelease(spot, ToMouseButton(event->button()), Twips(pointer_.x()) - control.left,
              Twips(pointer_.y()) - control.top);
}

void BoardWidget::SendRelease(const BoardSpot& spot, MouseButton button, int x, int y) {
  const Label& control = ControlOf(spot);
  if (!control.visible || !control.enabled || button == MouseButton::None) return;
  Event event;
  event.control = IdOf(spot);
  event.kind = EventKind::Release;
  event.button = button;
  event.x = x;
  event.y = y;
  sink_.Send(event);
}

void BoardWidget::Click(const BoardSpot& spot, MouseButton button) {
  if (!isVisible() || BehindDialog(*this)) return;
  const int middle = spot.kind == BoardSpot::Kind::Mark ? kMarkPitch / 2 : kHeaderSize / 2;
  SendRelease(spot, button, middle, middle);
}

void BoardWidget::mouseMoveEvent(QMouseEvent* event) {
  pointer_ = event->position();
  inside_ = true;
  FollowPointer();
}

void BoardWidget::leaveEvent(QEvent* event) {
  inside_ = false;
  FollowPointer();
  QWidget::leaveEvent(event);
}

void BoardWidget::FollowPointer() {
  BoardSpot spot = inside_ ? LiveSpotAt(pointer_) : BoardSpot{};
  // With a button down only the mark that was pressed reacts, for as long as letting go would count.
  if (captured_.kind != BoardSpot::Kind::None && spot != captured_) spot = {};
  SetHover(spot);
}

void BoardWidget::SetHover(const BoardSpot& spot) {
  if (spot == hover_) return;
  for (const BoardSpot& changed : {hover_, spot}) {
    if (changed.kind != BoardSpot::Kind::None) update(PlaceOf(ControlOf(changed)));
  }
  hover_ = spot;
  setCursor(spot.kind == BoardSpot::Kind::None ? Qt::ArrowCursor : Qt::PointingHandCursor);
}

bool BoardWidget::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    const auto* help = static_cast<QHelpEvent*>(event);
    ShowHelpTip(help->pos(), help->globalPos());
    return true;
  }
  return QWidget::event(event);
}

// How to play, on the board's edge and on its lines; over the cells it would be in the way.
void BoardWidget::ShowHelpTip(QPoint where, QPoint global) {
  const QRectF board = BoardPainter(main_, 1).BoardRect();
  bool on_edge = board.adjusted(-8, -8, 8, 8).contains(where) && main_.Mark(1)(0).enabled;
  for (int cell = 0; cell < kCells && on_edge; ++cell) {
    on_edge = !Contains(main_.Grid(cell), Twips(where.x()), Twips(where.y()));
  }
  if (!on_edge) {
    QToolTip::hideText();
    return;
  }
  QToolTip::showText(global, marks_are_candidates_() ? texts::kMarksTip : texts::kKeypadTip, this);
}

}  // namespace kestrel
