// SPDX-License-Identifier: MIT
// The sizes in which the windows can be shown, in per cent of the design. Used by the window's start and its
// View menu.
#pragma once

#include <array>

namespace kestrel {

inline constexpr std::array<int, 5> kWindowSizes = {75, 100, 125, 150, 200};
inline constexpr int kDesignSize = 100;
inline constexpr int kNoSize = 0;  // never chosen

// True for the sizes that can be chosen.
bool IsWindowSize(int size);

// The next larger (direction 1) or smaller (-1) size that can be chosen; `size` itself at the end.
int NextWindowSize(int size, int direction);

// The sizes for a screen: `room` is how many times larger it is than the window at 100 per cent with its
// title bar, in the tighter direction.
//
// For someone who never chose: the largest size up to 150 that leaves a tenth of the screen free, 100 where
// that just fits.
int ComfortableSize(double room);
// The chosen size where it fits, else the largest that does; may then be 50, which is also the least.
int FittingSize(int chosen, double room);

}  // namespace kestrel
