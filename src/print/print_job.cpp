// SPDX-License-Identifier: MIT
// The PDF file of the command line, and the check of what it is asked for.
#include "print/print_job.h"

#include "forms/texts.h"
#include "print/page_layout.h"
#include "print/pdf_page.h"
#include "print/texts.h"

namespace kestrel {

std::string CheckPrintRange(const PrintSettings& settings) {
  const bool in_range = settings.first_number >= 1 && settings.first_number <= HighestFirstNumber(settings);
  return in_range ? std::string() : texts::BadRange(settings);
}

Bytes PrintJob(const StockTable& stock, const PrintSettings& settings) {
  PdfPage page;
  // A PDF page is never stopped.
  (void)PageLayout(page, MeasurePage(page.Width(), page.Height()), stock, settings).PrintPages();
  return page.Finish(texts::kProductName);
}

}  // namespace kestrel
