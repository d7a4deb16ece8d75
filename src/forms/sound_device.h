// SPDX-License-Identifier: MIT
// The device that plays wave files. Used by media, implemented by every front end.
#pragma once

#include <cstdint>
#include <string_view>

namespace kestrel {

class SoundDevice {
 public:
  SoundDevice() = default;
  SoundDevice(const SoundDevice&) = delete;
  SoundDevice& operator=(const SoundDevice&) = delete;
  virtual ~SoundDevice() = default;

  // True when the device can play.
  virtual bool Open() = 0;

  // Loads a wave file, full path in the written form. The id of the sound, negative when it cannot be loaded.
  virtual std::int32_t Load(std::string_view path) = 0;

  // Starts a loaded sound and returns at once. Failures are silent.
  virtual void Play(std::int32_t id) = 0;
};

}  // namespace kestrel
