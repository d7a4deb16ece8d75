// SPDX-License-Identifier: MIT
// Best times against scores, one sign a puzzle. Used by the records window.
#pragma once

#include <QIcon>
#include <QWidget>

#include "players/records.h"

namespace kestrel {

class RecordsPlot final : public QWidget {
 public:
  explicit RecordsPlot(QWidget* parent);
  void Show(const LevelRecords& records);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  LevelRecords records_;
};

inline constexpr int kHolderSign = 16;  // pixels of 96 dpi

// The sign of the holder in that place, from 0: shape and colour, so that neither has to be seen alone.
[[nodiscard]] QIcon HolderSign(const QPalette& palette, int place);

}  // namespace kestrel
