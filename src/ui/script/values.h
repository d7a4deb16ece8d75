// SPDX-License-Identifier: MIT
// The named values of the game as text, for the questions "var", "board", "pencil", "steps" and "record".
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/grid.h"
#include "game/session.h"

namespace kestrel {

// The value of a name like "StockStatus" or "CurrentNumber(3)"; nothing when there is none.
std::optional<std::string> ValueText(const Session& session, std::string_view name);

// 81 masks in decimal with commas between them.
std::string PencilText(const OpenPuzzle& puzzle);

// "COUNT/TOP", then one text for each step.
std::vector<std::string> StepTexts(const StepHistory& history);

// All fields of a record.
std::string RecordText(const SudokuRecord& record);

}  // namespace kestrel
