// SPDX-License-Identifier: MIT
// Tells stock files from others. Used before a file is read as a stock, and before one is written over.
#pragma once

#include <cstdint>
#include <string>

#include "core/files.h"
#include "core/stock_table.h"

namespace kestrel {

// Some of the records of a stock: one level or (0) all, from one number to another.
struct RecordRange {
  int level = 0;  // 0..5
  int first = 1;  // 1..100
  int last = kPuzzlesPerLevel;
};

// Why a file of `length` bytes, read into `stock`, is no stock whose records in the range can be shown: the
// length is wrong, or a record has a level or digits that make no sense. Empty when it is one. The other
// fields are not looked at.
std::string WhyNoStock(std::uint64_t length, const StockTable& stock, const RecordRange& range);

// Whether the bytes are those of a stock, be it damaged, cut off or with something behind it: of the records
// that are there, at least one in ten makes sense.
bool LooksLikeStock(const Bytes& bytes);

}  // namespace kestrel
