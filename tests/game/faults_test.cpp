// SPDX-License-Identifier: MIT
// The stock cannot be written, or the program ends behind a message: what was congratulated is on the disk,
// and nothing is made up.
#include <gtest/gtest.h>

#include <algorithm>

#include "host/host_files.h"
#include "support/game_home.h"

namespace kestrel::testing {
namespace {

// Host files on which the first `failures` attempts to write the stock fail.
class FullDisk final : public Files {
 public:
  explicit FullDisk(int failures) : failures_(failures) {}
  bool Exists(std::string_view path) override { return inner_.Exists(path); }
  std::optional<std::uint64_t> Length(std::string_view path) override { return inner_.Length(path); }
  FileResult Read(std::string_view path, std::size_t max, Bytes& bytes) override {
    return inner_.Read(path, max, bytes);
  }
  FileResult Replace(std::string_view path, std::span<const std::uint8_t> bytes) override {
    return IsFull(path) ? FileResult::Failed(kReason) : inner_.Replace(path, bytes);
  }
  FileResult Update(std::string_view path, std::size_t max, const FileChange& change) override {
    return IsFull(path) ? FileResult::Failed(kReason) : inner_.Update(path, max, change);
  }
  FileResult Create(std::string_view path, std::span<const std::uint8_t> bytes) override {
    return inner_.Create(path, bytes);
  }
  FileResult KeepAside(std::string_view path) override { return inner_.KeepAside(path); }
  FileResult Copy(std::string_view from, std::string_view to) override { return inner_.Copy(from, to); }
  FileResult MakeFolder(std::string_view path) override { return inner_.MakeFolder(path); }
  FileResult Remove(std::string_view path) override { return inner_.Remove(path); }

 private:
  static constexpr const char* kReason = "No space left on device";
  bool IsFull(std::string_view path) { return path.ends_with(".kpz") && failures_-- > 0; }

  SystemCalls calls_;
  HostFiles inner_{calls_};
  int failures_;
};

// The lines that open a puzzle of the selected level 2 and solve it in `seconds` (10 to 59).
std::string Solve(int number, int seconds) {
  return "clock 10:00:00\npress CommandOpen\nanswer " + std::to_string(number) +
         "\nclock 10:00:" + std::to_string(seconds) + "\ntick\n" + FillIn(2, number);
}

constexpr std::string_view kCongratulation = "message \"New Best Time!\"";
constexpr std::string_view kFailure =
    "message \"File Error\" \"Error writing sudokus to file!\" exclamation OK";

TEST(Faults, ABestTimeThatCouldNotBeWrittenIsWrittenWithTheNext) {
  GameHome home;
  FullDisk files(1);
  NeverStop yield;
  const Played played =
      home.Play(std::string(kAnnPlays) + Solve(7, 41) + "answer OK\nanswer OK\nget StatusBar(3).caption\n" +
                    Solve(8, 42) + "answer OK\n",
                files, yield);
  EXPECT_EQ(played.status, 0) << played.errors;
  EXPECT_LT(played.output.find("stock failed\n" + std::string(kFailure)),
            played.output.find(kCongratulation));
  EXPECT_TRUE(played.Has("StatusBar(3).caption = \"Best Time: 00:41 by Ann\""));
  EXPECT_EQ(played.Count(kCongratulation), 2);
  const StockTable stock = home.Stock();
  EXPECT_EQ(stock(2, 7).BestSeconds, 41);
  EXPECT_EQ(stock(2, 8).BestSeconds, 42);
  EXPECT_EQ(stock(2, 8).BestPlayer, 1);
}

TEST(Faults, EndingBehindAMessageDoesNothingMore) {
  GameHome home;
  NeverStop yield;
  FullDisk full(1);
  const Played failed = home.Play(std::string(kAnnPlays) + Solve(7, 41), full, yield);
  EXPECT_TRUE(failed.output.ends_with(std::string(kFailure) + "\n"));
  EXPECT_EQ(home.Stock()(2, 7).BestSeconds, 0);
  FullDisk good(0);
  const Played congratulated = home.Play(Solve(7, 41), good, yield);
  EXPECT_EQ(congratulated.Count(kCongratulation), 1);
  EXPECT_EQ(home.Stock()(2, 7).BestSeconds, 41);
}

TEST(Faults, ARenewalThatCouldNotBeWrittenIsWrittenWithTheNext) {
  GameHome home;
  home.Play("");
  const std::string before = home.StockBytes();
  FullDisk files(1);
  NeverStop yield;
  const std::string renewal = "press RenewLevel(1)\nanswer OK\nrenew 5000\n";
  const Played played = home.Play(
      renewal + "answer OK\nvar StockStatus\n" + std::string(kAnnPlays) + Solve(7, 41), files, yield);
  EXPECT_EQ(played.status, 0) << played.errors;
  EXPECT_TRUE(played.Has("StockStatus = 63"));
  EXPECT_LT(played.output.find("stock failed"), played.output.find("stock written"));
  const StockTable stock = home.Stock();
  EXPECT_EQ(stock(2, 7).BestSeconds, 41);
  for (int number = 1; number <= kPuzzlesPerLevel; ++number) {
    EXPECT_EQ(stock(1, number).Reserved2, 0) << "still an old puzzle";
    EXPECT_LE(stock(1, std::max(1, number - 1)).Score, stock(1, number).Score);
  }
  EXPECT_NE(home.StockBytes(), before);
}

// Neither settings nor folders that cannot be had stop the program earlier than the stock does.
TEST(Faults, AHomeThatIsAFileEndsInTheFatalMessage) {
  GameHome home;
  home.home.Put("file", "");
  home.options.home = home.home.Path("file").string();
  home.options.settings = home.home.Path("file/settings.ini").string();
  const Played played = home.Play("answer OK\nanswer OK\n");
  EXPECT_EQ(played.status, 1);
  EXPECT_EQ(played.Count("setting"), 0);
  EXPECT_TRUE(played.output.ends_with("ended\n"));
}

}  // namespace
}  // namespace kestrel::testing
