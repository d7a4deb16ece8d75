// SPDX-License-Identifier: MIT
// The texts of the guide and of the tooltips that depend on the state of play.
#pragma once

#include <string_view>

namespace kestrel::texts {

// Guide
inline constexpr std::string_view kKeypadLine =
    "Click a small digit to put it into its cell. Undo takes it back.";
inline constexpr std::string_view kMarksLine =
    "Left click on a small digit: it goes into the cell. Right click: it is ruled out and goes away.";
inline constexpr std::string_view kSolvedLine =
    "Solved! Next opens another puzzle, Help tells how this one is solved.";
inline constexpr std::string_view kRevealedLine =
    "This is the solution, the missing digits in another colour. Help tells how this one is solved.";

// Why something does not work now
inline constexpr std::string_view kFinishFirst = "First finish this puzzle, or give it up with Solution";
inline constexpr std::string_view kLevelInPlay =
    "Another level can be chosen when this puzzle is finished, or given up with Solution";
inline constexpr std::string_view kLevelInRenewal = "This level is being renewed";
inline constexpr std::string_view kLevelTip = "Next and Open take puzzles of this level";
inline constexpr std::string_view kNothingToUndo = "There is no step to take back";
inline constexpr std::string_view kNothingToRedo = "There is no step that was taken back";
inline constexpr std::string_view kNothingToRestart = "The puzzle is as it was opened";
inline constexpr std::string_view kNoPuzzle = "Open a puzzle first, with Next";
inline constexpr std::string_view kNoPlay = "This puzzle is finished: open another one with Next";
inline constexpr std::string_view kResetHow =
    "First click a letter at the left and a digit at the top of the board: Reset Cell empties the cell where "
    "they meet";
inline constexpr std::string_view kResetGiven = "The selected cell belongs to the puzzle and stays as it is";
inline constexpr std::string_view kHintKeypad = "Finds wrong digits. Techniques are named from Medium on";
inline constexpr std::string_view kNoSound = "No sound device was found";
inline constexpr std::string_view kRenewOther =
    "The chosen level cannot be renewed: choose another level first";
inline constexpr std::string_view kRenewing = "A level is being renewed now";
inline constexpr std::string_view kRenewBefore = "Replaces the 100 ";
inline constexpr std::string_view kRenewAfter = " puzzles by new ones; their best times go with them";

// Technique list
inline constexpr std::string_view kTierBefore = ": needed from ";
inline constexpr std::string_view kTierAfter = " puzzles on. Click for its help page";

// What a screen reader says
inline constexpr std::string_view kStep = " step";
inline constexpr std::string_view kSteps = " steps";
inline constexpr std::string_view kHintIs = "Hint: ";
inline constexpr std::string_view kSolvedIn = "Solved in ";
inline constexpr std::string_view kRevealed = "The solution is shown";

// Headers
inline constexpr std::string_view kHeaderTip =
    "Click to select; with a row and a column selected, Reset Cell empties the cell where they meet";

}  // namespace kestrel::texts
