// SPDX-License-Identifier: MIT
// Sounds as 16-bit PCM wave files.
#include "sounds/wave_file.h"

#include <algorithm>
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

std::uint32_t Get(std::span<const std::uint8_t> bytes, std::size_t at, std::size_t size) {
  std::uint32_t value = 0;
  for (std::size_t i = 0; i < size; ++i) value |= std::uint32_t{bytes[at + i]} << (8U * i);
  return value;
}

bool HasTag(std::span<const std::uint8_t> bytes, std::size_t at, std::string_view tag) {
  return std::equal(tag.begin(), tag.end(), bytes.begin() + static_cast<std::ptrdiff_t>(at));
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

std::optional<Wave> DecodeWave(std::span<const std::uint8_t> bytes) {
  if (bytes.size() < kHeaderBytes || !HasTag(bytes, 0, "RIFF") || !HasTag(bytes, 8, "WAVEfmt ") ||
      !HasTag(bytes, 36, "data")) {
    return std::nullopt;
  }
  const std::uint32_t data_bytes = Get(bytes, 40, 4);
  const std::uint32_t channels = Get(bytes, 22, 2);
  const std::uint32_t rate = Get(bytes, 24, 4);
  const bool sizes_agree = Get(bytes, 4, 4) == bytes.size() - 8 && data_bytes == bytes.size() - kHeaderBytes;
  const bool is_pcm16 = Get(bytes, 16, 4) == 16 && Get(bytes, 20, 2) == 1 && Get(bytes, 34, 2) == kBits;
  if (!sizes_agree || !is_pcm16 || channels < 1 || channels > 2 || data_bytes % (2 * channels) != 0 ||
      Get(bytes, 32, 2) != 2 * channels || Get(bytes, 28, 4) != rate * 2 * channels) {
    return std::nullopt;
  }
  Wave wave{static_cast<int>(channels), static_cast<int>(rate), {}};
  wave.samples.reserve(data_bytes / 2);
  for (std::size_t at = kHeaderBytes; at < bytes.size(); at += 2) {
    wave.samples.push_back(static_cast<std::int16_t>(Get(bytes, at, 2)));
  }
  return wave;
}

}  // namespace kestrel::sounds
