// SPDX-License-Identifier: MIT
#include "game/options.h"

#include "core/text.h"
#include "game/names.h"

namespace kestrel {

namespace {

constexpr int kDefaultLevel = 2;

// "Level03" of level 3.
std::string LastPuzzleKey(int level) {
  return std::string(names::kLevel) + TwoDigits(level);
}

// Writes "Sounds" and "Level".
void SaveSettings(const Choices& choices, const Sounds& sounds, Settings& settings) {
  (void)settings.Write(names::kOptions, names::kSounds, sounds.SoundOn ? names::kTrue : names::kFalse);
  (void)settings.Write(names::kOptions, names::kLevel, std::to_string(choices.SelectedLevel));
}

}  // namespace

void LoadSettings(Choices& choices, Sounds& sounds, MainWindow& main, Settings& settings) {
  sounds.SoundOn = settings.Read(names::kOptions, names::kSounds, names::kTrue) != names::kFalse;
  main.chkSound.value = sounds.SoundOn;
  const auto level =
      WholeNumber(settings.Read(names::kOptions, names::kLevel, std::to_string(kDefaultLevel)));
  const bool usable = level && *level >= 1 && *level <= kLevels;
  SelectLevel(choices, usable ? *level : kDefaultLevel, sounds, main, settings);
  if (!sounds.SoundAvailable()) {
    main.chkSound.value = false;
    main.chkSound.enabled = false;
  }
}

void LoadLastPuzzles(Choices& choices, Settings& settings) {
  for (int level = 1; level <= kLevels; ++level) {
    const std::string value = settings.Read(names::kLastPuzzle, LastPuzzleKey(level), "0");
    const int number = WholeNumber(value).value_or(0);
    choices.CurrentNumber(level) = number >= 0 && number <= kPuzzlesPerLevel ? number : 0;
  }
}

void SaveLastPuzzles(const Choices& choices, Settings& settings) {
  for (int level = 1; level <= kLevels; ++level) {
    (void)settings.Write(names::kLastPuzzle, LastPuzzleKey(level),
                         std::to_string(choices.CurrentNumber(level)));
  }
}

void SelectLevel(Choices& choices, int level, const Sounds& sounds, MainWindow& main, Settings& settings) {
  for (int other = 1; other <= kLevels; ++other) main.OptionType(other).value = other == level;
  choices.SelectedLevel = level;
  SaveSettings(choices, sounds, settings);
}

void SoundsClick(Sounds& sounds, const Choices& choices, const MainWindow& main, Settings& settings) {
  sounds.SoundOn = main.chkSound.value;
  SaveSettings(choices, sounds, settings);
}

}  // namespace kestrel
