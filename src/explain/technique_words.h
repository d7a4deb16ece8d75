// SPDX-License-Identifier: MIT
// How each technique is told and drawn, one complete row each beside its row in the solver's technique table. Used
// by whatever explains: command line, pages, pictures, walkthroughs.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "core/technique.h"
#include "explain/example.h"
#include "solver/finding.h"

namespace kestrel {

// The parts that cells play in the patterns of a technique.
class RoleSet {
 public:
  constexpr RoleSet() = default;
  template <class... Roles>
  constexpr explicit RoleSet(Roles... roles) : bits_((Bit(roles) | ...)) {}
  [[nodiscard]] constexpr bool Has(Role role) const { return (bits_ & Bit(role)) != 0; }
  [[nodiscard]] constexpr bool Empty() const { return bits_ == 0; }

 private:
  static constexpr unsigned Bit(Role role) { return 1U << static_cast<unsigned>(role); }
  unsigned bits_ = 0;
};

// The line that a picture draws through the cells of the pattern.
enum class Links : std::uint8_t {
  Unset,
  Nothing,
  Chain,    // through all cells in order
  Corners,  // a rectangle through the first four, which stand line by line
  Around,   // a rectangle through four corners in any order
  Wings,    // wing, pivot, wing
  Pair,     // the last two cells
};

// What the lines or boxes that a finding calls its covers do.
enum class Covers : std::uint8_t {
  Unset,
  Nothing,  // there are none
  Lose,     // candidates go from them
  Connect,  // they tie the parts of the pattern together
};

// One of the forms of a technique that pages show an example of.
struct FormRow {
  std::string_view key;                               // of the example, and of its place in a page
  bool (*matches)(const Finding& finding) = nullptr;  // the technique is checked already
};
inline constexpr int kMostForms = 6;

struct TechniqueWords {
  Technique technique;
  std::string (*pattern)(const Finding& finding);  // a few words, for one line a step
  std::string (*reason)(const Example& example);   // a paragraph
  // The digits of the pattern that are removed elsewhere, where they are not all of its digits.
  CandidateMask (*targets)(const Finding& finding);
  RoleSet roles;
  Links links;
  Covers covers;
  std::array<FormRow, kMostForms> forms;  // at least one; what is left over has no key
};

// The row of a technique, which must not be None.
const TechniqueWords& WordsOf(Technique technique);

struct Form {
  std::string_view key;
  Technique technique = Technique::None;
  bool (*matches)(const Finding& finding) = nullptr;
};

// The forms of all techniques in their order. One that no puzzle was found for has no example and is left out of
// its page.
std::span<const Form> AllForms();

// True when the finding is of that form.
bool IsOfForm(const Finding& finding, const Form& form);

}  // namespace kestrel
