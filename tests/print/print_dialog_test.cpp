// SPDX-License-Identifier: MIT
#include "print/print_dialog.h"

#include <gtest/gtest.h>

#include "recording_page.h"

namespace kestrel {
namespace {

// A dialog whose user is a function that runs while it is open.
class PrintDialogTest : public testing::Test, protected Screen, protected Asker {
 protected:
  // The screen
  int Width() override { return 20000; }
  int Height() override { return 12000; }
  void Show(FormId) override { form_.window.open = true; }
  void Hide(FormId) override { form_.window.open = false; }
  bool WaitUntilHidden(FormId) override {
    if (form_.window.open) user_();
    return !ending_;
  }
  void Focus(FormId, ControlId) override {}
  void Beep() override {}
  // Questions
  Answer Message(const MessageBox& box) override {
    messages_.push_back(box.title + ": " + box.text);
    return Answer::Ok;
  }
  std::optional<std::string> Input(const InputBox&) override { return std::nullopt; }

  struct FakePrinter : Printer {
    Page* SetUp() override { return works ? &page : nullptr; }
    bool BeginDocument() override { return ++begun, wants_document; }
    void EndDocument() override { ++ended; }

    RecordingPage page;
    bool works = true;
    bool wants_document = true;
    int begun = 0;
    int ended = 0;
  };

  bool Open(const std::function<void()>& user, int level = 3) {
    user_ = user;
    return dialog_.Run(level, "/p\\");
  }
  void Send(EventKind kind, ControlId control, Key key = Key::None) {
    dialog_.Handle({.form = FormId::Print, .control = control, .kind = kind, .key = key});
  }
  void Press(std::string_view name, int index = kNoIndex) { Send(EventKind::Click, {name, index}); }
  void ChoosePerPage(int option) { Press("OptionAantal", option); }
  void ChoosePages(int pages) {
    form_.PageSlider.value = pages;
    Send(EventKind::Change, {"PageSlider"});
  }
  void EnterFrom(std::string_view text) {
    form_.TextFrom.text = text;
    Send(EventKind::Key, {"TextFrom"}, Key::Enter);
  }
  void Check(CheckBox& box, std::string_view name, bool value) {
    box.value = value;
    Press(name);
  }

