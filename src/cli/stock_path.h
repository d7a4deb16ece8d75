// SPDX-License-Identifier: MIT
// Which stock file a stock command works on, and the reading of it. Used by the stock commands.
#pragma once

#include <string>

#include "cli/command.h"
#include "core/stock_table.h"
#include "stock/stock_doubt.h"

namespace kestrel {

// The stock named by FILE or --stock (naming two is an error); else the user's, or the shipped one while the
// user has none.
std::string StockPath(Arguments& arguments, CliPorts& ports);

// The same for commands that change the stock: never the shipped one unless it is named.
std::string WritableStockPath(Arguments& arguments, CliPorts& ports);

// Reads a stock; on failure says so on standard error and returns false.
bool ReadStockOf(const std::string& path, CliPorts& ports, StockTable& stock);

// The same, and refuses a file that is no stock, or in which the records of the range make no sense.
bool ReadSoundStock(const std::string& path, CliPorts& ports, const RecordRange& range, StockTable& stock);

}  // namespace kestrel
