// SPDX-License-Identifier: MIT
// Stock files that are not as they should be: play goes on, or a message tells why not; what a write would
// lose of a damaged file is kept aside.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <fstream>

#include "core/random_source.h"
#include "course.h"

namespace kestrel::testing {
namespace {

namespace fs = std::filesystem;

constexpr const char* kStock = "KestrelSudoku/sudstock.kpz";
const std::string kAside = "KestrelSudoku/sudstock.kpz.damaged-20";

std::string Noise(std::size_t size) {
  RandomSource random(size);
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
               std::to_string(number) +
               "\nmark 0 1\nmark 40 5 right\npress CommandHint\npress LabelHint\n"
               "press CommandUndo\npress CommandRedo\nrow 3\npress CommandSolution\n";
    }
  }
  return lines + "press RenewLevel(1)\nanswer OK\nrenew 100000\n";
}

TEST(Damage, PlayGoesOnAndWhatWouldBeLostIsKeptAside) {
  GameHome pattern;
  pattern.Play("");
  const std::string good = pattern.StockBytes(), zeros(kStockBytes, '\0'), too_long = good + Noise(5000);
  std::string partly = good;
  partly.replace(40 * kRecordBytes, 60 * kRecordBytes, Noise(60 * kRecordBytes));  // level 1, 41 to 100
  for (const std::string& damaged :
       {std::string(), good.substr(0, 1), good.substr(0, 50000), good.substr(0, kStockBytes - 1), too_long,
        partly, Noise(kStockBytes), Noise(200000), std::string(kStockBytes, '\xFF'), zeros}) {
    SCOPED_TRACE(damaged.size());
    GameHome home;
    fs::create_directories(home.home.Path("KestrelSudoku"));
    home.home.Put(kStock, damaged);
    SystemCalls calls;
    const Played played = PlayOn(home, calls, LookAround());
    EXPECT_TRUE(played.status == 0 && played.Has("stock written")) << played.output;
    const std::string stock = home.StockBytes();
    EXPECT_EQ(stock.size(), std::max(damaged.size(), kStockBytes));
    EXPECT_TRUE(damaged.size() <= kStockBytes || stock.ends_with(damaged.substr(kStockBytes)));
    int kept = 0;
    for (const auto& entry : fs::directory_iterator(home.home.Path("KestrelSudoku"))) {
      const std::string name = "KestrelSudoku/" + entry.path().filename().string();
      kept += name.starts_with(kAside) && home.home.Get(name) == damaged ? 1 : 0;
    }
    EXPECT_EQ(kept, damaged == too_long || damaged == zeros ? 0 : 1);
    EXPECT_EQ(home.Play("").status, 0);
  }
}

TEST(Damage, TheOlderCopyIsRenewedAtMidnightAndTheMessageNamesBoth) {
  GameHome home;
  SystemCalls calls;
  const std::string solve = std::string(kAnnPlays) + SolveLines(1, 1);
  EXPECT_EQ(PlayOn(home, calls, solve + "press CommandNew\nclock 23:59:59\ntick\n").status, 0);
  const std::string older = "KestrelSudoku/sudstock.kpz.older", good = home.StockBytes();
  EXPECT_NE(home.home.Get(older), good);
  home.home.Put(older, "");
  EXPECT_EQ(
      PlayOn(home, calls, SolveLines(2, 1) + "press CommandNew\nclock 23:59:59\ntick\nclock 00:00:01\ntick\n")
          .status,
      0);
  EXPECT_NE(home.StockBytes(), good);
  EXPECT_EQ(home.home.Get(older), home.StockBytes());
  home.home.Put(kStock, home.StockBytes().replace(40 * kRecordBytes, 9, Noise(9)));
  const Played played = PlayOn(home, calls, "press CommandNew\nget StatusBar(5).caption\n");
  EXPECT_EQ(played.Count("message \"File Error\" \"Your file of sudokus"), 1) << played.output;
  EXPECT_NE(played.output.find("'" + home.home.Path(older).string()), std::string::npos);
  EXPECT_EQ(home.home.Get(older).substr(0, 9), good.substr(0, 9));
}

// No right to read, or none to write; played as another user when the superuser runs this.
TEST(Damage, MissingRightsAreReported) {
  const std::string ann(kAnnPlays), script = ann + SolveLines(1, 1);
  for (const mode_t rights : {0000U, 0444U}) {
    GameHome home;
    home.Play("");
    const std::string before = home.StockBytes(), output = home.program.Path("output");
    chmod(home.home.Path(kStock).c_str(), rights);
    const int status = InAChild([&] {
      chmod(home.program.Path().c_str(), 0755);
      bool ready = geteuid() != 0 || chown(home.home.Path().c_str(), 65534, 65534) == 0;
      for (const auto& entry : fs::recursive_directory_iterator(home.home.Path())) {
        ready = ready && (geteuid() != 0 || chown(entry.path().c_str(), 65534, 65534) == 0);
      }
      std::ofstream file(output);
      if (!ready || (geteuid() == 0 && setuid(65534) != 0)) return 2;
      SystemCalls calls;
      const Played played = PlayOn(home, calls, script);
      file << played.output << std::flush;
      return played.status;
    });
    const Played played{home.program.Get("output"), "", status};
    EXPECT_EQ(played.status, rights == 0 ? 1 : 0) << played.output;
    EXPECT_EQ(played.Count("message \"File Error\""), 1);
    chmod(home.home.Path(kStock).c_str(), 0600);
    EXPECT_EQ(home.StockBytes(), before);
  }
}

}  // namespace
}  // namespace kestrel::testing
