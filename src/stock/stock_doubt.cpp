// SPDX-License-Identifier: MIT
#include "stock/stock_doubt.h"

#include <algorithm>
#include <cstdint>
#include <span>
#include <string_view>

namespace kestrel {
namespace {

bool IsSenseless(RecordFault fault) {
  return fault == RecordFault::Level || fault == RecordFault::Solution || fault == RecordFault::Given;
}

}  // namespace

std::string WhyNoStock(std::uint64_t length, const StockTable& stock, const RecordRange& range) {
  if (length != kStockBytes) {
    return "this is no stock: it has " + std::to_string(length) + " bytes instead of " +
           std::to_string(kStockBytes);
  }
  for (int level = 1; level <= kLevels; ++level) {
    if (range.level != 0 && level != range.level) continue;
    for (int number = range.first; number <= range.last; ++number) {
      const auto faults = RecordFaults(stock(level, number), level);
      const auto fault = std::ranges::find_if(faults, IsSenseless);
      if (fault == faults.end()) continue;
      return "this is no stock, or a damaged one: level " + std::to_string(level) + " number " +
             std::to_string(number) + ": " + std::string(Describe(*fault));
    }
  }
  return {};
}

bool LooksLikeStock(const Bytes& bytes) {
  const std::size_t records = std::min(bytes.size(), kStockBytes) / kRecordBytes;
  std::size_t sound = 0;
  for (std::size_t i = 0; i < records; ++i) {
    const auto record = DecodeRecord(std::span(bytes).subspan(i * kRecordBytes).first<kRecordBytes>());
    const int level = static_cast<int>(i / kPuzzlesPerLevel) + 1;
    sound += RecordFaults(record, level).empty() ? 1U : 0U;
  }
  return sound > 0 && 10 * sound >= records;
}

}  // namespace kestrel
