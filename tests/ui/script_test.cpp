// SPDX-License-Identifier: MIT
// What a transcript cannot show: the command line, exit statuses, and scripts that end in the middle.
#include <gtest/gtest.h>

#include <vector>

#include "support/game_home.h"
#include "ui/memory/transcript.h"
#include "ui/script/command_line.h"

namespace kestrel::testing {
namespace {

std::optional<ScriptCommand> Parse(std::vector<const char*> arguments) {
  std::string error;
  auto command = ParseScriptArguments(arguments, "/data", error);
  EXPECT_EQ(command.has_value(), error.empty());
  return command;
}

TEST(ScriptCommandLine, HasDefaults) {
  const auto command = Parse({"--home", "/h/"});
  ASSERT_TRUE(command);
  EXPECT_EQ(command->options.program, "/data");
  EXPECT_EQ(command->options.home, "/h");
  EXPECT_EQ(command->options.settings, "/h/settings.ini");
  EXPECT_EQ(command->options.time, 12 * 3600);
  EXPECT_EQ(command->options.seed, 1);
  EXPECT_TRUE(command->options.sound && command->options.printer && command->options.browser);
  EXPECT_TRUE(command->script.empty());
}

TEST(ScriptCommandLine, TakesOptionsInAnyPlace) {
  const auto command =
      Parse({"--no-sound", "x.script", "--time", "23:59:50", "--home", "/h", "--seed", "18446744073709551615",
             "--settings", "s", "--program", "/p", "--no-printer", "--no-browser"});
  ASSERT_TRUE(command);
  EXPECT_EQ(command->script, "x.script");
  EXPECT_EQ(command->options.time, 86390);
  EXPECT_EQ(command->options.seed, UINT64_MAX);
  EXPECT_EQ(command->options.settings, "s");
  EXPECT_EQ(command->options.program, "/p");
  EXPECT_FALSE(command->options.sound || command->options.printer || command->options.browser);
}

TEST(ScriptCommandLine, RefusesBadUsage) {
  EXPECT_FALSE(Parse({}));
  EXPECT_FALSE(Parse({"--home"}));
  EXPECT_FALSE(Parse({"--home", ""}));
  EXPECT_FALSE(Parse({"--home", "/h", "--loud"}));
  EXPECT_FALSE(Parse({"--home", "/h", "a", "b"}));
  EXPECT_FALSE(Parse({"--home", "/h", "--seed", "-1"}));
  for (const char* time : {"24:00:00", "12:60:00", "1:2:3", "12:00", "aa:bb:cc", "12:00:-1"}) {
    EXPECT_FALSE(Parse({"--home", "/h", "--time", time})) << time;
  }
}

TEST(Script, EndsAtALineThatIsNoCommand) {
  // What each line is refused for; none of them does anything.
  for (const char* line : {"jump",
                           "press",
                           "press Nothing",
                           "press Naamlijst",
                           "press Mark1(81)",
                           "release Mark1(0) left 1",
                           "release CommandNew left 1 1",
                           "mark 0 10",
                           "mark 81 1",
                           "mark 0 1 both",
                           "row 9",
                           "select Naamlijst 0",
                           "select CommandNew 0",
                           "type LabelTijd x",
                           "key NaamInvoerveld tab",
                           "answer OK",
                           "cancel",
                           "window shut",
                           "dialog close",
                           "dialog open",
                           "clock 25:00:00",
                           "tick -1",
                           "rounds",
                           "renew x",
                           "get CommandNew",
                           "get CommandNew.value",
                           "get Grid(81).caption",
                           "get Naamlijst.line(0)",
                           "var Nothing",
                           "var CurrentNumber(6)",
                           "var PlayerNames(1)",
                           "record 0 1",
                           "record 1 101"}) {
    GameHome home;
    const Played played = home.Play("echo one\n\n# two\n" + std::string(line) + "\necho five\n");
    if (played.Count("refused") > 0) continue;
    EXPECT_EQ(played.status, 2) << line;
    EXPECT_TRUE(played.errors.starts_with("line 4: ")) << line << ": " << played.errors;
    EXPECT_TRUE(played.Has("echo one")) << line;
    EXPECT_FALSE(played.Has("echo five")) << line;
  }
}

TEST(Script, WrongAnswersEndItToo) {
  GameHome home;
  const Played quit = home.Play("window close\nanswer Maybe\necho on\n");
  EXPECT_EQ(quit.status, 2);
  EXPECT_FALSE(quit.Has("ended"));
  EXPECT_FALSE(quit.Has("echo on"));
  EXPECT_EQ(home.Play("window close\ncancel\n").status, 2);
}

TEST(Script, EndingInABoxLeavesTheGameAsItIs) {
  GameHome home;
  EXPECT_EQ(home.Play("press CommandOpen\nclock 12:00:01\n").status, 0);
  const std::string settings = home.home.Get("settings.ini");
  const Played played = home.Play("press CommandOpen\n");
  EXPECT_EQ(played.status, 0);
  EXPECT_FALSE(played.Has("ended"));
  EXPECT_EQ(played.output.substr(played.output.rfind("input")),
            "input \"Sudoku number\" \"Enter a value between 1 and 100\" \"1\"\n");
  EXPECT_EQ(home.home.Get("settings.ini"), settings);
  EXPECT_EQ(home.Play("press cmdPlayers\npress KnopNieuweSpeler\ntype NaamInvoerveld Ann\n").status, 0);
  EXPECT_EQ(home.home.Get("settings.ini"), settings);
}

TEST(Transcript, WritesValuesAsJson) {
  EXPECT_EQ(JsonString("a\"b\\c\nd\te"), R"("a\"b\\c\nd\u0009e")");
  EXPECT_EQ(JsonString("Zo\xC3\xAB"), "\"Zo\xC3\xAB\"");
  EXPECT_EQ(Points(18), "18");
  EXPECT_EQ(Points(20.25), "20.25");
}

}  // namespace
}  // namespace kestrel::testing
