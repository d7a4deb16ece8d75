// SPDX-License-Identifier: MIT
// The 100 puzzles of a level as a map of ten by ten, shaded by best time. Used by the records window and by the
// question for a puzzle's number.
#pragma once

#include <QAbstractTableModel>
#include <QTableView>
#include <functional>

#include "players/records.h"

namespace kestrel {

// Row r, column c is puzzle 10 r + c + 1.
class RecordsModel final : public QAbstractTableModel {
 public:
  explicit RecordsModel(QObject* parent) : QAbstractTableModel(parent) {}
  // Tells the views when something has changed.
  void Show(const LevelRecords& records);
  [[nodiscard]] const LevelRecords& Records() const { return records_; }
  [[nodiscard]] static int NumberOf(const QModelIndex& index) {
    return index.row() * 10 + index.column() + 1;
  }

  int rowCount(const QModelIndex& parent) const override;
  int columnCount(const QModelIndex& parent) const override;
  // What is read aloud is also what stands at the pointer.
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  LevelRecords records_;
};

class RecordsMap final : public QTableView {
 public:
  explicit RecordsMap(QWidget* parent);
  void Show(const LevelRecords& records) { model_.Show(records); }
  // After a change of the window's size.
  void Resize();

  // A puzzle was clicked, or Enter pressed on it.
  std::function<void(int number)> on_choose;
  // A puzzle is under the pointer or has the keyboard; 0: none.
  std::function<void(int number)> on_point;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

 private:
  RecordsModel model_{this};
};

// The ground of a time of that merit, 0..1, on which the palette's text can be read.
[[nodiscard]] QColor ShadeOf(const QPalette& palette, double merit);

}  // namespace kestrel
