// SPDX-License-Identifier: MIT
#include "ui/qt/records_map.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QStyledItemDelegate>

#include "ui/qt/palette.h"
#include "ui/qt/scaled.h"
#include "ui/qt/text_conversion.h"
#include "ui/qt/texts.h"

namespace kestrel {

namespace {

constexpr int kSide = 10;        // puzzles in a row
constexpr int kCell = 34;        // pixels of 96 dpi
constexpr int kNumberSize = 10;  // of the numbers and times
constexpr double kReadable = 7;

QColor Mix(const QColor& one, const QColor& other, double part) {
  const auto mix = [part](int a, int b) { return static_cast<int>(a + (b - a) * part); };
  return {mix(one.red(), other.red()), mix(one.green(), other.green()), mix(one.blue(), other.blue())};
}

class CellDelegate final : public QStyledItemDelegate {
 public:
  explicit CellDelegate(QObject* parent) : QStyledItemDelegate(parent) {}

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const LevelRecords& records = static_cast<const RecordsModel*>(index.model())->Records();
    const int number = RecordsModel::NumberOf(index);
    const PuzzleRecord& puzzle = records.Of(number);
    const QPalette& palette = option.palette;
    painter->save();
    const QRect cell = option.rect;
    if (puzzle.seconds != 0) painter->fillRect(cell, ShadeOf(palette, puzzle.merit));
    QFont font = option.font;
    font.setPixelSize(Scaled(kNumberSize));
    painter->setFont(font);
    const bool has_time = puzzle.seconds != 0;
    painter->setPen(palette.color(has_time ? QPalette::Text : QPalette::PlaceholderText));
    const int half = cell.height() / 2;
    const QRect upper = has_time ? QRect(cell.left(), cell.top() + 1, cell.width(), half) : cell;
    painter->drawText(upper, Qt::AlignCenter, QString::number(number));
    if (has_time) {
      painter->drawText(QRect(cell.left(), cell.top() + half - 1, cell.width(), half), Qt::AlignCenter,
                        ToQString(texts::RecordTime(puzzle.seconds)));
    }
    if ((option.state & (QStyle::State_HasFocus | QStyle::State_MouseOver)) != 0) {
      painter->setPen(QPen(palette.color(QPalette::Text), Scaled(2)));
      painter->drawRect(cell.adjusted(1, 1, -1, -1));
    }
    painter->restore();
  }
};

}  // namespace

QColor ShadeOf(const QPalette& palette, double merit) {
  const QColor ground = palette.color(QPalette::Active, QPalette::Base);
  const QColor hue = palette.color(QPalette::Active, QPalette::Highlight);
  const QColor text = palette.color(QPalette::Active, QPalette::Text);
  constexpr double kLeast = 0.12;
  double most = 0.7;
  while (most > kLeast && ContrastRatio(text, Mix(ground, hue, most)) < kReadable) most -= 0.02;
  return Mix(ground, hue, kLeast + (most - kLeast) * merit);
}

// ---- RecordsModel ----

void RecordsModel::Show(const LevelRecords& records) {
  if (records == records_) return;
  records_ = records;
  emit dataChanged(index(0, 0), index(kSide - 1, kSide - 1));
}

int RecordsModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : kSide;
}

int RecordsModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : kSide;
}

QVariant RecordsModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  if (role != Qt::ToolTipRole && role != Qt::AccessibleTextRole && role != Qt::DisplayRole) return {};
  return ToQString(texts::PuzzleRecordText(records_, NumberOf(index)));
}

// ---- RecordsMap ----

RecordsMap::RecordsMap(QWidget* parent) : QTableView(parent) {
  setObjectName(QStringLiteral("RecordsMap"));
  setAccessibleName(QLatin1String(texts::kRecordsMap));
  setModel(&model_);
  setItemDelegate(new CellDelegate(this));
  horizontalHeader()->hide();
  verticalHeader()->hide();
  setSelectionMode(QAbstractItemView::NoSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setTabKeyNavigation(false);
  setMouseTracking(true);
  Resize();
  connect(this, &QTableView::clicked, [this](const QModelIndex& index) {
    if (on_choose) on_choose(RecordsModel::NumberOf(index));
  });
  connect(this, &QTableView::entered, [this](const QModelIndex& index) {
    if (on_point) on_point(RecordsModel::NumberOf(index));
  });
}

void RecordsMap::Resize() {
  const int cell = Scaled(kCell);
  for (QHeaderView* header : {horizontalHeader(), verticalHeader()}) {
    header->setMinimumSectionSize(cell);
    header->setDefaultSectionSize(cell);
    header->setSectionResizeMode(QHeaderView::Fixed);
  }
  const int side = kSide * cell + 2 * frameWidth();
  setFixedSize(side, side);
}

void RecordsMap::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (enter && currentIndex().isValid() && on_choose)
    return on_choose(RecordsModel::NumberOf(currentIndex()));
  if (enter) return event->ignore();
  QTableView::keyPressEvent(event);
}

void RecordsMap::leaveEvent(QEvent* event) {
  if (on_point) on_point(0);
  QTableView::leaveEvent(event);
}

void RecordsMap::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTableView::currentChanged(current, previous);
  if (on_point && current.isValid() && hasFocus()) on_point(RecordsModel::NumberOf(current));
}

}  // namespace kestrel
