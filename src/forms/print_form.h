// SPDX-License-Identifier: MIT
// The controls of the print dialog.
#pragma once

#include <concepts>
#include <type_traits>

#include "forms/main_window.h"
#include "forms/page_view.h"

namespace kestrel {

struct FormPrint {
  Window window;
  Label LabelLevel;
  ComboBox SudokuTypeKeuze;                       // level index 0..4
  Label Label3;                                   // beside TextFrom
  TextBox TextFrom;                               // first number
  Label LabelTo;                                  // "to " and the last number
  ControlArray<OptionButton, 0, 3> OptionAantal;  // 1, 2 or 4 a page
  CheckBox CheckSolution;
  CheckBox CheckPencils;
  Label LabelPages;
  Slider PageSlider;       // 1..10 pages
  Label LabelPageCount;    // the slider's value
  Picture PrintVoorbeeld;  // how pages of this kind look
  PageView FirstPage;      // the first page as it is going to be printed
  Button Command2;         // print
  Button Command1;         // close
  Label LabelOutcome;      // what became of the last document

  friend bool operator==(const FormPrint&, const FormPrint&) = default;
};

FormPrint MakeFormPrint();

template <class Form, class Visit>
requires std::same_as<std::remove_const_t<Form>, FormPrint>
void EachControl(Form& form, Visit&& visit) {
  visit(ControlId{"FormPrint"}, form.window);
  visit(ControlId{"LabelLevel"}, form.LabelLevel);
  visit(ControlId{"SudokuTypeKeuze"}, form.SudokuTypeKeuze);
  visit(ControlId{"Label3"}, form.Label3);
  visit(ControlId{"TextFrom"}, form.TextFrom);
  visit(ControlId{"LabelTo"}, form.LabelTo);
  EachElement("OptionAantal", form.OptionAantal, visit);
  visit(ControlId{"CheckSolution"}, form.CheckSolution);
  visit(ControlId{"CheckPencils"}, form.CheckPencils);
  visit(ControlId{"LabelPages"}, form.LabelPages);
  visit(ControlId{"PageSlider"}, form.PageSlider);
  visit(ControlId{"LabelPageCount"}, form.LabelPageCount);
  visit(ControlId{"PrintVoorbeeld"}, form.PrintVoorbeeld);
  visit(ControlId{"FirstPage"}, form.FirstPage);
  visit(ControlId{"Command2"}, form.Command2);
  visit(ControlId{"Command1"}, form.Command1);
  visit(ControlId{"LabelOutcome"}, form.LabelOutcome);
}

}  // namespace kestrel
