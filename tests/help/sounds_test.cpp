// SPDX-License-Identifier: MIT
// The ten sound files as they are shipped: made again they are the same bytes; no clicks.
#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <iterator>
#include <numeric>
#include <string>

#include "sounds/level.h"
#include "sounds/sound_set.h"
#include "support/temp_folder.h"

namespace kestrel::sounds {
namespace {

TEST(Sounds, MadeAgainTheyAreTheSameBytes) {
  const auto sounds = MakeSounds();
  const TempFolder folder;
  for (const auto& [file, wave] : sounds) {
    SCOPED_TRACE(file);
    std::ifstream shipped(KESTREL_SOURCE_DIR "/data/" + std::string(file), std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(shipped), {}};
    ASSERT_TRUE(WriteWaveFile(folder.Path(file), wave));
    EXPECT_TRUE(folder.Get(file) == bytes);
    EXPECT_LT(PeakLevel(wave), -6.0);
    // Nothing to click at the ends, nothing to push the membrane to one side.
    EXPECT_LE(std::abs(int{wave.samples.front()}) + std::abs(int{wave.samples.back()}), 6);
    const double sum = std::accumulate(wave.samples.begin(), wave.samples.end(), 0.0);
    EXPECT_LT(std::fabs(sum / static_cast<double>(wave.samples.size())), 60);
  }
}

}  // namespace
}  // namespace kestrel::sounds
