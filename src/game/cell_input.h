// SPDX-License-Identifier: MIT
// What a mouse release on the board does: assign or discard a digit, select a row or column. Used by Game.
#pragma once

#include <cstdint>

#include "forms/event.h"
#include "forms/main_window.h"
#include "game/choices.h"
#include "game/play.h"
#include "media/sounds.h"

namespace kestrel {

enum class HeaderKind : std::uint8_t { Row, Column };

// A release over the pencil mark of digit 1..9 in cell 0..80; x and y in twips from the mark's corner. Left
// assigns the digit; right discards the candidate at the levels where marks are candidates. Whatever
// happened, the board is then to be checked for completion.
void MarkMouseUp(Play& play, Sounds& sounds, int digit, int cell, MouseButton button, int x, int y);

// A release over a row or column header, index 0..8: selects it, or takes the selection back. Nothing else
// happens to the board.
void HeaderMouseUp(HeaderChoice& headers, MainWindow& main, Sounds& sounds, HeaderKind kind, int index,
                   MouseButton button, int x, int y);

}  // namespace kestrel
