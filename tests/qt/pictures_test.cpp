// SPDX-License-Identifier: MIT
// Every screen in its states against approved pictures.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QCursor>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPainter>
#include <QTableView>
#include <QTest>

#include "qt/approved.h"
#include "qt/qt_game.h"
#include "ui/qt/help_view.h"
#include "ui/qt/main_extras.h"
#include "ui/qt/records_plot.h"
#include "ui/qt/view_menu.h"

namespace kestrel::testing {
namespace {

constexpr ColourChoice kDark = ColourChoice::Dark;
constexpr ColourChoice kContrast = ColourChoice::HighContrast;

// A game of which pictures are taken.
struct Screens : QtGame {
  explicit Screens(int level = 0) : QtGame(level) { QApplication::setCursorFlashTime(0); }

  QPoint pointer = QPoint(2, 2);  // over nothing that answers
  void PointAt(std::string_view control) { pointer = Widget(control)->geometry().center(); }

  void Show(const std::string& name, QWidget& widget) {
    front_end.Windows().Sync();
    for (const QPoint point : {QPoint(2, 2), pointer})
      QTest::mouseMove(widget.window()->windowHandle(), point);
    Settle();
    ExpectApproved(name, TakePicture(widget));
  }
  void Show(const std::string& name) { Show(name, Window()); }
  // In the light colours, and in others.
  void ShowIn(std::initializer_list<ColourChoice> colours, const std::string& name, QWidget& widget) {
    for (const ColourChoice choice : colours) {
      front_end.Choices().SetColours(choice);
      Show(name + (choice == ColourChoice::Dark ? "_dark" : "_contrast"), widget);
    }
    front_end.Choices().SetColours(ColourChoice::Light);
    Show(name, widget);
    if (qApp->devicePixelRatio() == 1) ExpectApprovedInside(name, widget);
  }

  // Controls of a window in every palette, each at rest, pointed at, pressed, with the keyboard, and not enabled.
  void ShowStates(const std::string& name, const std::vector<QWidget*>& controls) {
    for (const ColourChoice choice : {ColourChoice::Light, ColourChoice::Dark, ColourChoice::HighContrast}) {
      front_end.Choices().SetColours(choice);
      Picture sheet{QImage(1000, 40 * static_cast<int>(controls.size()), QImage::Format_RGB32), {}};
      sheet.image.fill(Qt::magenta);
      for (std::size_t row = 0; row < controls.size(); ++row)
        AddStates(sheet, *controls[row], 40 * static_cast<int>(row));
      ExpectApproved(name + std::to_string(static_cast<int>(choice)), sheet);
    }
    front_end.Choices().SetColours(ColourChoice::Light);
  }
  void AddStates(Picture& sheet, QWidget& control, int top) {
    QPoint place(0, top);
    const auto add = [&] {
      const Picture now = TakePicture(control);
      QPainter(&sheet.image).drawImage(QRectF(place * 1.0, now.image.size() / 1.0), now.image);
      sheet.texts += now.texts.translated(place);
      place += QPoint(now.image.width() + 4, 0);
    };
    QWindow* window = control.window()->windowHandle();
    const auto point_at = [&](QPoint point) {
      QTest::mouseMove(window, point);
      Settle();
      add();
    };
    const bool enabled = control.isEnabled();
    control.setEnabled(true);
    control.window()->setAttribute(Qt::WA_KeyboardFocusChange);
    point_at(QPoint(1, 1));
    point_at(control.mapTo(control.window(), control.rect().center()));
    if (auto* button = qobject_cast<QAbstractButton*>(&control)) {
      button->setDown(true);
      add();
      button->setDown(false);
    }
    QTest::mouseMove(window, QPoint(1, 1));
    QWidget* before = control.window()->focusWidget();
    control.setFocus(Qt::TabFocusReason);
    add();
    if (before != nullptr) before->setFocus();
    control.setEnabled(false);
    add();
    control.setEnabled(enabled);
  }

  // In the dialog.
  void AddPlayers(QWidget& dialog, std::initializer_list<const char*> names) {
    auto* field = dialog.findChild<QLineEdit*>();
    for (const char* name : names) {
      ClickControl("KnopNieuweSpeler");
      QTest::keyClicks(field, name);
      QTest::keyClick(field, Qt::Key_Return);
    }
  }

