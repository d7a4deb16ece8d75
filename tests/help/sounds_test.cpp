// SPDX-License-Identifier: MIT
// The ten sound files as they are shipped: made again they are the same bytes; length, level and clean ends.
#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <numeric>
#include <sstream>
#include <string>

#include "sounds/level.h"
#include "sounds/sound_set.h"
#include "support/temp_folder.h"

namespace kestrel::sounds {
namespace {

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

TEST(Sounds, MadeAgainTheyAreTheSameBytesAndKeepLengthAndLevel) {
  const auto sounds = MakeSounds();
  const TempFolder folder;
  for (int n = 0; n < kSounds; ++n) {
    const Limits& limits = kShipped[n];
    const Wave& wave = sounds[n].wave;
    SCOPED_TRACE(limits.file);
    EXPECT_EQ(sounds[n].file, limits.file);
    std::ostringstream shipped;
    shipped
        << std::ifstream(std::string(KESTREL_SOURCE_DIR "/data/") + limits.file, std::ios::binary).rdbuf();
    ASSERT_TRUE(WriteWaveFile(folder.Path(limits.file), wave));
    EXPECT_TRUE(folder.Get(limits.file) == shipped.str());
    EXPECT_GE(wave.Seconds(), limits.least_seconds);
    EXPECT_LE(wave.Seconds(), limits.most_seconds);
    EXPECT_LT(PeakLevel(wave), -6.0);
    EXPECT_NEAR(Loudness(wave), limits.loudness, 0.1);
    // Nothing to click at the ends, nothing to push the membrane to one side.
    EXPECT_LE(std::abs(int{wave.samples.front()}) + std::abs(int{wave.samples.back()}), 6);
    const double sum = std::accumulate(wave.samples.begin(), wave.samples.end(), 0.0);
    EXPECT_LT(std::fabs(sum / static_cast<double>(wave.samples.size())), 60);
  }
}

}  // namespace
}  // namespace kestrel::sounds
