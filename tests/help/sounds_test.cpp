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
#include <tuple>

#include "sounds/level.h"
#include "sounds/signal.h"
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
  for (int i = -200; i <= 200; ++i) {
    EXPECT_NEAR(Sine(i / 37.0), std::sin(i / 37.0 * 2 * kPi), 1e-8);
    EXPECT_NEAR(Exp2(i / 37.0) / std::exp2(i / 37.0), 1, 1e-12);
  }
}

double MiddleRms(const Signal& signal) {
  double sum = 0;
  for (std::size_t i = signal.size() / 4; i < signal.size() / 4 * 3; ++i) sum += signal[i] * signal[i];
  return std::sqrt(sum / static_cast<double>(signal.size() / 2));
}

Signal Steady(double pitch) {
  Signal signal(Samples(0.5));
  for (std::size_t i = 0; i < signal.size(); ++i)
    signal[i] = Sine(pitch * static_cast<double>(i) / kSampleRate);
  return signal;
}

// What the sounds are made of does what it says.
TEST(Synthesis, TonesFiltersAndFades) {
  // A resonance passes its own pitch unchanged and little of what lies far off.
  for (const auto& [pitch, least, most] : {std::tuple{1000.0, 0.95, 1.05}, std::tuple{4000.0, 0.0, 0.1}}) {
    Signal signal = Steady(pitch);
    const double before = MiddleRms(signal);
    Resonator resonator(1000, 100);
    for (double& sample : signal) sample = resonator.Next(sample);
    EXPECT_GE(MiddleRms(signal) / before, least) << pitch;
    EXPECT_LE(MiddleRms(signal) / before, most) << pitch;
  }
  Signal low = Steady(500);
  Signal high = Steady(8000);
  LowPass(low, 1000);
  LowPass(high, 1000);
  EXPECT_GT(MiddleRms(low), 4 * MiddleRms(high));

  // A gliding tone ends on its second pitch: count the rising zero crossings in its last stretch.
  Signal glide;
  AddTone(glide, {.start = 0.1, .pitch = 400, .end_pitch = 800, .glide = 0.2, .half_life = 0.2});
  EXPECT_EQ(MiddleRms(Signal(glide.begin(), glide.begin() + 4000)), 0);  // silence before the start
  int crossings = 0;
  for (std::size_t i = Samples(0.4); i < Samples(0.6); ++i)
    crossings += glide[i - 1] < 0 && glide[i] >= 0 ? 1 : 0;
  EXPECT_NEAR(crossings, 160, 1);
  // Half a life later and a whole one later: levels 1, 0.5.
  const auto loudest = [&](double from, double to) {
    return *std::max_element(glide.begin() + static_cast<std::ptrdiff_t>(Samples(from)),
                             glide.begin() + static_cast<std::ptrdiff_t>(Samples(to)));
  };
  EXPECT_NEAR(loudest(0.402, 0.405) / loudest(0.602, 0.605), 2, 0.05);

  Signal ones(1000, 1.0);
  FadeEnds(ones, 0.005, 0.005);
  EXPECT_NEAR(ones.front(), 0, 1e-9);
  EXPECT_NEAR(ones.back(), 0, 1e-9);
  EXPECT_EQ(ones[500], 1);
  EXPECT_TRUE(std::is_sorted(ones.begin(), ones.begin() + 500));

  // Two seats hear the same sound at once and different reflections after it.
  Signal left(100, 1.0);
  Signal right = left;
  AddRoom(left, 0.3, 0);
  AddRoom(right, 0.3, 1);
  EXPECT_TRUE(std::equal(left.begin(), left.begin() + 100, right.begin()));
  EXPECT_NE(left, right);
  EXPECT_GT(left.size(), 10000U);
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