  FormPrint form_ = MakeFormPrint();
  StockTable stock_ = StockToPrint();
  FakePrinter printer_;
  RecordingPage& page_ = printer_.page;
  std::function<void()> user_;
  std::vector<std::string> messages_;
  bool ending_ = false;
  PrintDialog dialog_{form_, stock_, printer_, *this, *this};
};

TEST_F(PrintDialogTest, OpensWithStartValuesInTheMiddleOfTheScreen) {
  form_.TextFrom.enabled = false;
  dialog_.Load();
  EXPECT_EQ(form_.window.left, (20000 - form_.window.width) / 2);
  EXPECT_EQ(form_.window.top, (12000 - form_.window.height) / 2);
  EXPECT_TRUE(Open([&] {
    EXPECT_EQ(form_.PageSlider.value, 1);
    EXPECT_TRUE(form_.OptionAantal(0).value && !form_.OptionAantal(1).value && !form_.OptionAantal(2).value);
    EXPECT_TRUE(form_.CheckSolution.value && form_.CheckPencils.value && form_.TextFrom.enabled);
    EXPECT_EQ(form_.TextFrom.text, "1");
    EXPECT_EQ(form_.LabelTo.caption, "to 1");
    EXPECT_EQ(form_.SudokuTypeKeuze.index, 2);
    EXPECT_EQ(form_.PrintVoorbeeld.file, "/p\\PRN1S.GIF");
  }));
}

TEST_F(PrintDialogTest, KeepsTheRangeInsideTheLevel) {
  struct Row {
    int option, pages;
    std::string_view typed, from, to;
  };
  (void)Open([&] {
    for (const Row& row : std::initializer_list<Row>{{0, 1, "100", "100", "to 100"},
                                                     {0, 1, "101", "100", "to 100"},
                                                     {2, 10, "80", "61", "to 100"},
                                                     {2, 10, "61", "61", "to 100"},
                                                     {1, 10, "", "1", "to 20"},
                                                     {2, 3, "0", "1", "to 12"},
                                                     {2, 1, "007", "007", "to 10"},
                                                     {1, 1, "99999999999999999999", "99", "to 100"}}) {
      ChoosePerPage(row.option);
      ChoosePages(row.pages);
      EnterFrom(row.typed);
      EXPECT_EQ(form_.TextFrom.text, row.from);
      EXPECT_EQ(form_.LabelTo.caption, row.to);
    }
    // Leaving the box checks, and so do the options and the slider.
    form_.TextFrom.text = "0";
    Send(EventKind::Leave, {"TextFrom"});
    EXPECT_EQ(form_.TextFrom.text, "1");
    EnterFrom("99");
    ChoosePages(2);
    EXPECT_EQ(form_.TextFrom.text, "97");
    ChoosePerPage(2);
    EXPECT_EQ(form_.TextFrom.text, "93");
    ChoosePerPage(0);
    EXPECT_EQ(form_.LabelTo.caption, "to 94");
  });
}

TEST_F(PrintDialogTest, ShowsThePictureOfWhatWillBePrinted) {
  (void)Open([&] {
    for (const bool solutions : {false, true}) {
      Check(form_.CheckSolution, "CheckSolution", solutions);
      for (int option = 0; option < 3; ++option) {
        ChoosePerPage(option);
        EXPECT_EQ(form_.PrintVoorbeeld.file,
                  "/p\\PRN" + std::to_string(1 << option) + (solutions ? "S.GIF" : ".GIF"));
      }
    }
    Check(form_.CheckSolution, "CheckSolution", false);
    EXPECT_EQ(form_.PrintVoorbeeld.file, "/p\\PRN4.GIF");
  });
}

TEST_F(PrintDialogTest, RemembersWhatWasClosedOrPrinted) {
  (void)Open([&] {
    ChoosePerPage(2);
    ChoosePages(7);
    EnterFrom("33");
    Check(form_.CheckSolution, "CheckSolution", false);
    Check(form_.CheckPencils, "CheckPencils", false);
    form_.SudokuTypeKeuze.index = 4;
    Press("SudokuTypeKeuze");
    EXPECT_EQ(dialog_.Remembered(), PrintSettings{.level_index = 2});
    Press("Command1");
    EXPECT_FALSE(form_.window.open);
  });
  PrintSettings expected{7, 4, false, false, 33, 4};
  EXPECT_EQ(dialog_.Remembered(), expected);
  form_ = MakeFormPrint();
  // The level is the window's each time; the program may end while the dialog is open.
  ending_ = true;
  EXPECT_FALSE(Open(
      [&] {
        EXPECT_EQ(form_.PageSlider.value, 7);
        EXPECT_TRUE(form_.OptionAantal(2).value && !form_.OptionAantal(0).value);
        EXPECT_EQ(form_.TextFrom.text, "33");
        EXPECT_EQ(form_.LabelTo.caption, "to 60");
        EXPECT_EQ(form_.SudokuTypeKeuze.index, 0);
        EXPECT_EQ(form_.PrintVoorbeeld.file, "/p\\PRN4.GIF");
        ChoosePages(2);
        form_.SudokuTypeKeuze.index = -1;  // no level: the one before stays
        Press("SudokuTypeKeuze");
        Press("Command2");
      },
      1));
  expected = {2, 4, false, false, 33, 0};
  EXPECT_EQ(dialog_.Remembered(), expected);
  EXPECT_EQ(page_.pages.size(), 2U);
  EXPECT_EQ(RecordingPage::Find(page_.pages[1], "# 40").size(), 1U);
  EXPECT_EQ(RecordingPage::Find(page_.pages[1], "Very Easy").size(), 1U);
  EXPECT_EQ(printer_.begun + printer_.ended, 2);
}

TEST_F(PrintDialogTest, SaysThatThePrinterDoesNotAnswer) {
  printer_.works = false;
  EXPECT_TRUE(Open([&] { FAIL() << "the dialog stayed open"; }));
  EXPECT_EQ(messages_,
            std::vector<std::string>{
                "Printer error: An error occured while attempting to communicate with the standard printer, "
                "please check the availability and status of your printer."});
  EXPECT_FALSE(form_.window.open);
  page_.width = 0;  // nor one that cannot tell the size of its paper
  printer_.works = true;
  EXPECT_TRUE(Open([&] { FAIL() << "the dialog stayed open"; }));
  EXPECT_EQ(messages_.size(), 2U);
}

TEST_F(PrintDialogTest, StopsWhenThePrinterSaysSo) {
  (void)Open([&] {
    ChoosePages(5);
    printer_.wants_document = false;  // no file name was given
    Press("Command2");
    EXPECT_EQ(page_.pages.size(), 0U);
    EXPECT_EQ(printer_.ended, 0);
    printer_.wants_document = true;
    page_.on_page = [&] {
      // What the user presses meanwhile is dropped.
      Press("Command2");
      Press("Command1");
      return page_.pages.size() < 2;
    };
    Press("Command2");
    EXPECT_EQ(page_.pages.size(), 2U);
    EXPECT_EQ(printer_.begun, 2);
    EXPECT_EQ(printer_.ended, 1);
    EXPECT_TRUE(form_.window.open);
    Send(EventKind::Close, {"FormPrint"});
    EXPECT_FALSE(form_.window.open);
  });
}

}  // namespace
}  // namespace kestrel
