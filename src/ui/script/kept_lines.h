// SPDX-License-Identifier: MIT
// The lines that "at" keeps: clicks that wait until a computation lets events in. Used by the script runner.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/yield.h"
#include "ui/memory/transcript.h"

namespace kestrel {

// Stands between the game and the yield underneath. Lines are worked off inside each other, because a line
// may open a box to which the next lines go; each kept line belongs to the line that it was kept for, and
// counts the yields from that line's beginning.
//
//    at 2 press A      waits
//    press B           depth 1: begins; 1st yield, 2nd yield: A is pressed ... ends
class KeptLines final : public Yield {
 public:
  // Carries a kept line out; false when it is no good, which stops the work that yields.
  using CarryOut = std::function<bool(const std::string& line, int line_number)>;

  // References must outlive this object.
  KeptLines(Yield& inner, Transcript& transcript, CarryOut carry_out)
      : inner_(inner), transcript_(transcript), carry_out_(std::move(carry_out)) {}

  // Keeps a line for the `yield`-th yield (from 1) of the next line that begins.
  void Keep(unsigned yield, std::string_view line, int line_number);

  // A line begins, `depth` (from 1) lines deep. The ones kept so far are its own.
  void BeginLine(int depth);
  // The lines from that depth on have ended; what they kept and never reached is reported.
  void EndLine(int depth);

  // Carries out what waits for this yield, in the order kept, then asks the yield underneath.
  [[nodiscard]] bool KeepGoing() override;

 private:
  struct Kept {
    std::string line;
    int line_number = 0;
    unsigned yield = 0;
    unsigned left = 0;  // yields to come, this one included
    int depth = 0;      // of the line that it belongs to; 0: not begun
  };

  Yield& inner_;
  Transcript& transcript_;
  CarryOut carry_out_;
  std::vector<Kept> kept_;
};

}  // namespace kestrel
