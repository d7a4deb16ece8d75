// SPDX-License-Identifier: MIT
// Sounds as 16-bit PCM wave files.
#include "sounds/wave_file.h"

#include <string_view>

namespace kestrel::sounds {
namespace {

//   0 "RIFF"  4 bytes that follow  8 "WAVE"
//  12 "fmt "  16 size 16  20 format 1 (PCM)  22 channels  24 rate  28 bytes a second  32 frame size  34 bits
//  36 "data"  40 bytes of samples  44 samples
constexpr std::size_t kHeaderBytes = 44;
constexpr int kBits = 16;

void Put(std::vector<std::uint8_t>& bytes, std::string_view tag) {
  bytes.insert(bytes.end(), tag.begin(), tag.end());
}

void Put(std::vector<std::uint8_t>& bytes, std::uint32_t value, int size) {
  for (int i = 0; i < size; ++i) bytes.push_back(static_cast<std::uint8_t>(value >> (8U * i)));
}

}  // namespace

std::vector<std::uint8_t> EncodeWave(const Wave& wave) {
  const auto data_bytes = static_cast<std::uint32_t>(2 * wave.samples.size());
  const auto channels = static_cast<std::uint32_t>(wave.channels);
  const auto rate = static_cast<std::uint32_t>(wave.sample_rate);
  std::vector<std::uint8_t> bytes;
  bytes.reserve(kHeaderBytes + data_bytes);
  Put(bytes, "RIFF");
  Put(bytes, data_bytes + kHeaderBytes - 8, 4);
  Put(bytes, "WAVEfmt ");
  Put(bytes, 16, 4);
  Put(bytes, 1, 2);
  Put(bytes, channels, 2);
  Put(bytes, rate, 4);
  Put(bytes, rate * channels * kBits / 8, 4);
  Put(bytes, channels * kBits / 8, 2);
  Put(bytes, kBits, 2);
  Put(bytes, "data");
  Put(bytes, data_bytes, 4);
  for (const std::int16_t sample : wave.samples) Put(bytes, static_cast<std::uint16_t>(sample), 2);
  return bytes;
}

}  // namespace kestrel::sounds
