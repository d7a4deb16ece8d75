// SPDX-License-Identifier: MIT
// The texts of the main window that are not fixed captions: messages, questions, caption, status bar.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace kestrel::texts {

// Stock file
inline constexpr std::string_view kFileError = "File Error";
inline constexpr std::string_view kReadError = "Error reading sudokus from file!";
inline constexpr std::string_view kWriteError = "Error writing sudokus to file!";
inline constexpr std::string_view kCriticalError = "Critical Error!";
inline constexpr std::string_view kCannotProceed =
    "The program failed to open the file with sudoku puzzles, and therefore cannot proceed. Make sure that "
    "the file 'SudStock.kpz' is in the program folder before rerunning the program. If it keeps on failing, "
    "you can try to reinstall the program. Program will be aborted.";
// That a stock can be read and is damaged, that it and the older copy are both there, and what to do.
std::string DamagedStock(std::string_view stock, std::string_view older);
// Where the player's puzzles and best times still are, and what to do; only when there is such a copy.
std::string OlderStock(std::string_view path);

// Questions
inline constexpr std::string_view kQuit = "Do you really want to quit ?";
inline constexpr std::string_view kQuitTitle = "Quit Kestrel Sudoku";
inline constexpr std::string_view kEnterNumber = "Enter a value between 1 and 100";
inline constexpr std::string_view kSudokuNumber = "Sudoku number";
inline constexpr std::string_view kProposedNumber = "1";
inline constexpr std::string_view kRenew =
    "Are you sure to renew this set of Sudokus? Renewing also resets the Best Times for this set.";
inline constexpr std::string_view kRenewTitle = "Renew Selected Set of Sudokus";

// Completion and hints
inline constexpr std::string_view kNewBestTime = "New Best Time for this Sudoku. Congratulations!!!";
inline constexpr std::string_view kNewBestTimeTitle = "New Best Time!";
inline constexpr std::string_view kBadCell = "Bad solved cell";
std::string WrongDigit(std::string_view cell_name);
std::string ErasedMark(std::string_view cell_name);
std::string HelpOn(std::string_view technique);

// The caption: who plays. An empty name is free play.
std::string Caption(bool named, std::string_view player);

// Status bar
inline constexpr std::string_view kNoBestTime = "Best Time: 00:00 (No Best Time Yet)";
std::string LevelPanel(std::string_view level_name);
std::string NumberPanel(int number);
// "MM:SS" of whole seconds; the minutes are the last two digits only.
std::string Time(std::int64_t minutes, std::int64_t seconds);
std::string BestTimePanel(int minutes, int seconds, std::string_view player);
std::string LevelBestPanel(std::string_view time);
std::string LevelAveragePanel(std::string_view time);

}  // namespace kestrel::texts
