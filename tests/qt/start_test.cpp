// SPDX-License-Identifier: MIT
// The game's start: settings, the picture taken off screen.
#include <gtest/gtest.h>

#include <QIcon>
#include <QImage>
#include <QScreen>
#include <QTimer>

#include "qt/qt_game.h"

namespace kestrel::testing {
namespace {

TEST(Start, TakesAPicture) {
  for (const bool good : {true, false}) {
    QtGame game(QtGame::kNotStarted);
    const std::string file = game.home_folder.Path(good ? "picture.png" : "no/folder.png").string();
    EXPECT_EQ(game.front_end.TakeScreenshot(file), good ? 0 : 2);
    EXPECT_EQ(game.State().play.puzzle.PuzzleNumber, 1);
    if (!good) continue;
    const QImage picture(QString::fromStdString(file));
    EXPECT_EQ(picture.size(), QSize(768, 658) * game.Window().devicePixelRatioF());
  }
}

// Dialogs open over it.
TEST(Start, KnowsWhereTheWindowStands) {
  QtGame game(3);
  game.Window().move(37, 41);
  game.Settle();
  EXPECT_EQ(game.Main().window.left, 37 * 15);
  EXPECT_EQ(game.Main().window.top, 41 * 15);
  game.Main().window.left += 150;
  game.front_end.Windows().Sync();
  EXPECT_EQ(game.Window().pos(), QPoint(47, 41));
  // Where it grows, it stays whole on its screen.
  const QRect screen = game.Window().screen()->availableGeometry();
  game.front_end.Choices().SetSize(50);
  game.Window().move(screen.bottomRight() - QPoint(390, 340));
  game.Settle();
  game.front_end.Choices().SetSize(75);
  EXPECT_EQ(game.Window().frameGeometry().bottomRight(), screen.bottomRight());
  game.front_end.Choices().SetSize(100);
}

TEST(Start, RunsFromTheFirstPictureToTheEnd) {
  QtGame game(QtGame::kNotStarted);
  game.ExpectBox("Quit Kestrel Sudoku", "Yes");
  QTimer::singleShot(0, [&] {
    QList<QSize> icons;
    EXPECT_TRUE(
        game.WaitFor([&] { return !(icons = QApplication::windowIcon().availableSizes()).isEmpty(); }));
    EXPECT_EQ(icons.size(), 6);
    for (const QSize& size : icons) EXPECT_EQ(QApplication::windowIcon().pixmap(size, 1).size(), size);
    game.Window().close();
  });
  EXPECT_EQ(game.front_end.Run(), 0);
}

TEST(Start, AFolderMayHaveABackslashInItsName) {
  const TempFolder folder;
  std::filesystem::create_directory_symlink(KESTREL_SOURCE_DIR "/data", folder.Path("a\\b"));
  const std::string command = " && env -u XDG_RUNTIME_DIR '" KESTREL_GAME
                              "' --home . --program 'a\\b' --scale 1.5 --screenshot shot.png 2>errors";
  EXPECT_EQ(std::system(("cd " + folder.Path().string() + command).c_str()), 0);
  EXPECT_EQ(folder.Get("errors"), "");  // what Qt says about the desktop is not for the player
  EXPECT_EQ(QImage(QString::fromStdString(folder.Path("shot.png").string())).size(),
            QSize(1152, 987) * qGuiApp->devicePixelRatio());
}

TEST(Start, SaysThatThereIsNoDisplay) {
  const TempFolder folder;
  const auto said = [&](const std::string& display, const std::string& options) {
    const std::string command =
        "cd " + folder.Path().string() + " && env -u QT_QPA_PLATFORM -u DISPLAY -u WAYLAND_DISPLAY " +
        display + " timeout 20 '" KESTREL_GAME "' --home . --program '" KESTREL_SOURCE_DIR "/data' " +
        options + " 2>errors";
    const int status = std::system(command.c_str()) / 256;
    return std::to_string(status) + ' ' + folder.Get("errors");
  };
  EXPECT_EQ(said("", ""), "2 kestrel-sudoku: there is no display; --screenshot FILE works without one\n");
  EXPECT_EQ(said("DISPLAY=:977", ""),
            "2 kestrel-sudoku: the display cannot be opened; --screenshot FILE works without one\n");
  EXPECT_EQ(said("DISPLAY=:977", "--screenshot shot.png"), "0 ");
}

TEST(Start, SaysThatTheStockCannotBeRead) {
  QtGame game(QtGame::kNotStarted);
  std::filesystem::remove(game.program_folder.Path("sudstock.kpz"));
  FrontEnd front_end(
      {game.program, game.folders, game.files, game.host_files, game.settings, game.clock, game.seeds}, "",
      true);
  ::testing::internal::CaptureStderr();
  EXPECT_EQ(front_end.Run(), 1);
  const std::string said = ::testing::internal::GetCapturedStderr();
  EXPECT_NE(said.find("File Error: Error reading sudokus from file!"), std::string::npos) << said;
  EXPECT_NE(said.find("Critical Error!: The program failed to open the file"), std::string::npos) << said;
}

}  // namespace
}  // namespace kestrel::testing
