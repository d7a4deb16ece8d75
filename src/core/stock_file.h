// SPDX-License-Identifier: MIT
// The stock file: 500 records without header. Used by the game's start, completion and renewal, and by the
// stock commands. docs/stock-file.md has the format.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "core/files.h"
#include "core/stock_table.h"

namespace kestrel {

inline constexpr std::string_view kStockFileName = "sudstock.kpz";

// Values of StockStatus. Bit L (1..5) says that level L holds a complete set.
inline constexpr std::int16_t kStockNotRead = 0;
inline constexpr std::int16_t kStockComplete = 62;      // all five levels, not yet acknowledged
inline constexpr std::int16_t kStockAcknowledged = 63;  // and acknowledged by the main loop
constexpr std::int16_t StockLevelBit(int level) {
  return static_cast<std::int16_t>(1 << level);
}

// Copies the stock that came with the program into the user's folder when there is none. Both folders end in
// a backslash. A failure is not reported: ReadStock then finds no file.
void CopyStockIfMissing(Files& files, std::string_view program_folder, std::string_view data_folder);

// Fills the table from the stock in `data_folder` and sets `stock_status` to kStockComplete. On failure the
// status stays, and so do the records that were read before; the caller reports it ("Error reading ...").
FileResult ReadStock(Files& files, std::string_view data_folder, StockTable& table,
                     std::int16_t& stock_status);

// Writes the whole table. On failure the file is as it was; the caller reports it ("Error writing ...").
FileResult WriteStock(Files& files, std::string_view data_folder, const StockTable& table);

// The same two for a stock of any path. A file shorter than 111,000 bytes reads as if zeros followed it; of a
// longer one the end is not read, and kept by writing.
FileResult ReadStockFile(Files& files, std::string_view path, StockTable& table);
FileResult WriteStockFile(Files& files, std::string_view path, const StockTable& table);

// The table as the 111,000 bytes of a stock file.
Bytes EncodeStock(const StockTable& table);

}  // namespace kestrel
