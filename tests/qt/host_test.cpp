// SPDX-License-Identifier: MIT
// Help window, sounds, web link and printing on this host.
#include <gtest/gtest.h>

#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QTextTable>
#include <fstream>
#include <sstream>

#include "explain/walkthrough_page.h"
#include "host/host_files.h"
#include "media/help.h"
#include "print/print_job.h"
#include "qt/qt_game.h"
#include "support/test_stock.h"
#include "ui/qt/help_view.h"
#include "ui/qt/qt_sound_device.h"

namespace kestrel::testing {
namespace {

TEST(Help, FollowsPagesForwardAndBack) {
  QtGame game(3);
  std::filesystem::create_directory(game.program_folder.Path("help"));
  game.program_folder.Put("help/index.html",
                          "<html><body><a href=\"naked_single.html\">Naked Single</a></body></html>");
  game.program_folder.Put(
      "help/naked_single.html",
      "<html><head><title>Naked Single - Help</title></head><body>One candidate left</body></html>");
  game.ClickControl("CommandHelp");
  FormWindow& window = game.front_end.Windows().WindowOf(FormId::Browser);
  HelpView& view = *game.front_end.Windows().Help();
  EXPECT_TRUE(window.isMaximized());
  EXPECT_EQ(view.toPlainText(), "Naked Single");
  EXPECT_EQ(view.accessibleName(), "Help page");  // without a title
  // The game goes on beside it.
  game.ClickMark(game.EmptyCell(), game.SolutionOf(game.EmptyCell()));
  EXPECT_EQ(game.State().play.history.StepCount(), 1);

  QString told;
  game.front_end.Windows().on_other_page = [&](const QString& title) { told += title + ';'; };
  QTest::keyClick(&view, Qt::Key_Tab);
  QTest::keyClick(&view, Qt::Key_Return);
  EXPECT_EQ(view.toPlainText(), "One candidate left");
  EXPECT_EQ(told, "Naked Single - Help;");
  EXPECT_EQ(window.normalGeometry().size(), QSize(960, 720));
  window.showNormal();
  window.resize(900, 700);
  game.Settle();
  EXPECT_EQ(view.accessibleName(), "Naked Single - Help");
  EXPECT_FALSE(window.findChild<QPushButton*>("HelpForward")->isEnabled());
  for (const auto& [button, page] : {std::pair{"HelpBack", "Naked Single"},
                                     {"HelpForward", "One candidate left"},
                                     {"HelpContents", "Naked Single"}}) {
    window.findChild<QPushButton*>(button)->click();
    EXPECT_EQ(view.toPlainText(), page) << button;
  }

  // A page that is missing has an error page of the view's own.
  view.Navigate(std::string(kHelpFolder) + "swordfish.html");
  EXPECT_TRUE(view.toPlainText().startsWith("This page is missing"));
  EXPECT_TRUE(view.toPlainText().contains("swordfish.html"));

  QTest::keyClick(&view, Qt::Key_Escape);
  EXPECT_FALSE(game.Controls().browser.window.open);
}

// Words are found from the chosen place on, round the end; in a narrow window a picture stands under its text and fits.
TEST(Help, FindsWordsAndFitsPictures) {
  QtGame game(3);
  std::filesystem::create_directory(game.program_folder.Path("help"));
  game.program_folder.Put("help/index.html",
                          "<p>wing one</p><table><tr><td>wing two</td>\n<td class=\"picture\">"
                          "<img src=\"board.svg\" width=\"564\" height=\"562\"></td></tr></table>");
  game.program_folder.Put("help/board.svg",
                          "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 564 562\"></svg>");
  game.ClickControl("CommandHelp");
  FormWindow& window = game.front_end.Windows().WindowOf(FormId::Browser);
  HelpView& view = *game.front_end.Windows().Help();
  QTest::keyClick(&view, Qt::Key_F, Qt::ControlModifier);
  auto* words = window.findChild<QLineEdit*>("HelpFindWords");
  auto* answer = window.findChild<QLabel*>("HelpFindAnswer");
  QTest::keyClicks(words, "wing");
  const int first = view.textCursor().position();
  QTest::keyClick(words, Qt::Key_Return);
  EXPECT_GT(view.textCursor().position(), first);
  QTest::keyClick(words, Qt::Key_Return);
  EXPECT_EQ(view.textCursor().position(), first);
  for (auto* button : words->parentWidget()->findChildren<QPushButton*>()) {
    const int before = view.textCursor().position();
    button->click();
    EXPECT_NE(view.textCursor().position(), before) << qPrintable(button->text());
  }
  QTest::keyClicks(words, "s");
  EXPECT_FALSE(answer->text().isEmpty());
  QTest::keyClick(words, Qt::Key_Escape);
  EXPECT_FALSE(words->isVisible());

  window.setWindowState(Qt::WindowNoState);
  for (const int width : {360, 520, 1200}) {
    window.resize(width, 700);
    game.Settle();
    EXPECT_EQ(view.horizontalScrollBar()->maximum(), 0) << width;
    const auto* table = qobject_cast<QTextTable*>(view.document()->rootFrame()->childFrames().value(0));
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(table->rows(), width < 720 ? 2 : 1) << width;
  }
}

// Nothing of how a puzzle is solved can be seen while it, or the next one, is in play.
TEST(Help, ShowsHowAPuzzleIsSolvedWhenItHasEnded) {
  QtGame game(3);
  std::filesystem::create_directory(game.program_folder.Path("help"));
  game.program_folder.Put("help/index.html", "<p>Contents</p>");
  game.ClickMark(game.EmptyCell(), game.SolutionOf(game.EmptyCell()));
  game.ClickControl("CommandHelp");
  FormWindow& window = game.front_end.Windows().WindowOf(FormId::Browser);
  HelpView& view = *game.front_end.Windows().Help();
  auto* button = window.findChild<QPushButton*>("HelpSolved");
  const auto shows = [&](const char* words) { return view.toPlainText().contains(words); };
  EXPECT_FALSE(button->isVisible());
  view.Navigate(std::string(kHelpFolder) + kSolvedPage);
  EXPECT_TRUE(shows("When the puzzle on the board has ended"));

  game.ClickControl("CommandSolution");
  game.Settle();
  EXPECT_TRUE(button->isVisible());
  EXPECT_TRUE(shows("Singles (steps 1 to"));
  EXPECT_TRUE(shows("Level 3 (Medium)"));
  window.findChild<QPushButton*>("HelpContents")->click();
  button->click();
  EXPECT_TRUE(shows("steps 1 to"));
  // In a narrow window all buttons have their texts, also when everything is large.
  window.setWindowState(Qt::WindowNoState);
  for (int width = 1200; width >= 360; width -= 12) {
    const int size = width < 800 ? 100 : 200;
    game.front_end.Choices().SetSize(size);
    window.resize(width, 700);
    game.Settle();
    int right = 0;
    for (const char* name : {"HelpBack", "HelpForward", "HelpContents", "HelpSolved"}) {
      const auto* each = window.findChild<QPushButton*>(name);
      EXPECT_GE(each->width(), each->fontMetrics().horizontalAdvance(each->text().remove('&'))) << name;
      EXPECT_GE(each->x(), right);
      right = each->x() + each->width();
    }
    EXPECT_LE(right, view.width()) << width;
    EXPECT_EQ(button->height(), 25 * size / 100);
  }

  game.ClickControl("CommandNew");
  game.Settle();
  EXPECT_FALSE(button->isVisible());
  EXPECT_FALSE(shows("steps 1 to"));
  window.findChild<QPushButton*>("HelpContents")->click();
  window.findChild<QPushButton*>("HelpBack")->click();
  EXPECT_FALSE(shows("steps 1 to"));
}

TEST(Sound, RefusesWhatIsNoWaveFile) {
  const TempFolder folder;
  SystemCalls calls;
  HostFiles files(calls);
  QtSoundDevice device(files);
  std::ostringstream label;
  label << std::ifstream(KESTREL_SOURCE_DIR "/data/Label.wav", std::ios::binary).rdbuf();
  const std::string whole = label.str();
  for (const auto& [content, id] :
       {std::pair{whole, 0}, {"", -1}, {whole.substr(0, 30), -1}, {"x" + whole, -1}, {whole, 1}}) {
    folder.Put("sound.wav", content);
    EXPECT_EQ(device.Load(folder.Written("sound.wav")), id) << content.size();
  }
  EXPECT_LT(device.Load(folder.Written("missing.wav")), 0);
  // Bytes of 8 bits, then words in stereo; a chunk of an odd size stands between.
  const auto number = [](qsizetype value, int bytes) {
    QByteArray result;
    for (int i = 0; i < bytes; ++i) result += static_cast<char>(value >> 8 * i);
    return result;
  };
  for (const auto& [bits, channels, zero] : {std::tuple{8, 1, '\x80'}, {16, 2, '\0'}}) {
    const int frame = bits / 8 * channels;
    const QByteArray format = number(1, 2) + number(channels, 2) + number(101, 4) + number(101 * frame, 4) +
                              number(frame, 2) + number(bits, 2);
    const QByteArray start = "WAVEfmt " + number(16, 4) + format;
    const QByteArray samples(5 * frame, '\x11');
    const QByteArray file =
        start + "odd " + number(3, 4) + "abc" + '\0' + "data" + number(5 * frame, 4) + samples;
    // 101 frames a second: the silence has 50.
    const QByteArray wanted = start + "data" + number(55 * frame, 4) + samples + QByteArray(50 * frame, zero);
    EXPECT_EQ(WaveWithSilence("RIFF" + number(9, 4) + file), "RIFF" + number(wanted.size(), 4) + wanted)
        << bits;
    EXPECT_TRUE(WaveWithSilence(("RIFF" + number(9, 4) + file).chopped(1)).isEmpty());
  }
  // Ids that no file got do nothing.
  device.Play(-1);
  device.Play(7);
}

TEST(Shell, GoesByTheDesktopsChoice) {
  const TempFolder folder;
  const QByteArray path = qgetenv("PATH");
  qputenv("PATH", QByteArray::fromStdString(folder.Path().string()));
  qunsetenv("BROWSER");
  const auto put = [&](const char* name, const std::string& script) {
    folder.Put(name, "#!/bin/sh\n" + script + "\n");
    std::filesystem::permissions(folder.Path(name), std::filesystem::perms::owner_all);
  };
  QtShell shell;
  EXPECT_FALSE(shell.FindExecutable("x\\temphtm.HTM").has_value());
  const std::string log = folder.Path("log").string();
  put("xdg-open", "echo \"$1\" > " + log);
  put("xdg-mime", "true");
  EXPECT_FALSE(shell.FindExecutable("x\\temphtm.HTM").has_value());
  put("x-www-browser", "true");
  EXPECT_EQ(shell.FindExecutable("x"), folder.Path("x-www-browser").string());
  put("other", "true");
  qputenv("BROWSER", "missing:other %s:xdg-mime");
  EXPECT_EQ(shell.FindExecutable("x"), folder.Path("other").string());
  qunsetenv("BROWSER");
  put("xdg-mime", "echo browser.desktop");
  EXPECT_EQ(shell.FindExecutable("x\\temphtm.HTM"), folder.Path("xdg-open").string());
  EXPECT_TRUE(shell.Open(folder.Path("xdg-open").string(), "https://kestrel-sudoku.example/"));
  const std::string expected = "https://kestrel-sudoku.example/\n";
  EXPECT_TRUE(QTest::qWaitFor([&] { return folder.Get("log") == expected; }, kPatience));
  // A browser that stays open is not waited for.
  put("xdg-open", "exec 2>&-; PATH=/bin; sleep 10; echo late > " + log);
  EXPECT_TRUE(shell.Open(folder.Path("xdg-open").string(), "https://kestrel-sudoku.example/"));
  EXPECT_EQ(folder.Get("log"), expected);
  put("xdg-open", "exit 3");
  EXPECT_FALSE(shell.Open(folder.Path("xdg-open").string(), "https://kestrel-sudoku.example/"));
  EXPECT_FALSE(shell.Open(folder.Path("no-such-program").string(), "https://kestrel-sudoku.example/"));
  qputenv("PATH", path);
}

// There is no printer: into a PDF file that the user names.
class PrinterTest : public ::testing::Test {
 protected:
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
  Print([this](QWidget& box) {
    auto* dialog = qobject_cast<QFileDialog*>(&box);
    EXPECT_EQ(dialog->findChild<QLineEdit*>()->text(), "Kestrel Sudoku Medium 1-8.pdf");
    Answer(box, game.home_folder.Path("pages.pdf"));
  });
  EXPECT_EQ(game.Controls().print.LabelOutcome.caption,
            "Saved in " + game.home_folder.Path("pages.pdf").string());
  PrintSettings settings;
  settings.pages = 4;
  settings.per_page = 2;
  settings.level_index = 2;
  const auto page = MakeFilePage();
  PrintPages({PuzzlesOfStock(MakeTestStock(), 3, 1, 8), "Medium", settings}, *page);
  const Bytes expected = page->Finish("Kestrel Sudoku").front();
  const std::string written = game.home_folder.Get("pages.pdf");
  EXPECT_TRUE(std::equal(expected.begin(), expected.end(), written.begin(), written.end(),
                         [](std::uint8_t a, char b) { return a == static_cast<std::uint8_t>(b); }));
}

TEST_F(PrinterTest, AsksInTheFolderOfTheLastFile) {
  std::filesystem::create_directory(game.home_folder.Path("sheets"));
  const auto folder_asked = [this](const char* name) {
    QString folder;
    Print([&, name](QWidget& box) {
      folder = qobject_cast<QFileDialog*>(&box)->directory().absolutePath();
      if (name == nullptr) return box.close(), void();
      Answer(box, game.home_folder.Path("sheets") / name);
    });
    return folder;
  };
  EXPECT_TRUE(QDir(folder_asked("one.pdf")).exists());
  EXPECT_EQ(folder_asked("two.pdf").toStdString(), game.home_folder.Path("sheets").string());
  std::filesystem::remove_all(game.home_folder.Path("sheets"));
  EXPECT_TRUE(QDir(folder_asked(nullptr)).exists());
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
