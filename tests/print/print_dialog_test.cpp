// SPDX-License-Identifier: MIT
#include "print/print_dialog.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "recording_page.h"

namespace kestrel {
namespace {

struct FakePrinter : Printer {
  Page* SetUp() override { return works ? &page : nullptr; }
  bool BeginDocument() override { return ++begun, wants_document; }
  void EndDocument() override { ++ended; }
  RecordingPage page;
  bool works = true, wants_document = true;
  int begun = 0, ended = 0;
};

// The dialog on a screen where a function plays the user while it is open.
class PrintDialogTest : public testing::Test, protected Screen, protected Asker {
 protected:
  int Width() override { return 20000; }
  int Height() override { return 12000; }
  void Show(FormId) override { form_.window.open = true; }
  void Hide(FormId) override { form_.window.open = false; }
  bool WaitUntilHidden(FormId) override { return !form_.window.open || (user_(), true); }
  void Focus(FormId, ControlId) override {}
  void Beep() override {}
  Answer Message(const MessageBox& box) override { return messages_.push_back(box.text), Answer::Ok; }
  std::optional<std::string> Input(const InputBox&) override { return std::nullopt; }

  bool Open(const std::function<void()>& user) {
    user_ = user;
    return dialog_.Run(3, "/p\\");
  }
  void Press(std::string_view name, int index = kNoIndex, EventKind kind = EventKind::Click) {
    dialog_.Handle({.form = FormId::Print, .control = {name, index}, .kind = kind, .key = Key::Enter});
  }
  void ChoosePages(int pages) {
    form_.PageSlider.value = pages;
    Press("PageSlider", kNoIndex, EventKind::Change);
  }

  FormPrint form_ = MakeFormPrint();
  StockTable stock_ = StockToPrint();
  FakePrinter printer_;
  std::function<void()> user_;
  std::vector<std::string> messages_;
  PrintDialog dialog_{form_, stock_, printer_, *this, *this};
};

TEST_F(PrintDialogTest, KeepsTheRangeInsideTheLevel) {
  struct Row {
    int option, pages;
    std::string_view typed, from, to, preview;
  };
  (void)Open([&] {
    EXPECT_EQ(form_.LabelTo.caption + form_.PrintVoorbeeld.file, "to 1/p\\PRN1S.GIF");
    form_.CheckSolution.value = false;
    Press("CheckSolution");
    for (const Row& row : std::initializer_list<Row>{{0, 1, "101", "100", "to 100", "/p\\PRN1.GIF"},
                                                     {2, 10, "80", "61", "to 100", "/p\\PRN4.GIF"},
                                                     {2, 10, "61", "61", "to 100", "/p\\PRN4.GIF"},
                                                     {1, 10, "", "1", "to 20", "/p\\PRN2.GIF"},
                                                     {2, 1, "007", "007", "to 10", "/p\\PRN4.GIF"},
                                                     {1, 1, "99999999999", "99", "to 100", "/p\\PRN2.GIF"}}) {
      Press("OptionAantal", row.option);
      ChoosePages(row.pages);
      form_.TextFrom.text = row.typed;
      Press("TextFrom", kNoIndex, row.option == 1 ? EventKind::Leave : EventKind::Key);
      EXPECT_EQ(form_.TextFrom.text, row.from);
      EXPECT_EQ(form_.LabelTo.caption, row.to);
      EXPECT_EQ(form_.PrintVoorbeeld.file, row.preview);
    }
    Press("OptionAantal", 2);
    EXPECT_EQ(form_.TextFrom.text, "97");
    ChoosePages(2);
    EXPECT_EQ(form_.TextFrom.text, "93");
  });
}

TEST_F(PrintDialogTest, RemembersWhatWasClosedOrPrinted) {
  (void)Open([&] {
    Press("OptionAantal", 2);
    ChoosePages(2);
    form_.TextFrom.text = "33";
    Press("TextFrom", kNoIndex, EventKind::Leave);
    form_.CheckPencils.value = false;
    Press("CheckPencils");
    form_.SudokuTypeKeuze.index = 4;
    Press("SudokuTypeKeuze");
    EXPECT_EQ(dialog_.Remembered(), PrintSettings{.level_index = 2});
    Press("Command1");
  });
  form_ = MakeFormPrint();
  (void)Open([&] {
    EXPECT_TRUE(form_.OptionAantal(2).value && !form_.OptionAantal(0).value && form_.CheckSolution.value);
    EXPECT_EQ(form_.PageSlider.value, 2);
    EXPECT_EQ(form_.TextFrom.text + form_.LabelTo.caption, "33to 40");
    EXPECT_EQ(form_.SudokuTypeKeuze.index, 2) << "the main window's level, each time";
    Press("Command2");
  });
  EXPECT_EQ(dialog_.Remembered(), (PrintSettings{2, 4, true, false, 33, 2}));
  EXPECT_EQ(printer_.ended, 1);
  ASSERT_EQ(printer_.page.pages.size(), 2U);
  for (const std::string_view text : {"# 37", "# 40", "Medium", "Page 2"}) {
    EXPECT_EQ(std::ranges::count(printer_.page.pages[1], text, &Drawn::text), 1) << text;
  }
}

TEST_F(PrintDialogTest, GivesUpWithoutAPrinterAndStopsWithOne) {
  printer_.works = false;
  EXPECT_TRUE(Open([] { FAIL() << "the dialog stayed open"; }));
  printer_.works = true;
  printer_.page.width = 0;  // nor does a printer work that knows no paper
  EXPECT_TRUE(Open([] { FAIL() << "the dialog stayed open"; }));
  EXPECT_EQ(messages_, std::vector<std::string>(2,
                                                "An error occured while attempting to communicate with the "
                                                "standard printer, please check the availability and "
                                                "status of your printer."));
  printer_.page.width = 2100;
  (void)Open([&] {
    ChoosePages(5);
    printer_.wants_document = false;  // no file name was given
    Press("Command2");
    EXPECT_EQ(printer_.page.pages.size() + static_cast<std::size_t>(printer_.ended), 0U);
    printer_.wants_document = true;
    printer_.page.on_page = [&] {
      Press("Command2");  // what the user presses meanwhile is dropped
      Press("Command1");
      return printer_.page.pages.size() < 2;
    };
    Press("Command2");
    EXPECT_EQ(printer_.page.pages.size(), 2U);
    EXPECT_TRUE(printer_.begun == 2 && printer_.ended == 1 && form_.window.open);
  });
}

}  // namespace
}  // namespace kestrel
