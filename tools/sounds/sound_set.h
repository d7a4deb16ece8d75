// SPDX-License-Identifier: MIT
// The ten sounds of the game. Used by the program that makes the sounds and by its test.
#pragma once

#include <array>
#include <string_view>
#include <vector>

#include "sounds/wave_file.h"

namespace kestrel::sounds {

struct NamedSound {
  std::string_view file;  // "Applause.wav"
  Wave wave;
};

inline constexpr int kSounds = 10;

// All ten, in the order of the sound numbers 0..9. The same bytes at every call and on every machine.
std::array<NamedSound, kSounds> MakeSounds();

}  // namespace kestrel::sounds
