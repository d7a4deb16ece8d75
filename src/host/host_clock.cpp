// SPDX-License-Identifier: MIT
// The host's clock.
#include "host/host_clock.h"

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <ctime>

namespace kestrel {

int HostClock::SecondsOfDay() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  if (localtime_r(&now, &local) == nullptr) return 0;
  // A leap second reads 60; the day ends at 86399 all the same.
  return std::min(local.tm_hour * 3600 + local.tm_min * 60 + local.tm_sec, 86399);
}

std::uint64_t ClockSeeds::NextSeed() {
  const auto since_epoch = std::chrono::system_clock::now().time_since_epoch();
  const auto now = std::chrono::duration_cast<std::chrono::nanoseconds>(since_epoch).count();
  last_ = std::max(static_cast<std::uint64_t>(now), last_ + 1);
  std::uint64_t mixed = last_;  // the mixing maps different times to different seeds
  return SplitMix64(mixed);
}

}  // namespace kestrel
