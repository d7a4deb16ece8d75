// SPDX-License-Identifier: MIT
// The fonts that the controls name, and what stands in for them. Used by everything that paints or prints.
#pragma once

#include <QFont>

#include "forms/control.h"

namespace kestrel {

// Tells Qt which installed fonts to take for those that the controls name: families with the same widths,
// so that texts fit whether or not the original is there. Once, before the first window.
void InstallFontSubstitutes();

// The font at `ratio` device pixels per pixel of 96 dpi, in whole pixels: 8.25 points are 11 pixels at
// ratio 1. The desktop's own idea of dots per inch is left out on purpose, for the places of the controls do
// not know it either.
QFont ToQFont(const Font& font, double ratio);

}  // namespace kestrel
