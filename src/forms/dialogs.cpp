// SPDX-License-Identifier: MIT
// The design of the players dialog, the print dialog and the help window. All numbers are twips.
#include "forms/browser_form.h"
#include "forms/names_form.h"
#include "forms/print_form.h"
#include "forms/texts.h"

namespace kestrel {

namespace {

void PlaceButton(Button& button, int left, int top, int width, std::string_view caption, int tab_index) {
  Place(button, left, top, width, 375);
  button.caption = caption;
  button.tab_index = tab_index;
}

void PlaceLabel(Label& label, int left, int top, int width, std::string_view caption) {
  Place(label, left, top, width, 255);
  label.caption = caption;
}

void DesignPrintChoices(FormPrint& form) {
  PlaceLabel(form.LabelLevel, 180, 195, 1275, texts::kLevelCaption);
  Place(form.SudokuTypeKeuze, 1500, 150, 1650, 345);
  for (const std::string_view name : texts::kLevelNames) form.SudokuTypeKeuze.lines.emplace_back(name);
  form.SudokuTypeKeuze.index = 0;
  form.SudokuTypeKeuze.tab_index = 0;
  form.SudokuTypeKeuze.spoken = texts::kPrintLevel;
  PlaceLabel(form.Label3, 180, 705, 1275, texts::kFromNumber);
  Place(form.TextFrom, 1500, 660, 600, 345);
  form.TextFrom.text = "1";
  form.TextFrom.digits_only = true;
  form.TextFrom.tab_index = 1;
  form.TextFrom.spoken = texts::kFirstNumber;
  PlaceLabel(form.LabelTo, 2190, 705, 960, texts::kToOne);
  constexpr std::array<char, 3> kMnemonics = {'1', '2', '4'};
  for (int i = 0; i < 3; ++i) {
    OptionButton& option = form.OptionAantal(i);
    Place(option, 180, 1200 + 330 * i, 1830, 300);
    option.caption = texts::kPerPage[static_cast<std::size_t>(i)];
    option.mnemonic = kMnemonics[static_cast<std::size_t>(i)];
    option.value = i == 0;
    option.tab_index = 2 + i;
  }
}

void DesignPrintPages(FormPrint& form) {
  Place(form.CheckSolution, 180, 2340, 1830, 300);
  form.CheckSolution.caption = texts::kWithSolutions;
  form.CheckSolution.mnemonic = 'S';
  form.CheckSolution.value = true;
  form.CheckSolution.tab_index = 5;
  Place(form.CheckPencils, 180, 2670, 1830, 300);
  form.CheckPencils.caption = texts::kWithPencilmarks;
  form.CheckPencils.mnemonic = 'm';
  form.CheckPencils.value = true;
  form.CheckPencils.tab_index = 6;
  PlaceLabel(form.LabelPages, 180, 3180, 690, texts::kPages);
  Place(form.PageSlider, 870, 3120, 1860, 375);
  form.PageSlider.minimum = 1;
  form.PageSlider.maximum = 10;
  form.PageSlider.value = 1;
  form.PageSlider.tab_index = 7;
  form.PageSlider.spoken = texts::kPageCount;
  PlaceLabel(form.LabelPageCount, 2790, 3180, 360, "1");
  form.LabelPageCount.align = Align::Right;
}

}  // namespace

FormNamen MakeFormNamen() {
  FormNamen form;
  constexpr Font kNameFont{"Courier New", 9.75, false};
  Place(form.window, 0, 0, 5100, 4500);
  form.window.caption = texts::kNamesCaption;
  form.window.modal = true;
  PlaceLabel(form.LabelInstruction, 150, 120, 4800, texts::kNamesInstruction);
  form.LabelInstruction.height = 660;
  Place(form.Naamlijst, 150, 870, 3000, 2970);
  form.Naamlijst.font = kNameFont;
  form.Naamlijst.tab_index = 0;
  form.Naamlijst.spoken = texts::kPlayerList;
  Place(form.NaamInvoerveld, 150, 3975, 3000, 375);
  form.NaamInvoerveld.font = kNameFont;
  form.NaamInvoerveld.enabled = false;
  form.NaamInvoerveld.max_length = 16;
  form.NaamInvoerveld.tab_index = 1;
  form.NaamInvoerveld.spoken = texts::kPlayerName;
  form.NaamInvoerveld.tooltip = texts::kTyping;
  PlaceLabel(form.LabelTyping, 3300, 3930, 1650, texts::kTyping);
  form.LabelTyping.height = 465;
  form.LabelTyping.visible = false;
  PlaceButton(form.KnopNieuweSpeler, 3300, 870, 1650, texts::kNewPlayer, 2);
  PlaceButton(form.KnopWijzigen, 3300, 1365, 1650, texts::kEditPlayer, 3);
  PlaceButton(form.KnopOK, 3300, 2475, 1650, texts::kOk, 4);
  PlaceButton(form.KnopAnnuleren, 3300, 2970, 1650, texts::kCancel, 5);
  PlaceButton(form.CommandFree, 3300, 3465, 1650, texts::kFreePlay, 6);
  form.CommandFree.mnemonic = 'F';
  form.KnopWijzigen.enabled = false;
  form.KnopOK.enabled = false;
  form.KnopOK.is_default = true;
  form.KnopAnnuleren.is_cancel = true;
  return form;
}

FormPrint MakeFormPrint() {
  FormPrint form;
  Place(form.window, 0, 0, 7635, 6000);
  form.window.caption = texts::kPrintCaption;
  form.window.modal = true;
  DesignPrintChoices(form);
  DesignPrintPages(form);
  Place(form.PrintVoorbeeld, 2010, 1230, 1140, 1620);
  form.PrintVoorbeeld.spoken = texts::kPreview;
  Place(form.FirstPage, 3420, 150, 4035, 5700);
  form.FirstPage.spoken = texts::kFirstPage;
  PlaceButton(form.Command2, 180, 3945, 1410, texts::kPrintNow, 8);
  form.Command2.mnemonic = 'P';
  form.Command2.is_default = true;
  PlaceButton(form.Command1, 1740, 3945, 1410, texts::kClose, 9);
  form.Command1.mnemonic = 'C';
  form.Command1.is_cancel = true;
  PlaceLabel(form.LabelOutcome, 180, 4470, 2970, "");
  form.LabelOutcome.height = 1380;
  form.LabelOutcome.tooltip = texts::kOutcome;
  return form;
}

Browser MakeBrowser() {
  Browser form;
  Place(form.window, 0, 0, 14400, 10800);
  form.window.caption = texts::kBrowserCaption;
  form.window.state = WindowState::Maximized;
  // The strip above the view is for the front end's buttons.
  Place(form.WebBrowser1, 120, 465, form.window.width - kBrowserMarginX,
        form.window.height - kBrowserMarginY);
  form.WebBrowser1.spoken = texts::kHelpPage;
  return form;
}

}  // namespace kestrel
