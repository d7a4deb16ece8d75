// SPDX-License-Identifier: MIT
// The main window's controls and their design: the one place where captions, places, colours and the state at
// start are set. The game changes them; every front end shows them.
#pragma once

#include <concepts>
#include <cstdint>
#include <type_traits>
#include <utility>

#include "core/cell_set.h"
#include "core/grid.h"
#include "core/technique.h"
#include "forms/control.h"
#include "forms/event.h"

namespace kestrel {

// The board's geometry in twips.
inline constexpr int kCellSize = 735;
inline constexpr int kMarkSize = 255;
inline constexpr int kMarkPitch = 240;  // marks overlap their right and lower neighbour by 15
inline constexpr int kHeaderSize = 510;
// The left edge of a column's cells, and the top edge of a row's: boxes stand 120 further apart.
constexpr int CellEdge(int line) {
  return 960 + 840 * line + 120 * (line / 3);
}

// Rows of the technique list: slot s stands at kListTop + s x kListPitch.
inline constexpr int kListTop = 2760;
inline constexpr int kListPitch = 240;

// Digits with which Mark can be indexed: Mark(d)(cell) is the pencil mark of digit d, named Mark1 .. Mark9.
using MarkArray = ControlArray<Label, 0, kCells>;

// How the open puzzle ended.
enum class PuzzleEnd : std::uint8_t { None, Solved, Revealed };

struct MainWindow {
  Window window;

  ControlArray<Label, 0, kCells> Grid;    // the cells' digits, "" or "1".."9"
  ControlArray<MarkArray, 1, 9> Mark;     // pencil marks by digit and cell
  ControlArray<Label, 0, 9> LabelRow;     // "A".."H", "J"
  ControlArray<Label, 0, 9> LabelColumn;  // "1".."9"
  // s: technique of slot s; kTechniques + s: its count
  ControlArray<Label, 0, 2 * kTechniques> LabelCount;
  Label LabelHint;                              // marks a row of the technique list; tag: step 1..22
  Label LabelTijd;                              // the clock, "MM:SS"
  Label LabelStap;                              // the step counter
  ControlArray<OptionButton, 1, 5> OptionType;  // the level
  ControlArray<Label, 1, 5> RenewLevel;
  ControlArray<ProgressBar, 1, 5> ProgressBar1;  // on Picture3
  ProgressBar ProgressBar2;                      // of a renewal
  Picture Picture1;                              // the maker's logo
  Picture Picture3;                              // covers the board until the stock is there
  CheckBox chkSound;
  Button CommandNew;
  Button CommandOpen;
  Button CommandRestart;
  Button CommandUndo;
  Button CommandRedo;
  Button CommandResetCell;
  Button CommandHint;
  Button CommandSolution;
  Button CommandPrint;
  Button CommandHelp;
  Button cmdPlayers;
  ControlArray<StatusPanel, 1, 5> StatusBar;
  Timer Timer1;

  // What the board as a whole shows beside its controls.
  PuzzleEnd end = PuzzleEnd::None;
  CellSet filled_in;  // where Solution put a digit that the player had not found

  friend bool operator==(const MainWindow&, const MainWindow&) = default;
};

// The main window as designed: nothing chosen, no puzzle.
MainWindow MakeMainWindow();

// Calls visit(ControlId, element) for every element of a control array.
template <class Array, class Visit>
void EachElement(std::string_view name, Array& array, Visit&& visit, int digit = 0) {
  int index = Array::kFirst;
  for (auto& item : array.items) visit(ControlId{name, index++, digit}, item);
}

inline constexpr std::array<std::string_view, 9> kMarkNames = {"Mark1", "Mark2", "Mark3", "Mark4", "Mark5",
                                                               "Mark6", "Mark7", "Mark8", "Mark9"};

// Calls visit(ControlId, control) once for every control, the window itself first.
template <class Form, class Visit>
requires std::same_as<std::remove_const_t<Form>, MainWindow>
void EachControl(Form& form, Visit&& visit) {
  visit(ControlId{"MainWindow"}, form.window);
  EachElement("Grid", form.Grid, visit);
  for (int digit = 1; digit <= 9; ++digit) {
    EachElement(kMarkNames[static_cast<std::size_t>(digit - 1)], form.Mark(digit), visit, digit);
  }
  EachElement("LabelRow", form.LabelRow, visit);
  EachElement("LabelColumn", form.LabelColumn, visit);
  EachElement("LabelCount", form.LabelCount, visit);
  visit(ControlId{"LabelHint"}, form.LabelHint);
  visit(ControlId{"LabelTijd"}, form.LabelTijd);
  visit(ControlId{"LabelStap"}, form.LabelStap);
  EachElement("OptionType", form.OptionType, visit);
  EachElement("RenewLevel", form.RenewLevel, visit);
  EachElement("ProgressBar1", form.ProgressBar1, visit);
  visit(ControlId{"ProgressBar2"}, form.ProgressBar2);
  visit(ControlId{"Picture1"}, form.Picture1);
  visit(ControlId{"Picture3"}, form.Picture3);
  visit(ControlId{"chkSound"}, form.chkSound);
  visit(ControlId{"CommandNew"}, form.CommandNew);
  visit(ControlId{"CommandOpen"}, form.CommandOpen);
  visit(ControlId{"CommandRestart"}, form.CommandRestart);
  visit(ControlId{"CommandUndo"}, form.CommandUndo);
  visit(ControlId{"CommandRedo"}, form.CommandRedo);
  visit(ControlId{"CommandResetCell"}, form.CommandResetCell);
  visit(ControlId{"CommandHint"}, form.CommandHint);
  visit(ControlId{"CommandSolution"}, form.CommandSolution);
  visit(ControlId{"CommandPrint"}, form.CommandPrint);
  visit(ControlId{"CommandHelp"}, form.CommandHelp);
  visit(ControlId{"cmdPlayers"}, form.cmdPlayers);
  EachElement("StatusBar", form.StatusBar, visit);
  visit(ControlId{"Timer1"}, form.Timer1);
}

}  // namespace kestrel
