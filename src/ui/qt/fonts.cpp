// SPDX-License-Identifier: MIT
#include "ui/qt/fonts.h"

#include <QStringList>
#include <cmath>

namespace kestrel {

void InstallFontSubstitutes() {
  const QStringList sans = {"Liberation Sans", "Arimo", "Nimbus Sans", "DejaVu Sans"};
  QFont::insertSubstitutions("Arial", QStringList{"Helvetica"} + sans);
  QFont::insertSubstitutions("MS Sans Serif", QStringList{"Microsoft Sans Serif"} + sans);
  QFont::insertSubstitutions("Courier New",
                             {"Liberation Mono", "Cousine", "Nimbus Mono PS", "DejaVu Sans Mono"});
  QFont::insertSubstitutions("Times New Roman",
                             {"Liberation Serif", "Tinos", "Nimbus Roman", "DejaVu Serif"});
}

QFont ToQFont(const Font& font, double ratio) {
  QFont result(QString::fromUtf8(font.family.data(), static_cast<qsizetype>(font.family.size())));
  // Halves go down: a text must not grow more than its control.
  result.setPixelSize(static_cast<int>(std::ceil(font.size * 96 / 72 * ratio - 0.5)));
  result.setBold(font.bold);
  if (font.family == "Courier New") {
    result.setStyleHint(QFont::Monospace);
  } else {
    result.setStyleHint(font.family == "Times New Roman" ? QFont::Serif : QFont::SansSerif);
  }
  return result;
}

}  // namespace kestrel
