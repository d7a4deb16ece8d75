// SPDX-License-Identifier: MIT
// Between the game's UTF-8 texts and Qt's. Used throughout the Qt front end.
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace kestrel {

inline QString ToQString(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// A caption with "&" before its mnemonic letter. A caption that has an "&" of its own stays as it is.
inline QString WithMnemonic(std::string_view caption, char mnemonic) {
  QString text = ToQString(caption);
  if (mnemonic == 0 || text.contains(QLatin1Char('&'))) return text;
  const qsizetype at = text.indexOf(QLatin1Char(mnemonic));
  return at < 0 ? text : text.insert(at, QLatin1Char('&'));
}

// The caption as it is read: without the "&".
inline QString WithoutMnemonic(std::string_view caption) {
  return ToQString(caption).remove(QLatin1Char('&'));
}

}  // namespace kestrel
