// SPDX-License-Identifier: MIT
// The keys of the main window that desktops have in common. Used by the screen.
#pragma once

#include "ui/qt/mirror.h"

namespace kestrel {

// Makes Ctrl+Z, Ctrl+Y, Ctrl+Shift+Z, Ctrl+P and F1 press their buttons; once.
void InstallShortcuts(Mirror& mirror);

}  // namespace kestrel
