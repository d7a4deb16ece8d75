// SPDX-License-Identifier: MIT
// The program itself: exit status, lost output, signals. Through the shell, as users run it.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>

#include "cli/progress.h"
#include "support/approved.h"
#include "support/temp_folder.h"

namespace kestrel {
namespace {

const std::string kProgram = "'" KESTREL_CLI "'";

// The exit status of a shell command; 128 + n for a program ended by signal n.
int Shell(const std::string& command) {
  const int status = std::system(command.c_str());
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

// What the commands write, in tests/cli/transcript.txt.
TEST(Program, DoesWhatTheTranscriptSays) {
  const TempFolder folder;
  const std::string source = KESTREL_SOURCE_DIR;
  ASSERT_EQ(Shell("cd " + folder.Path().string() + " && sh " + source + "/tests/cli/play_transcript.sh " +
                  kProgram + " '" KESTREL_SCRIPT "' " + source + "/data " + source +
                  "/tests/cli/transcript.txt > played"),
            0);
  ExpectApproved("cli/transcript.txt", folder.Get("played"));
}

TEST(Program, LostOutputIsNoticed) {
  TempFolder folder;
  const std::string lost = folder.Path("lost");
  const std::string generate = kProgram + " generate --count 3000 --seed 1";
  EXPECT_EQ(Shell(generate + " > /dev/full 2> " + lost), 2);
  EXPECT_EQ(folder.Get("lost"), "kestrel-sudoku-cli: standard output could not be written\n");
  EXPECT_EQ(Shell(kProgram + " --version > /dev/full 2> /dev/null"), 2);
  EXPECT_EQ(Shell(kProgram + " --version >&- 2> /dev/null"), 2);
  const std::string script = "'" KESTREL_SCRIPT "'";
  EXPECT_EQ(Shell(script + " --version > /dev/full 2> /dev/null"), 2);
  EXPECT_EQ(Shell("yes 'press CommandNew' | { timeout 20 " + script + " --home " + folder.Path().string() +
                  " 2> " + lost + "; echo $? >> " + lost + "; } | head -n 1 > /dev/null"),
            0);
  EXPECT_EQ(folder.Get("lost"), "2\n");
  // The reader ends after one line: so does the program, at once, without a word and not by a signal.
  EXPECT_EQ(Shell("{ timeout 20 " + kProgram + " generate --count 1000000000 --seed 1 2> " + lost +
                  "; echo $? >> " + lost + "; } | head -n 1 > /dev/null"),
            0);
  EXPECT_EQ(folder.Get("lost"), "2\n");
}

TEST(Program, AFolderMayHaveABackslashInItsName) {
  TempFolder folder;
  std::filesystem::create_directory(folder.Path("a\\b"));
  EXPECT_EQ(Shell("cd " + folder.Path().string() +
                  " && echo 'press CommandNew' | '" KESTREL_SCRIPT "' --home 'a\\b' > /dev/null"),
            0);
  EXPECT_TRUE(std::filesystem::exists(folder.Path("a\\b/KestrelSudoku/sudstock.kpz")));
  EXPECT_EQ(folder.Count(), 1);
}

// With the standard streams closed, the stock file must not get the number of one of them.
TEST(Program, ClosedStreamsDoNotSpoilTheStock) {
  TempFolder folder;
  const std::string stock = folder.Path("stock");
  std::filesystem::copy(KESTREL_SOURCE_DIR "/data/sudstock.kpz", stock);
  EXPECT_EQ(Shell(kProgram + " stock renew --level 1 --seed 3 " + stock + " <&- >&- 2>&-"), 2);
  EXPECT_EQ(folder.Get("stock").size(), 111'000U);
  EXPECT_EQ(Shell(kProgram + " stock verify " + stock + " > /dev/null"), 0);
}

// A progress bar appears on a terminal only, and is taken off again.
TEST(Program, ProgressBarOnATerminal) {
  EXPECT_EQ(ProgressLine("rate", 2, 3, "x"),
            "rate [" + std::string(20, '#') + std::string(10, '.') + "]  66 %  x");
  TempFolder folder;
  const std::string typescript = folder.Path("typescript");
  if (Shell("script -q -c true /dev/null > /dev/null 2>&1 < /dev/null") != 0) {
    GTEST_SKIP() << "no terminal can be made here";
  }
  const std::string generate = "timeout 1 " + kProgram + " generate --count 1000000 --seed 1";
  Shell("script -q -c \"" + generate + "\" " + typescript + " > /dev/null 2>&1 < /dev/null");
  const std::string seen = folder.Get("typescript");
  ASSERT_NE(seen.find("generate [..."), std::string::npos);
  const std::size_t last =
      seen.rfind("generate [");  // what ended the program may have a word to say after it
  for (std::size_t bar = 0; (bar = seen.find("generate [", bar)) != last; ++bar) {
    EXPECT_LE(seen.find("\033[K", bar), seen.find('\n', bar));
  }
  Shell(generate + " 2> " + typescript + " > /dev/null");
  EXPECT_EQ(folder.Get("typescript"), "");
}

}  // namespace
}  // namespace kestrel
