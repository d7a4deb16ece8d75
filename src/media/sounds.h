// SPDX-License-Identifier: MIT
// The sounds of the game's events. Used by the main window.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "forms/sound_device.h"

namespace kestrel {

enum class Sound : std::uint8_t {
  Applause,   // puzzle completed
  Discard,    // candidate discarded, restart
  Assign,     // digit assigned
  ResetCell,  // cell reset
  Solution,   // solution shown
  Label,      // header selected
  UndoRedo,   // step undone or redone
  Hint,       // hint given
  Error,      // hint asked on a board with a mistake
  Giggle      // no event plays it
};

inline constexpr std::size_t kSounds = 10;

// The wave files in the program folder, by sound number.
inline constexpr std::array<std::string_view, kSounds> kSoundFiles = {
    "Applause.wav", "Discard.wav",  "Assign.wav", "ResetCell.wav", "Solution.wav",
    "Label.wav",    "UndoRedo.wav", "Hint.wav",   "Error.wav",     "Giggle.wav"};

class Sounds {
 public:
  // The device must outlive this object.
  explicit Sounds(SoundDevice& device) : device_(device) {}

  // Opens the device and loads the ten files from the program folder (with its backslash). Without a device
  // nothing is loaded.
  void Init_Sound(std::string_view program_folder);

  // Starts a sound, when the player wants sounds, the device was opened and the file was loaded.
  void Speel(Sound sound);

  [[nodiscard]] bool SoundAvailable() const { return sound_available_; }

  bool SoundOn = false;  // the player's choice; stays as it is when there is no device

 private:
  SoundDevice& device_;
  bool sound_available_ = false;
  std::array<std::int32_t, kSounds> sound_ids_{};  // negative: the file could not be loaded
};

}  // namespace kestrel
