// SPDX-License-Identifier: MIT
// The settings file: its format, foreign lines, failures, and several copies of the program.
#include "core/settings_file.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "core/random_source.h"
#include "host/host_files.h"
#include "support/faulty_calls.h"
#include "support/temp_folder.h"

namespace kestrel {
namespace {

TEST(SettingsText, ForeignLinesStayWhereTheyAre) {
  SettingsText settings(
      "\xEF\xBB\xBF; by hand\n[Options]\r\n  Sounds = \"False\" \r\n"
      "Level=3\nLevel=\"4\" oops\nLevel=\"\\x\"\n[Players\n\n"  // four that cannot be read
      "[Players]\nPlayer01=\"Ann\"\nPlayer01=\"Eve\"");
  EXPECT_EQ(settings.Find("Options", "Sounds"), "False");
  EXPECT_EQ(settings.Find("Options", "Level"), std::nullopt);
  EXPECT_EQ(settings.Find("Players", "Player01"), "Eve");
  settings.Set("Options", "Level", "5");
  settings.Set("Players", "Player01", "Bob ");
  settings.Set("Last_Puzzle", "Level01", "7");
  EXPECT_EQ(settings.Text(),
            "\xEF\xBB\xBF; by hand\n[Options]\r\n  Sounds = \"False\" \r\n"
            "Level=3\nLevel=\"4\" oops\nLevel=\"\\x\"\n[Players\nLevel=\"5\"\n\n"
            "[Players]\nPlayer01=\"Ann\"\nPlayer01=\"Bob \"\n[Last_Puzzle]\nLevel01=\"7\"\n");
}

TEST(SettingsText, AnyValueComesBackAndAnyTextIsRead) {
  RandomSource random(5);
  const auto word = [&random] {
    std::string text;
    for (int i = random.Below(12); i > 0; --i) text += "\"\\\nn=[] \tA\r\x80\xC3"[random.Below(13)];
    return text;
  };
  for (int round = 0; round < 2000; ++round) {
    SettingsText settings(word() + "\n" + word());
    const std::string first = word(), second = word();
    settings.Set("S", "a", first);
    settings.Set("S", "b", second);
    const SettingsText again(settings.Text());
    EXPECT_EQ(again.Find("S", "a"), first);
    EXPECT_EQ(again.Find("S", "b"), second);
  }
}

TEST(SettingsFile, KeepsValuesThatCannotBeSavedAndFilesThatCannotBeRead) {
  TempFolder folder;
  FaultyCalls calls;
  HostFiles files(calls);
  SettingsFile settings(files, folder.Written("settings.ini"));
  EXPECT_EQ(settings.Read("Options", "Level", "2"), "2");
  EXPECT_TRUE(settings.Write("Options", "Level", "4"));

  calls.FailAt(1, true);
  EXPECT_FALSE(settings.Write("Options", "Sounds", "True"));
  EXPECT_EQ(settings.Read("Options", "Sounds", ""), "True");
  EXPECT_EQ(settings.Read("Options", "Level", "2"), "4");
  calls.FailAt(0);
  EXPECT_EQ(folder.Get("settings.ini"), "[Options]\nLevel=\"4\"\n");
  EXPECT_TRUE(settings.Write("Options", "Level", "4"));  // brings what could not be saved before
  EXPECT_EQ(folder.Get("settings.ini"), "[Options]\nLevel=\"4\"\nSounds=\"True\"\n");
  calls.FailAt(6, true);  // a value that is there already is only read: open, status, content, its end, close
  EXPECT_TRUE(settings.Write("Options", "Level", "4"));
  calls.FailAt(0);

  const std::string huge(2U << 20U, 'x');
  folder.Put("settings.ini", huge);
  EXPECT_FALSE(settings.Write("Options", "Level", "5"));
  EXPECT_EQ(settings.Read("Options", "Level", "2"), "5");
  EXPECT_EQ(folder.Get("settings.ini"), huge);
}

TEST(SettingsFile, CopiesOfTheProgramKeepEachOthersSettings) {
  TempFolder folder;
  FaultyCalls calls;
  HostFiles files(calls);
  SettingsFile settings(files, folder.Written("settings.ini"));
  for (const char* section : {"A", "B", "C"}) {
    if (fork() != 0) continue;
    for (int i = 0; i < 40; ++i) settings.Write(section, "Key" + std::to_string(i), section);
    _exit(0);
  }
  while (wait(nullptr) > 0) continue;
  for (const char* section : {"A", "B", "C"}) {
    for (int i = 0; i < 40; ++i) {
      EXPECT_EQ(settings.Read(section, "Key" + std::to_string(i), "lost"), section);
    }
  }
  EXPECT_EQ(folder.Count(), 1);
}

}  // namespace
}  // namespace kestrel
