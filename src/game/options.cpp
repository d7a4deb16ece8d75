// SPDX-License-Identifier: MIT
#include "game/options.h"

#include "core/settings.h"
#include "core/text.h"
#include "game/names.h"

namespace kestrel {

namespace {

constexpr int kDefaultLevel = 2;

// "Level03" of level 3.
std::string LastPuzzleKey(int level) {
  return std::string(names::kLevel) + TwoDigits(level);
}

}  // namespace

void LoadSettings(Session& session) {
  Settings& settings = session.ports.settings;
  MainWindow& main = session.forms.main;
  session.sounds.SoundOn = settings.Read(names::kOptions, names::kSounds, names::kTrue) != names::kFalse;
  main.chkSound.value = session.sounds.SoundOn;
  const auto level =
      WholeNumber(settings.Read(names::kOptions, names::kLevel, std::to_string(kDefaultLevel)));
  const bool usable = level && *level >= 1 && *level <= kLevels;
  SelectLevel(session, usable ? *level : kDefaultLevel);
  if (!session.sounds.SoundAvailable()) {
    main.chkSound.value = false;
    main.chkSound.enabled = false;
  }
}

void SaveSettings(Session& session) {
  Settings& settings = session.ports.settings;
  (void)settings.Write(names::kOptions, names::kSounds,
                       session.sounds.SoundOn ? names::kTrue : names::kFalse);
  (void)settings.Write(names::kOptions, names::kLevel, std::to_string(session.SelectedLevel));
}

void LoadLastPuzzles(Session& session) {
  for (int level = 1; level <= kLevels; ++level) {
    const std::string value = session.ports.settings.Read(names::kLastPuzzle, LastPuzzleKey(level), "0");
    const int number = WholeNumber(value).value_or(0);
    session.CurrentNumber(level) = number >= 0 && number <= kPuzzlesPerLevel ? number : 0;
  }
}

void SaveLastPuzzles(Session& session) {
  for (int level = 1; level <= kLevels; ++level) {
    (void)session.ports.settings.Write(names::kLastPuzzle, LastPuzzleKey(level),
                                       std::to_string(session.CurrentNumber(level)));
  }
}

void SelectLevel(Session& session, int level) {
  for (int other = 1; other <= kLevels; ++other) session.forms.main.OptionType(other).value = other == level;
  session.SelectedLevel = level;
  SaveSettings(session);
}

void SoundsClick(Session& session) {
  session.sounds.SoundOn = session.forms.main.chkSound.value;
  SaveSettings(session);
}

}  // namespace kestrel
