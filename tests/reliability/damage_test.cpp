// SPDX-License-Identifier: MIT
// Stock files in the data folder that are not as they should be: play goes on, or a message tells why not;
// what a write would lose of a damaged file is kept aside.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>
#include <sstream>

#include "core/random_source.h"
#include "core/stock_table.h"
#include "course.h"

namespace kestrel::testing {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kStock = "KestrelSudoku/sudstock.kpz";

std::string Noise(std::size_t size, std::uint64_t seed) {
  RandomSource random(seed);
  std::string noise(size, '\0');
  for (char& c : noise) c = static_cast<char>(random.Below(256));
  return noise;
}

// Opens puzzles of every level, plays a little, asks for hints and solutions; renews a level in the end.
std::string LookAround() {
  std::string lines;
  for (int level = 1; level <= 5; ++level) {
    for (const int number : {1, 2, 50, 99, 100}) {
      lines += "press OptionType(" + std::to_string(level) + ")\npress CommandOpen\nanswer " +
               std::to_string(number) + "\nmark 0 1\nmark 40 5 right\npress CommandHint\npress LabelHint\n" +
               "press CommandUndo\npress CommandRedo\nrow 3\npress CommandSolution\n";
    }
  }
  return lines + "press RenewLevel(1)\nrenew 100000\n";
}

struct Outcome {
  int status = 0;
  std::string output;
};

Outcome Play(const GameHome& home, const std::string& script) {
  Course course;
  course.script = script;
  SystemCalls calls;
  std::ostringstream out;
  const int status = PlayOn(home, calls, course, out);
  return {status, out.str()};
}

TEST(Damage, PlayGoesOnAndTheFileIsKeptAside) {
  GameHome pattern;
  pattern.Play("");
  const std::string good = pattern.StockBytes();
  std::string partly = good;
  partly.replace(40 * kRecordBytes, 60 * kRecordBytes, Noise(60 * kRecordBytes, 1));  // level 1, 41 to 100
  const std::string long_one = good + Noise(5000, 2);
  for (const std::string& damaged :
       {std::string(), good.substr(0, 1), good.substr(0, 50000), good.substr(0, kStockBytes - 1), long_one,
        partly, Noise(kStockBytes, 3), Noise(200000, 4), std::string(kStockBytes, '\xFF'),
        std::string(kStockBytes, '\0')}) {
    GameHome home;
    fs::create_directories(home.home.Path("KestrelSudoku"));
    home.home.Put(kStock, damaged);
    const Outcome outcome = Play(home, LookAround());
    EXPECT_EQ(outcome.status, 0) << outcome.output;
    EXPECT_NE(outcome.output.find("stock written"), std::string::npos);
    const std::string stock = home.StockBytes();
    EXPECT_EQ(stock.size(), std::max(damaged.size(), kStockBytes));
    EXPECT_TRUE(damaged.size() <= kStockBytes || stock.ends_with(damaged.substr(kStockBytes)));
    // The long file and that of zeros lose nothing that anybody would miss.
    const bool loses = damaged != long_one && damaged != std::string(kStockBytes, '\0');
    int kept = 0;
    for (const auto& entry : fs::directory_iterator(home.home.Path("KestrelSudoku"))) {
      const std::string name = "KestrelSudoku/" + entry.path().filename().string();
      if (name.starts_with(std::string(kStock) + ".damaged-") && home.home.Get(name) == damaged) ++kept;
    }
    EXPECT_EQ(kept, loses ? 1 : 0) << damaged.size();
    EXPECT_EQ(home.Play("var StockStatus\n").status, 0);
  }
}

// No program may write over what it could not read.
TEST(Damage, AStockThatCannotBeReadIsReportedAndLeftAlone) {
  GameHome home;
  fs::create_directories(home.home.Path(kStock) / "folder");
  const Outcome outcome = Play(home, "echo not reached\n");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_NE(outcome.output.find("message \"File Error\" \"Error reading sudokus from file!\" exclamation OK\n"
                                "message \"Critical Error!\" \"The program failed to open the file"),
            std::string::npos)
      << outcome.output;
  EXPECT_EQ(outcome.output.find("echo"), std::string::npos);
  EXPECT_TRUE(fs::is_directory(home.home.Path(kStock) / "folder"));
}

// Without the right to read (or, then, to write): as another user when the superuser runs this.
TEST(Damage, MissingRightsAreReported) {
  for (const mode_t rights : {0000U, 0444U}) {
    GameHome home;
    home.Play("");
    const std::string before = home.StockBytes();
    chmod(home.home.Path(kStock).c_str(), rights);
    const std::string output = home.program.Path("output");
    if (fork() == 0) {
      for (const auto& folder : {home.home.Path(), home.program.Path()}) chmod(folder.c_str(), 0777);
      for (const auto& entry : fs::recursive_directory_iterator(home.home.Path())) {
        if (chown(entry.path().c_str(), 65534, 65534) != 0) break;
      }
      if (geteuid() == 0 && setuid(65534) != 0) _exit(2);
      const Outcome outcome = Play(home, std::string(kAnnPlays) + SolveLines(1, 1));
      std::ofstream(output) << outcome.output;
      _exit(outcome.status);
    }
    int status = -1;
    wait(&status);
    const std::string text =
        rights == 0 ? "Error reading sudokus from file!" : "Error writing sudokus to file!";
    EXPECT_EQ(WEXITSTATUS(status), rights == 0 ? 1 : 0);
    EXPECT_NE(home.program.Get("output").find(text), std::string::npos) << home.program.Get("output");
    EXPECT_EQ(home.StockBytes(), before);
  }
}

}  // namespace
}  // namespace kestrel::testing
