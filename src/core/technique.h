// SPDX-License-Identifier: MIT
// The techniques by name, simplest first: the order of trial. What each one is stands in the technique table
// (solver), how it is told and drawn in the word table (explain). Adding an enumerator here makes both refuse to
// compile until they have a complete row for it.
#pragma once

#include <array>
#include <cstdint>

namespace kestrel {

enum class Technique : std::uint8_t {
  None,  // no technique; what a search answers that found nothing
  HiddenSingle,
  NakedSingle,
  PointingPair,
  BoxLine,
  NakedPair,
  NakedTriple,
  HiddenPair,
  NakedQuad,
  HiddenTriple,
  NakedQuint,
  XWing,
  XYWing,
  TwoStringKite,
  Skyscraper,
  Swordfish,
  MultiXWing,
  FinnedXWing,
  UniqueRectangle,
  AvoidableRectangle,
  XYZWing,
  EmptyRectangle,
  Jellyfish,
  End,
};

inline constexpr int kTechniques = static_cast<int>(Technique::End) - 1;

// The step is the technique's number as players, hints and traces have it: its place in the order, 1..22; 0 for
// None.
constexpr int StepOf(Technique technique) {
  return static_cast<int>(technique);
}
// The technique of a step; None for any other number.
constexpr Technique TechniqueOfStep(int step) {
  return step >= 1 && step <= kTechniques ? static_cast<Technique>(step) : Technique::None;
}

// The slot is its place in a SudokuRecord and in the window's list, 0..21. The technique must not be None.
constexpr int SlotOf(Technique technique) {
  return StepOf(technique) - 1;
}

// All of them in order, for loops.
inline constexpr std::array<Technique, kTechniques> kAllTechniques = [] {
  std::array<Technique, kTechniques> all{};
  for (int step = 1; step <= kTechniques; ++step) all[step - 1] = TechniqueOfStep(step);
  return all;
}();

}  // namespace kestrel
