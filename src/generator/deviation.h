// SPDX-License-Identifier: MIT
// The search for a grid that differs from the reference. Used by the fast form of the generator.
#pragma once

#include <array>
#include <cstdint>

#include "core/grid.h"
#include "core/yield.h"
#include "generator/alternatives.h"

namespace kestrel {

// A digit in a cell, other than the reference's.
struct OtherDigit {
  int cell;
  int index;  // the digit, less one
};

// A grid in the making that departs from the reference. Constraints that the reference digit can no longer
// meet are in need: they must be met by one of their alternatives. When none is in need, the grid is
// complete, however much of it is still open: the reference digits of all that is open fit together and fit
// to what has been placed. So a difference of a few cells is found in a few steps.
class Deviation : public Alternatives {
 public:
  // What is known, and that `cell`, undecided so far, does not have its reference digit.
  Deviation(const Alternatives& known, int cell);
  // Nothing is known but `givens`: digits 1..9, no two of which clash, and 0 for empty.
  Deviation(const ReferenceGrid& reference, const DigitGrid& givens);

  // By kind: the constraints that have an alternative, and that have several.
  struct Survey {
    std::array<BitBoard, kKinds> any;
    std::array<BitBoard, kKinds> several;
  };
  [[nodiscard]] Survey Look() const;
  // The constraints of a kind that have three alternatives or more.
  [[nodiscard]] BitBoard MoreThanTwo(int kind) const;

  [[nodiscard]] BitBoard Need(int kind) const { return open_[kind] - reference_; }
  [[nodiscard]] bool NeedsNothing() const {
    return !((open_[0] | open_[1] | open_[2] | open_[3]) - reference_).Any();
  }
  // The alternatives that the constraint has left, as bits k.
  [[nodiscard]] unsigned AlternativesOf(int kind, int constraint) const;
  // How many reference digits placing this would displace: a measure of how far it leads away.
  [[nodiscard]] int Displaced(const ReferenceGrid& reference, OtherDigit other) const;

  void PlaceReference(const ReferenceGrid& reference, BitBoard cells);
  void Place(const ReferenceGrid& reference, OtherDigit other);
  void Remove(const ReferenceGrid& reference, OtherDigit other);

  // The cells that Place has filled.
  [[nodiscard]] BitBoard Changed() const { return changed_; }

 private:
  std::array<BitBoard, kKinds> open_;  // by kind: the constraints not met yet
  BitBoard changed_;
};

class DeviationSearch {
 public:
  enum class Result : std::uint8_t { Nothing, Found, Stopped };

  DeviationSearch(const ReferenceGrid& reference, Yield& yield) : reference_(reference), yield_(yield) {}

  // Looks for a complete grid. Asks `yield` at every step. `state` is used up.
  [[nodiscard]] Result Run(Deviation& state);
  // After Found: the complete grid. `givens` are what the state began with.
  [[nodiscard]] DigitGrid Solution(const DigitGrid& givens) const;

 private:
  enum class Progress : std::uint8_t { None, Some, Contradiction };
  Progress PlaceForced(Deviation& state, const Deviation::Survey& survey);
  [[nodiscard]] OtherDigit Choose(const Deviation& state) const;
  void Place(Deviation& state, OtherDigit other);
  [[nodiscard]] OtherDigit Meaning(int kind, int constraint, int k) const;

  const ReferenceGrid& reference_;
  Yield& yield_;
  DigitGrid placed_{};  // by cell, what was last placed there
  BitBoard changed_;    // of the solution
};

}  // namespace kestrel
