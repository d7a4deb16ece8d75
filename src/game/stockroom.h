// SPDX-License-Identifier: MIT
// The stock, and how far the renewal of a level has come. Used by opening, completion and renewal.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "core/files.h"
#include "core/stock_file.h"
#include "core/stock_table.h"
#include "forms/asker.h"
#include "game/choices.h"

namespace kestrel {

struct Stockroom {
  // WriteStock, with its message when it fails. False: the program is ending.
  [[nodiscard]] bool Save(Files& files, Asker& asker);

  [[nodiscard]] bool Renewing() const {
    return StockStatus != kStockComplete && StockStatus != kStockAcknowledged;
  }

  // The tables are too large to stand on the stack.
  std::unique_ptr<StockTable> stock = std::make_unique<StockTable>();
  std::unique_ptr<KnownStock> known = std::make_unique<KnownStock>();
  std::string DataFolder;  // ends in a backslash
  std::int16_t StockStatus = kStockNotRead;
  int RenewingLevel = 0;  // 0: none
  PerLevel RenewalCount;  // puzzles filed since the level's renewal began, 0..100
};

}  // namespace kestrel