  // Fills the cells in order until only `left` are empty.
  void Fill(int left) {
    while (std::ranges::count(State().play.puzzle.CurrentDigits, 0) > left) {
      ClickMark(EmptyCell(), SolutionOf(EmptyCell()));
    }
    QTest::mouseMove(Window().windowHandle(), QPoint(2, 2));
    EXPECT_TRUE(WaitFor([this] { return !front_end.Windows().Board()->Lens(); }));
  }
  // What the box or dialog looks like that a click on the control opens; it is closed again.
  void ShowBox(const std::string& name, std::string_view control) {
    Expect([this, name](QWidget& box) {
      ShowIn({}, name, box);
      box.close();
    });
    ClickControl(control);
  }
};

TEST(Pictures, Start) {
  Screens game;
  game.PointAt("LabelCount(6)");
  game.ShowIn({kDark}, "start", game.Window());
  game.Main().Picture3.visible = true;
  for (int level = 1; level <= 5; ++level) game.Main().ProgressBar1(level).value = 120 - 20 * level;
  game.Main().LabelStap.caption = "123456";
  game.Show("start_panel");
  game.Main().Picture3.visible = false;
}

TEST(Pictures, Play) {
  Screens easy(1);
  easy.Fill(40);
  easy.Click(QtGame::Corner(easy.Main().LabelRow(2)) + QPoint(17, 17));
  easy.pointer = QtGame::Corner(easy.Main().LabelColumn(7)) + QPoint(17, 17);
  easy.Show("play_keypad");

  Screens medium(3);
  medium.Fill(40);
  for (const int digit : {1, 5, 9}) medium.ClickMark(medium.EmptyCell(), digit, Qt::RightButton);
  medium.Click(QtGame::Corner(medium.Main().LabelColumn(5)) + QPoint(17, 17));
  medium.Click(QtGame::Corner(medium.Main().LabelRow(2)) + QPoint(17, 17));
  medium.PointAt("CommandSolution");
  medium.ShowIn({kDark, kContrast}, "play", medium.Window());
  medium.front_end.Choices().SetSize(75);
  medium.PointAt("CommandUndo");
  medium.Press(medium.pointer);
  medium.Show("play_75");
  medium.Release(QPoint(2, 2));
  medium.front_end.Choices().SetSize(200);
  medium.Show("play_200");
  medium.front_end.Choices().SetSize(100);
}

TEST(Pictures, StatesOfControls) {
  Screens game(3);
  std::vector<QWidget*> controls;
  for (const char* name : {"CommandNew", "CommandUndo", "CommandHint", "OptionType(2)", "OptionType(3)",
                           "chkSound", "RenewLevel(4)", "LabelCount(6)", "LabelCount(28)", "Picture1",
                           "LabelHint", "StatusBar(2)", "cmdPlayers"}) {
    controls.push_back(game.Widget(name));
    ASSERT_NE(controls.back(), nullptr) << name;
  }
  controls.push_back(&game.front_end.Windows().Extras()->Menu());
  game.ShowStates("states_main", controls);
  game.Expect([&](QWidget& dialog) {
    std::vector<QWidget*> of_dialog;
    for (const char* name : {"PageSlider", "SudokuTypeKeuze", "TextFrom", "OptionAantal(1)",
                             "OptionAantal(2)", "CheckSolution"}) {
      of_dialog.push_back(game.Widget(name));
    }
    game.ShowStates("states_print", of_dialog);
    dialog.close();
  });
  game.ClickControl("CommandPrint");
}

// Small, with times of every length, and pointed at.
TEST(Pictures, SmallWindows) {
  Screens game(3);
  game.front_end.Choices().SetSize(75);
  game.Expect([&](QWidget& dialog) {
    game.Show("print_75", dialog);
    dialog.close();
  });
  game.ClickControl("CommandPrint");
  game.Expect([&](QWidget& dialog) {
    game.AddPlayers(dialog, {"Ann", "Bo", "Cy", "Di", "Ed"});
    dialog.close();
  });
  game.ClickControl("cmdPlayers");
  for (int number = 1; number <= 100; ++number) {
    SudokuRecord& record = (*game.State().stockroom.stock)(2, number);
    record.Score = 40 + number;
    record.BestMinutes = static_cast<std::int16_t>(number < 60 ? number : 0);
    record.BestPlayer = static_cast<std::int16_t>(number % 6);
  }
  game.front_end.OpenRecords(2);
  RecordsWindow& records = *game.front_end.Records();
  auto* map = records.findChild<QTableView*>();
  game.pointer = map->viewport()->mapTo(&records, map->visualRect(map->model()->index(3, 3)).center());
  game.Show("records_75", records);
  game.front_end.Choices().SetSize(100);
}

// Axes for every range of scores and times, with ever more holders.
TEST(Pictures, Plots) {
  const Screens game;
  const std::vector<std::pair<int, int>> ranges = {{0, 0},     {1, 9},      {7, 51},     {20, 170},
                                                   {55, 400},  {300, 1300}, {900, 2990}, {3000, 5900},
                                                   {9, 12000}, {60, 40000}, {5, 90000},  {2, 600}};
  Picture sheet{QImage(960, 640, QImage::Format_RGB32), {}};
  sheet.image.fill(Qt::magenta);
  QPoint place;
  for (std::size_t i = 0; i < ranges.size(); ++i) {
    const auto& [scores, longest] = ranges[i];
    LevelRecords records;
    for (int number = 0; number < kPuzzlesPerLevel; ++number) {
      PuzzleRecord& record = records.puzzles[number];
      record.score = 100 + scores * number / 99;
      record.seconds = number % 3 == 0 ? 0 : longest * (number * 37 % 100) / 99;
      record.player = number % static_cast<int>(i + 1);
      records.holders.push_back({number, "", 0});
    }
    RecordsPlot plot(nullptr);
    plot.resize(320, 160);
    plot.Show(records);
    const Picture now = TakePicture(plot);
    QPainter(&sheet.image).drawImage(QRectF(place * 1.0, now.image.size() / 1.0), now.image);
    sheet.texts += now.texts.translated(place);
    place = i % 3 == 2 ? QPoint(0, place.y() + 160) : place + QPoint(320, 0);
  }
  ExpectApproved("plots", sheet);
}

// What is marked in the corners of the board and in its middle.
TEST(Pictures, Corners) {
  Screens game(3);
  game.front_end.Choices().SetDigitLens(false);  // it comes when the pointer rests
  MainWindow& main = game.Main();
  Picture sheet{QImage(640, 320, QImage::Format_RGB32), {}};
  sheet.image.fill(Qt::magenta);
  QPoint place;
  for (const int cell : {0, 8, 40, 72, 80}) {
    for (int digit = 1; digit <= 9; ++digit)
      main.Mark(digit)(cell).visible = main.Mark(digit)(cell).enabled = true;
    main.Grid(cell).caption.clear();
    game.Click(QtGame::Corner(main.LabelRow(cell / 9)) + QPoint(17, 17));
    game.Click(QtGame::Corner(main.LabelColumn(cell % 9)) + QPoint(17, 17));
    const QRect part(QtGame::Corner(main.Grid(cell)) - QPoint(37, 52), QSize(128, 160));
    for (const int digit : {1, 9}) {
      const QPoint mark = QtGame::Corner(main.Mark(digit)(cell)) + QPoint(8, 8);
      QTest::mouseMove(game.Window().windowHandle(), mark);
      if (digit == 9) game.Press(mark);
      game.Settle();
      const Picture now = TakePicture(*game.front_end.Windows().Board());
      QPainter(&sheet.image).drawImage(place, now.image, part);
      sheet.texts += (now.texts & part).translated(place - part.topLeft());
      place += QPoint(0, 160);
    }
    game.Release(QPoint(1, 1));
    place = QPoint(place.x() + 128, 0);
  }
  ExpectApproved("corners", sheet);
}

TEST(Pictures, HintAndLens) {
  Screens game(3);
  game.Fill(30);
  game.ClickControl("CommandHint");
  const int cell = game.EmptyCell();
  game.pointer = QtGame::Corner(game.Main().Mark(game.SolutionOf(cell))(cell)) + QPoint(8, 8);
  QTest::mouseMove(game.Window().windowHandle(), game.pointer);
  EXPECT_TRUE(game.WaitFor([&] { return game.front_end.Windows().Board()->Lens().has_value(); }));
  game.ShowIn({kDark}, "hint", game.Window());
}

TEST(Pictures, End) {
  Screens game(2);
  game.Fill(0);
  game.Widget("RenewLevel(3)")->setFocus(Qt::TabFocusReason);
  game.Show("solved");
  game.ClickControl("CommandNew");
  game.ClickControl("CommandSolution");
  game.Widget("Picture1")->setFocus(Qt::TabFocusReason);
  game.Show("shown");
}

// The signs of boxes, and scroll bars.
TEST(Pictures, Parts) {
  Screens game;
  QListWidget list;
  list.setFlow(QListView::LeftToRight);
  list.setIconSize(QSize(32, 32));
  for (const auto sign : {QStyle::SP_MessageBoxInformation, QStyle::SP_MessageBoxWarning,
                          QStyle::SP_MessageBoxCritical, QStyle::SP_MessageBoxQuestion}) {
    list.addItem(new QListWidgetItem(list.style()->standardIcon(sign), ""));
  }
  list.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  list.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  list.resize(200, 100);
  list.show();
  game.Show("parts", list);
}

TEST(Pictures, Renewal) {
  Screens game(3);
  game.ExpectBox("Renew Selected Set of Sudokus", "OK");
  game.ClickControl("RenewLevel(5)");
  const int bar = game.Main().ProgressBar2.value;
  game.Main().ProgressBar2.value = 37;
  game.front_end.Windows().Sync();
  game.Show("renewal", *game.Widget("ProgressBar2"));
  game.Main().ProgressBar2.value = bar;
}

TEST(Pictures, Players) {
  Screens game;
  game.Expect([&](QWidget& dialog) {
    game.Show("players_none", dialog);
    game.AddPlayers(dialog, {"Ann", "Bo"});
    dialog.findChild<QListWidget*>()->setCurrentRow(1);
    game.ShowIn({kDark, kContrast}, "players", dialog);
    game.ClickControl("KnopWijzigen");
    game.Show("players_typing", dialog);
    dialog.close();
  });
  game.ClickControl("cmdPlayers");
}

TEST(Pictures, Print) {
  Screens game(3);
  game.Expect([&](QWidget& dialog) {
    game.ShowIn({kDark}, "print", dialog);
    game.ClickControl("OptionAantal(2)");
    game.ClickControl("CheckSolution");
    game.Show("print_four", dialog);
    dialog.close();
  });
  game.ClickControl("CommandPrint");
}

TEST(Pictures, Records) {
  Screens game;
  for (int number = 1; number <= 30; ++number) {
    SudokuRecord& record = (*game.State().stockroom.stock)(3, 3 * number);
    record.BestMinutes = static_cast<std::int16_t>(number % 7);
    record.BestSeconds = static_cast<std::int16_t>(2 * number % 60);
    record.Score = 100 + 7 * number % 50;
  }
  game.front_end.OpenRecords(3);
  game.ShowIn({kDark, kContrast}, "records", *game.front_end.Records());
  game.front_end.Records()->close();
  game.ClickControl("OptionType(3)");
  game.ShowBox("open", "CommandOpen");
}

TEST(Pictures, Boxes) {
  Screens game(3);
  game.ShowBox("box_renew", "RenewLevel(5)");
  game.Expect([&](QWidget& box) {
    game.ShowIn({kDark, kContrast}, "box_quit", box);
    box.close();
  });
  game.Window().close();
  ViewMenu& button = game.front_end.Windows().Extras()->Menu();
  auto* menu = button.findChild<QMenu*>();
  QTimer::singleShot(0, [&] { button.click(); });
  EXPECT_TRUE(game.WaitFor([&] { return menu->isVisible(); }));
  game.ShowIn({kDark, kContrast}, "view_menu", *menu);
  menu->close();
}

TEST(Pictures, Help) {
  Screens game(3);
  std::filesystem::create_directory(game.program_folder.Path("help"));
  game.program_folder.Put("help/index.html",
                          R"(<html><body><p><a href="index.html">Contents</a></p><h1>A page</h1>
      <table><tr><td>Some words about what stands beside them.</td>
<td class="picture"><img src="board.svg" width="282" height="281"></td></tr></table>
      <h2>More</h2><p class="note">A note that is small.</p></body></html>)");
  game.program_folder.Put("help/board.svg", R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 564 562">
      <rect class="cell" x="20" y="20" width="500" height="500" fill="#fdeceb" stroke="#20262d" stroke-width="8"/></svg>)");
  game.ClickControl("CommandHelp");
  FormWindow& window = game.front_end.Windows().WindowOf(FormId::Browser);
  game.ShowIn({kDark}, "help", window);
  window.setWindowState(Qt::WindowNoState);
  window.resize(330, 400);
  QCursor::setPos(window.mapToGlobal(QPoint(2, 2)));  // not where the button is to come
  game.Settle();
  game.front_end.Windows().OfferSolving(&game.State().play.puzzle.GivenDigits);
  QTest::keyClick(game.front_end.Windows().Help(), Qt::Key_F, Qt::ControlModifier);
  game.Show("help_narrow", window);
}

// The measure itself: faults of one pixel are seen, letters that are drawn otherwise are not.
TEST(Pictures, AreComparedClosely) {
  Screens game;
  const Picture now = TakePicture(game.Window());
  EXPECT_TRUE(Difference(now, now.image).isEmpty());
  const QRect board(57, 57, 528, 528);
  const auto copied = [&](QRect from, QPoint to) {
    QImage faulty = now.image;
    QPainter(&faulty).drawImage(to, now.image, from);
    return faulty;
  };
  const auto differs = [&](const QImage& faulty) { return !Difference(now, faulty).isEmpty(); };
  EXPECT_TRUE(differs(copied(board.translated(1, 0), board.topLeft()))) << "moved";
  EXPECT_TRUE(differs(copied(QRect(230, 57, 1, 528), {232, 57}))) << "a box line of one pixel";
  EXPECT_TRUE(differs(copied(QRect(62, 115, 110, 1), {62, 116}))) << "no line between two cells";
  EXPECT_TRUE(differs(copied(QRect(690, 187, 48, 12), {613, 187}))) << "no text";
  EXPECT_TRUE(differs(copied(QRect(608, 500, 8, 16), {608, 350}))) << "another ground";
}

}  // namespace
}  // namespace kestrel::testing
