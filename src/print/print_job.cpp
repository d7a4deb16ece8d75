// SPDX-License-Identifier: MIT
#include "print/print_job.h"

#include "print/page_layout.h"
#include "print/pdf_page.h"
#include "print/texts.h"
#include "ui/controls/texts.h"

namespace kestrel {

std::string CheckPrintSettings(const PrintSettings& settings) {
  const int per_page = settings.per_page;
  if (settings.level_index < 0 || settings.level_index >= kLevels) return std::string(texts::kBadLevel);
  if (per_page != 1 && per_page != 2 && per_page != 4) return std::string(texts::kBadPerPage);
  if (settings.pages < 1 || settings.pages > kMostPages) return std::string(texts::kBadPages);
  if (settings.first_number < 1 || settings.first_number > HighestFirstNumber(settings)) {
    return texts::BadRange(settings);
  }
  return {};
}

Bytes PrintJob(const StockTable& stock, const PrintSettings& settings) {
  PdfPage page;
  // A PDF page is never stopped.
  (void)PageLayout(page, MeasurePage(page.Width(), page.Height()), stock, settings).PrintPages();
  return page.Finish(texts::kProductName);
}

}  // namespace kestrel
