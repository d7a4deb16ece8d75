// SPDX-License-Identifier: MIT
#include "print/print_job.h"

#include "print/collection_pages.h"
#include "print/page_layout.h"
#include "print/texts.h"

namespace kestrel {

std::string CheckPrintRange(const PrintSettings& settings) {
  const bool in_range = settings.first_number >= 1 && settings.first_number <= HighestFirstNumber(settings);
  return in_range ? std::string() : texts::BadRange(settings);
}

void PrintPages(const PrintJob& job, FilePage& page) {
  const int puzzles = static_cast<int>(job.puzzles.size());
  int pages = (puzzles + job.settings.per_page - 1) / job.settings.per_page;
  if (job.kind == PageKind::Large) {
    pages = PrintLargePages(page, job.puzzles, job.heading);
  } else {
    PrintSettings settings = job.settings;
    settings.with_solutions = settings.with_solutions && job.kind == PageKind::Game;
    const PageMetrics metrics = MeasurePage(page.Width(), page.Height());
    // A file is never stopped.
    (void)PageLayout(page, metrics, job.puzzles, job.heading, settings).PrintPages();
  }
  if (job.kind == PageKind::Game || !job.settings.with_solutions) return;
  const SolutionSize size = job.kind == PageKind::Large ? SolutionSize::Large : SolutionSize::Small;
  PrintSolutionPages(page, job.puzzles, size, job.solutions_upside_down, pages + 1);
}

}  // namespace kestrel
