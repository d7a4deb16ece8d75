// SPDX-License-Identifier: MIT
#include "ui/qt/board_access.h"

#include <QAccessible>
#include <QAccessibleObject>
#include <QAccessibleWidget>
#include <QStringList>

#include "core/cell_names.h"
#include "ui/qt/board_widget.h"
#include "ui/qt/texts.h"
#include "view/play_state.h"

namespace kestrel {

namespace {

using Kind = BoardItem::Kind;

constexpr const char* kDiscardAction = "discard";

// The marks of a cell stand behind each other in steps of 81.
std::size_t MarkPlace(int digit, int cell) {
  return static_cast<std::size_t>(digit * kCells + cell);
}

// Behind all marks stand the headers.
constexpr int kRowsAt = 10 * kCells;
constexpr int kColumnsAt = kRowsAt + kUnitSize;

QAccessibleInterface* InterfaceOf(BoardItem& item) {
  return QAccessible::queryAccessibleInterface(&item);
}

// A cell of the table with its nine marks under it, a mark, or a header.
class ItemInterface final : public QAccessibleObject,
                            public QAccessibleActionInterface,
                            public QAccessibleTableCellInterface {
 public:
  explicit ItemInterface(BoardItem& item) : QAccessibleObject(&item), item_(item) {}

  QAccessibleInterface* parent() const override {
    if (item_.GetKind() != Kind::Mark) return QAccessible::queryAccessibleInterface(&item_.Board());
    return InterfaceOf(*item_.Board().Items()[static_cast<std::size_t>(item_.Index())]);
  }

  int childCount() const override { return item_.GetKind() == Kind::Cell ? 9 : 0; }

  QAccessibleInterface* child(int index) const override {
    if (index < 0 || index >= childCount()) return nullptr;
    return InterfaceOf(*item_.Board().Items()[MarkPlace(index + 1, item_.Index())]);
  }

  int indexOfChild(const QAccessibleInterface* wanted) const override {
    const auto* mark = wanted == nullptr ? nullptr : dynamic_cast<BoardItem*>(wanted->object());
    return mark != nullptr && mark->GetKind() == Kind::Mark && mark->Index() == item_.Index()
               ? mark->Digit() - 1
               : -1;
  }

  QString text(QAccessible::Text kind) const override {
    if (kind == QAccessible::Name) return item_.SpokenName();
    if (kind == QAccessible::Description && !actionNames().isEmpty()) {
      return localizedActionDescription(actionNames().constFirst());
    }
    return {};
  }

  QAccessible::Role role() const override {
    switch (item_.GetKind()) {
      case Kind::Cell:
        return QAccessible::Cell;
      case Kind::Row:
        return QAccessible::RowHeader;
      case Kind::Column:
        return QAccessible::ColumnHeader;
      case Kind::Mark:
        break;
    }
    return QAccessible::Button;
  }

  QAccessible::State state() const override {
    const Label& control = item_.GetControl();
    QAccessible::State state;
    state.invisible = !control.visible || !item_.Board().isVisible();
    state.disabled = item_.GetKind() != Kind::Cell && !control.enabled;
    const bool header = item_.GetKind() == Kind::Row || item_.GetKind() == Kind::Column;
    state.selectable = header;
    state.selected = header && control.fore == kRed;
    state.readOnly = item_.GetKind() == Kind::Cell;
    return state;
  }

  QRect rect() const override {
    const QRect place = item_.Board().PlaceOf(item_.GetControl());
    return {item_.Board().mapToGlobal(place.topLeft()), place.size()};
  }

  QWindow* window() const override { return item_.Board().window()->windowHandle(); }

  void* interface_cast(QAccessible::InterfaceType type) override {
    const bool cell = item_.GetKind() == Kind::Cell;
    if (cell && type == QAccessible::TableCellInterface)
      return static_cast<QAccessibleTableCellInterface*>(this);
    if (!cell && type == QAccessible::ActionInterface) return static_cast<QAccessibleActionInterface*>(this);
    return nullptr;
  }

  // Of a cell, as part of the board.
  QAccessibleInterface* table() const override { return parent(); }
  int rowIndex() const override { return CellRow[item_.Index()]; }
  int columnIndex() const override { return CellCol[item_.Index()]; }
  int rowExtent() const override { return 1; }
  int columnExtent() const override { return 1; }
  QList<QAccessibleInterface*> rowHeaderCells() const override { return {HeaderAt(kRowsAt + rowIndex())}; }
  QList<QAccessibleInterface*> columnHeaderCells() const override {
    return {HeaderAt(kColumnsAt + columnIndex())};
  }
  bool isSelected() const override {
    const MainWindow& main = item_.Board().Main();
    return main.LabelRow(rowIndex()).fore == kRed && main.LabelColumn(columnIndex()).fore == kRed;
  }

  QStringList actionNames() const override {
    const Label& control = item_.GetControl();
    if (item_.GetKind() == Kind::Cell || !control.visible || !control.enabled) return {};
    QStringList names = {pressAction()};
    if (item_.GetKind() == Kind::Mark && item_.Board().MarksAreCandidates()) names << kDiscardAction;
    return names;
  }

  QString localizedActionName(const QString& action) const override {
    if (action == QLatin1String(kDiscardAction)) return texts::kDiscard;
    return item_.GetKind() == Kind::Mark ? texts::kAssign : texts::kSelect;
  }

  QString localizedActionDescription(const QString& action) const override {
    if (action == QLatin1String(kDiscardAction)) return texts::kDiscardTip;
    return item_.GetKind() == Kind::Mark ? texts::kAssignTip : texts::kSelectTip;
  }

  void doAction(const QString& action) override {
    if (!actionNames().contains(action)) return;
    const bool discard = action == QLatin1String(kDiscardAction);
    item_.Board().Click(item_.Spot(), discard ? MouseButton::Right : MouseButton::Left);
  }

  QStringList keyBindingsForAction(const QString& /*action*/) const override { return {}; }

 private:
  [[nodiscard]] QAccessibleInterface* HeaderAt(int place) const {
    return InterfaceOf(*item_.Board().Items()[static_cast<std::size_t>(place)]);
  }

  BoardItem& item_;
};

// The board itself, a table: 81 cells in its order, then nine column headers and nine row headers.
class BoardInterface final : public QAccessibleWidget, public QAccessibleTableInterface {
 public:
  explicit BoardInterface(BoardWidget& board)
      : QAccessibleWidget(&board, QAccessible::Table, texts::kBoard), board_(board) {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::TableInterface) return static_cast<QAccessibleTableInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
  }

