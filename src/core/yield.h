// SPDX-License-Identifier: MIT
// How long computations let the rest of the program run, and learn that they are to stop.
#pragma once

namespace kestrel {

// Asked once per step by everything that can take long. False means that the program is ending or that the
// user stopped this work: the caller returns at once and changes nothing more.
class Yield {
 public:
  Yield() = default;
  Yield(const Yield&) = delete;
  Yield& operator=(const Yield&) = delete;
  virtual ~Yield() = default;
  [[nodiscard]] virtual bool KeepGoing() = 0;
};

class NeverStop final : public Yield {
 public:
  [[nodiscard]] bool KeepGoing() override { return true; }
};

}  // namespace kestrel
