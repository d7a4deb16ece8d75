// SPDX-License-Identifier: MIT
// Making, checking, listing and renewing stocks, and the stock that is shipped.
#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <map>
#include <set>

#include "cli/cli_run.h"
#include "cli/puzzle_reader.h"
#include "core/stock_file.h"
#include "stock/stock_check.h"
#include "stock/stock_maker.h"
#include "support/faulty_calls.h"
#include "support/temp_folder.h"
#include "support/test_puzzles.h"

namespace kestrel {
namespace {

const std::string kShipped = KESTREL_SOURCE_DIR "/data/sudstock.kpz";

StockTable ReadShipped() {
  SystemCalls calls;
  HostFiles files(calls, PathForm::kHost);
  StockTable stock;
  EXPECT_TRUE(ReadStockFile(files, kShipped, stock));
  return stock;
}

void Save(const StockTable& stock, const TempFolder& folder, std::string_view name) {
  const Bytes bytes = EncodeStock(stock);
  folder.Put(name, std::string(bytes.begin(), bytes.end()));
}

// A pool whose scores crowd in the middle, as real ones do. Technique 0 is everywhere, 21 in three puzzles.
Pool CrowdedPool() {
  RandomSource random(9);
  Pool pool;
  std::uint64_t attempt = 0;
  for (int level = 0; level < kLevels; ++level) {
    for (int i = 0; i < 3000; ++i) {
      std::int32_t score = 100 * level;
      for (int k = 0; k < 4 + 4 * level; ++k) score += random.Below(20);
      const std::uint32_t rare = level == 4 && i % 1000 == 500 ? 1U << 21U : 0U;
      pool[level].push_back({attempt++, score, 1U | rare});
    }
  }
  return pool;
}

TEST(ChooseStock, SpreadsTheScoresAndKeepsRareTechniques) {
  Pool pool = CrowdedPool();
  const Pool chosen = ChooseStock(pool);
  EXPECT_EQ(CountWith(chosen, 21), 3);
  EXPECT_EQ(CountWith(chosen, 0), 500);
  std::set<std::uint64_t> attempts;
  for (int level = 0; level < kLevels; ++level) {
    ASSERT_EQ(chosen[level].size(), 100U);
    std::set<std::int32_t> in_pool;
    std::map<std::int32_t, int> taken;
    for (const PoolPuzzle& puzzle : pool[level]) in_pool.insert(puzzle.score);
    for (const PoolPuzzle& puzzle : chosen[level]) ++taken[puzzle.score], attempts.insert(puzzle.attempt);
    EXPECT_TRUE(std::ranges::is_sorted(chosen[level], {}, &PoolPuzzle::score));
    EXPECT_EQ(taken.begin()->first, *in_pool.begin());
    EXPECT_EQ(taken.rbegin()->first, *in_pool.rbegin());
    // All scores are taken where there are fewer than 100; else nearly 100 different ones.
    EXPECT_GE(taken.size() + 3, std::min<std::size_t>(100, in_pool.size()));
  }
  EXPECT_EQ(attempts.size(), 500U);
  for (auto& level : pool) std::ranges::reverse(level);
  EXPECT_EQ(ChooseStock(pool), chosen);
}

TEST(StockNew, IsRepeatableAndVerified) {
  TempFolder folder;
  const std::vector<std::string> words{"stock", "new", "--seed", "5", "--pool", "10000", "--jobs", "1"};
  auto one = words;
  auto two = words;
  one.push_back(folder.Path("one"));
  two.back() = "3";
  two.insert(two.end(), {"--stock", folder.Path("two")});
  const CliResult result = RunWith(one);
  ASSERT_EQ(result.status, 0) << result.err;
  EXPECT_EQ(Lines(result.out).size(), 6U);
  ASSERT_EQ(RunWith(two).status, 0);
  EXPECT_EQ(folder.Get("one"), folder.Get("two"));
  const CliResult verified = RunWith({"stock", "verify", folder.Path("one")});
  EXPECT_EQ(verified.status, 0) << verified.out;
  // A pool that is too small is an error, and the file stays.
  auto small = one;
  small[5] = "100";
  EXPECT_EQ(RunWith(small).status, 1);
  EXPECT_EQ(folder.Get("one"), folder.Get("two"));
  // Best times are not thrown away unless that is asked for.
  std::string with_time = folder.Get("one");
  with_time[222 + 170] = 59;
  folder.Put("one", with_time);
  EXPECT_EQ(RunWith(one).status, 2);
  EXPECT_EQ(folder.Get("one"), with_time);
  one.emplace_back("--force");
  EXPECT_EQ(RunWith(one).status, 0);
  EXPECT_EQ(folder.Get("one"), folder.Get("two"));
}

// Everything that can be wrong with a stock, planted in one: just these faults are found.
TEST(StockVerify, FindsEveryPlantedFault) {
  StockTable stock = ReadShipped();
  const auto first_given = [&](int level, int number) -> std::uint8_t& {
    return *std::ranges::find_if(stock(level, number).GivenCells, [](int digit) { return digit != 0; });
  };
  stock(1, 20).TechniqueCount[0] = -1;
  first_given(2, 2) = 200;
  stock(2, 31) = stock(2, 30);
  std::swap(stock(3, 10), stock(3, 90));
  first_given(3, 50) = static_cast<std::uint8_t>(first_given(3, 50) % 9 + 1);
  std::swap(stock(4, 9).SolutionCells[3], stock(4, 9).SolutionCells[4]);
  stock(4, 60).BestSeconds = 60;
  stock(4, 61) = stock(1, 61);
  stock(4, 61).Level = 4;
  stock(4, 61).Score = stock(4, 62).Score;
  ++stock(5, 5).Score;
  stock(5, 6).TechniqueCount[21] += 2;
  stock(5, 99) = SudokuRecord{};
  const std::vector<std::pair<std::string, std::string>> expected{
      {"level 1 number 20: ", "count HS is -1 instead of"},
      {"level 2 number 2: ", "is no digit"},
      {"level 2 number 31: ", "same puzzle as level 2 number 30"},
      {"level 3 number 11: ", "of the puzzle before"},
      {"level 3 number 50: ", "solution"},
      {"level 3 number 90: ", "of the puzzle before"},
      {"level 4 number 9: ", "solution in A4 is"},
      {"level 4 number 60: ", "best time makes no sense"},
      {"level 4 number 61: ", "is rated level 1"},
      {"level 4 number 61: ", "same puzzle as level 1 number 61"},
      {"level 5 number 5: ", "score is"},
      {"level 5 number 6: ", "count JF is"},
      {"level 5 number 99: ", "level is 0 instead of 5"},
      {"level 5 number 99: ", "more than one solution"},
      {"level 5 number 99: ", "is below the"},
  };
  TempFolder folder;
  Save(stock, folder, "stock");
  const CliResult result = RunWith({"stock", "verify", folder.Path("stock")});
  EXPECT_EQ(result.status, 1);
  const std::vector<std::string> lines = Lines(result.out);
  for (const auto& [place, fault] : expected) {
    const auto tells = [&, &place = place, &fault = fault](const std::string& line) {
      return line.starts_with(place) && line.find(fault) != std::string::npos;
    };
    EXPECT_TRUE(std::ranges::any_of(lines, tells)) << place << fault << "\n" << result.out;
  }
  for (const std::string& line : lines) {
    EXPECT_TRUE(std::ranges::any_of(expected, [&](const auto& e) { return line.starts_with(e.first); }))
        << line;
  }
}

TEST(StockVerify, TellsThatTheFileIsShort) {
  TempFolder folder;
  Save(ReadShipped(), folder, "stock");
  folder.Put("stock", folder.Get("stock").substr(0, 110'900));
  const CliResult result = RunWith({"stock", "verify", folder.Path("stock")});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(Lines(result.out)[0], "file: 110900 bytes instead of 111000");
  EXPECT_TRUE(Lines(result.out)[1].starts_with("level 5 number 100: "));
}

TEST(StockExport, LinesCanBeRatedAgain) {
  const CliResult lines = RunWith({"stock", "export", "--level", "4", kShipped});
  ASSERT_EQ(Lines(lines.out).size(), 100U);
  const std::vector<std::string> rated = Lines(RunWith({"rate"}, lines.out).out);
  const std::vector<std::string> listed =
      Lines(RunWith({"stock", "list", "--level=4"}, "", "none", kShipped).out);
  ASSERT_EQ(listed.size(), 101U);
  for (std::size_t i = 0; i < 100; ++i) {
    const std::vector<std::string> exported = Fields(Lines(lines.out)[i]);
    const std::vector<std::string> rating = Fields(rated[i + 1]);
    const std::vector<std::string> row = Fields(listed[i + 1]);
    EXPECT_EQ(exported[0], rating[0]);
    EXPECT_EQ(exported[1], rating[25]);
    EXPECT_EQ(exported[2] + exported[4], rating[1] + rating[2]);
    EXPECT_EQ(row[0] + row[1] + row[2], "4" + std::to_string(i + 1) + rating[2]);
    EXPECT_TRUE(std::equal(row.begin() + 6, row.end(), rating.begin() + 3, rating.begin() + 25));
  }
  const CliResult json = RunWith({"stock", "export", "--format=json", kShipped});
  EXPECT_EQ(Lines(json.out).size(), 500U);
  EXPECT_TRUE(json.out.starts_with(R"({"schema":1,"level":1,"number":1,"score":)"));
  // No stock anywhere.
  EXPECT_EQ(RunWith({"stock", "list"}).status, 2);
  // A stock of nonsense is listed and exported without harm.
  TempFolder folder;
  folder.Put("junk", std::string(50'000, '\xFE'));
  EXPECT_EQ(Lines(RunWith({"stock", "export", folder.Path("junk")}).out).size(), 500U);
  EXPECT_EQ(RunWith({"stock", "verify", folder.Path("junk")}).status, 1);
}

// The stock is wholly old or wholly new, and new when that was said.
TEST(StockRenew, AnyCallMayFailOrBeTheLast) {
  TempFolder folder;
  Save(ReadShipped(), folder, "stock");
  const std::string old_stock = folder.Get("stock");
  const auto renew = [&](FaultyCalls& calls) {
    return RunWith({"stock", "renew", "--level", "1", "--seed", "5", "--jobs", "1", folder.Path("stock")}, "",
                   "", "", calls);
  };
  FaultyCalls counted;
  ASSERT_EQ(renew(counted).status, 0);
  const std::string new_stock = folder.Get("stock");
  ASSERT_NE(new_stock, old_stock);
  for (int n = 1; n <= counted.Count(); ++n) {
    SCOPED_TRACE(n);
    FaultyCalls failing, killing;
    failing.FailAt(n, n % 2 == 0, n % 3 == 0 ? ENOSPC : EIO);
    folder.Put("stock", old_stock);
    const CliResult failed = renew(failing);
    EXPECT_EQ(failed.status == 0, failed.err.empty()) << failed.err;
    std::string stock = folder.Get("stock");
    EXPECT_TRUE(stock == new_stock || (stock == old_stock && failed.status != 0));
    folder.Put("stock", old_stock);
    killing.KillAt(n);
    if (fork() == 0) _exit(renew(killing).status);
    int end = 0;
    wait(&end);
    EXPECT_EQ(WEXITSTATUS(end), FaultyCalls::kKilled);
    stock = folder.Get("stock");
    EXPECT_TRUE(stock == new_stock || stock == old_stock);
  }
}

// What the game comes with.
TEST(ShippedStock, IsSoundVariedAndSpread) {
  const CliResult verified = RunWith({"stock", "verify", kShipped});
  EXPECT_EQ(verified.status, 0) << verified.out;
  const StockTable stock = ReadShipped();
  std::array<int, kTechniques> with{};
  for (int level = 1; level <= kLevels; ++level) {
    std::map<std::int32_t, int> scores;
    for (int number = 1; number <= kPuzzlesPerLevel; ++number) {
      const SudokuRecord& record = stock(level, number);
      ++scores[record.Score];
      for (int slot = 0; slot < kTechniques; ++slot) with[slot] += record.TechniqueCount[slot] > 0 ? 1 : 0;
      EXPECT_FALSE(SolvableBelow(level, record.GivenCells)) << level << " " << number;
      EXPECT_TRUE(SolvableBelow(level + 1, record.GivenCells)) << level << " " << number;
      EXPECT_TRUE(record.Reserved1 == 0 && record.Reserved2 == 0 && BestTime(record) == 0 &&
                  record.BestPlayer == 0);
    }
    for (const auto& [score, count] : scores) EXPECT_LE(count, 4) << "level " << level << " score " << score;
  }
  for (int slot = 0; slot < kTechniques; ++slot) EXPECT_GE(with[slot], 3) << kTechniqueTable[slot].caption;
}

}  // namespace
}  // namespace kestrel
