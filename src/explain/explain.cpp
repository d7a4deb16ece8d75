// SPDX-License-Identifier: MIT
#include "explain/explain.h"

#include <algorithm>
#include <string_view>

#include "explain/names.h"
#include "explain/technique_words.h"
#include "solver/technique_table.h"

namespace kestrel {
namespace {

// "places 5 in C7", or "removes 4 from D2, E8; 2 and 7 from F3": cells that lose the same digits together.
std::string EffectWords(const Finding& finding) {
  if (finding.placed_cell >= 0) {
    return "places " + std::to_string(finding.placed_digit) + " in " + CellName(finding.placed_cell);
  }
  std::string text;
  for (std::size_t i = 0; i < finding.removals.size(); ++i) {
    const CandidateMask digits = finding.removals[i].digits;
    const auto same = [&](const Removal& removal) { return removal.digits == digits; };
    const auto here = finding.removals.begin() + static_cast<std::ptrdiff_t>(i);
    if (std::any_of(finding.removals.begin(), here, same)) continue;
    text += (text.empty() ? "removes " : "; ") + DigitNames(digits) + " from ";
    std::string_view comma = "";
    for (auto removal = here; removal != finding.removals.end(); ++removal) {
      if (!same(*removal)) continue;
      text.append(comma).append(CellName(removal->cell));
      comma = ", ";
    }
  }
  return text;
}

}  // namespace

StepWords ExplainStep(const Finding& finding) {
  StepWords words;
  words.technique = RowOf(finding.technique).caption;
  // The types of a Unique Rectangle are known by number in the literature; other forms are told by the cells.
  if (finding.technique == Technique::UniqueRectangle) {
    words.technique += " type " + std::to_string(finding.form);
  }
  words.digits = DigitNames(finding.digits);
  words.pattern = WordsOf(finding.technique).pattern(finding);
  words.effect = EffectWords(finding);
  return words;
}

std::string StepSentence(const Finding& finding) {
  const StepWords words = ExplainStep(finding);
  return words.technique + " on " + words.digits + ": " + words.pattern + ": " + words.effect;
}

}  // namespace kestrel
