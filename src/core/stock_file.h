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
// Behind the name of a stock: the older copy of it that the game keeps.
inline constexpr std::string_view kOlderStockEnding = ".older";

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

// Copies the stock in a folder, which ends in a backslash, beside itself, over the copy made before. False when it is
// not whole: then nothing is copied, so that damage never reaches the older copy. A failure to write the copy is not
// reported.
bool KeepOlderStock(Files& files, std::string_view data_folder);

// What a running copy of the program knows of the stock file. It tells what other copies wrote since; the
// file and the copy's own table differ where another one renewed a level.
struct KnownStock {
  StockTable file;   // the file as it was read or written last
  StockTable table;  // this copy's table at that moment
};

// Fills the table from the stock in `data_folder` and sets `stock_status` to kStockComplete. On failure the
// status stays, and so do the records that were read before; the caller reports it ("Error reading ...").
FileResult ReadStock(Files& files, std::string_view data_folder, StockTable& table,
                     std::int16_t& stock_status, KnownStock& known);

// Writes the whole table. On failure the file is as it was; the caller reports it ("Error writing ...").
//
// What another copy of the program wrote since is kept: its better best times go into `table` as well, and a
// level that it renewed stays so in the file, unless this copy renewed it, too. With one copy running, the
// file gets exactly the table.
FileResult WriteStock(Files& files, std::string_view data_folder, StockTable& table, KnownStock& known);

// Reading and writing a stock of any path. A file shorter than 111,000 bytes reads as if zeros followed it;
// of a longer one the end is not read, and kept by writing. Writing over a file that is too short, or over
// records that hold nonsense, keeps a copy of it aside first.
FileResult ReadStockFile(Files& files, std::string_view path, StockTable& table);
FileResult WriteStockFile(Files& files, std::string_view path, const StockTable& table);

// The table as the 111,000 bytes of a stock file.
Bytes EncodeStock(const StockTable& table);

}  // namespace kestrel