  QAccessibleInterface* caption() const override { return nullptr; }
  QAccessibleInterface* summary() const override { return nullptr; }
  int rowCount() const override { return kUnitSize; }
  int columnCount() const override { return kUnitSize; }
  QAccessibleInterface* cellAt(int row, int column) const override {
    return IsLine(row) && IsLine(column) ? child(RowCell[row][column]) : nullptr;
  }
  QString rowDescription(int row) const override { return NameAt(kRowsAt, row); }
  QString columnDescription(int column) const override { return NameAt(kColumnsAt, column); }

  // What is selected are the headers, for Reset Cell; the cell of both is the one that it empties.
  bool isRowSelected(int row) const override {
    return IsLine(row) && board_.Main().LabelRow(row).fore == kRed;
  }
  bool isColumnSelected(int column) const override {
    return IsLine(column) && board_.Main().LabelColumn(column).fore == kRed;
  }
  QList<int> selectedRows() const override {
    return Selected([this](int row) { return isRowSelected(row); });
  }
  QList<int> selectedColumns() const override {
    return Selected([this](int column) { return isColumnSelected(column); });
  }
  int selectedRowCount() const override { return static_cast<int>(selectedRows().size()); }
  int selectedColumnCount() const override { return static_cast<int>(selectedColumns().size()); }
  QList<QAccessibleInterface*> selectedCells() const override {
    const QList<int> rows = selectedRows();
    const QList<int> columns = selectedColumns();
    if (rows.isEmpty() || columns.isEmpty()) return {};
    return {cellAt(rows.constFirst(), columns.constFirst())};
  }
  int selectedCellCount() const override { return static_cast<int>(selectedCells().size()); }
  bool selectRow(int row) override { return Toggle(BoardSpot::Kind::Row, row, !isRowSelected(row)); }
  bool unselectRow(int row) override { return Toggle(BoardSpot::Kind::Row, row, isRowSelected(row)); }
  bool selectColumn(int column) override {
    return Toggle(BoardSpot::Kind::Column, column, !isColumnSelected(column));
  }
  bool unselectColumn(int column) override {
    return Toggle(BoardSpot::Kind::Column, column, isColumnSelected(column));
  }
  void modelChange(QAccessibleTableModelChangeEvent* /*event*/) override {}

