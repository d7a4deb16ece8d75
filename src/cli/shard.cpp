// SPDX-License-Identifier: MIT
// Which part of a run this is: "2/4".
#include "cli/shard.h"

#include <cstdint>
#include <optional>
#include <string>

#include "core/text.h"

namespace kestrel {

Shard ShardOf(Arguments& arguments) {
  constexpr std::uint64_t kMost = 1'000'000;
  if (!arguments.Has(kShardOption.name)) return {};
  const std::string text = arguments.Text(kShardOption.name, "");
  const std::size_t slash = text.find('/');
  const auto number = ParseNumber<std::uint64_t>(text.substr(0, slash));
  const auto of =
      slash == std::string::npos ? std::nullopt : ParseNumber<std::uint64_t>(text.substr(slash + 1));
  if (number && of && *number >= 1 && *number <= *of && *of <= kMost) return {*number, *of};
  arguments.FailValue(kShardOption.name, "I/N with I from 1 to N, N at most 1000000");
  return {};
}

}  // namespace kestrel
