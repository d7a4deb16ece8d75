// SPDX-License-Identifier: MIT
// The main window's settings: sounds, chosen level, last puzzles. Written whenever they change.
#pragma once

#include "core/settings.h"
#include "forms/main_window.h"
#include "game/choices.h"
#include "media/sounds.h"

namespace kestrel {

// Reads "Sounds" and "Level" into the choices and their controls; choosing the level saves both, as a click
// on it does. Values that make no sense count as sounds on and level 2.
void LoadSettings(Choices& choices, Sounds& sounds, MainWindow& main, Settings& settings);

// The last puzzle opened in each level; numbers outside 0..100 count as 0, none.
void LoadLastPuzzles(Choices& choices, Settings& settings);
void SaveLastPuzzles(const Choices& choices, Settings& settings);

// A click on a level: the open puzzle stays until another one is opened.
void SelectLevel(Choices& choices, int level, const Sounds& sounds, MainWindow& main, Settings& settings);

// A click on the sound check box, which has its new value already.
void SoundsClick(Sounds& sounds, const Choices& choices, const MainWindow& main, Settings& settings);

}  // namespace kestrel
