// SPDX-License-Identifier: MIT
// Reading, writing and first copy of the stock file.
#include "core/stock_file.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <string>

#include "core/global.h"

namespace kestrel {

namespace {

// What a stock file may hold behind its records and still be carried over by a write.
constexpr std::size_t kLongestStock = 16U << 20U;

std::string StockPath(std::string_view folder) {
  return std::string(folder) + std::string(kStockFileName);
}

template <class Function>
void EachRecord(Function function) {
  for (int level = 1; level <= kLevels; ++level) {
    for (int number = 1; number <= kPuzzlesPerLevel; ++number) function(level, number);
  }
}

std::size_t RecordOffset(int level, int number) {
  return static_cast<std::size_t>(RecordNumber(level, number) - 1) * kRecordBytes;
}

// Decodes the records of a file's bytes. What a short file lacks is zero; what a broken-off read did not
// bring stays as it is in the table.
void DecodeStock(Bytes bytes, bool to_the_end, StockTable& table) {
  const std::size_t read = bytes.size();
  bytes.resize(kStockBytes);
  EachRecord([&](int level, int number) {
    const std::size_t offset = RecordOffset(level, number);
    if (!to_the_end && offset + kRecordBytes > read) return;
    table(level, number) = DecodeRecord(std::span(bytes).subspan(offset).first<kRecordBytes>());
  });
}

bool SamePuzzle(const SudokuRecord& a, const SudokuRecord& b) {
  return a.GivenCells == b.GivenCells && a.SolutionCells == b.SolutionCells;
}

template <class Condition>
bool AllNumbers(Condition condition) {
  for (int number = 1; number <= kPuzzlesPerLevel; ++number) {
    if (!condition(number)) return false;
  }
  return true;
}

// Takes a best time over that another copy of the program stored since `known`, when it beats ours.
void MergeBestTime(const SudokuRecord& found, const SudokuRecord& known, SudokuRecord& ours) {
  const bool is_news = BestTime(found) != BestTime(known) || found.BestPlayer != known.BestPlayer;
  const bool is_better = BestTime(found) > 0 && (BestTime(ours) == 0 || BestTime(found) < BestTime(ours));
  if (!is_news || !is_better || !CheckRecord(found, found.Level).empty()) return;
  ours.BestMinutes = found.BestMinutes;
  ours.BestSeconds = found.BestSeconds;
  ours.BestPlayer = found.BestPlayer;
}

// Brings together what is in the file, `found`, and our table: `written` is what the file is to get. Puzzles
// are never exchanged under our game, one of them may be in play.
void MergeLevel(int level, const StockTable& found, const KnownStock& known, StockTable& ours,
                StockTable& written) {
  const auto is_same = [level](const StockTable& a, const StockTable& b) {
    return AllNumbers([&](int number) { return SamePuzzle(a(level, number), b(level, number)); });
  };
  const bool same_puzzles = is_same(found, ours);
  const bool renewed_elsewhere = !same_puzzles && is_same(known.table, ours) && AllNumbers([&](int number) {
    return CheckRecord(found(level, number), level).empty();
  });
  for (int number = 1; number <= kPuzzlesPerLevel; ++number) {
    if (same_puzzles) MergeBestTime(found(level, number), known.file(level, number), ours(level, number));
    written(level, number) = (renewed_elsewhere ? found : ours)(level, number);
  }
}

// Whether writing would lose something that is not as it should be, and that somebody may want to look at.
// Records of zeros are only empty.
bool LosesDamage(const Bytes& content, const StockTable& found, const StockTable& written) {
  bool loses = content.size() < kStockBytes;
  EachRecord([&](int level, int number) {
    const SudokuRecord& old = found(level, number);
    loses =
        loses || (old != written(level, number) && old != SudokuRecord() && !CheckRecord(old, level).empty());
  });
  return loses;
}

// Writes `table`, after `merge(found)` has had a look at what is in the file and changed the table.
template <class Merge>
FileResult Write(Files& files, std::string_view path, const StockTable& table, Merge merge) {
  Bytes content;
  if (!files.Read(path, kStockBytes, content)) {
    // Replaced all the same: a file on a bad spot of the disk is healed by that. Perhaps it can be copied
    // now.
    if (FileExists(files, path)) (void)files.KeepAside(path);
    return files.Replace(path, EncodeStock(table));
  }
  return files.Update(path, kLongestStock, [&](Bytes& bytes) {
    const auto found = std::make_unique<StockTable>();
    DecodeStock({bytes.begin(), bytes.begin() + std::min(bytes.size(), kStockBytes)}, true, *found);
    if (bytes.size() >= kStockBytes) merge(*found);
    if (LosesDamage(bytes, *found, table)) {
      FileResult kept = files.KeepAside(path);
      if (!kept) return kept;
    }
    bytes.resize(std::max(bytes.size(), kStockBytes));
    std::ranges::copy(EncodeStock(table), bytes.begin());
    return FileResult::Done();
  });
}

}  // namespace

void CopyStockIfMissing(Files& files, std::string_view program_folder, std::string_view data_folder) {
  const std::string stock = StockPath(data_folder);
  if (FileExists(files, stock)) return;
  (void)files.Copy(StockPath(program_folder), stock);
}

bool KeepOlderStock(Files& files, std::string_view data_folder) {
  const std::string path = StockPath(data_folder);
  const std::string older_path = path + std::string(kOlderStockEnding);
  Bytes bytes, older;
  if (files.Length(path) != kStockBytes || !files.Read(path, kStockBytes, bytes)) return false;
  // Nothing new: what is in the copy was whole. Most starts end here.
  if (files.Exists(older_path) && files.Read(older_path, kLongestStock, older) && older == bytes) return true;
  const auto stock = std::make_unique<StockTable>();
  DecodeStock(bytes, true, *stock);
  bool whole = bytes.size() == kStockBytes;
  EachRecord(
      [&](int level, int number) { whole = whole && CheckRecord((*stock)(level, number), level).empty(); });
  if (whole) (void)files.Replace(older_path, bytes);
  return whole;
}

FileResult ReadStock(Files& files, std::string_view data_folder, StockTable& table,
                     std::int16_t& stock_status, KnownStock& known) {
  FileResult result = ReadStockFile(files, StockPath(data_folder), table);
  if (!result) return result;
  stock_status = kStockComplete;
  known.file = known.table = table;
  return result;
}

FileResult WriteStock(Files& files, std::string_view data_folder, StockTable& table, KnownStock& known) {
  const auto written = std::make_unique<StockTable>(table);
  FileResult result = Write(files, StockPath(data_folder), *written, [&](const StockTable& found) {
    *written = table;
    for (int level = 1; level <= kLevels; ++level) MergeLevel(level, found, known, table, *written);
  });
  if (!result) return result;
  known.file = *written;
  known.table = table;
  return result;
}

FileResult ReadStockFile(Files& files, std::string_view path, StockTable& table) {
  Bytes bytes;
  FileResult result = files.Read(path, kStockBytes, bytes);
  DecodeStock(bytes, static_cast<bool>(result), table);
  return result;
}

FileResult WriteStockFile(Files& files, std::string_view path, const StockTable& table) {
  return Write(files, path, table, [](const StockTable&) {});
}

Bytes EncodeStock(const StockTable& table) {
  Bytes bytes(kStockBytes);
  EachRecord([&](int level, int number) {
    EncodeRecord(table(level, number),
                 std::span(bytes).subspan(RecordOffset(level, number)).first<kRecordBytes>());
  });
  return bytes;
}

}  // namespace kestrel
