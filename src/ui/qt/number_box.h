// SPDX-License-Identifier: MIT
// A box that asks for a text, and for a puzzle's number with the map of its level beside the question. Used by the
// asker.
#pragma once

#include <QDialog>
#include <QLineEdit>
#include <string>

#include "forms/asker.h"
#include "players/records.h"

namespace kestrel {

class NumberBox final : public QDialog {
 public:
  NumberBox(const InputBox& box, QWidget* parent);
  // A click in the map fills in the number; the question is answered by the box's own buttons.
  void ShowMap(const LevelRecords& records, int level);
  [[nodiscard]] std::string Answer() const { return field_->text().toStdString(); }

 private:
  QLineEdit* field_;
};

}  // namespace kestrel
