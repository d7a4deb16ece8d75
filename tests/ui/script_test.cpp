// SPDX-License-Identifier: MIT
// What a transcript cannot show: the command line, exit statuses, and scripts that end in the middle.
#include <gtest/gtest.h>

#include <fstream>

#include "support/approved.h"
#include "support/game_home.h"
#include "ui/memory/json_string.h"
#include "ui/memory/transcript.h"

namespace kestrel::testing {
namespace {

// Lines of tests/ui/bad_lines.txt that begin with "$ ": what each is refused for stands below it.
TEST(Script, EndsAtALineThatIsNoCommand) {
  std::ifstream file(KESTREL_SOURCE_DIR "/tests/ui/bad_lines.txt");
  GameHome home;
  std::string report;
  for (std::string line; std::getline(file, line);) {
    if (!line.starts_with("$ ")) continue;
    const Played played = home.Play("echo one\n\n# two\n" + line.substr(2) + "\necho five\n");
    EXPECT_TRUE(played.Has("echo one")) << line;
    EXPECT_EQ(played.Has("echo five"), played.status == 0) << line;
    const std::string output = played.output.substr(played.output.find("echo one"));
    report += line + '\n' + output + played.errors + "status " + std::to_string(played.status) + '\n';
  }
  ExpectApproved("ui/bad_lines.txt", report);
  EXPECT_TRUE(home.Play("press cmdPlayers\nselect Naamlijst 0\n").errors.starts_with("line 2: "));
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
  EXPECT_EQ(JsonString("\xC3\xAB\x7f\xC3(\xF5\xED\xA0\x80"),
            "\"\xC3\xAB\\u007f"
            R"(\ufffd(\ufffd\ufffd\ufffd\ufffd")");
  EXPECT_EQ(Points(20.25), "20.25");
}

}  // namespace
}  // namespace kestrel::testing
