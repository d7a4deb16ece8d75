// SPDX-License-Identifier: MIT
// Lengths of windows that are laid out by Qt.
#pragma once

#include "forms/control.h"
#include "ui/qt/look.h"

namespace kestrel {

// Pixels of 96 dpi at the present size.
inline int Scaled(int pixels) {
  return Logical(1.0 * pixels * kTwipsPerPixel);
}

}  // namespace kestrel
