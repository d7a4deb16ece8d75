// SPDX-License-Identifier: MIT
// The program's random numbers. Used by the generator.
#pragma once

#include <array>
#include <bit>
#include <cstdint>

namespace kestrel {

// One step of SplitMix64 (Steele, Lea, Flood 2014): advances `state` and returns 64 well mixed bits.
constexpr std::uint64_t SplitMix64(std::uint64_t& state) {
  state += 0x9E3779B97F4A7C15ULL;
  std::uint64_t z = state;
  z = (z ^ (z >> 30U)) * 0xBF58476D1CE4E5B9ULL;
  z = (z ^ (z >> 27U)) * 0x94D049BB133111EBULL;
  return z ^ (z >> 31U);
}

// xoshiro256** 1.0 (Blackman, Vigna 2018): the same numbers from the same seed on every compiler and library.
class RandomSource {
 public:
  constexpr explicit RandomSource(std::uint64_t seed) { Seed(seed); }

  // Starts the sequence that belongs to `seed`; every value is allowed.
  constexpr void Seed(std::uint64_t seed) {
    for (std::uint64_t& word : state_) word = SplitMix64(seed);
  }

  // 64 uniform bits.
  constexpr std::uint64_t NextBits() {
    const std::uint64_t result = std::rotl(state_[1] * 5, 7) * 9;
    const std::uint64_t shifted = state_[1] << 17U;
    state_[2] ^= state_[0];
    state_[3] ^= state_[1];
    state_[1] ^= state_[2];
    state_[0] ^= state_[3];
    state_[2] ^= shifted;
    state_[3] = std::rotl(state_[3], 45);
    return result;
  }

  // A uniform value in [0, 1) with 53 random bits.
  constexpr double Next() { return static_cast<double>(NextBits() >> 11U) * 0x1.0p-53; }

  // A uniform position 0..n-1: the integer part of n times Next().
  constexpr int Below(int n) { return static_cast<int>(static_cast<double>(n) * Next()); }

 private:
  std::array<std::uint64_t, 4> state_{};
};

// Where a generator gets its seeds: from the clock in the game, from a number given by hand for repeatable
// work.
class SeedSource {
 public:
  SeedSource() = default;
  SeedSource(const SeedSource&) = delete;
  SeedSource& operator=(const SeedSource&) = delete;
  virtual ~SeedSource() = default;
  // A new seed at every call.
  virtual std::uint64_t NextSeed() = 0;
};

// The seeds that follow from one number: the same number gives the same seeds in the same order.
class FixedSeeds final : public SeedSource {
 public:
  explicit FixedSeeds(std::uint64_t start) : state_(start) {}
  std::uint64_t NextSeed() override { return SplitMix64(state_); }

 private:
  std::uint64_t state_;
};

}  // namespace kestrel
