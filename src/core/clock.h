// SPDX-License-Identifier: MIT
// The time of day. Used by the game's clock; implemented by host/host_clock.h.
#pragma once

namespace kestrel {

class Clock {
 public:
  Clock() = default;
  Clock(const Clock&) = delete;
  Clock& operator=(const Clock&) = delete;
  virtual ~Clock() = default;

  // Whole seconds since local midnight, 0..86399.
  virtual int SecondsOfDay() = 0;
};

}  // namespace kestrel
