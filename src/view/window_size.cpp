// SPDX-License-Identifier: MIT
#include "view/window_size.h"

#include <algorithm>

namespace kestrel {

namespace {

constexpr int kSmallest = 50;
constexpr int kLargestUnasked = 150;
constexpr double kComfort = 0.9;

int LargestWithin(int limit, double room) {
  int largest = kSmallest;
  for (const int size : kWindowSizes) {
    if (size <= limit && size <= room * kDesignSize) largest = size;
  }
  return largest;
}

}  // namespace

bool IsWindowSize(int size) {
  return std::ranges::find(kWindowSizes, size) != kWindowSizes.end();
}

int NextWindowSize(int size, int direction) {
  const auto above = std::ranges::upper_bound(kWindowSizes, size);
  if (direction > 0) return above == kWindowSizes.end() ? size : *above;
  const auto from = std::ranges::lower_bound(kWindowSizes, size);
  return from == kWindowSizes.begin() ? size : *(from - 1);
}

int ComfortableSize(double room) {
  const int comfortable = LargestWithin(kLargestUnasked, room * kComfort);
  return comfortable > kDesignSize ? comfortable : LargestWithin(kDesignSize, room);
}

int FittingSize(int chosen, double room) {
  return LargestWithin(chosen, room);
}

}  // namespace kestrel
