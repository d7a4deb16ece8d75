// SPDX-License-Identifier: MIT
// A page that keeps what is drawn on it, to be looked at before it is printed. Used by the print dialog.
#pragma once

#include <memory>

#include "core/stock_table.h"
#include "forms/page_view.h"
#include "print/print_settings.h"

namespace kestrel {

// The first page of what the settings, which must be in range, would print on `paper`, on which nothing is drawn.
[[nodiscard]] std::shared_ptr<const DrawnPage> DrawFirstPage(Page& paper, const StockTable& stock,
                                                             PrintSettings settings);

}  // namespace kestrel
