// SPDX-License-Identifier: MIT
#include "ui/script/kept_lines.h"

#include <algorithm>

namespace kestrel {

void KeptLines::Keep(unsigned yield, std::string_view line, int line_number) {
  kept_.push_back({.line = std::string(line), .line_number = line_number, .yield = yield, .left = yield});
}

void KeptLines::BeginLine(int depth) {
  for (Kept& kept : kept_) {
    if (kept.depth == 0) kept.depth = depth;
  }
}

void KeptLines::EndLine(int depth) {
  const auto ended = [depth](const Kept& kept) { return kept.depth >= depth; };
  for (const Kept& kept : kept_) {
    if (ended(kept)) transcript_.Line("unused at " + std::to_string(kept.yield));
  }
  std::erase_if(kept_, ended);
}

bool KeptLines::KeepGoing() {
  // Taken out first: a line that is carried out may ask this yield again, keep lines and end others.
  std::vector<Kept> due;
  for (Kept& kept : kept_) {
    if (kept.depth > 0 && --kept.left == 0) due.push_back(kept);
  }
  std::erase_if(kept_, [](const Kept& kept) { return kept.left == 0; });
  for (const Kept& kept : due) {
    if (!carry_out_(kept.line, kept.line_number)) return false;
  }
  return inner_.KeepGoing();
}

}  // namespace kestrel
