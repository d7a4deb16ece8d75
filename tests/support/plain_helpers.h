// SPDX-License-Identifier: MIT
// Small helpers of the plain solver's two sources.
#pragma once

#include <algorithm>
#include <functional>
#include <vector>

namespace kestrel::plain {

inline int Row(int cell) {
  return cell / 9;
}
inline int Col(int cell) {
  return cell % 9;
}
inline int Box(int cell) {
  return 3 * (cell / 27) + (cell % 9) / 3;
}
inline int Band(int cell) {
  return cell / 27;
}
inline int Stack(int cell) {
  return cell % 9 / 3;
}

// Calls `use` with every ascending combination of `size` numbers first..last, in lexicographic order, until
// it returns true; returns whether it did.
inline bool Combinations(int first, int last, int size,
                         const std::function<bool(const std::vector<int>&)>& use, std::vector<int>& chosen) {
  if (static_cast<int>(chosen.size()) == size) return use(chosen);
  for (int next = first; next <= last; ++next) {
    chosen.push_back(next);
    if (Combinations(next + 1, last, size, use, chosen)) return true;
    chosen.pop_back();
  }
  return false;
}
inline bool Combinations(int first, int last, int size,
                         const std::function<bool(const std::vector<int>&)>& use) {
  std::vector<int> chosen;
  return Combinations(first, last, size, use, chosen);
}

inline bool Contains(const std::vector<int>& list, int value) {
  return std::find(list.begin(), list.end(), value) != list.end();
}

}  // namespace kestrel::plain
