// SPDX-License-Identifier: MIT
// The design of the main window. All numbers are twips.
#include "forms/main_window.h"

#include "core/cell_names.h"
#include "core/level_names.h"
#include "forms/texts.h"

namespace kestrel {

namespace {

constexpr int kCommandLine = 9000;  // top of the bottom line of buttons
constexpr int kRenewalTop = 8085;   // of the renewal's progress bar, below the technique list
constexpr int kCommandWidth = 855;
constexpr int kCommandHeight = 375;
constexpr double kMarkPoints = 10.5;  // digits 10 pixels high leave air between the lines of marks

void DesignBoard(MainWindow& main) {
  constexpr Font kDigitFont{"Arial", 30, true};
  for (int cell = 0; cell < kCells; ++cell) {
    const int x = CellEdge(CellCol[cell]);
    const int y = CellEdge(CellRow[cell]);
    Label& digit = main.Grid(cell);
    Place(digit, x, y, kCellSize, kCellSize);
    digit.font = kDigitFont;
    digit.align = Align::Centre;
    digit.transparent = true;
    for (int d = 1; d <= 9; ++d) {
      Label& mark = main.Mark(d)(cell);
      Place(mark, x + kMarkPitch * ((d - 1) % 3), y + kMarkPitch * ((d - 1) / 3), kMarkSize, kMarkSize);
      mark.caption = std::to_string(d);
      mark.font.size = kMarkPoints;
      mark.align = Align::Centre;
      mark.transparent = true;
    }
  }
}

void DesignHeaders(MainWindow& main) {
  constexpr Font kHeaderFont{"Arial", 20.25, true};
  for (int line = 0; line < kUnitSize; ++line) {
    const int edge = CellEdge(line) + 120;
    Place(main.LabelRow(line), 120, edge, kHeaderSize, kHeaderSize);
    main.LabelRow(line).caption = RowLetter(line);
    Place(main.LabelColumn(line), edge, 120, kHeaderSize, kHeaderSize);
    main.LabelColumn(line).caption = std::to_string(line + 1);
    for (Label* header : {&main.LabelRow(line), &main.LabelColumn(line)}) {
      header->font = kHeaderFont;
      header->align = Align::Centre;
      header->transparent = true;
    }
  }
}

// Captions and colours of the rows come from the technique table and are set by the game.
void DesignTechniqueList(MainWindow& main) {
  for (int slot = 0; slot < kTechniques; ++slot) {
    const int top = kListTop + kListPitch * slot;
    Place(main.LabelCount(slot), 9120, top, 1785, kListPitch);
    Place(main.LabelCount(kTechniques + slot), 10905, top, 495, kListPitch);
    main.LabelCount(kTechniques + slot).align = Align::Right;
  }
  Place(main.LabelHint, 8760, kListTop, 345, kListPitch);
  main.LabelHint.caption = ">";
  main.LabelHint.visible = false;
  main.LabelHint.link = true;
  main.LabelHint.align = Align::Centre;
  main.LabelHint.tooltip = texts::kHintMarker;
}

void DesignLevels(MainWindow& main) {
  constexpr std::array<char, 5> kMnemonics = {'V', 'E', 'M', 'H', 'y'};
  for (int level = 1; level <= 5; ++level) {
    const int top = 720 + 330 * (level - 1);
    const std::string_view name = LevelName(level);
    OptionButton& option = main.OptionType(level);
    Place(option, 9120, top, 1155, 300);
    option.caption = name;
    option.mnemonic = kMnemonics[static_cast<std::size_t>(level - 1)];
    Label& renew = main.RenewLevel(level);
    Place(renew, 10290, top, 1110, 300);
    renew.caption = texts::kRenewLevel;
    renew.link = true;
    renew.align = Align::Right;
    renew.spoken = std::string(texts::kRenewLevel) + ": " + std::string(name);
  }
  static_assert(kListTop + kListPitch * kTechniques < kRenewalTop, "a longer list needs narrower rows");
  Place(main.ProgressBar2, 9120, kRenewalTop, 2280, 225);
  main.ProgressBar2.visible = false;
  main.ProgressBar2.spoken = texts::kRenewalProgress;
}

void DesignStartPanel(MainWindow& main) {
  constexpr int kOuterLines = 135;  // from the outer cells to behind the board's outer lines
  constexpr int kStart = CellEdge(0) - kOuterLines;
  constexpr int kSide = CellEdge(8) + kCellSize + kOuterLines - kStart;
  Place(main.Picture3, kStart, kStart, kSide, kSide);
  main.Picture3.spoken = texts::kProductName;
  for (int level = 1; level <= 5; ++level) {
    Place(main.ProgressBar1(level), 2850, 5400 + 300 * (level - 1), 4815, 120);
    main.ProgressBar1(level).spoken = LevelName(level);
  }
}

void DesignButton(Button& button, int left, std::string_view caption, char mnemonic,
                  std::string_view tooltip) {
  Place(button, left, kCommandLine, kCommandWidth, kCommandHeight);
  button.caption = caption;
  button.mnemonic = mnemonic;
  button.tooltip = tooltip;
}

void DesignCommands(MainWindow& main) {
  DesignButton(main.CommandNew, 960, texts::kNext, 'N', texts::kNextTip);
  DesignButton(main.CommandOpen, 1920, texts::kOpen, 'O', texts::kOpenTip);
  DesignButton(main.CommandRestart, 2880, texts::kRestart, 'R', texts::kRestartTip);
  DesignButton(main.CommandUndo, 3840, texts::kUndo, 'U', texts::kUndoTip);
  DesignButton(main.CommandRedo, 4800, texts::kRedo, 'd', texts::kRedoTip);
  DesignButton(main.CommandResetCell, 5760, texts::kResetCell, 'C', texts::kResetTip);
  DesignButton(main.CommandHint, 6720, texts::kHint, 'i', texts::kHintCost);
  DesignButton(main.CommandSolution, 7920, texts::kSolution, 't', texts::kSolutionTip);
  DesignButton(main.CommandPrint, 9120, texts::kPrint, 'P', texts::kPrintTip);
  main.CommandPrint.width = 1080;
  for (Button* button :
       {&main.CommandNew, &main.CommandOpen, &main.CommandRestart, &main.CommandUndo, &main.CommandRedo,
        &main.CommandResetCell, &main.CommandHint, &main.CommandSolution, &main.CommandPrint}) {
    button->enabled = false;
  }
  for (Button* button : {&main.CommandUndo, &main.CommandRedo, &main.CommandResetCell}) {
    button->back = kLightGreen;
  }
  main.CommandSolution.back = kLightRed;
}

void DesignRightColumn(MainWindow& main) {
  DesignButton(main.cmdPlayers, 10560, texts::kPlayers, 'a', texts::kPlayersTip);
  Place(main.cmdPlayers, 10560, 180, 840, kCommandHeight);
  DesignButton(main.CommandHelp, 10320, texts::kHelp, 'l', texts::kHelpTip);
  main.CommandHelp.width = 1080;
  Place(main.chkSound, 10485, 8475, 915, 315);
  main.chkSound.caption = texts::kSoundsCaption;
  main.chkSound.mnemonic = 'S';
  main.chkSound.tooltip = texts::kSoundsTip;
  Place(main.Picture1, 9120, 8340, 1350, 600);
  main.Picture1.tooltip = texts::kLogo;
}

void DesignClock(MainWindow& main) {
  Place(main.LabelTijd, 9120, 120, 1335, 495);
  main.LabelTijd.caption = "00:00";
  main.LabelTijd.font = {"MS Sans Serif", 18, true};
  main.LabelTijd.tooltip = texts::kElapsedTime;
  Place(main.LabelStap, 120, kCommandLine, 615, kCommandHeight);
  main.LabelStap.caption = "0";
  main.LabelStap.font = {"MS Sans Serif", 13.5, false};
  main.LabelStap.tooltip = texts::kStepCounter;
  for (Label* label : {&main.LabelTijd, &main.LabelStap}) {
    label->back = kLightGreen;
    label->align = Align::Centre;
  }
  main.Timer1.interval = 250;
  main.Timer1.enabled = false;
}

void DesignStatusBar(MainWindow& main) {
  constexpr std::array<int, 5> kWidths = {1515, 1260, 4365, 2085, 2295};  // 11520 together
  int left = 0;
  for (int panel = 1; panel <= 5; ++panel) {
    const int width = kWidths[static_cast<std::size_t>(panel - 1)];
    Place(main.StatusBar(panel), left, 9480, width, 390);
    if (panel >= 3) main.StatusBar(panel).tooltip = texts::kRecordsTip;
    left += width;
  }
}

// The keyboard's way: what to play, playing, everything else.
void DesignTabOrder(MainWindow& main) {
  int next = 0;
  for (OptionButton& option : main.OptionType.items) option.tab_index = next++;
  for (Button* button : {&main.CommandNew, &main.CommandOpen, &main.CommandRestart, &main.CommandUndo,
                         &main.CommandRedo, &main.CommandResetCell, &main.CommandHint}) {
    button->tab_index = next++;
  }
  main.LabelHint.tab_index = next++;
  main.CommandSolution.tab_index = next++;
  main.CommandPrint.tab_index = next++;
  main.cmdPlayers.tab_index = next++;
  for (Label& renew : main.RenewLevel.items) renew.tab_index = next++;
  main.chkSound.tab_index = next++;
  main.CommandHelp.tab_index = next++;
  main.Picture1.tab_index = next++;
}

}  // namespace

MainWindow MakeMainWindow() {
  MainWindow main;
  Place(main.window, 0, 0, 11520, 9870);
  main.window.caption = texts::kProductName;
  DesignBoard(main);
  DesignHeaders(main);
  DesignTechniqueList(main);
  DesignLevels(main);
  DesignStartPanel(main);
  DesignCommands(main);
  DesignRightColumn(main);
  DesignClock(main);
  DesignStatusBar(main);
  DesignTabOrder(main);
  return main;
}

}  // namespace kestrel
