// SPDX-License-Identifier: MIT
// The random numbers that must never change, and the clocks.
#include "core/random_source.h"

#include <gtest/gtest.h>

#include <set>

#include "host/host_clock.h"

namespace kestrel {
namespace {

// Puzzles are promised by seed, so these numbers are part of what users rely on.
TEST(Random, SequencesAreThoseOfThePublishedGenerators) {
  std::uint64_t state = 0;
  EXPECT_EQ(SplitMix64(state), 0xE220A8397B1DCDAFU);
  RandomSource zero(0), answer(42);
  EXPECT_EQ(zero.NextBits(), 0x99EC5F36CB75F2B4U);
  EXPECT_EQ(zero.NextBits(), 0xBF6E1F784956452AU);
  EXPECT_EQ(answer.NextBits(), 0x15780B2E0C2EC716U);
}

TEST(Random, ClockSeedsNeverRepeat) {
  ClockSeeds seeds;
  std::set<std::uint64_t> seen;
  for (int i = 0; i < 10000; ++i) EXPECT_TRUE(seen.insert(seeds.NextSeed()).second);
}

TEST(HostClock, GoesOnFromTheTimeAtItsStart) {
  using namespace std::chrono_literals;
  EXPECT_EQ(HostClock::SecondAfter(12h + 500ms, 1499ms), 43201);
  EXPECT_EQ(HostClock::SecondAfter(23h + 59min + 59s, 1s), 0);
  EXPECT_EQ(HostClock::SecondAfter(23h + 59min + 50s, 49h), 3590);
  HostClock clock;
  const std::time_t now = std::time(nullptr);
  const int expected = std::localtime(&now)->tm_hour * 3600 + std::localtime(&now)->tm_min * 60;
  EXPECT_LE((clock.SecondsOfDay() - expected + 86400) % 86400, 61);
}

}  // namespace
}  // namespace kestrel
