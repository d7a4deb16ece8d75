// SPDX-License-Identifier: MIT
// The game's start: command line, settings, the picture taken off screen.
#include <gtest/gtest.h>

#include <QImage>
#include <initializer_list>

#include "qt/qt_game.h"
#include "ui/qt/command_line.h"

namespace kestrel::testing {
namespace {

std::optional<GameOptions> Parse(std::initializer_list<const char*> arguments, std::string& error) {
  return ParseGameArguments(std::span(arguments.begin(), arguments.size()), error);
}

TEST(Start, TakesTheArgumentsApart) {
  std::string error;
  const auto options = Parse(
      {"--home", "/h", "--settings=/s", "--program", "/p", "--scale=1.25", "--screenshot", "x.png"}, error);
  ASSERT_TRUE(options) << error;
  EXPECT_EQ(options->home, "/h");
  EXPECT_EQ(options->settings, "/s");
  EXPECT_EQ(options->program, "/p");
  EXPECT_EQ(options->scale, 1.25);
  EXPECT_EQ(options->screenshot, "x.png");
  EXPECT_TRUE(Parse({"--version"}, error)->version);
  EXPECT_TRUE(Parse({"--help"}, error)->help);
  const struct {
    std::initializer_list<const char*> arguments;
    const char* complaint;
  } kBad[] = {{{"--scale", "3"}, "1, 1.25, 1.5 or 2"},
              {{"--scale", ""}, "needs a value"},
              {{"--home"}, "--home needs a value"},
              {{"puzzle.kpz"}, "unknown argument puzzle.kpz"}};
  for (const auto& bad : kBad) {
    EXPECT_FALSE(Parse(bad.arguments, error));
    EXPECT_NE(error.find(bad.complaint), std::string::npos) << error;
  }
}

// Settings in a file of their own.
struct StoredSettings {
  TempFolder folder;
  SystemCalls calls;
  HostFiles files{calls};
  SettingsFile settings{files, folder.Written("settings.ini")};
};

TEST(Start, RemembersTheScale) {
  StoredSettings stored;
  GameOptions options;
  EXPECT_EQ(ChooseScale(options, stored.settings), 1);
  options.scale = 1.5;
  EXPECT_EQ(ChooseScale(options, stored.settings), 1.5);
  EXPECT_EQ(ChooseScale(GameOptions(), stored.settings), 1.5);
  for (const char* damaged : {"", "0", "1e9", "-2", "two"}) {
    (void)stored.settings.Write("Options", "Scale", damaged);
    EXPECT_EQ(ChooseScale(GameOptions(), stored.settings), 1) << damaged;
  }
}

TEST(Start, FindsSettingsAndData) {
  StoredSettings stored;
  GameOptions options;
  const std::string home = stored.folder.Path("new/home").string();
  EXPECT_EQ(ToHostPath(SettingsPath(options, home, stored.files)), home + "/settings.ini");
  EXPECT_TRUE(std::filesystem::is_directory(home));
  options.settings = "/elsewhere/my.ini";
  EXPECT_EQ(SettingsPath(options, home, stored.files), "/elsewhere/my.ini");
  const std::string new_user = stored.folder.Path("user/.local/share").string();
  setenv("XDG_DATA_HOME", new_user.c_str(), 1);
  (void)SettingsPath(options, "", stored.files);
  unsetenv("XDG_DATA_HOME");
  EXPECT_TRUE(std::filesystem::is_directory(new_user));
}

TEST(Start, KeepsThePictureTakersSettingsToItself) {
  StoredSettings stored;
  (void)stored.settings.Write("Options", "Level", "4");
  SettingsInMemory settings(stored.settings);
  for (const char* number : {"7", "8"}) (void)settings.Write("Last_Puzzle", "Level04", number);
  EXPECT_EQ(settings.Read("Last_Puzzle", "Level04", "0"), "8");
  EXPECT_EQ(settings.Read("Options", "Level", "2"), "4");
  EXPECT_EQ(stored.settings.Read("Last_Puzzle", "Level04", "0"), "0");
}

TEST(Start, TakesAPicture) {
  for (const bool good : {true, false}) {
    QtGame game(QtGame::kNotStarted);
    const std::string file = game.home_folder.Path(good ? "picture.png" : "no/folder.png").string();
    EXPECT_EQ(game.front_end.TakeScreenshot(file), good ? 0 : 2);
    EXPECT_EQ(game.State().puzzle.PuzzleNumber, 1);
    if (!good) continue;
    const QImage picture(QString::fromStdString(file));
    EXPECT_EQ(picture.size(), QSize(768, 658) * game.Window().devicePixelRatioF());
  }
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
