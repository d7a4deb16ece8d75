// SPDX-License-Identifier: MIT
// Sounds as 16-bit PCM wave files. Used by the program that makes the sounds and by its test.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace kestrel::sounds {

inline constexpr int kSampleRate = 44100;

struct Wave {
  int channels = 1;                   // 1 or 2
  int sample_rate = kSampleRate;      // samples a second, per channel
  std::vector<std::int16_t> samples;  // channel by channel within one instant

  // How many instants there are.
  [[nodiscard]] std::size_t Frames() const { return samples.size() / static_cast<std::size_t>(channels); }
  [[nodiscard]] double Seconds() const { return static_cast<double>(Frames()) / sample_rate; }
};

// Writes the wave into a file of that name, over an old one; false when that fails.
bool WriteWaveFile(const std::string& path, const Wave& wave);

}  // namespace kestrel::sounds
