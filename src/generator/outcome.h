// SPDX-License-Identifier: MIT
// How the generator's calls end. A call that was stopped says so and never makes an answer up.
#pragma once

#include <cstdint>

namespace kestrel {

enum class Making : std::uint8_t { Made, Stopped };

enum class Uniqueness : std::uint8_t {
  Unique,   // no second solution: exactly one, or none at all
  Several,  // two different solutions were found
  Stopped,
};

}  // namespace kestrel
