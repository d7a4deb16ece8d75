// SPDX-License-Identifier: MIT
// The pages that go into files: all that is drawn on them, and what the command line puts there.
#include "print/print_job.h"

#include <gtest/gtest.h>

#include <sstream>

#include "print/file_page.h"
#include "recording_page.h"
#include "support/approved.h"

namespace kestrel {
namespace {

// Notes what is drawn: a line for each line and box, and for each run of texts in one style.
class NotedPage final : public FilePage {
 public:
  TextSize Measure(const TextStyle& style, std::string_view text) override {
    const auto [width, height] = ruler_.Measure(style, text);
    return {10 * width, 10 * height};
  }
  void Text(int x, int y, const TextStyle& style, std::string_view text) override {
    std::ostringstream named;
    named << style.font.family << ' ' << style.font.size << (style.font.bold ? " bold " : " ") << std::hex
          << style.colour;
    if (named.str() != style_) notes << '\n' << (style_ = named.str()) << ':';
    notes << "  " << x << ' ' << y << ' ' << text;
  }
  void Line(int x1, int y1, int x2, int y2, int width) override { Note("line", x1, y1, x2, y2, width); }
  void Box(int x1, int y1, int x2, int y2, int width) override { Note("box", x1, y1, x2, y2, width); }
  bool NewPage() override { return notes << "\n= end of page", style_.clear(), true; }
  void TurnUpsideDown() override { notes << "\nupside down"; }
  std::vector<Bytes> Finish(std::string_view) const override { return {}; }
  std::ostringstream notes;

 private:
  void Note(const char* what, int x1, int y1, int x2, int y2, int width) {
    notes << '\n' << what << ' ' << x1 << ' ' << y1 << ' ' << x2 << ' ' << y2 << " by " << width;
    style_.clear();
  }
  RecordingPage ruler_;
  std::string style_;
};

TEST(PrintJob, DrawsWhatIsApproved) {
  const StockTable stock = StockToPrint();
  NotedPage page;
  PrintJob job;
  const auto print = [&](PageKind kind, int per_page, int puzzles, bool upside_down, bool solutions) {
    page.notes << "\n# " << static_cast<int>(kind) << ' ' << per_page << ' ' << puzzles << ' ' << upside_down
               << ' ' << solutions;
    job.kind = kind;
    job.puzzles = PuzzlesOfStock(stock, 2, 4, puzzles);
    job.puzzles[0].label = "Of its own";
    job.heading = "From a file";
    job.settings = {
        .per_page = per_page, .with_solutions = solutions, .with_pencil_marks = false, .first_number = 4};
    job.solutions_upside_down = upside_down;
    PrintPages(job, page);
  };
  print(PageKind::Booklet, 4, 13, true, true);
  print(PageKind::Large, 1, 5, false, true);
  print(PageKind::Large, 1, 1, false, false);
  print(PageKind::Booklet, 2, 1, true, false);
  for (const int per_page : {1, 2, 4}) print(PageKind::Game, per_page, per_page, true, true);
  ExpectApproved("print/pages.txt", page.notes.str() + '\n');
}

}  // namespace
}  // namespace kestrel
