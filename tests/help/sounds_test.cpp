// SPDX-License-Identifier: MIT
// The ten sound files as they are shipped: format, length, level, clean ends, and that they can be made
// again.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "sounds/level.h"
#include "sounds/sound_set.h"
#include "sounds/steady_math.h"

namespace kestrel::sounds {
namespace {

std::vector<std::uint8_t> ReadFile(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

struct Limits {
  const char* file;
  double least_seconds;
  double most_seconds;
  double loudness;  // decibels
};
constexpr Limits kShipped[] = {
    {"Applause.wav", 1.5, 4.0, -20},  {"Discard.wav", 0.02, 0.1499, -27}, {"Assign.wav", 0.02, 0.1499, -27},
    {"ResetCell.wav", 0.1, 0.5, -24}, {"Solution.wav", 0.5, 2.0, -24},    {"Label.wav", 0.02, 0.1, -27},
    {"UndoRedo.wav", 0.05, 0.2, -27}, {"Hint.wav", 0.3, 1.0, -24},        {"Error.wav", 0.2, 0.6, -24},
    {"Giggle.wav", 0.5, 1.5, -24},
};

Wave Shipped(const std::string& file) {
  const auto wave = DecodeWave(ReadFile(std::string(KESTREL_SOURCE_DIR) + "/data/" + file));
  EXPECT_TRUE(wave.has_value()) << file;
  return wave.value_or(Wave{});
}

TEST(Sounds, ShippedFilesKeepFormatLengthAndLevel) {
  for (const Limits& limits : kShipped) {
    SCOPED_TRACE(limits.file);
    const Wave wave = Shipped(limits.file);
    ASSERT_FALSE(wave.samples.empty());
    EXPECT_EQ(wave.sample_rate, 44100);
    EXPECT_GE(wave.Seconds(), limits.least_seconds);
    EXPECT_LE(wave.Seconds(), limits.most_seconds);
    EXPECT_LT(PeakLevel(wave), -6.0);
    EXPECT_NEAR(Loudness(wave), limits.loudness, 0.1);
    // Nothing to click at the ends, nothing to push the membrane to one side.
    const auto ends = static_cast<std::size_t>(wave.channels);
    for (std::size_t i = 0; i < ends; ++i) {
      EXPECT_LE(std::abs(int{wave.samples[i]}), 3);
      EXPECT_LE(std::abs(int{wave.samples[wave.samples.size() - 1 - i]}), 3);
    }
    double sum = 0;
    for (const std::int16_t sample : wave.samples) sum += sample;
    EXPECT_LT(std::fabs(sum / static_cast<double>(wave.samples.size())), 60);
  }
}

TEST(Sounds, MadeAgainTheyAreTheSameBytes) {
  const auto sounds = MakeSounds();
  for (int n = 0; n < kSounds; ++n) {
    EXPECT_EQ(sounds[n].file, kShipped[n].file);
    EXPECT_TRUE(EncodeWave(sounds[n].wave) ==
                ReadFile(std::string(KESTREL_SOURCE_DIR) + "/data/" + kShipped[n].file))
        << sounds[n].file;
  }
}

// Applause is many claps from all sides: it goes on for most of its length, is rough (the level moves within
// hundredths of a second), and the two ears hear different things.
TEST(Sounds, ApplauseIsManyHands) {
  const Wave wave = Shipped("Applause.wav");
  ASSERT_EQ(wave.channels, 2);
  const std::size_t block = 2 * 441;  // 10 ms
  int loud = 0;
  int jumps = 0;
  double before = 0;
  double both = 0;
  double squares = 0;
  for (std::size_t at = 0; at + block <= wave.samples.size(); at += block) {
    double energy = 0;
    for (std::size_t i = at; i < at + block; i += 2) {
      const double left = wave.samples[i];
      const double right = wave.samples[i + 1];
      energy += left * left + right * right;
      both += left * right;
      squares += 0.5 * (left * left + right * right);
    }
    loud += 10 * std::log10(energy / static_cast<double>(block) + 1) > 40 ? 1 : 0;
    jumps += energy > 2 * before ? 1 : 0;
    before = energy;
  }
  EXPECT_GT(loud, 150);
  EXPECT_GT(jumps, 40);
  EXPECT_LT(both / squares, 0.8);
}

// The measure that everything above rests on, against signals whose level is known.
TEST(Sounds, LevelsOfKnownSignals) {
  Wave tone;
  for (int i = 0; i < 44100; ++i) {
    tone.samples.push_back(static_cast<std::int16_t>(std::lround(16384 * Sine(997.0 * i / 44100))));
  }
  EXPECT_NEAR(PeakLevel(tone), -6.02, 0.01);
  // A full-scale 997 Hz tone in one channel is defined to read -3.01; the scale's own -0.691 is left out.
  EXPECT_NEAR(Loudness(tone), -6.02 - 3.01 + 0.691, 0.05);
  tone.samples.resize(4410);  // half of the window
  EXPECT_NEAR(Loudness(tone), -6.02 - 3.01 + 0.691 - 3.01, 0.1);
  EXPECT_EQ(Loudness(Wave{1, 44100, std::vector<std::int16_t>(100, 0)}), -200);
}

TEST(Sounds, AnyWrongHeaderByteIsRefused) {
  const Wave wave{2, 44100, {1, -2, 32767, -32768}};
  const std::vector<std::uint8_t> good = EncodeWave(wave);
  const auto read = DecodeWave(good);
  ASSERT_TRUE(read);
  EXPECT_EQ(read->channels, 2);
  EXPECT_EQ(read->samples, wave.samples);
  for (std::size_t i = 0; i < 44; ++i) {
    std::vector<std::uint8_t> bad = good;
    bad[i] ^= 0x41U;
    EXPECT_FALSE(DecodeWave(bad)) << "byte " << i;
  }
  for (std::size_t size = 0; size < good.size(); ++size) {
    EXPECT_FALSE(DecodeWave(std::span(good).first(size))) << size;
  }
}

}  // namespace
}  // namespace kestrel::sounds