  int childCount() const override { return 2 * kUnitSize + kCells; }

  QAccessibleInterface* child(int index) const override {
    if (index < 0 || index >= childCount()) return nullptr;
    return InterfaceOf(*board_.Items()[PlaceOfChild(index)]);
  }

  int indexOfChild(const QAccessibleInterface* wanted) const override {
    const auto* item = wanted == nullptr ? nullptr : dynamic_cast<BoardItem*>(wanted->object());
    if (item == nullptr || &item->Board() != &board_) return -1;
    switch (item->GetKind()) {
      case Kind::Column:
        return kCells + item->Index();
      case Kind::Row:
        return kCells + kUnitSize + item->Index();
      case Kind::Cell:
        return item->Index();
      case Kind::Mark:
        break;
    }
    return -1;
  }

  QAccessibleInterface* childAt(int x, int y) const override {
    for (int i = 0; i < childCount(); ++i) {
      QAccessibleInterface* found = child(i);
      if (!found->rect().contains(x, y)) continue;
      for (int mark = 0; mark < found->childCount(); ++mark) {
        QAccessibleInterface* inner = found->child(mark);
        if (!inner->state().invisible && inner->rect().contains(x, y)) return inner;
      }
      return found;
    }
    return nullptr;
  }

 private:
  static std::size_t PlaceOfChild(int index) {
    if (index < kCells) return static_cast<std::size_t>(index);
    if (index < kCells + kUnitSize) return static_cast<std::size_t>(kColumnsAt + index - kCells);
    return static_cast<std::size_t>(kRowsAt + index - kCells - kUnitSize);
  }

  // Tools may ask for lines that there are not.
  static bool IsLine(int line) { return line >= 0 && line < kUnitSize; }

  [[nodiscard]] QString NameAt(int headers, int line) const {
    return IsLine(line) ? board_.Items()[static_cast<std::size_t>(headers + line)]->SpokenName() : QString();
  }

  template <class Test>
  static QList<int> Selected(const Test& test) {
    QList<int> lines;
    for (int line = 0; line < kUnitSize; ++line) {
      if (test(line)) lines << line;
    }
    return lines;
  }

  bool Toggle(BoardSpot::Kind kind, int line, bool wanted) {
    if (!wanted || !IsLine(line)) return false;
    board_.Click({kind, line}, MouseButton::Left);
    return true;
  }

  BoardWidget& board_;
};

QAccessibleInterface* MakeBoardInterface(const QString& /*class_name*/, QObject* object) {
  if (auto* item = dynamic_cast<BoardItem*>(object)) return new ItemInterface(*item);
  if (auto* board = dynamic_cast<BoardWidget*>(object)) return new BoardInterface(*board);
  return nullptr;
}

ControlId IdOf(Kind kind, int index, int digit) {
  switch (kind) {
    case Kind::Cell:
      return {"Grid", index};
    case Kind::Row:
      return {"LabelRow", index};
    case Kind::Column:
      return {"LabelColumn", index};
    case Kind::Mark:
      break;
  }
  return {kMarkNames[static_cast<std::size_t>(digit - 1)], index};
}

}  // namespace

