// SPDX-License-Identifier: MIT
// Reading, writing and first copy of the stock file.
#include "core/stock_file.h"

#include <algorithm>
#include <string>

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

}  // namespace

void CopyStockIfMissing(Files& files, std::string_view program_folder, std::string_view data_folder) {
  const std::string stock = StockPath(data_folder);
  if (files.Exists(stock)) return;
  (void)files.Copy(StockPath(program_folder), stock);
}

FileResult ReadStock(Files& files, std::string_view data_folder, StockTable& table,
                     std::int16_t& stock_status) {
  FileResult result = ReadStockFile(files, StockPath(data_folder), table);
  if (result) stock_status = kStockComplete;
  return result;
}

FileResult WriteStock(Files& files, std::string_view data_folder, const StockTable& table) {
  return WriteStockFile(files, StockPath(data_folder), table);
}

FileResult ReadStockFile(Files& files, std::string_view path, StockTable& table) {
  Bytes bytes;
  FileResult result = files.Read(path, kStockBytes, bytes);
  // What a broken-off read did not bring stays as it is in the table; what a short file lacks is zero.
  const std::size_t read = bytes.size();
  bytes.resize(kStockBytes);
  EachRecord([&](int level, int number) {
    const std::size_t offset = RecordOffset(level, number);
    if (!result && offset + kRecordBytes > read) return;
    table(level, number) = DecodeRecord(std::span(bytes).subspan(offset).first<kRecordBytes>());
  });
  return result;
}

FileResult WriteStockFile(Files& files, std::string_view path, const StockTable& table) {
  const Bytes records = EncodeStock(table);
  // The usual file is not read before it is replaced: one on a bad spot of the disk is healed by that.
  if (files.Length(path).value_or(0) <= kStockBytes) return files.Replace(path, records);
  return files.Update(path, kLongestStock, [&records](Bytes& content) {
    content.resize(std::max(content.size(), records.size()));
    std::ranges::copy(records, content.begin());
  });
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
