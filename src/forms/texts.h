// SPDX-License-Identifier: MIT
// The fixed texts of the forms: captions, tooltips, spoken names.
#pragma once

#include <array>
#include <string_view>

#include "core/level_names.h"

namespace kestrel::texts {

using kestrel::kLevelNames;

// Main window
inline constexpr std::string_view kProductName = "Kestrel Sudoku";
inline constexpr std::string_view kRenewLevel = "Renew Level";
inline constexpr std::string_view kElapsedTime = "Elapsed time";
inline constexpr std::string_view kStepCounter = "Step counter";
inline constexpr std::string_view kLogo = "Click for Orvex-Software website";
inline constexpr std::string_view kHintCost =
    "Names the technique to use next. Naming technique number n of the list costs n seconds.";
inline constexpr std::string_view kNextTip = "Open the next puzzle of the chosen level";
inline constexpr std::string_view kOpenTip = "Open a puzzle of the chosen level by its number";
inline constexpr std::string_view kRestartTip = "Start this puzzle and its clock again";
inline constexpr std::string_view kUndoTip = "Take the last step back (Ctrl+Z)";
inline constexpr std::string_view kRedoTip = "Do the step again that was taken back (Ctrl+Y)";
inline constexpr std::string_view kResetTip = "Empty the cell of the selected row and column";
inline constexpr std::string_view kSolutionTip = "Give up and show the solution";
inline constexpr std::string_view kPrintTip = "Print puzzles (Ctrl+P)";
inline constexpr std::string_view kHelpTip = "How to play, and every technique explained (F1)";
inline constexpr std::string_view kPlayersTip = "Choose who plays, add or rename players";
inline constexpr std::string_view kSoundsTip = "Play sounds";
inline constexpr std::string_view kHintMarker = "Show help on this technique";
inline constexpr std::string_view kRenewalProgress = "Progress of the renewal";
inline constexpr std::string_view kRecordsTip = "Click for the records of all levels";
inline constexpr std::string_view kNext = "Next";
inline constexpr std::string_view kRestart = "Restart";
inline constexpr std::string_view kUndo = "Undo";
inline constexpr std::string_view kRedo = "Redo";
inline constexpr std::string_view kResetCell = "Reset Cell";
inline constexpr std::string_view kHint = "Hint";
inline constexpr std::string_view kSolution = "Solution";
inline constexpr std::string_view kHelp = "Help";
inline constexpr std::string_view kSoundsCaption = "Sounds";
inline constexpr std::string_view kOpen = "Open...";
inline constexpr std::string_view kPrint = "Print...";
inline constexpr std::string_view kPlayers = "Players...";

// Players dialog
inline constexpr std::string_view kNamesCaption = "Kestrel Sudoku Players";
inline constexpr std::string_view kNamesInstruction =
    "Add or edit Player -and/or- Select Player and press OK -or- Press Cancel for Free Play (No Player "
    "Selected)";
inline constexpr std::string_view kNewPlayer = "&New Player";
inline constexpr std::string_view kEditPlayer = "&Edit Player";
inline constexpr std::string_view kFreePlay = "Free Play";
inline constexpr std::string_view kOk = "&OK";
inline constexpr std::string_view kCancel = "&Cancel";
inline constexpr std::string_view kPlayerList = "Players";
inline constexpr std::string_view kPlayerName = "Name of the player";
inline constexpr std::string_view kTyping = "Enter saves, Escape cancels";

// Print dialog
inline constexpr std::string_view kPrintCaption = "Kestrel Sudoku - Print";
inline constexpr std::array<std::string_view, 3> kPerPage = {"1 puzzle a page", "2 puzzles a page",
                                                             "4 puzzles a page"};
inline constexpr std::string_view kLevelCaption = "Level";
inline constexpr std::string_view kFromNumber = "From number";
inline constexpr std::string_view kWithSolutions = "Solutions";
inline constexpr std::string_view kWithPencilmarks = "Pencilmarks";
inline constexpr std::string_view kPages = "Pages";
inline constexpr std::string_view kPrintNow = "Print";
inline constexpr std::string_view kClose = "Close";
inline constexpr std::string_view kPreview = "Example of a page of this kind";
inline constexpr std::string_view kFirstPage = "The first page, as it will be printed";
inline constexpr std::string_view kOutcome = "What became of the last printing";
inline constexpr std::string_view kPrintLevel = "Level to print";
inline constexpr std::string_view kFirstNumber = "First puzzle number";
inline constexpr std::string_view kPageCount = "Pages to print";
inline constexpr std::string_view kToOne = "to 1";

// Help window
inline constexpr std::string_view kBrowserCaption = "Kestrel Sudoku - Help";
inline constexpr std::string_view kHelpPage = "Help page";

}  // namespace kestrel::texts