BoardItem::BoardItem(BoardWidget& board, Kind kind, int index, int digit)
    : board_(board), kind_(kind), index_(index), digit_(digit) {
  setObjectName(QString::fromStdString(FullName(IdOf(kind, index, digit))));
}

const Label& BoardItem::GetControl() const {
  const MainWindow& main = board_.Main();
  switch (kind_) {
    case Kind::Cell:
      return main.Grid(index_);
    case Kind::Row:
      return main.LabelRow(index_);
    case Kind::Column:
      return main.LabelColumn(index_);
    case Kind::Mark:
      break;
  }
  return main.Mark(digit_)(index_);
}

BoardSpot BoardItem::Spot() const {
  switch (kind_) {
    case Kind::Row:
      return {BoardSpot::Kind::Row, index_};
    case Kind::Column:
      return {BoardSpot::Kind::Column, index_};
    case Kind::Mark:
      return {BoardSpot::Kind::Mark, index_, digit_};
    case Kind::Cell:
      break;
  }
  return {};
}

QString BoardItem::CellName() const {
  return QStringLiteral("%1 %2 %3 %4")
      .arg(QLatin1String(texts::kRow), QString(QLatin1Char(RowLetter(CellRow[index_]))),
           QLatin1String(texts::kColumn), QString::number(CellCol[index_] + 1));
}

QString BoardItem::CellState() const {
  const MainWindow& main = board_.Main();
  const Label& cell = main.Grid(index_);
  const QString digit = QString::fromStdString(cell.caption);
  if (!digit.isEmpty())
    return ShowsGiven(cell) ? QLatin1String(texts::kGiven) + QLatin1Char(' ') + digit : digit;
  QStringList marks;
  for (int d = 1; d <= 9; ++d) {
    if (main.Mark(d)(index_).visible) marks << QString::number(d);
  }
  QString state = QLatin1String(texts::kEmpty);
  if (!marks.isEmpty()) state += QStringLiteral(", %1 %2").arg(QLatin1String(texts::kMarks), marks.join(' '));
  return state;
}

QString BoardItem::SpokenName() const {
  const QString caption = QString::fromStdString(GetControl().caption);
  switch (kind_) {
    case Kind::Cell:
      return CellName() + QStringLiteral(", ") + CellState();
    case Kind::Row:
      return QStringLiteral("%1 %2").arg(QLatin1String(texts::kRow), caption);
    case Kind::Column:
      return QStringLiteral("%1 %2").arg(QLatin1String(texts::kColumn), caption);
    case Kind::Mark:
      break;
  }
  return QStringLiteral("%1 %2, %3").arg(QLatin1String(texts::kMark), caption, CellName());
}

std::vector<std::unique_ptr<BoardItem>> MakeBoardItems(BoardWidget& board) {
  QAccessible::installFactory(MakeBoardInterface);
  std::vector<std::unique_ptr<BoardItem>> items;
  const auto add = [&](Kind kind, int count, int digit) {
    for (int i = 0; i < count; ++i) items.push_back(std::make_unique<BoardItem>(board, kind, i, digit));
  };
  add(Kind::Cell, kCells, 0);
  for (int digit = 1; digit <= 9; ++digit) add(Kind::Mark, kCells, digit);
  add(Kind::Row, kUnitSize, 0);
  add(Kind::Column, kUnitSize, 0);
  return items;
}

void TellNameChanged(BoardItem& item) {
  if (!QAccessible::isActive()) return;
  QAccessibleEvent event(&item, QAccessible::NameChanged);
  QAccessible::updateAccessibility(&event);
}

}  // namespace kestrel
