// SPDX-License-Identifier: MIT
// The main window's settings: sounds, chosen level, last puzzles. Written whenever they change.
#pragma once

#include "game/session.h"

namespace kestrel {

// Reads "Sounds" and "Level" into the session and its controls; choosing the level saves both, as a click on
// it does. Values that make no sense count as sounds on and level 2.
void LoadSettings(Session& session);
// Writes "Sounds" and "Level".
void SaveSettings(Session& session);

// The last puzzle opened in each level; numbers outside 0..100 count as 0, none.
void LoadLastPuzzles(Session& session);
void SaveLastPuzzles(Session& session);

// A click on a level: the open puzzle stays until another one is opened.
void SelectLevel(Session& session, int level);

// A click on the sound check box, which has its new value already.
void SoundsClick(Session& session);

}  // namespace kestrel
