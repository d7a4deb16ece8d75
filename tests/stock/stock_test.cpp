// SPDX-License-Identifier: MIT
// Choosing, checking, repairing and filling stocks, and the stock that is shipped.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include "core/stock_file.h"
#include "core/text.h"
#include "stock/stock_check.h"
#include "stock/stock_doubt.h"
#include "stock/stock_import.h"
#include "stock/stock_maker.h"
#include "stock/stock_repair.h"
#include "support/approved.h"
#include "support/test_puzzles.h"
#include "support/test_stock.h"

namespace kestrel {
namespace {

bool IsSound(const StockTable& stock) {
  return CheckStock(stock, 2, [](int) {}).empty();
}

// The puzzles of a level of a stock in few words.
std::string Listed(const StockTable& stock, int level) {
  std::string text;
  for (int number = 1; number <= kPuzzlesPerLevel; ++number) {
    const SudokuRecord& record = stock(level, number);
    text += std::to_string(record.Level) + ' ' + std::to_string(record.Score) + ' ' +
            GridText(record.GivenCells) + '\n';
  }
  return text;
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
    for (const PoolPuzzle& puzzle : chosen[level]) attempts.insert(puzzle.attempt);
    EXPECT_TRUE(std::ranges::is_sorted(chosen[level], {}, &PoolPuzzle::score));
  }
  EXPECT_EQ(attempts.size(), 500U);
  std::string text;
  for (const std::uint64_t attempt : attempts) text += std::to_string(attempt) + '\n';
  ExpectApproved("stock/chosen.txt", text);
  for (auto& level : pool) std::ranges::reverse(level);
  EXPECT_EQ(ChooseStock(pool), chosen);
}

// Everything that can be wrong with a stock, planted in one: just these faults are found.
TEST(CheckStock, FindsEveryPlantedFault) {
  StockTable stock = testing::ShippedStock();
  const auto first_given = [&](int level, int number) -> std::uint8_t& {
    return *std::ranges::find_if(stock(level, number).GivenCells, [](int digit) { return digit != 0; });
  };
  stock(1, 1).TechniqueCount[0] = -1;
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
  stock(5, 100) = SudokuRecord{};
  std::string text;
  for (const StockFault& fault : CheckStock(stock, 2, [](int) {})) {
    text += std::to_string(fault.level) + ' ' + std::to_string(fault.number) + ": " + fault.text + '\n';
  }
  ExpectApproved("stock/faults.txt", text);
}

// Damage of every kind, with and without an older copy: what is good stays in its place, byte by byte.
TEST(RepairStock, KeepsWhatIsGoodAndReplacesTheRest) {
  const StockTable whole = [] {
    StockTable stock = testing::ShippedStock();
    for (int number = 1; number <= kPuzzlesPerLevel; ++number) {
      stock(3, number).BestMinutes = static_cast<std::int16_t>(number);
      stock(3, number).BestPlayer = 2;
      stock(3, number).Reserved1 = 7;
    }
    return stock;
  }();
  StockTable hurt = whole;
  hurt(3, 20).SolutionCells[80] ^= 8U;  // beyond repair
  hurt(3, 40).GivenCells.fill(0);       // the same
  hurt(3, 41) = hurt(3, 42);            // a double: the first one stays
  hurt(3, 60).Score = -5;               // can be mended, and is in the wrong place until then
  hurt(3, 61).TechniqueCount.fill(-1);  // can be mended
  hurt(3, 62).BestSeconds = 99;         // loses its time
  hurt(4, 50) = SudokuRecord{};
  const FillRun run{.seed = 3, .jobs = 2};
  const Repair repair = RepairStock(hurt, nullptr, run);
  EXPECT_TRUE(IsSound(repair.stock));
  EXPECT_TRUE(repair.Changes());
  const LevelRepair& medium = repair.levels[2];
  EXPECT_EQ((std::array{medium.good, medium.mended, medium.restored, medium.made}),
            (std::array{94, 3, 0, 3}));
  for (int level = 1; level <= kLevels; ++level) {
    for (int number = 1; number <= kPuzzlesPerLevel; ++number) {
      const bool is_new =
          level == 3 ? number == 20 || number == 40 || number == 42 : level == 4 && number == 50;
      SudokuRecord expected = whole(level, number == 41 && level == 3 ? 42 : number);
      if (level == 3 && number == 62) expected.BestMinutes = expected.BestPlayer = 0;
      EXPECT_EQ(repair.stock(level, number) == expected, !is_new) << level << ' ' << number;
      EXPECT_TRUE(!is_new || BestTime(repair.stock(level, number)) == 0);
    }
  }
  EXPECT_EQ(RepairStock(hurt, nullptr, {.seed = 3, .jobs = 1}).stock, repair.stock);
  hurt(3, 62) = whole(3, 62);
  hurt(5, 1) = hurt(5, 100) = SudokuRecord{};
  const Repair restored = RepairStock(hurt, &whole, run);
  for (const auto& [level, number] : {std::pair{3, 40}, {5, 1}, {5, 100}}) {
    EXPECT_EQ(restored.stock(level, number), whole(level, number));
  }
  EXPECT_EQ(restored.levels[2].restored + restored.levels[3].restored, 3);  // not the double
  const Repair nothing = RepairStock(whole, nullptr, run);
  EXPECT_TRUE(!nothing.Changes() && nothing.stock == whole);
  const StockTable all_new = RepairStock(StockTable(), nullptr, run).stock;
  EXPECT_TRUE(IsSound(all_new));
  ExpectApproved("stock/repaired.txt", Listed(repair.stock, 3) + Listed(all_new, 4) + Listed(all_new, 1));
}

// Turned by a quarter and with other digits: the same puzzle in disguise.
DigitGrid Turned(const DigitGrid& grid) {
  DigitGrid turned{};
  for (int cell = 0; cell < kCells; ++cell) {
    const int digit = grid[cell];
    turned[9 * (cell % 9) + 8 - cell / 9] = static_cast<std::uint8_t>(digit == 0 ? 0 : digit % 9 + 1);
  }
  return turned;
}

class ImportTest : public ::testing::Test {
 protected:
  ImportTest() {
    for (int number = 10; number <= kPuzzlesPerLevel; number += 10) stock_(2, number).BestSeconds = 1;
    while (others_.size() < 130) {
      const DigitGrid givens = testing::MakeTestPuzzle(random_);
      if (judge_.Judge(givens).level == 2) others_.push_back(givens);
    }
  }
  void Take(StockImport& import, const DigitGrid& givens) {
    import.Take("line " + std::to_string(++line_), givens, judge_.Judge(givens));
  }
  StockTable stock_ = testing::ShippedStock();
  RandomSource random_{4};
  PuzzleJudge judge_;
  std::vector<DigitGrid> others_;  // Easy puzzles that are not in the stock
  int line_ = 0;
};

TEST_F(ImportTest, FilesNewPuzzlesAndKeepsBestTimes) {
  StockImport import(stock_);
  DigitGrid several = others_[0];
  several.fill(0);
  DigitGrid none = others_[0];
  *std::ranges::find(none, 0) = 10;
  Take(import, several);
  Take(import, none);
  for (int i = 0; i < 30; ++i) Take(import, others_[i]);
  Take(import, Turned(others_[4]));
  Take(import, stock_(2, 50).GivenCells);
  Take(import, stock_(5, 50).GivenCells);
  std::vector<std::string> reasons;
  for (const Refusal& refusal : import.Refused()) reasons.push_back(refusal.source + ": " + refusal.reason);
  EXPECT_EQ(reasons,
            (std::vector<std::string>{"line 1: it has more than one solution", "line 2: it has no solution",
                                      "line 33: it is the puzzle of line 7 in disguise"}));
  const ImportResult result = import.Finish(FillWith::Old, {});
  EXPECT_TRUE(IsSound(result.stock));
  const LevelImport& easy = result.levels[1];
  EXPECT_EQ((std::array{easy.imported, easy.there, easy.kept, easy.made, easy.too_many, easy.times_lost}),
            (std::array{30, 1, 69, 0, 0, 0}));
  int times = 0;
  for (int number = 1; number <= kPuzzlesPerLevel; ++number) times += result.stock(2, number).BestSeconds;
  EXPECT_EQ(times, 10);
  for (const int level : {1, 3, 4, 5}) EXPECT_EQ(result.stock(level, 7), stock_(level, 7));
  const ImportResult fresh = import.Finish(FillWith::New, {.seed = 1, .jobs = 2});
  EXPECT_TRUE(IsSound(fresh.stock));
  EXPECT_EQ((std::array{fresh.levels[1].made, fresh.levels[1].times_lost}), (std::array{69, 9}));
  ExpectApproved("stock/imported.txt", Listed(result.stock, 2) + Listed(fresh.stock, 2));
}

TEST_F(ImportTest, SpreadsTooManyOverTheirScores) {
  StockImport import(stock_, 2);
  for (const DigitGrid& givens : others_) Take(import, givens);
  Take(import, stock_(3, 1).GivenCells);
  ASSERT_EQ(import.Refused().size(), 1U);
  EXPECT_EQ(import.Refused()[0].reason, "it is of level 3");
  const ImportResult result = import.Finish(FillWith::Old, {});
  EXPECT_TRUE(IsSound(result.stock));
  EXPECT_EQ((std::array{result.levels[1].imported, result.levels[1].too_many}), (std::array{100, 30}));
  ExpectApproved("stock/spread.txt", Listed(result.stock, 2));
}

TEST(StockDoubt, TellsStocksFromOtherFiles) {
  const Bytes whole = EncodeStock(testing::ShippedStock());
  Bytes cut(whole.begin(), whole.begin() + 300);
  // A tenth of the records is enough.
  Bytes tenth = whole;
  std::fill(tenth.begin() + 50 * kRecordBytes, tenth.end(), 0xEE);
  Bytes noise = tenth;
  noise[49 * kRecordBytes] = 0xEE;
  EXPECT_TRUE(LooksLikeStock(whole) && LooksLikeStock(cut) && LooksLikeStock(tenth));
  EXPECT_FALSE(LooksLikeStock({}) || LooksLikeStock(Bytes(1000, 'a')) || LooksLikeStock(noise));
  StockTable stock = testing::ShippedStock();
  stock(2, 7).GivenCells[3] = 11;
  stock(2, 8).BestSeconds = 77;
  EXPECT_EQ(WhyNoStock(kStockBytes, stock, {.level = 2, .first = 8}), "");
  EXPECT_NE(WhyNoStock(kStockBytes, stock, {.last = 7}), "");
  EXPECT_NE(WhyNoStock(kStockBytes - 1, testing::ShippedStock(), {}), "");
}

// What the game comes with.
TEST(ShippedStock, IsSoundVariedAndSpread) {
  const StockTable stock = testing::ShippedStock();
  EXPECT_TRUE(CheckStock(stock, 2, [](int) {}).empty());
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
