// SPDX-License-Identifier: MIT
// The host's clock, as time of day and as a source of seeds. Used by the programs' start.
#pragma once

#include <chrono>
#include <cstdint>

#include "core/clock.h"
#include "core/random_source.h"

namespace kestrel {

// The local time of day when the program started, and from then on a clock that only ever runs forward at its
// own pace: neither a corrected system clock nor the end of summer time may cost a player a best time. It
// stands still while the machine sleeps.
class HostClock final : public Clock {
 public:
  HostClock();
  int SecondsOfDay() override;

  // The second of the day, 0..86399, when `passed` (0 or more) has gone by since `start`, a time after
  // midnight.
  static int SecondAfter(std::chrono::milliseconds start, std::chrono::milliseconds passed);

 private:
  std::chrono::milliseconds start_;  // since midnight
  std::chrono::steady_clock::time_point started_;
};

// Seeds from the time: no two calls give the same, however quickly they follow each other.
class ClockSeeds final : public SeedSource {
 public:
  std::uint64_t NextSeed() override;

 private:
  std::uint64_t last_ = 0;  // nanoseconds
};

}  // namespace kestrel
