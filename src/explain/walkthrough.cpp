// SPDX-License-Identifier: MIT
#include "explain/walkthrough.h"

#include <array>
#include <cstdint>
#include <utility>

#include "core/level_names.h"
#include "explain/board_picture.h"
#include "explain/explain.h"
#include "explain/names.h"
#include "explain/reasons.h"
#include "explain/svg.h"
#include "solver/technique_table.h"

namespace kestrel {
namespace {

void TakePosition(const SolverState& state, Example& example) {
  for (int cell = 0; cell < kCells; ++cell) {
    example.digits[cell] = static_cast<std::uint8_t>(state.CellValue(cell));
    example.marks[cell] = state.CellMask(cell);
  }
}

class StepKeeper final : public StepObserver {
 public:
  StepKeeper(const DigitGrid& givens, const SolverState& start, std::vector<Example>& steps)
      : givens_(givens), steps_(steps), before_(start) {}

  void OnStep(const Finding& finding, const SolverState& after) override {
    Example& step = steps_.emplace_back();
    step.givens = givens_;
    step.finding = finding;
    TakePosition(before_, step);
    before_ = after;
  }

 private:
  const DigitGrid& givens_;
  std::vector<Example>& steps_;
  SolverState before_;
};

bool IsSingle(const Example& step) {
  return step.finding.placed_cell >= 0;
}

std::string Counted(int number, std::string_view one, std::string_view several) {
  return std::to_string(number).append(" ").append(number == 1 ? one : several);
}

constexpr std::string_view kStyle = R"(body { font-family: sans-serif; line-height: 1.45; max-width: 60em;
  margin: 0 auto; padding: 0 1em; color: #20262d; background: #ffffff; }
h2 { margin-top: 2em; }
.step { display: flex; flex-wrap: wrap; gap: 1.5em; align-items: flex-start; }
.step > svg { flex: 0 1 30em; max-width: 100%; height: auto; }
.step > div { flex: 1 1 16em; }
.legend { list-style: none; padding: 0; }
.legend svg { vertical-align: middle; margin-right: .6em; }
.puzzle { font-family: monospace; overflow-wrap: anywhere; }
table { border-collapse: collapse; }
td { padding: .1em 1em .1em 0; }
td.count { text-align: right; }
)";

// The page itself in dark, and the pictures: rules of a style come before the colours that a picture carries.
std::string DarkStyle() {
  const std::array<std::pair<const char*, const char*>, 12> colours{{
      {kLightPalette.paper, kDarkPalette.paper},
      {kLightPalette.ink, kDarkPalette.ink},
      {kLightPalette.thin, kDarkPalette.thin},
      {kLightPalette.mark, kDarkPalette.mark},
      {kLightPalette.given, kDarkPalette.given},
      {kLightPalette.digit, kDarkPalette.digit},
      {kLightPalette.cause, kDarkPalette.cause},
      {kLightPalette.on_cause, kDarkPalette.on_cause},
      {kLightPalette.gone, kDarkPalette.gone},
      {kLightPalette.gone_ground, kDarkPalette.gone_ground},
      {kLightPalette.unit_wash, kDarkPalette.unit_wash},
      {kLightPalette.lose_wash, kDarkPalette.lose_wash},
  }};
  std::string style =
      "@media (prefers-color-scheme: dark) {\nbody { color: #e4e7eb; background: #1e2227; }\n";
  style += "a { color: #7db1f7; }\n";
  for (const char* property : {"fill", "stroke"}) {
    for (const auto& [light, dark] : colours) {
      style.append("[").append(property).append("=\"").append(light).append("\"] { ");
      style.append(property).append(": ").append(dark).append("; }\n");
    }
  }
  return style + "}\n";
}

class Page {
 public:
  Page(const Walkthrough& walkthrough, Singles singles)
      : walk_(walkthrough), steps_(walkthrough.steps), singles_(singles) {}

  std::string Write() {
    Steps();
    End();
    const std::string body = std::move(text_);
    text_.clear();
    Head();
    Legend();
    return text_ + body + "</body>\n</html>\n";
  }

 private:
  void Head() {
    constexpr std::string_view kTitle = "How this sudoku is solved";
    text_.append("<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n<title>")
        .append(kTitle);
    text_.append(
        "</title>\n<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n<style>\n");
    text_.append(kStyle).append(DarkStyle()).append("</style>\n</head>\n<body>\n<h1>").append(kTitle);
    text_.append("</h1>\n");
    std::string line;
    for (const std::uint8_t digit : walk_.givens) line += static_cast<char>(digit == 0 ? '.' : '0' + digit);
    text_.append("<p class=\"puzzle\">").append(line).append("</p>\n<p>").append(Verdict()).append("</p>\n");
    Counts();
  }

  std::string Verdict() const {
    const std::string steps = Counted(static_cast<int>(steps_.size()), "step", "steps");
    if (walk_.rating.level == kBeyondTechniques) {
      return "The 22 techniques do not solve this puzzle. They come to an end after " + steps + '.';
    }
    const auto level = static_cast<std::size_t>(walk_.rating.level - 1);
    return "Level " + std::to_string(walk_.rating.level) + " (" + std::string(kLevelNames[level]) +
           "), score " + std::to_string(walk_.rating.Score()) + ", solved in " + steps + '.';
  }

