// SPDX-License-Identifier: MIT
// Sounds as 16-bit PCM wave files (RIFF). Used by the program that makes the sounds and by the test that
// reads them back.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
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

// The bytes of a wave file: a 44-byte header and the samples, all little-endian.
std::vector<std::uint8_t> EncodeWave(const Wave& wave);

// Reads what EncodeWave writes. Nothing for any other layout, for sizes that do not agree with the length and
// for anything that is not 16-bit PCM with one or two channels.
std::optional<Wave> DecodeWave(std::span<const std::uint8_t> bytes);

}  // namespace kestrel::sounds
