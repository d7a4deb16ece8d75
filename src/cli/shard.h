// SPDX-License-Identifier: MIT
// One of several equal parts of a piece of work. Used by the commands that have `--shard`.
#pragma once

#include <cstdint>

#include "cli/command.h"

namespace kestrel {

struct Shard {
  std::uint64_t number = 1;  // from 1
  std::uint64_t of = 1;

  bool IsWhole() const { return of == 1; }
  // Where this part of `total` things begins, and where the next one does. `total` is at most 10^12.
  std::uint64_t Begin(std::uint64_t total) const {
    return total / of * (number - 1) + total % of * (number - 1) / of;
  }
  std::uint64_t End(std::uint64_t total) const { return total / of * number + total % of * number / of; }
};

inline constexpr OptionSpec kShardOption{"shard", "I/N",
                                         "only the I-th of N parts; all parts in order are the whole"};

// The part that was asked for, or the whole.
Shard ShardOf(Arguments& arguments);

}  // namespace kestrel
