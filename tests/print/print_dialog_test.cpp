// SPDX-License-Identifier: MIT
// The print dialog without paper, and stopped; tests/scripts has what the user sees of it otherwise.
#include "print/print_dialog.h"

#include <gtest/gtest.h>

#include "recording_page.h"

namespace kestrel {
namespace {

struct FakePrinter : Printer {
  Page* SetUp() override { return &page; }
  bool BeginDocument(std::string_view name) override { return title = name, ++begun, wants_document; }
  void EndDocument() override { ++ended; }
  [[nodiscard]] std::string Outcome() const override { return "sent"; }
  RecordingPage page;
  std::string title;
  bool wants_document = true;
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
  void Press(std::string_view name, EventKind kind = EventKind::Click) {
    dialog_.Handle({.form = FormId::Print, .control = {name}, .kind = kind});
  }

  FormPrint form_ = MakeFormPrint();
  StockTable stock_ = StockToPrint();
  FakePrinter printer_;
  std::function<void()> user_;
  std::vector<std::string> messages_;
  PrintDialog dialog_{form_, stock_, printer_, *this, *this};
};

TEST_F(PrintDialogTest, GivesUpWithoutPaperAndStopsWhenTold) {
  printer_.page.width = 0;  // a printer that knows no paper does not work
  EXPECT_TRUE(Open([] { FAIL() << "the dialog stayed open"; }));
  EXPECT_EQ(messages_.size(), 1U);
  printer_.page.width = 2100;
  (void)Open([&] {
    form_.PageSlider.value = 5;
    Press("PageSlider", EventKind::Change);
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
    EXPECT_EQ(printer_.title + " " + form_.LabelOutcome.caption, "Kestrel Sudoku Medium 1-5 sent");
  });
}

}  // namespace
}  // namespace kestrel
