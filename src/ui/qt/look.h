// SPDX-License-Identifier: MIT
// The present look of the windows: colours and size. The application's style carries it, as Qt means it, so
// that every widget finds it and hears when it changes. Used by everything that paints.
#pragma once

#include "ui/qt/palette.h"

namespace kestrel {

struct Look {
  Scheme scheme = Scheme::Light;
  double zoom = 1;  // times the design's size, beside the screen's own factor

  [[nodiscard]] const kestrel::Colours& Colours() const { return ColoursOf(scheme); }
  friend bool operator==(const Look&, const Look&) = default;
};

// The look of the application's style; light and in the design's size where no style of ours is set.
const Look& TheLook();
inline const Colours& TheColours() {
  return TheLook().Colours();
}

// Fonts, palette and style of the application. Once before the first window, with a QApplication; then again
// whenever the look changes: all widgets get a StyleChange event.
void SetUpLook(const Look& look);

// A length or place in twips as logical pixels of the present size.
int Logical(double twips);
// And back.
int Twips(int logical);

}  // namespace kestrel
