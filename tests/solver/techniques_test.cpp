// SPDX-License-Identifier: MIT
// Every technique on small positions made by hand: what it finds, that a second call finds nothing more, a
// near miss, and the limits of form that a wrong implementation would break first. Their order of search is that of the
// plain solver, with which they are compared.
#include <gtest/gtest.h>

#include <algorithm>

#include "solver/positions.h"

namespace kestrel::testing {
namespace {

using T = Technique;

constexpr const char* kAll = "123456789";

struct HandMade {
  Technique technique;
  int form;
  const char* background;
  const char* marks;
  const char* changes;    // what the technique does
  const char* near_miss;  // marks that spoil it
};

constexpr HandMade kPositions[] = {
    {T::HiddenSingle, 1, "", "E5=57", "E5=5", "E5=5"},
    {T::HiddenSingle, 2, "", "D4=57 E5=57", "D4=5", "D5=57 E4=57"},
    {T::NakedSingle, 0, kAll, "E5=3", "E5=3", "E5=35"},
    {T::PointingPair, 1, "", "A12=4 A59=4 B5=4", "A5-4 A9-4", "B3=4 C9=4"},
    {T::PointingPair, 2, "", "AC1=4 J1=4", "J1-4", "B2=4 H2=4"},
    {T::BoxLine, 1, "", "A12=4 B3=4 C1=4 E123=4 J3=4", "B3-4 C1-4", "ABC7=4"},
    {T::BoxLine, 2, "", "AB1=4 C2=4 A3=4 ABC5=4 C9=4", "A3-4 C2-4", "G123=4"},
    {T::NakedPair, 1, kAll, "C15=37", "C2-37 C3-37 C4-37 C6-37 C7-37 C8-37 C9-37", "C5=378"},
    {T::NakedTriple, 2, kAll, "A1=12 D1=23 G1=13", "B1-123 C1-123 E1-123 F1-123 H1-123 J1-123", "G1=134"},
    {T::HiddenPair, 1, "1235678", "E2=1489 E7=2459", "E2-18 E7-25", "E5=19"},
    {T::NakedQuad, 1, kAll, "A1=12 A4=23 A6=34 A9=14", "A2-1234 A3-1234 A5-1234 A7-1234 A8-1234", "A9=145"},
    {T::HiddenTriple, 1, "123578", "B1=1469 B5=246 B8=369", "B1-1 B5-2 B8-3", "B2=14"},
    {T::NakedQuint, 1, kAll, "J1=12 J2=23 J3=34 J4=45 J5=15", "J6-12345 J7-12345 J8-12345 J9-12345",
     "J5=156"},
    {T::XWing, 1, "", "C26=4 G26=4 A2=4 E6=4", "A2-4 E6-4", "C9=4"},
    {T::XYWing, 0, "", "A1=25 A7=28 D1=58 D7=18", "D7-8", "D1=589"},
    {T::TwoStringKite, 0, "", "A28=5 B3=5 G38=5", "G8-5", "A5=5"},
    {T::Skyscraper, 1, "", "A28=5 E27=5 B7=5 D8=5", "B7-5 D8-5", "A5=5 H2=5"},
    {T::Swordfish, 1, "", "B15=4 E59=4 H19=4 A12=4 J57=4 D39=4", "A1-4 D9-4 J5-4", "B7=4"},
    {T::MultiXWing, 1, "", "A1=13 A6=14 E1=23 E6=24 C1=357 G6=457", "C1-3 G6-4", "A6=147"},
    {T::MultiXWing, 2, "", "A1=13 A6=14 B2=23 B5=24 C3=357", "C3-3", "C3=57"},
    {T::MultiXWing, 6, "", "A1=13 B2=14 D1=23 E2=24 J1=357", "J1-3", "E2=247"},
    {T::FinnedXWing, 1, "", "A37=4 E378=4 D7=4 J3=4", "D7-4", "E5=4"},
    {T::FinnedXWing, 1, "", "A37=4 E3789=4 DF7=4 J3=4", "D7-4 F7-4", "E6=4"},
    {T::UniqueRectangle, 1, "", "A12=12 D1=12 D2=123", "D2-12", "D2=12"},
    {T::UniqueRectangle, 2, "", "A14=12 B14=123 B9=3", "B9-3", "B4=124"},
    {T::AvoidableRectangle, 1, "", "A1:1 A4:2 B4:1 B1=23", "B1-2", "A4!2"},
    {T::AvoidableRectangle, 2, "", "A1:1 A4:2 B1=23 B4=13 B9=3", "B9-3", "A1!1"},
    {T::XYZWing, 0, "", "E5=258 E8=28 D4=58 E46=18", "E4-8 E6-8", "E8=29"},
    {T::EmptyRectangle, 1, "", "A23=4 BC1=4 A7=4 G157=4", "G1-4", "D7=4"},
    {T::Jellyfish, 1, "", "A14=4 C46=4 E69=4 G19=4 B12=4 D34=4 F56=4 H79=4", "B1-4 D4-4 F6-4 H9-4", "A5=4"},
};

TEST(Techniques, DoOnHandMadePositionsWhatTheyShould) {
  for (const HandMade& made : kPositions) {
    SCOPED_TRACE(std::string(RowOf(made.technique).caption) + ": " + made.marks);
    const Position position(made.marks, made.background);
    SolverState state = position.State();
    Finding finding;
    EXPECT_EQ(Apply(state, made.technique, position.givens, &finding), made.changes);
    EXPECT_EQ(finding.form, made.form);
    // Nothing is left to remove, though the pattern still stands; a single just leaves nothing to place.
    if (made.technique != T::HiddenSingle) {
      EXPECT_EQ(Apply(state, made.technique, position.givens), "nothing");
    }

    const Position miss(std::string(made.marks) + " " + made.near_miss, made.background);
    SolverState missed = miss.State();
    EXPECT_EQ(Apply(missed, made.technique, miss.givens), "nothing");
  }
}

std::string FirstOf(Technique technique, const char* marks, const char* background = "") {
  const Position position(marks, background);
  SolverState state = position.State();
  return Apply(state, technique, position.givens);
}

TEST(Techniques, LimitsOfTheLargerPatterns) {
  EXPECT_EQ(FirstOf(T::Swordfish, "A15=4 C59=4 E19=4 G159=4 J147=4"), "nothing")
      << "four lines for three columns";
  EXPECT_EQ(FirstOf(T::FinnedXWing, "A37=4 C378=4 B7=4"), "nothing") << "both lines in one band";
  EXPECT_EQ(FirstOf(T::FinnedXWing, "A37=4 E378=4 E1256=4 D7=4 J3=4"), "nothing") << "more than four places";
  EXPECT_EQ(FirstOf(T::FinnedXWing, "A37=4 E3728=4 D7=4 J3=4"), "nothing") << "fins in two boxes";
  EXPECT_EQ(FirstOf(T::UniqueRectangle, "A14=12 D1=12 D4=123"), "nothing")
      << "type 1 wants its floor in one box";
  EXPECT_EQ(FirstOf(T::UniqueRectangle, "A14=12 D14=123 D9=3"), "nothing") << "four boxes";
  EXPECT_EQ(FirstOf(T::AvoidableRectangle, "A1:1 D4:1 A4:2 D1=23"), "nothing") << "four boxes";
  EXPECT_EQ(FirstOf(T::AvoidableRectangle, "A1:1 B4:1 A4:2 B1:3"), "nothing") << "no corner open";
  EXPECT_EQ(FirstOf(T::EmptyRectangle, "A12=4 A7=4 G7=4 G1=4"), "nothing")
      << "two cells in one row are a pointing pair";
  EXPECT_EQ(FirstOf(T::EmptyRectangle, "A23=4 BC1=4 A7=4 C7=4"), "nothing")
      << "the pair's far end lies in the band";
  EXPECT_EQ(FirstOf(T::EmptyRectangle, "A1=4 B2=4 A7=4 G27=4"), "G2-4")
      << "two cells: the first cross is row A, column 2";
}

}  // namespace
}  // namespace kestrel::testing
