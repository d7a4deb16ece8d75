// SPDX-License-Identifier: MIT
// The queue that prints go to, as the machine's print service has it. Used by the printer.
#pragma once

#include <QString>

namespace kestrel {

struct PrintQueue {
  QString name;        // empty: the machine has no printer at all
  bool ready = false;  // takes jobs, and is not stopped
};

// The standard printer's queue; where none is the standard, the first.
[[nodiscard]] PrintQueue FindPrintQueue();

}  // namespace kestrel
