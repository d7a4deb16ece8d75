// SPDX-License-Identifier: MIT
#include "ui/qt/board_widget.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QToolTip>
#include <cmath>

#include "core/grid.h"
#include "core/text.h"
#include "ui/qt/board_access.h"
#include "ui/qt/form_window.h"
#include "ui/qt/look.h"
#include "ui/qt/text_conversion.h"
#include "ui/qt/texts.h"
#include "ui/qt/view_choices.h"
#include "view/play_state.h"
#include "view/texts.h"

namespace kestrel {

namespace {

constexpr int kBoardSize = CellEdge(kUnitSize);  // with the edge in which a further box's gap would be
constexpr int kRest = 150;                       // milliseconds without another digit under the pointer
constexpr int kTooManyRects = 60;                // from here on one big rectangle is cheaper

int TwipsAt(double logical) {
  return static_cast<int>(std::floor(logical * kTwipsPerPixel / TheLook().zoom));
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

// Whether there was anything new.
bool TakeOver(const Label& now, Label& shown) {
  if (now == shown) return false;
  shown = now;
  return true;
}

ControlId IdOf(const BoardSpot& spot) {
  switch (spot.kind) {
    case BoardSpot::Kind::Row:
      return {"LabelRow", spot.index};
    case BoardSpot::Kind::Column:
      return {"LabelColumn", spot.index};
    default:
      return {kMarkNames[static_cast<std::size_t>(spot.digit - 1)], spot.index, spot.digit};
  }
}

}  // namespace

// What the screen shows, or is about to once the scheduled repaint has run.
struct BoardWidget::Shown {
  ControlArray<Label, 0, kCells> Grid;
  ControlArray<MarkArray, 1, 9> Mark;
  ControlArray<Label, 0, 9> LabelRow;
  ControlArray<Label, 0, 9> LabelColumn;
  int target = -1;
  PuzzleEnd end = PuzzleEnd::None;
};

BoardWidget::BoardWidget(MainWindow& main, EventSink& sink, std::function<bool()> marks_are_candidates,
                         ViewChoices& choices, QWidget* parent)
    : QWidget(parent),
      main_(main),
      sink_(sink),
      marks_are_candidates_(std::move(marks_are_candidates)),
      choices_(choices),
      shown_(std::make_unique<Shown>(Shown{main.Grid, main.Mark, main.LabelRow, main.LabelColumn})),
      items_(MakeBoardItems(*this)) {
  setObjectName("Board");
  setAccessibleName(texts::kBoard);
  setMouseTracking(true);
  setAttribute(Qt::WA_OpaquePaintEvent);
  rest_.setSingleShot(true);
  rest_.setInterval(kRest);
  connect(&rest_, &QTimer::timeout, this, [this] { UpdateLens(); });
  ApplyLook();
}

void BoardWidget::ApplyLook() {
  setGeometry(0, 0, Logical(kBoardSize), Logical(kBoardSize));
  update();
}

BoardWidget::~BoardWidget() = default;

QRect BoardWidget::PlaceOf(const Control& control) const {
  return PixelGrid(TheLook().zoom).Place(control);
}

// ---- showing ----

void BoardWidget::Invalidate(const QRect& device) {
  const double ratio = devicePixelRatioF();
  const QRectF logical(device.x() / ratio, device.y() / ratio, device.width() / ratio,
                       device.height() / ratio);
  dirty_ += logical.toAlignedRect();
}

bool BoardWidget::SyncLabel(const Label& now, Label& shown, const QRect& place) {
  if (!TakeOver(now, shown)) return false;
  Invalidate(place);
  return true;
}

void BoardWidget::SyncLabels(int& changed) {
  const BoardPainter painter(main_, devicePixelRatioF() * TheLook().zoom, TheColours());
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
  int changed = 0;
  SyncLabels(changed);
  const int target = ResetTarget(main_);
  bool whole = target != shown_->target || main_.end != shown_->end;
  shown_->target = target;
  shown_->end = main_.end;
  for (int line = 0; line < kUnitSize; ++line) {
    whole |= TakeOver(main_.LabelRow(line), shown_->LabelRow(line));
    whole |= TakeOver(main_.LabelColumn(line), shown_->LabelColumn(line));
  }
  if (dirty_.isEmpty() && !whole) return;
  // The frame of the cell that both headers name moves with them.
  if (whole || changed > kTooManyRects) {
    update();
  } else {
    update(dirty_);
  }
  dirty_ = QRegion();
  FollowPointer();
}

void BoardWidget::paintEvent(QPaintEvent* event) {
  DevicePainter surface(*this);
  const double ratio = devicePixelRatioF();
  QRegion region;
  for (const QRect& rect : event->region()) {
    region += QRectF(rect.x() * ratio, rect.y() * ratio, rect.width() * ratio, rect.height() * ratio)
                  .toAlignedRect();
  }
  BoardPainter(main_, surface.Grid().Ratio(), TheColours()).Paint(surface.Painter(), region, pointer_look_);
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
  const int x = TwipsAt(point.x());
  const int y = TwipsAt(point.y());
  for (int line = 0; line < kUnitSize; ++line) {
    if (Reachable(main_.LabelRow(line), x, y)) return {BoardSpot::Kind::Row, line};
    if (Reachable(main_.LabelColumn(line), x, y)) return {BoardSpot::Kind::Column, line};
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
  const int x = TwipsAt(point.x()) - control.left;
  const int y = TwipsAt(point.y()) - control.top;
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
  SendRelease(spot, ToMouseButton(event->button()), TwipsAt(pointer_.x()) - control.left,
              TwipsAt(pointer_.y()) - control.top);
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
  const int steps_before = WholeNumber(main_.LabelStap.caption).value_or(0);
  sink_.Send(event);
  if (WholeNumber(main_.LabelStap.caption).value_or(0) > steps_before) choices_.MarkClicked();
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
  pointer_look_.pressed = captured_.kind != BoardSpot::Kind::None;
  SetHover(spot);
  if (LensUnderPointer() != pointer_look_.lens) {
    if (!rest_.isActive()) rest_.start();
  } else {
    rest_.stop();
  }
}

std::optional<DigitLens> BoardWidget::LensUnderPointer() const {
  if (!inside_ || !choices_.Now().digit_lens) return std::nullopt;
  const int x = TwipsAt(pointer_.x());
  const int y = TwipsAt(pointer_.y());
  for (int cell = 0; cell < kCells; ++cell) {
    if (!Contains(main_.Grid(cell), x, y)) continue;
    const BoardSpot spot = SpotAt(pointer_);
    return LensOver(main_, cell, spot.kind == BoardSpot::Kind::Mark ? spot.digit : 0,
                    marks_are_candidates_());
  }
  return std::nullopt;
}

void BoardWidget::UpdateLens() {
  const std::optional<DigitLens> lens = LensUnderPointer();
  if (lens == pointer_look_.lens) return;
  pointer_look_.lens = lens;
  update();
}

void BoardWidget::SetHover(const BoardSpot& spot) {
  if (spot == pointer_look_.hover) return;
  for (const BoardSpot& changed : {pointer_look_.hover, spot}) {
    if (changed.kind != BoardSpot::Kind::None) update(PlaceOf(ControlOf(changed)));
  }
  pointer_look_.hover = spot;
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

// What a header is for; how to play, on the board's edge and on its lines: over the cells it would be in the
// way.
void BoardWidget::ShowHelpTip(QPoint where, QPoint global) {
  const BoardSpot spot = SpotAt(where);
  if (spot.kind == BoardSpot::Kind::Row || spot.kind == BoardSpot::Kind::Column) {
    return QToolTip::showText(global, ToQString(texts::kHeaderTip), this);
  }
  const QRectF board = BoardPainter(main_, TheLook().zoom, TheColours()).BoardRect();
  bool on_edge = board.adjusted(-8, -8, 8, 8).contains(where) && main_.Mark(1)(0).enabled;
  for (int cell = 0; cell < kCells && on_edge; ++cell) {
    on_edge = !Contains(main_.Grid(cell), TwipsAt(where.x()), TwipsAt(where.y()));
  }
  if (!on_edge) {
    QToolTip::hideText();
    return;
  }
  QToolTip::showText(global, marks_are_candidates_() ? texts::kMarksTip : texts::kKeypadTip, this);
}

}  // namespace kestrel
