// SPDX-License-Identifier: MIT
// The board for assistive tools: every cell, mark and header as an object of its own, with name and actions,
// so that the game can be played through the accessibility interface. Used by the board widget.
#pragma once

#include <QObject>
#include <cstdint>
#include <memory>
#include <vector>

#include "ui/qt/board_painter.h"

namespace kestrel {

class BoardWidget;

// Stands for one control that the board widget paints; its object name is the control's name.
class BoardItem final : public QObject {
 public:
  enum class Kind : std::uint8_t { Cell, Mark, Row, Column };

  BoardItem(BoardWidget& board, Kind kind, int index, int digit);

  [[nodiscard]] BoardWidget& Board() const { return board_; }
  [[nodiscard]] Kind GetKind() const { return kind_; }
  [[nodiscard]] int Index() const { return index_; }  // cell, row or column
  [[nodiscard]] int Digit() const { return digit_; }  // of a mark
  [[nodiscard]] const Label& GetControl() const;
  [[nodiscard]] BoardSpot Spot() const;  // of a mark or header

  // "row C column 7, empty, marks 2 6 8"; "5 in row C column 7"; "row C"
  [[nodiscard]] QString SpokenName() const;

 private:
  [[nodiscard]] QString CellName() const;  // "row C column 7"
  [[nodiscard]] QString CellState() const;

  BoardWidget& board_;
  Kind kind_;
  int index_;
  int digit_;
};

// All items of a board, in the order that BoardWidget::Items() promises. Also makes Qt able to describe them.
std::vector<std::unique_ptr<BoardItem>> MakeBoardItems(BoardWidget& board);

// Tells assistive tools, if any listen, that an item reads differently now.
void TellNameChanged(BoardItem& item);

}  // namespace kestrel
