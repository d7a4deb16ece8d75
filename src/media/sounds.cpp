// SPDX-License-Identifier: MIT
#include "media/sounds.h"

#include <cstdint>
#include <string>

namespace kestrel {

void Sounds::Init_Sound(std::string_view program_folder) {
  sound_available_ = device_.Open();
  if (!sound_available_) return;
  for (std::size_t n = 0; n < kSounds; ++n) {
    sound_ids_[n] = device_.Load(std::string(program_folder) + std::string(kSoundFiles[n]));
  }
}

void Sounds::Speel(Sound sound) {
  const std::int32_t id = sound_ids_[static_cast<std::size_t>(sound)];
  if (sound_available_ && SoundOn && id >= 0) device_.Play(id);
}

}  // namespace kestrel
