// SPDX-License-Identifier: MIT
#include "ui/qt/look.h"

#include <QApplication>
#include <QToolTip>
#include <cmath>

#include "ui/qt/fonts.h"
#include "ui/qt/style.h"

namespace kestrel {

const Look& TheLook() {
  static constexpr Look kPlain;
  const auto* style = dynamic_cast<const CalmStyle*>(QApplication::style());
  return style == nullptr ? kPlain : style->GetLook();
}

void SetUpLook(const Look& look) {
  const QPalette palette = ToQPalette(look.Colours());
  QApplication::setPalette(palette);
  QApplication::setFont(ToQFont(Font{}, look.zoom));
  QToolTip::setPalette(palette);
  QToolTip::setFont(ToQFont(Font{}, look.zoom));
  // Last: what hears of the new style finds everything else in place.
  QApplication::setStyle(new CalmStyle(look));
}

int Logical(double twips) {
  return static_cast<int>(std::lround(twips * TheLook().zoom / kTwipsPerPixel));
}

int Twips(int logical) {
  return static_cast<int>(std::lround(logical * kTwipsPerPixel / TheLook().zoom));
}

}  // namespace kestrel
