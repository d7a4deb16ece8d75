// SPDX-License-Identifier: MIT
// Printing on a machine without a printer: into a PDF file that the user names.
#include <gtest/gtest.h>

#include <QFileDialog>
#include <QLineEdit>
#include <QPrinterInfo>
#include <QTest>

#include "print/print_job.h"
#include "qt/qt_game.h"
#include "support/test_stock.h"

namespace kestrel::testing {
namespace {

class PrinterTest : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!QPrinterInfo::defaultPrinterName().isEmpty()) GTEST_SKIP() << "this machine has a printer";
  }
  // Runs the print dialog with 4 pages of 2, then presses Print and answers the question for the file.
  void Print(const std::function<void(QWidget&)>& answer) {
    game.Expect([this, answer](QWidget& dialog) {
      game.ClickControl("OptionAantal(1)");
      while (game.Controls().print.PageSlider.value < 4) {
        QTest::keyClick(game.Widget("PageSlider"), Qt::Key_Right);
      }
      game.Expect(answer);
      game.ClickControl("Command2");
      EXPECT_TRUE(dialog.isVisible());
      dialog.close();
    });
    game.ClickControl("CommandPrint");
    EXPECT_EQ(game.StillExpected(), 0U);
  }
  static void Answer(QWidget& box, const std::filesystem::path& file) {
    auto* dialog = qobject_cast<QFileDialog*>(&box);
    ASSERT_NE(dialog, nullptr);
    auto* name = dialog->findChild<QLineEdit*>();
    name->setText(QString::fromStdString(file.string()));
    QTest::keyClick(name, Qt::Key_Return);
  }
  QtGame game{3};
};

TEST_F(PrinterTest, WritesWhatTheCommandLineWrites) {
  const auto before = game.home_folder.Count();
  Print([](QWidget& box) { QTest::keyClick(&box, Qt::Key_Escape); });
  EXPECT_EQ(game.home_folder.Count(), before);
  Print([this](QWidget& box) { Answer(box, game.home_folder.Path("pages.pdf")); });
  PrintSettings settings;
  settings.pages = 4;
  settings.per_page = 2;
  settings.level_index = 2;
  const Bytes expected = PrintJob(MakeTestStock(), settings);
  const std::string written = game.home_folder.Get("pages.pdf");
  EXPECT_TRUE(std::equal(expected.begin(), expected.end(), written.begin(), written.end(),
                         [](std::uint8_t a, char b) { return a == static_cast<std::uint8_t>(b); }));
}

TEST_F(PrinterTest, SaysWhenTheFileCannotBeWritten) {
  const std::filesystem::path file = game.home_folder.Path("pages.pdf");
  game.home_folder.Put("pages.pdf", "old");
  Print([this, file](QWidget& box) {
    // Qt asks before it takes a file that is there; while it does, the file becomes a folder.
    game.Expect([this, file](QWidget& overwrite) {
      std::filesystem::remove(file);
      std::filesystem::create_directory(file);
      game.ExpectBox("PDF file", "OK");
      PressCaption(overwrite, "Yes");
    });
    Answer(box, file);
  });
  EXPECT_TRUE(std::filesystem::is_directory(file));
}

}  // namespace
}  // namespace kestrel::testing
