// SPDX-License-Identifier: MIT
// The word table, and the conditions that tell the forms of a technique apart.
#include "explain/technique_words.h"

#include <algorithm>

#include "explain/pattern_words.h"
#include "explain/reasons.h"
#include "solver/unit_table.h"

namespace kestrel {
namespace {

template <int form>
bool Numbered(const Finding& finding) {
  return finding.form == form;
}

template <int form, std::size_t cells>
bool NumberedOfSize(const Finding& finding) {
  return finding.form == form && finding.pattern.size() == cells;
}

bool Any(const Finding& /*finding*/) {
  return true;
}

bool InLine(const Finding& finding) {
  return finding.form == 1 || finding.form == 2;
}

// A triple in which every cell has just two of the three digits.
bool Ring(const Finding& finding) {
  return std::all_of(finding.pattern.begin(), finding.pattern.end(),
                     [](const PatternCell& part) { return BitCount[part.digits] == 2; });
}

bool LineButNoRing(const Finding& finding) {
  return InLine(finding) && !Ring(finding);
}

// The kinds of the two units in which the pivot meets its wings, in either order.
template <UnitKind a, UnitKind b>
bool Wings(const Finding& finding) {
  const UnitKind first = finding.units[0].kind;
  const UnitKind second = finding.units[1].kind;
  return (first == a && second == b) || (first == b && second == a);
}

// Wings in the pivot's row and column, both outside its box: the plain case, with one cell that sees both.
bool WingsApart(const Finding& finding) {
  const int box = CellBox[finding.pattern[0].cell];
  return Wings<UnitKind::Row, UnitKind::Column>(finding) && CellBox[finding.pattern[1].cell] != box &&
         CellBox[finding.pattern[2].cell] != box;
}

template <int form, int fins>
bool Fins(const Finding& finding) {
  return finding.form == form && finding.pattern.size() == 4 + fins;
}

// A Unique Rectangle of type 2 by whether its floor lies in one box.
template <bool one_box>
bool RoofOfEqualCells(const Finding& finding) {
  return finding.form == 2 &&
         (CellBox[finding.pattern[0].cell] == CellBox[finding.pattern[1].cell]) == one_box;
}

constexpr UnitKind kRow = UnitKind::Row;
constexpr UnitKind kColumn = UnitKind::Column;
constexpr UnitKind kBox = UnitKind::Box;

CandidateMask NoTargets(const Finding& /*finding*/) {
  return 0;
}

CandidateMask Shared(const Finding& finding, std::size_t a, std::size_t b) {
  return finding.pattern[a].digits & finding.pattern[b].digits;
}

// What both wings can be.
CandidateMask WingTarget(const Finding& finding) {
  return Shared(finding, 1, 2);
}

// The digits that go from the covers, on which the pairs stand across.
CandidateMask MultiXWingTargets(const Finding& finding) {
  return Shared(finding, 0, 2) | Shared(finding, 1, 3);
}

// The third digit of the two roof cells; with one roof cell the roof itself loses.
CandidateMask RoofTarget(const Finding& finding) {
  const CandidateMask floor = finding.pattern[0].digits | finding.pattern[1].digits;
  return finding.form == 2 ? Without(Shared(finding, 2, 3), floor) : CandidateMask{0};
}

constexpr std::array<TechniqueWords, kTechniques> kTechniqueWords{{
    {Technique::HiddenSingle,
     SinglePattern,
     HiddenSingleReason,
     NoTargets,
     RoleSet(Role::Base),
     Links::Nothing,
     Covers::Nothing,
     {{{"hidden_single-box", Numbered<1>},
       {"hidden_single-row", Numbered<2>},
       {"hidden_single-column", Numbered<3>}}}},
    {Technique::NakedSingle,
     SinglePattern,
     NakedSingleReason,
     NoTargets,
     RoleSet(Role::Base),
     Links::Nothing,
     Covers::Nothing,
     {{{"naked_single", Any}}}},
    {Technique::PointingPair,
     IntersectionPattern,
     IntersectionReason,
     NoTargets,
     RoleSet(Role::Base),
     Links::Nothing,
     Covers::Lose,
     {{{"pointing-pair-row", NumberedOfSize<1, 2>},
       {"pointing-pair-column", NumberedOfSize<2, 2>},
       {"pointing-triple-row", NumberedOfSize<1, 3>},
       {"pointing-triple-column", NumberedOfSize<2, 3>}}}},
    {Technique::BoxLine,
     IntersectionPattern,
     IntersectionReason,
     NoTargets,
     RoleSet(Role::Base),
     Links::Nothing,
     Covers::Lose,
     {{{"box_line-row", Numbered<1>}, {"box_line-column", Numbered<2>}}}},
    {Technique::NakedPair,
     SubsetPattern,
     NakedSubsetReason,
     NoTargets,
     RoleSet(Role::Base),
     Links::Nothing,
     Covers::Nothing,
     {{{"naked_pair-row", Numbered<1>},
       {"naked_pair-column", Numbered<2>},
       {"naked_pair-box", Numbered<3>}}}},
    {Technique::NakedTriple,
     SubsetPattern,
     NakedSubsetReason,
     NoTargets,
     RoleSet(Role::Base),
     Links::Nothing,
     Covers::Nothing,
     {{{"naked_triple-line", LineButNoRing}, {"naked_triple-ring", Ring}}}},
    {Technique::HiddenPair,
     SubsetPattern,
     HiddenSubsetReason,
     NoTargets,
     RoleSet(Role::Base),
     Links::Nothing,
     Covers::Nothing,
     {{{"hidden_pair-line", InLine}, {"hidden_pair-box", Numbered<3>}}}},
    {Technique::NakedQuad,
     SubsetPattern,
     NakedSubsetReason,
     NoTargets,
     RoleSet(Role::Base),
     Links::Nothing,
     Covers::Nothing,
     {{{"naked_quad-line", InLine}, {"naked_quad-box", Numbered<3>}}}},
    {Technique::HiddenTriple,
     SubsetPattern,
     HiddenSubsetReason,
     NoTargets,
     RoleSet(Role::Base),
     Links::Nothing,
     Covers::Nothing,
     {{{"hidden_triple-line", InLine}, {"hidden_triple-box", Numbered<3>}}}},
    {Technique::NakedQuint,
     SubsetPattern,
     NakedSubsetReason,
     NoTargets,
     RoleSet(Role::Base),
     Links::Nothing,
     Covers::Nothing,
     {{{"naked_quint", Any}}}},
    {Technique::XWing,
     FishPattern,
     FishReason,
     NoTargets,
     RoleSet(Role::Base),
     Links::Corners,
     Covers::Lose,
     {{{"x_wing-rows", Numbered<1>}, {"x_wing-columns", Numbered<2>}}}},
    {Technique::XYWing,
     WingPattern,
     XYWingReason,
     WingTarget,
     RoleSet(Role::Pivot, Role::Wing),
     Links::Wings,
     Covers::Nothing,
     {{{"xy_wing-row-column", WingsApart},
       {"xy_wing-row-box", Wings<kRow, kBox>},
       {"xy_wing-column-box", Wings<kColumn, kBox>}}}},
    {Technique::TwoStringKite,
     LinkedPairsPattern,
     TwoPairsReason,
     NoTargets,
     RoleSet(Role::Base, Role::Link),
     Links::Chain,
     Covers::Connect,
     {{{"kite", Any}}}},
    {Technique::Skyscraper,
     LinkedPairsPattern,
     TwoPairsReason,
     NoTargets,
     RoleSet(Role::Base, Role::Link),
     Links::Chain,
     Covers::Connect,
     {{{"skyscraper-rows", Numbered<1>}, {"skyscraper-columns", Numbered<2>}}}},
    {Technique::Swordfish,
     FishPattern,
     FishReason,
     NoTargets,
     RoleSet(Role::Base),
     Links::Nothing,
     Covers::Lose,
     {{{"swordfish-rows", Numbered<1>}, {"swordfish-columns", Numbered<2>}}}},
    {Technique::MultiXWing,
     MultiXWingPattern,
     MultiXWingReason,
     MultiXWingTargets,
     RoleSet(Role::Base),
     Links::Corners,
     Covers::Lose,
     {{{"multi_x_wing-rows-rectangle", Numbered<1>},
       {"multi_x_wing-rows-boxes", Numbered<2>},
       {"multi_x_wing-columns-rectangle", Numbered<3>},
       {"multi_x_wing-columns-boxes", Numbered<4>},
       {"multi_x_wing-boxes-rows", Numbered<5>},
       {"multi_x_wing-boxes-columns", Numbered<6>}}}},
    {Technique::FinnedXWing,
     FinnedPattern,
     FinnedXWingReason,
     NoTargets,
     RoleSet(Role::Base, Role::Fin),
     Links::Corners,
     Covers::Lose,
     {{{"finned-rows-one", Fins<1, 1>},
       {"finned-rows-two", Fins<1, 2>},
       {"finned-columns-one", Fins<2, 1>},
       {"finned-columns-two", Fins<2, 2>}}}},
    {Technique::UniqueRectangle,
     UniqueRectanglePattern,
     UniqueRectangleReason,
     RoofTarget,
     RoleSet(Role::Floor, Role::Roof),
     Links::Around,
     Covers::Nothing,
     {{{"unique-type1", Numbered<1>},
       {"unique-type2-one-box", RoofOfEqualCells<true>},
       {"unique-type2-two-boxes", RoofOfEqualCells<false>}}}},
    {Technique::AvoidableRectangle,
     AvoidableRectanglePattern,
     AvoidableRectangleReason,
     RoofTarget,
     RoleSet(Role::Base, Role::Roof),
     Links::Around,
     Covers::Nothing,
     {{{"avoidable-one-open", Numbered<1>}, {"avoidable-two-open", Numbered<2>}}}},
    {Technique::XYZWing,
     WingPattern,
     XYZWingReason,
     WingTarget,
     RoleSet(Role::Pivot, Role::Wing),
     Links::Wings,
     Covers::Nothing,
     {{{"xyz_wing-row-box", Wings<kRow, kBox>}, {"xyz_wing-column-box", Wings<kColumn, kBox>}}}},
    {Technique::EmptyRectangle,
     EmptyRectanglePattern,
     EmptyRectangleReason,
     NoTargets,
     RoleSet(Role::Base, Role::Link),
     Links::Pair,
     Covers::Connect,
     {{{"empty_rectangle-row", Numbered<1>}, {"empty_rectangle-column", Numbered<2>}}}},
    {Technique::Jellyfish,
     FishPattern,
     FishReason,
     NoTargets,
     RoleSet(Role::Base),
     Links::Nothing,
     Covers::Lose,
     {{{"jellyfish-rows", Numbered<1>}, {"jellyfish-columns", Numbered<2>}}}},
}};

static_assert(
    [] {
      for (const Technique technique : kAllTechniques) {
        const TechniqueWords& row = kTechniqueWords[SlotOf(technique)];
        if (row.technique != technique || row.pattern == nullptr || row.reason == nullptr ||
            row.targets == nullptr || row.roles.Empty() || row.links == Links::Unset ||
            row.covers == Covers::Unset || row.forms[0].key.empty()) {
          return false;
        }
        for (const FormRow& form : row.forms) {
          if (form.key.empty() != (form.matches == nullptr)) return false;
        }
      }
      return true;
    }(),
    "every technique has a complete row, in the order of the enumeration");

constexpr std::size_t kForms = [] {
  std::size_t count = 0;
  for (const TechniqueWords& row : kTechniqueWords) {
    for (const FormRow& form : row.forms) count += form.key.empty() ? 0 : 1;
  }
  return count;
}();

constexpr std::array<Form, kForms> kAllForms = [] {
  std::array<Form, kForms> forms{};
  std::size_t next = 0;
  for (const TechniqueWords& row : kTechniqueWords) {
    for (const FormRow& form : row.forms) {
      if (!form.key.empty()) forms[next++] = {form.key, row.technique, form.matches};
    }
  }
  return forms;
}();

}  // namespace

const TechniqueWords& WordsOf(Technique technique) {
  return kTechniqueWords[static_cast<std::size_t>(SlotOf(technique))];
}

std::span<const Form> AllForms() {
  return kAllForms;
}

bool IsOfForm(const Finding& finding, const Form& form) {
  return finding.technique == form.technique && form.matches(finding);
}

}  // namespace kestrel
