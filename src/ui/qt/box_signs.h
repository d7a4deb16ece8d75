// SPDX-License-Identifier: MIT
// The signs of message boxes, in the colours of the present look. Used by the style.
#pragma once

#include <QIcon>
#include <QStyle>

namespace kestrel {

// Nothing where the style asks for another picture than a box's sign.
[[nodiscard]] QIcon BoxSign(QStyle::StandardPixmap standard);

}  // namespace kestrel
