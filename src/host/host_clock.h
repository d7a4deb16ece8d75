// SPDX-License-Identifier: MIT
// The host's clock, as time of day and as a source of seeds. Used by the programs' start.
#pragma once

#include <cstdint>

#include "core/clock.h"
#include "core/random_source.h"

namespace kestrel {

// The local time of day.
class HostClock final : public Clock {
 public:
  int SecondsOfDay() override;
};

// Seeds from the time: no two calls give the same, however quickly they follow each other.
class ClockSeeds final : public SeedSource {
 public:
  std::uint64_t NextSeed() override;

 private:
  std::uint64_t last_ = 0;  // nanoseconds
};

}  // namespace kestrel