  void Counts() {
    if (steps_.empty()) return;
    text_ += "<table>\n";
    for (const TechniqueRow& row : kTechniqueTable) {
      const int count = walk_.rating.counters[row.counter];
      if (count == 0) continue;
      text_.append("<tr><td>").append(row.caption).append("</td><td class=\"count\">");
      text_.append(std::to_string(count)).append("</td></tr>\n");
    }
    text_ += "</table>\n";
  }

  void Legend() {
    if (signs_.empty()) return;
    text_ += "<h2>The signs</h2>\n<ul class=\"legend\">\n";
    for (const Sign sign : signs_) {
      const SignWords words = WordsOf(sign);
      text_.append("<li>").append(SignSample(sign)).append(words.look).append(": ").append(words.meaning);
      text_ += "</li>\n";
    }
    text_ +=
        "</ul>\n<p>Rows are called A to H and J, columns 1 to 9: C7 is the seventh cell of the third row. "
        "Small "
        "digits are candidates, the digits that a cell can still be.</p>\n";
  }

  void Steps() {
    for (std::size_t i = 0; i < steps_.size();) {
      std::size_t end = i + 1;
      if (singles_ == Singles::Gathered && IsSingle(steps_[i])) {
        while (end < steps_.size() && IsSingle(steps_[end])) ++end;
      }
      if (end - i > 1) {
        RunOfSingles(i, end);
      } else {
        Step(i);
      }
      i = end;
    }
  }

  void Show(const Picture& picture) {
    signs_.insert(picture.signs.begin(), picture.signs.end());
    text_ += "<div class=\"step\">\n" + picture.svg + "<div>\n";
  }

  void Step(std::size_t i) {
    const StepWords words = ExplainStep(steps_[i].finding);
    text_ += "<h2 id=\"" + Id(i) + "\"><b>" + words.technique + "</b> on " + words.digits + " (step " +
             std::to_string(i + 1) + ")</h2>\n";
    Show(DrawBoard(steps_[i]));
    text_ += "<p>" + ReasonText(steps_[i]) + "</p>\n";
    if (!IsSingle(steps_[i])) text_ += "<p><strong>" + RemovalText(steps_[i].finding) + "</strong></p>\n";
    text_ += "</div>\n</div>\n";
  }

  // Steps i to end - 1, with the position after them.
  void RunOfSingles(std::size_t i, std::size_t end) {
    std::vector<Placement> placements;
    for (std::size_t k = i; k < end; ++k) {
      placements.push_back({steps_[k].finding.placed_cell, steps_[k].finding.placed_digit});
    }
    text_ += "<h2>Singles (steps " + std::to_string(i + 1) + " to " + std::to_string(end) + ")</h2>\n";
    Show(DrawSingles(PositionAt(end), placements));
    text_ += "<ol>\n";
    for (std::size_t k = i; k < end; ++k) {
      const StepWords words = ExplainStep(steps_[k].finding);
      const bool naked = steps_[k].finding.technique == Technique::NakedSingle;
      text_ += "<li id=\"" + Id(k) + "\"><b>" + words.technique + "</b>: " + words.digits + " in " +
               CellName(steps_[k].finding.placed_cell) + ", " +
               (naked ? "which has no other candidate" : words.pattern) + ".</li>\n";
    }
    text_ += "</ol>\n</div>\n</div>\n";
  }

  // The position before step i; the last one when there is no such step.
  Example PositionAt(std::size_t i) const {
    if (i < steps_.size()) return steps_[i];
    Example end;
    end.givens = walk_.givens;
    TakePosition(walk_.rating.state, end);
    return end;
  }

  void End() {
    const bool solved = walk_.rating.state.Solved();
    text_ += solved ? "<h2>The solution</h2>\n" : "<h2>Where the 22 techniques end</h2>\n";
    Show(DrawBoard(PositionAt(steps_.size()), Frame::Plain));
    text_ += solved ? "<p>Every cell has its digit.</p>\n"
                    : "<p>None of the techniques finds anything in this position.</p>\n";
    text_ += "</div>\n</div>\n";
  }

  static std::string Id(std::size_t i) { return "step-" + std::to_string(i + 1); }

  const Walkthrough& walk_;
  const std::vector<Example>& steps_;
  Singles singles_;
  SignSet signs_;
  std::string text_;
};

}  // namespace

std::optional<Walkthrough> ExplainPuzzle(const DigitGrid& givens, Yield& yield, const SolverState* start) {
  Walkthrough walkthrough{.givens = givens, .rating = {}, .steps = {}};
  StepKeeper keeper(walkthrough.givens, start != nullptr ? *start : SolverState(givens), walkthrough.steps);
  walkthrough.rating = SolveAndRate(givens, yield, {.start = start, .observer = &keeper});
  if (walkthrough.rating.outcome == RateOutcome::Stopped) return std::nullopt;
  return walkthrough;
}

std::string WalkthroughPage(const Walkthrough& walkthrough, Singles singles) {
  return Page(walkthrough, singles).Write();
}

}  // namespace kestrel
