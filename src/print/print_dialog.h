// SPDX-License-Identifier: MIT
// The print dialog: what to print, and printing it. Used by the main window.
//
// The choices live in two places. `remembered_` is kept for the whole run of the program; `chosen_` belongs
// to the open dialog, is copied from it when the dialog is activated and written back by Print and Close.
#pragma once

#include <string_view>

#include "core/stock_table.h"
#include "forms/asker.h"
#include "forms/event.h"
#include "forms/page.h"
#include "forms/print_form.h"
#include "forms/screen.h"
#include "print/page_metrics.h"
#include "print/print_settings.h"

namespace kestrel {

class PrintDialog {
 public:
  // All must outlive this object.
  PrintDialog(FormPrint& form, const StockTable& stock, Printer& printer, Asker& asker, Screen& screen)
      : form_(form), stock_(stock), printer_(printer), asker_(asker), screen_(screen) {}

  // At the program's start: the dialog's place on the screen, and the start values of the choices.
  void Load();

  // Runs the dialog until it is hidden. `selected_level` is 1..5; `program_folder`, which ends in a
  // backslash, has the preview pictures. False: the program is ending.
  [[nodiscard]] bool Run(int selected_level, std::string_view program_folder);

  // An event of the form. While pages are printed all events are dropped.
  void Handle(const Event& event);

  // The choices that the next opening starts from, the level excepted.
  [[nodiscard]] const PrintSettings& Remembered() const { return remembered_; }

 private:
  void Activate();
  [[nodiscard]] bool SetUpPrinter();
  void Click(const ControlId& control);
  void ChoosePerPage(int option);
  void ChoosePages();
  void ChooseLevel();
  void CheckRange();
  void ShowPreview();
  void Print();
  void Close();
  void ShowFirstPage();

  FormPrint& form_;
  const StockTable& stock_;
  Printer& printer_;
  Asker& asker_;
  Screen& screen_;

  PrintSettings remembered_;
  PrintSettings chosen_;
  PrintSettings shown_;              // what FirstPage shows
  std::string_view program_folder_;  // during Run
  Page* page_ = nullptr;             // the printer's, since the last activation
  PageMetrics metrics_;
  bool printing_ = false;
};

}  // namespace kestrel
