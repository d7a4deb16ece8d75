// SPDX-License-Identifier: MIT
// The host's clock.
#include "host/host_clock.h"

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <ctime>

namespace kestrel {

namespace {

using std::chrono::milliseconds;

// Midnight when the host cannot tell: played time is a difference and stays right.
milliseconds LocalTimeOfDay() {
  const auto now = std::chrono::system_clock::now();
  const std::time_t seconds = std::chrono::system_clock::to_time_t(now);
  std::tm local{};
  if (localtime_r(&seconds, &local) == nullptr) return milliseconds(0);
  const auto fraction = std::chrono::duration_cast<milliseconds>(now.time_since_epoch()) % 1000;
  return std::chrono::seconds(local.tm_hour * 3600 + local.tm_min * 60 + local.tm_sec) + fraction;
}

}  // namespace

HostClock::HostClock() : start_(LocalTimeOfDay()), started_(std::chrono::steady_clock::now()) {
}

int HostClock::SecondsOfDay() {
  const auto passed = std::chrono::steady_clock::now() - started_;
  return SecondAfter(start_, std::chrono::duration_cast<milliseconds>(passed));
}

int HostClock::SecondAfter(milliseconds start, milliseconds passed) {
  constexpr std::chrono::hours kDay(24);
  return static_cast<int>(std::chrono::duration_cast<std::chrono::seconds>((start + passed) % kDay).count());
}

std::uint64_t ClockSeeds::NextSeed() {
  const auto since_epoch = std::chrono::system_clock::now().time_since_epoch();
  const auto now = std::chrono::duration_cast<std::chrono::nanoseconds>(since_epoch).count();
  last_ = std::max(static_cast<std::uint64_t>(now), last_ + 1);
  std::uint64_t mixed = last_;  // the mixing maps different times to different seeds
  return SplitMix64(mixed);
}

}  // namespace kestrel
