// SPDX-License-Identifier: MIT
// The 22 techniques, one row each, simplest first. Driver, score, records, display, printing, hints and help
// all read this one table, so that a technique is described in one place.
//
// Three numbers stand for a technique; the first two are its place in the order of trial:
//   step     1..22   what traces and hints write                           StepOf(technique)
//   slot     0..21   its place in a SudokuRecord and in the window's list  SlotOf(technique)
//   counter  0..21   its index in TechniqueCounters, an order of their own RowOf(technique).counter
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "core/stock_table.h"
#include "core/technique.h"
#include "solver/techniques.h"

namespace kestrel {

struct TechniqueRow {
  Technique technique;
  std::string_view caption;
  std::string_view abbreviation;  // two letters, for print and tables
  int counter;                    // index into TechniqueCounters
  int tier;                       // the level that needing it implies, 1..5
  int weight;                     // its factor in the score
  std::string_view help_page;     // file name of the page that explains it
  bool (*routine)(SolverState&, const SolverInput&);
};

inline constexpr std::array<TechniqueRow, kTechniques> kTechniqueTable{{
    {Technique::HiddenSingle, "Hidden Single", "HS", 0, 1, 1, "hidden_single.html", FindHiddenSingle},
    {Technique::NakedSingle, "Naked Single", "NS", 1, 1, 2, "naked_single.html", FindNakedSingle},
    {Technique::PointingPair, "Pointing Pair", "PP", 2, 2, 3, "pointing_pair___triple.html", FindPointing},
    {Technique::BoxLine, "Box Line", "BL", 3, 2, 3, "box_line_reduction.html", FindBoxLine},
    {Technique::NakedPair, "Naked Pair", "N2", 4, 3, 4, "naked_subset.html", FindNakedPair},
    {Technique::NakedTriple, "Naked Triple", "N3", 5, 3, 5, "naked_subset.html", FindNakedTriple},
    {Technique::HiddenPair, "Hidden Pair", "H2", 6, 3, 5, "hidden_subset.html", FindHiddenPair},
    {Technique::NakedQuad, "Naked Quad", "N4", 7, 3, 6, "naked_subset.html", FindNakedQuad},
    {Technique::HiddenTriple, "Hidden Triple", "H3", 8, 3, 6, "hidden_subset.html", FindHiddenTriple},
    {Technique::NakedQuint, "Naked Quint", "N5", 9, 3, 7, "naked_subset.html", FindNakedQuint},
    {Technique::XWing, "X-Wing", "XW", 10, 4, 8, "x_wing.html", FindXWing},
    {Technique::XYWing, "XY-Wing", "YW", 11, 4, 9, "xy_wing.html", FindXYWing},
    {Technique::TwoStringKite, "2 String Kite", "TS", 14, 4, 10, "two_string_kite.html", FindTwoStringKite},
    {Technique::Skyscraper, "Skyscraper", "SS", 15, 4, 11, "skyscraper.html", FindSkyscraper},
    {Technique::Swordfish, "Swordfish", "SF", 12, 4, 12, "swordfish.html", FindSwordfish},
    {Technique::MultiXWing, "Multi X-Wing", "MX", 13, 4, 13, "multi_value_x_wing.html", FindMultiXWing},
    {Technique::FinnedXWing, "Finned X-Wing", "FX", 16, 5, 12, "finned_x_wing.html", FindFinnedXWing},
    {Technique::UniqueRectangle, "Unique Rectangle", "UR", 17, 5, 13, "unique_rectangle.html",
     FindUniqueRectangle},
    {Technique::AvoidableRectangle, "Avoidable Rect.", "AR", 18, 5, 14, "avoidable_rectangle.html",
     FindAvoidableRectangle},
    {Technique::XYZWing, "XYZ-Wing", "ZW", 19, 5, 15, "xyz_wing.html", FindXYZWing},
    {Technique::EmptyRectangle, "Empty Rectangle", "ER", 21, 5, 16, "empty_rectangle.html",
     FindEmptyRectangle},
    {Technique::Jellyfish, "Jellyfish", "JF", 20, 5, 17, "jellyfish.html", FindJellyfish},
}};

// The row of a technique, which must not be None.
constexpr const TechniqueRow& RowOf(Technique technique) {
  return kTechniqueTable[static_cast<std::size_t>(SlotOf(technique))];
}

// How often each technique made progress, in counter order.
using TechniqueCounters = std::array<std::int16_t, kTechniques>;

// Display slot -> counter and counter -> display slot.
inline constexpr std::array<int, kTechniques> kCounterOfSlot = [] {
  std::array<int, kTechniques> counter_of_slot{};
  for (int slot = 0; slot < kTechniques; ++slot) counter_of_slot[slot] = kTechniqueTable[slot].counter;
  return counter_of_slot;
}();
inline constexpr std::array<int, kTechniques> kSlotOfCounter = [] {
  std::array<int, kTechniques> slot_of_counter{};
  for (int slot = 0; slot < kTechniques; ++slot) slot_of_counter[kTechniqueTable[slot].counter] = slot;
  return slot_of_counter;
}();

// Technique counts by display slot, as a SudokuRecord has them.
using SlotCounts = std::array<std::int16_t, kTechniques>;
constexpr SlotCounts CountsBySlot(const TechniqueCounters& counters) {
  SlotCounts counts{};
  for (int slot = 0; slot < kTechniques; ++slot) counts[slot] = counters[kCounterOfSlot[slot]];
  return counts;
}

// How many techniques have a tier of at most `level`, 0..22 for level 0..5: the display slots from 0 up to
// this are the ones that a puzzle of that level can use.
constexpr int TechniquesUpTo(int level) {
  int count = 0;
  for (const TechniqueRow& row : kTechniqueTable) count += row.tier <= level ? 1 : 0;
  return count;
}

// The difficulty score: weight times counter, summed over the techniques with a tier of at most `level`
// (1..5); 0 for every other level.
constexpr std::int32_t PuzzleScore(int level, const TechniqueCounters& counters) {
  if (level < 1 || level > kLevels) return 0;
  std::int32_t score = 0;
  for (const TechniqueRow& row : kTechniqueTable) {
    if (row.tier <= level) score += row.weight * counters[row.counter];
  }
  return score;
}

static_assert(TechniquesUpTo(1) == 2 && TechniquesUpTo(2) == 2 + 2 && TechniquesUpTo(3) == 2 + 2 + 6 &&
                  TechniquesUpTo(4) == 2 + 2 + 6 + 6 && TechniquesUpTo(5) == 2 + 2 + 6 + 6 + 6,
              "groups of 2, 2, 6, 6 and 6");
static_assert(
    [] {
      for (const Technique technique : kAllTechniques) {
        const TechniqueRow& row = RowOf(technique);
        if (row.technique != technique || row.caption.empty() || row.abbreviation.size() != 2 ||
            row.weight < 1 || row.help_page.empty() || row.routine == nullptr) {
          return false;
        }
      }
      return true;
    }(),
    "every technique has a complete row, in the order of the enumeration");
static_assert(
    [] {
      unsigned counters = 0;
      for (int slot = 0; slot < kTechniques; ++slot) {
        const TechniqueRow& row = kTechniqueTable[slot];
        counters |= 1U << static_cast<unsigned>(row.counter);
        if (slot > 0 && row.tier < kTechniqueTable[slot - 1].tier) return false;
        for (int other = 0; other < slot; ++other) {
          if (kTechniqueTable[other].abbreviation == row.abbreviation) return false;
        }
      }
      return counters == (1U << static_cast<unsigned>(kTechniques)) - 1;
    }(),
    "tiers never fall, counters are a permutation of 0..21, abbreviations differ");

}  // namespace kestrel
