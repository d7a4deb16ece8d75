// SPDX-License-Identifier: MIT
// The texts that only the Qt front end shows or speaks.
#pragma once

namespace kestrel::texts {

inline constexpr const char* kBoard = "Sudoku board";
inline constexpr const char* kMarksTip =
    "Left click on a pencil mark: the digit goes into the cell.\nRight click: the mark is taken away.";
inline constexpr const char* kKeypadTip = "Click on a small digit to put it into the cell.";
inline constexpr const char* kAssign = "Assign";
inline constexpr const char* kAssignTip = "Puts the digit into the cell";
inline constexpr const char* kDiscard = "Discard";
inline constexpr const char* kDiscardTip = "Takes the pencil mark away";
inline constexpr const char* kSelect = "Select";
inline constexpr const char* kSelectTip = "Selects or deselects the row or column for Reset Cell";

// Words of the spoken names of cells and marks.
inline constexpr const char* kRow = "row";
inline constexpr const char* kColumn = "column";
inline constexpr const char* kEmpty = "empty";
inline constexpr const char* kMarks = "marks";
inline constexpr const char* kGiven = "given";
inline constexpr const char* kMark = "mark";

// View menu
inline constexpr const char* kView = "Vie&w";
inline constexpr const char* kViewTip = "Size, colours, digit lens";
inline constexpr const char* kViewDesktop = "Colours &as the Desktop";
inline constexpr const char* kViewLight = "&Light";
inline constexpr const char* kViewDark = "&Dark";
inline constexpr const char* kViewHighContrast = "&High Contrast";
inline constexpr const char* kViewLens = "Digit Le&ns";
inline constexpr const char* kViewRecords = "&Records...";

// Guide
inline constexpr const char* kCardTitle = "Choose a level and press Next";
inline constexpr const char* kCardLevel = "Chosen at the right: %1";
inline constexpr const char* kCardNext = "Next";
inline constexpr const char* kCardHelp = "Help, at the bottom right, tells all about it";
inline constexpr const char* kCloseGuide = "Do not show this again";

// Printing
inline constexpr const char* kSavePdf = "Print into a PDF file";
inline constexpr const char* kPdfFiles = "PDF files (*.pdf)";
inline constexpr const char* kPrinting = "Printing...";
inline constexpr const char* kStop = "Stop";
inline constexpr const char* kStopped = "Stopped. Nothing was printed.";
inline constexpr const char* kPageSentTo = " page sent to ";
inline constexpr const char* kPagesSentTo = " pages sent to ";
inline constexpr const char* kSavedIn = "Saved in ";
inline constexpr const char* kNotSaved = "PDF file";
inline constexpr const char* kNotSavedWhy = "The file could not be written:\n";

// Records
inline constexpr const char* kRecordsTitle = "Kestrel Sudoku - Records";
inline constexpr const char* kRecordsLevels = "Level";
inline constexpr const char* kRecordsMap = "Best times of the 100 puzzles";
inline constexpr const char* kRecordsPlot = "Best times against scores";
inline constexpr const char* kRecordsHolders = "Who holds how many best times";
inline constexpr const char* kNoRecords = "Nobody yet: solve a puzzle under a player's name";
inline constexpr const char* kRecordsHelp =
    "The stronger a puzzle's colour, the better its time within the level.";
inline constexpr const char* kMapOfNumbers = "click a puzzle to fill in its number";
inline constexpr const char* kScore = "score";
inline constexpr const char* kTimeAxis = "best time (minutes:seconds)";
inline constexpr const char* kScoreAxis = "score: how hard the puzzle is";

// Help window
inline constexpr const char* kBack = "&Back";
inline constexpr const char* kForward = "&Forward";
inline constexpr const char* kContents = "&Contents";
inline constexpr const char* kSolved = "How this one is &solved";
inline constexpr const char* kFind = "Find in this page";
inline constexpr const char* kFindNext = "&Next";
inline constexpr const char* kFindPrevious = "&Previous";
inline constexpr const char* kNotFound = "Not found";
inline constexpr const char* kNoPage = "This page is missing";
inline constexpr const char* kNoPageWhy = "The help page was not found where the help pages are installed:";

}  // namespace kestrel::texts
