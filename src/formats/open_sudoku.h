// SPDX-License-Identifier: MIT
// OpenSudoku's XML files. Used by the puzzle stream.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "formats/grid_block.h"

namespace kestrel {

// The games of a document that starts at line `first_line` of its file. One that is broken gives one error.
std::vector<FoundPuzzle> ReadOpenSudoku(const std::string& document, std::uint64_t first_line);

}  // namespace kestrel
