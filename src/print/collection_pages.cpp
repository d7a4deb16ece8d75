// SPDX-License-Identifier: MIT
#include "print/collection_pages.h"

#include <algorithm>
#include <string>

#include "forms/texts.h"
#include "print/grid_drawing.h"
#include "print/names.h"
#include "print/texts.h"

namespace kestrel {

namespace {

constexpr int kMillimetre = 100;  // in units of a FilePage

// Large pages
constexpr GridSquare kLargeGrid{10 * kMillimetre, 40 * kMillimetre, 190 * kMillimetre};
constexpr LineWidths kLargeLines{.thick = 18, .thin = 5};
constexpr int kLargeTitleTop = 18 * kMillimetre;
constexpr int kLargeTitleSize = 32;
constexpr TextStyle kLargeDigit{.font = {names::kTextFont, 66, true}, .colour = kBlack};

// How solutions stand on their pages. The step from one to the next spreads them over the sheet.
struct SolutionPlaces {
  int columns;
  int rows;
  int side;
  int row_step;
  int digit_size;   // points
  int number_size;  // points
};
constexpr SolutionPlaces kSmallSolutions{3, 4, 45 * kMillimetre, 56 * kMillimetre, 11, 9};
constexpr SolutionPlaces kLargeSolutions{2, 2, 75 * kMillimetre, 110 * kMillimetre, 22, 18};

void PrintSolutionAt(Page& page, const SolutionPlaces& places, const GridSquare& square,
                     const PrintedPuzzle& puzzle) {
  DrawGrid(page, square);
  DrawDigits(page, square, puzzle.solution, DigitOfSize(places.digit_size));
  const std::string number = texts::NumberText("", puzzle.number);
  page.Text(square.x, square.y + square.side + kMillimetre, TextOfSize(places.number_size), number);
}

}  // namespace

int PrintLargePages(FilePage& page, std::span<const PrintedPuzzle> puzzles, std::string_view heading) {
  const TextStyle title = TextOfSize(kLargeTitleSize);
  const int right = kLargeGrid.x + kLargeGrid.side;
  int page_number = 0;
  for (const PrintedPuzzle& puzzle : puzzles) {
    page.Text(kLargeGrid.x, kLargeTitleTop, title, texts::NumberText("", puzzle.number));
    DrawRightAligned(page, right, kLargeTitleTop, title,
                     puzzle.label.empty() ? heading : std::string_view(puzzle.label));
    DrawGrid(page, kLargeGrid, kLargeLines);
    DrawDigits(page, kLargeGrid, puzzle.givens, kLargeDigit);
    DrawPageNumber(page, right, page.Height() - kLargeTitleTop, ++page_number);
    (void)page.NewPage();  // nobody stops a file
  }
  return page_number;
}

void PrintSolutionPages(FilePage& page, std::span<const PrintedPuzzle> puzzles, SolutionSize size,
                        bool upside_down, int first_page) {
  const SolutionPlaces& places = size == SolutionSize::Large ? kLargeSolutions : kSmallSolutions;
  const PageMetrics metrics = MeasurePage(page.Width(), page.Height());
  const auto per_page = static_cast<std::size_t>(places.columns * places.rows);
  const int column_step = (metrics.W - places.side) / (places.columns - 1);
  for (int page_number = first_page; !puzzles.empty(); ++page_number) {
    if (upside_down) page.TurnUpsideDown();
    page.Text(metrics.left, metrics.top, TextOfSize(kTitleSize), texts::kSolutions);
    const auto here = puzzles.first(std::min(per_page, puzzles.size()));
    for (std::size_t i = 0; i < here.size(); ++i) {
      const auto column = static_cast<int>(i) % places.columns;
      const auto row = static_cast<int>(i) / places.columns;
      const GridSquare square{metrics.left + column * column_step,
                              metrics.top + 15 * kMillimetre + row * places.row_step, places.side};
      PrintSolutionAt(page, places, square, here[i]);
    }
    DrawPageNumber(page, metrics.right, metrics.bottom, page_number);
    (void)page.NewPage();
    puzzles = puzzles.subspan(here.size());
  }
}

}  // namespace kestrel
