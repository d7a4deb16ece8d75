// SPDX-License-Identifier: MIT
// The program's windows for assistive tools. Used by the front end.
#pragma once

class QWidget;

namespace kestrel {

// Makes Qt describe the forms as the windows and dialogs that they are, without what is only there while the
// program starts.
void InstallWindowAccess();

// Leaves out a widget whose text is part of what another one is read as.
void LeaveToAnother(QWidget& widget);

}  // namespace kestrel
