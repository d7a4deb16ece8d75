// SPDX-License-Identifier: MIT
// The record's bytes, and the stock file: whole, short, long, missing, broken off, and full of nonsense.
#include <gtest/gtest.h>

#include <map>

#include "core/random_source.h"
#include "core/stock_file.h"
#include "host/host_files.h"
#include "support/faulty_calls.h"
#include "support/temp_folder.h"

namespace kestrel {
namespace {

std::string RandomText(std::size_t size) {
  RandomSource random(3);
  std::string text(size, '\0');
  for (char& c : text) c = static_cast<char>(random.Below(256));
  return text;
}

// A sound record; each `variant` has other givens.
SudokuRecord Sound(int level, int variant) {
  SudokuRecord record;
  record.Level = static_cast<std::int16_t>(level);
  for (int cell = 0; cell < kCells; ++cell) {
    const int digit = (3 * CellRow[cell] + CellRow[cell] / 3 + CellCol[cell]) % 9 + 1;
    record.SolutionCells[cell] = static_cast<std::uint8_t>(digit);
    if (cell < 16 ? (variant >> cell) % 2 == 1 : cell % 4 == 0)
      record.GivenCells[cell] = record.SolutionCells[cell];
  }
  return record;
}

class StockTest : public testing::Test {
 protected:
  FileResult Read() { return ReadStock(files_, folder_.Written(), *table_, status_, *known_); }
  FileResult Write() { return WriteStock(files_, folder_.Written(), *table_, *known_); }
  TempFolder folder_;
  FaultyCalls calls_;
  HostFiles files_{calls_};
  std::unique_ptr<StockTable> table_ = std::make_unique<StockTable>();
  std::unique_ptr<KnownStock> known_ = std::make_unique<KnownStock>();
  std::int16_t status_ = kStockNotRead;
};

TEST(SudokuRecord, FieldsStandAtTheirOffsets) {
  SudokuRecord record{0x0102, -2, 0x0304, {}, {}, 300, -1, 5, {}, 70000};
  record.GivenCells.front() = 9;
  record.GivenCells.back() = 255;
  record.SolutionCells.front() = 7;
  record.SolutionCells.back() = 8;
  record.TechniqueCount.front() = -32768;
  record.TechniqueCount.back() = 513;
  std::array<std::uint8_t, kRecordBytes> bytes{}, expected{};
  bytes.fill(0xAA);
  EncodeRecord(record, bytes);
  const auto put = [&expected](std::size_t offset, std::initializer_list<std::uint8_t> values) {
    std::ranges::copy(values, expected.begin() + static_cast<std::ptrdiff_t>(offset));
  };
  put(0, {0x02, 0x01, 0xFE, 0xFF, 0x04, 0x03, 9});
  put(86, {255, 7});
  put(167, {8, 0x2C, 0x01, 0xFF, 0xFF, 5, 0, 0x00, 0x80});
  put(216, {0x01, 0x02, 0x70, 0x11, 0x01, 0x00});
  EXPECT_EQ(bytes, expected);
  EXPECT_EQ(DecodeRecord(bytes), record);
  std::ranges::fill_n(bytes.begin() + 218, 4, 0xFE);
  EXPECT_EQ(DecodeRecord(bytes).Score, -0x01010102);
}

TEST_F(StockTest, ReadingAndWritingBackKeepsEveryByte) {
  for (const std::size_t size : {std::size_t{111000}, std::size_t{111123}}) {
    const std::string text = RandomText(size);
    folder_.Put("sudstock.kpz", text);
    ASSERT_TRUE(Read());
    EXPECT_EQ(status_, 62);
    ASSERT_TRUE(Write());
    EXPECT_EQ(folder_.Get("sudstock.kpz"), text);
    // A change lands in its own record and nowhere else.
    for (const auto& [level, number, offset] : {std::array{1, 1, 0}, {2, 1, 22200}, {5, 100, 110778}}) {
      const std::int16_t old = std::exchange((*table_)(level, number).Reserved2, std::int16_t{0x1234});
      ASSERT_TRUE(Write());
      std::string changed = text;
      EXPECT_EQ(folder_.Get("sudstock.kpz"),
                changed.replace(static_cast<std::size_t>(offset) + 4, 2, "\x34\x12"));
      (*table_)(level, number).Reserved2 = old;
    }
  }
  std::filesystem::resize_file(folder_.Path("sudstock.kpz"), 40U << 20U);  // too long to be carried over
  ASSERT_TRUE(Read());
  EXPECT_FALSE(Write());
  EXPECT_EQ(std::filesystem::file_size(folder_.Path("sudstock.kpz")), 40U << 20U);
}

TEST_F(StockTest, WhatAShortFileLacksIsZero) {
  const std::string text = RandomText(kStockBytes);
  for (const std::size_t size : {0, 1, 221, 222, 223, 22300, 65536, 110999}) {
    folder_.Put("sudstock.kpz", std::string_view(text).substr(0, size));
    (*table_)(5, 100).Score = 1;
    ASSERT_TRUE(Read());
    ASSERT_TRUE(Write());
    EXPECT_EQ(folder_.Get("sudstock.kpz"), text.substr(0, size) + std::string(kStockBytes - size, '\0'));
  }
}

TEST_F(StockTest, AFailedReadKeepsStatusAndWhatCameBefore) {
  for (int level = 1; level <= 5; ++level) {
    for (int number = 1; number <= 100; ++number) (*table_)(level, number).Score = 1000 * level + number;
  }
  EXPECT_FALSE(Read());  // no file
  ASSERT_TRUE(Write());
  *table_ = StockTable();
  (*table_)(5, 100).Score = -7;
  calls_.FailAt(4);  // open, status, the first read, and then the second one
  EXPECT_FALSE(Read());
  EXPECT_EQ(status_, kStockNotRead);
  EXPECT_EQ((*table_)(3, 95).Score, 3095);  // record 295, the last one within 65,536 bytes
  EXPECT_EQ((*table_)(3, 96).Score, 0);
  EXPECT_EQ((*table_)(5, 100).Score, -7);
  std::filesystem::remove(folder_.Path("sudstock.kpz"));
  std::filesystem::create_directory(folder_.Path("sudstock.kpz"));
  EXPECT_FALSE(Read());
  EXPECT_FALSE(Write());
}

TEST_F(StockTest, WhatAWriteWouldLoseOfADamagedFileIsKeptAside) {
  const auto asides = [this] {
    std::vector<std::string> contents;
    for (const auto& entry : std::filesystem::directory_iterator(folder_.Path())) {
      const std::string name = entry.path().filename().string();
      if (name.starts_with("sudstock.kpz.damaged-20")) contents.push_back(folder_.Get(name));
    }
    return contents;
  };
  const std::string noise = RandomText(kStockBytes + 5);
  folder_.Put("sudstock.kpz", noise);
  ASSERT_TRUE(Read());
  ASSERT_TRUE(Write());
  EXPECT_TRUE(asides().empty());  // nothing was lost
  (*table_)(1, 2) = SudokuRecord();
  ASSERT_TRUE(Write());
  (*table_)(1, 2).Level = 1;  // takes the place of zeros
  ASSERT_TRUE(Write());
  EXPECT_EQ(asides(), std::vector{noise});
  // Damaged while the program runs; then any call may fail as well.
  const std::string stump = noise.substr(0, 70000);
  bool through = false;
  for (int n = 1; !through; ++n) {
    folder_.Put("sudstock.kpz", stump);
    calls_.FailAt(n);
    const bool written = static_cast<bool>(Write());
    through = calls_.Count() < n;
    EXPECT_TRUE(written || !through);
    calls_.FailAt(0);
    EXPECT_TRUE(folder_.Get("sudstock.kpz") == stump || std::ranges::count(asides(), stump) == 1) << n;
    for (const auto& entry : std::filesystem::directory_iterator(folder_.Path())) remove(entry.path());
  }
}

// Three copies of the program over one file: each congratulates on better times than it knows, and renews.
TEST_F(StockTest, CopiesOfTheProgramKeepEachOthersBestTimesAndLevels) {
  struct Copy {
    StockTable table;
    KnownStock known;
    std::int16_t status = 0;
  };
  RandomSource random(11);
  int puzzles = 0;
  const auto renew = [&puzzles](StockTable& table, int level) {
    ++puzzles;
    for (int number = 1; number <= kPuzzlesPerLevel; ++number) table(level, number) = Sound(level, puzzles);
  };
  for (int level = 1; level <= kLevels; ++level) renew(*table_, level);
  ASSERT_TRUE(WriteStockFile(files_, folder_.Written("sudstock.kpz"), *table_));
  std::vector<Copy> copies(3);
  for (Copy& copy : copies) {
    ASSERT_TRUE(ReadStock(files_, folder_.Written(), copy.table, copy.status, copy.known));
  }
  std::map<std::tuple<int, int, DigitGrid>, int> best;  // by level, number and puzzle
  std::array<DigitGrid, kLevels + 1> newest{};
  for (int level = 1; level <= kLevels; ++level) newest[level] = (*table_)(level, 1).GivenCells;
  for (int round = 0; round < 600; ++round) {
    Copy& copy = copies[random.Below(3)];
    const int level = 1 + random.Below(kLevels), number = 1 + random.Below(3);
    SudokuRecord& record = copy.table(level, number);
    if (random.Below(12) == 0) {
      renew(copy.table, level);
      newest[level] = record.GivenCells;
    } else {
      const int time = (BestTime(record) == 0 ? 3000 : BestTime(record)) - 1 - random.Below(5);
      record.BestMinutes = static_cast<std::int16_t>(time / 60);
      record.BestSeconds = static_cast<std::int16_t>(time % 60);
      int& known = best[{level, number, record.GivenCells}];
      known = known == 0 ? time : std::min(known, time);
    }
    if (random.Below(8) == 0) {  // does not get onto the disk this time
      calls_.FailAt(3, true);
      EXPECT_FALSE(WriteStock(files_, folder_.Written(), copy.table, copy.known));
      calls_.FailAt(0);
    }
    ASSERT_TRUE(WriteStock(files_, folder_.Written(), copy.table, copy.known));
    ASSERT_TRUE(ReadStockFile(files_, folder_.Written("sudstock.kpz"), *table_));
    for (int l = 1; l <= kLevels; ++l) {
      for (int n = 1; n <= 3; ++n) {
        const SudokuRecord& stored = (*table_)(l, n);
        ASSERT_EQ(stored.GivenCells, newest[l]) << round;
        ASSERT_EQ(BestTime(stored), (best[{l, n, stored.GivenCells}])) << round;
      }
    }
  }
}

// The older copy is the last stock that was whole, and is itself always whole.
TEST_F(StockTest, OnlyAWholeStockBecomesTheOlderCopy) {
  const auto save = [&](int variant) {
    for (int level = 1; level <= kLevels; ++level) {
      for (int number = 1; number <= kPuzzlesPerLevel; ++number)
        (*table_)(level, number) = Sound(level, variant);
    }
    EXPECT_TRUE(WriteStockFile(files_, folder_.Written("sudstock.kpz"), *table_));
  };
  save(1);
  KeepOlderStock(files_, folder_.Written());
  const std::string first = folder_.Get("sudstock.kpz");
  EXPECT_EQ(folder_.Get("sudstock.kpz.older"), first);
  for (std::string damaged :
       {first + "x", first.substr(1), [&] { return std::string(first).replace(22200, 1, "x"); }()}) {
    folder_.Put("sudstock.kpz", damaged);
    KeepOlderStock(files_, folder_.Written());
    EXPECT_EQ(folder_.Get("sudstock.kpz.older"), first);
  }
  save(2);
  bool through = false;
  for (int n = 1; !through; ++n) {
    folder_.Put("sudstock.kpz.older", first);
    calls_.FailAt(n);
    KeepOlderStock(files_, folder_.Written());
    through = calls_.Count() < n;
    calls_.FailAt(0);
    const std::string older = folder_.Get("sudstock.kpz.older");
    EXPECT_TRUE(older == folder_.Get("sudstock.kpz") || (older == first && !through)) << n;
  }
}

TEST(SudokuRecord, NonsenseIsFoundAndLeadsNowhere) {
  SudokuRecord sound = Sound(3, 0x5555);
  EXPECT_EQ(CheckRecord(sound, 3), "");
  EXPECT_NE(CheckRecord(sound, 2), "");
  // Every byte with its top bit turned over makes nonsense, but for the reserved ones and low bytes of
  // numbers.
  std::array<std::uint8_t, kRecordBytes> bytes{};
  EncodeRecord(sound, bytes);
  for (std::size_t i = 0; i < kRecordBytes; ++i) {
    const bool harmless = i < 6 ? i > 1 : i >= 168 && (i >= 218 ? i != 221 : i % 2 == 0 && i != 170);
    bytes[i] ^= 0x80U;
    EXPECT_EQ(CheckRecord(DecodeRecord(bytes), 3).empty(), harmless) << i;
    bytes[i] ^= 0x80U;
  }
  sound.GivenCells[4] = sound.GivenCells[8];
  EXPECT_NE(CheckRecord(sound, 3), "");
  DigitGrid grid{};
  for (int cell = 0; cell < kCells; ++cell) grid[cell] = static_cast<std::uint8_t>(cell * 3);
  const DigitGrid safe = SafeDigits(grid);
  for (int cell = 0; cell < kCells; ++cell) EXPECT_EQ(safe[cell], cell <= 3 ? cell * 3 : 0);
}

}  // namespace
}  // namespace kestrel
