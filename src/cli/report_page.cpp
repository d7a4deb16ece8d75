// SPDX-License-Identifier: MIT
#include "cli/report_page.h"

#include <algorithm>
#include <cstdint>

#include "cli/rating_text.h"
#include "cli/report_plots.h"
#include "explain/svg.h"
#include "forms/texts.h"

namespace kestrel {
namespace {

constexpr std::string_view kStyle = R"(
:root { color-scheme: light dark; --page: #f5f6f8; --card: #ffffff; --ink: #1d2530; --soft: #5b6675; --line: #e1e5ea;
  --l1: #2f9e77; --l2: #1f8fb0; --l3: #3d6fd1; --l4: #7c4fc4; --l5: #c0397f; --l6: #8a6d3b; }
@media (prefers-color-scheme: dark) { :root { --page: #14181e; --card: #1d232b; --ink: #e8ecf1; --soft: #9aa6b5;
  --line: #313a46; --l1: #4cc79b; --l2: #45b9dc; --l3: #7aa2f7; --l4: #b08cf0; --l5: #f07ab4; --l6: #c9a86a; } }
* { box-sizing: border-box; }
body { margin: 0; background: var(--page); color: var(--ink); line-height: 1.5;
  font-family: system-ui, "Liberation Sans", Arial, sans-serif; }
main { max-width: 54rem; margin: 0 auto; padding: 2rem 1rem 3rem; }
h1 { font-size: 1.9rem; margin: 0; line-height: 1.2; overflow-wrap: anywhere; }
h2 { font-size: 1.15rem; margin: 0 0 .25rem; }
p { margin: .25rem 0 .75rem; color: var(--soft); }
section, .tile { background: var(--card); border: 1px solid var(--line); border-radius: 12px; }
section { padding: 1.25rem 1.25rem .75rem; margin-top: 1rem; }
.tiles { display: grid; grid-template-columns: repeat(auto-fit, minmax(9rem, 1fr)); gap: 1rem; margin-top: 1.25rem; }
.tile { padding: .9rem 1.1rem; }
.tile b { display: block; font-size: 1.6rem; line-height: 1.2; }
.tile span { color: var(--soft); font-size: .85rem; }
.bar { display: flex; height: 1.1rem; border-radius: 6px; overflow: hidden; gap: 2px; }
.bar div { min-width: 2px; }
.legend { display: flex; flex-wrap: wrap; gap: .25rem 1.25rem; padding: 0; margin: .75rem 0; list-style: none; }
.legend li::before { content: ""; display: inline-block; width: .8rem; height: .8rem; border-radius: 3px;
  margin-right: .4rem; background: var(--c); }
svg { display: block; width: 100%; height: auto; }
svg text { font-size: 13px; fill: var(--ink); }
svg .small { font-size: 12px; fill: var(--soft); }
svg .grid { stroke: var(--line); stroke-width: 1; }
svg .dot { fill-opacity: .75; }
svg rect:hover, svg circle:hover { opacity: .7; }
.l1 { --c: var(--l1); } .l2 { --c: var(--l2); } .l3 { --c: var(--l3); } .l4 { --c: var(--l4); }
.l5 { --c: var(--l5); } .l6 { --c: var(--l6); }
svg rect, svg circle { fill: var(--c); }
.bar div { background: var(--c); }
.wide { overflow-x: auto; }
table { border-collapse: collapse; width: 100%; font-variant-numeric: tabular-nums; }
th, td { padding: .35rem .6rem; text-align: right; border-bottom: 1px solid var(--line); white-space: nowrap; }
th { color: var(--soft); font-weight: 600; font-size: .85rem; white-space: normal; vertical-align: bottom; }
th:first-child, td:first-child { text-align: left; }
@media print { section { break-inside: avoid; } }
)";

// 1234567 as "1,234,567".
std::string Grouped(std::uint64_t number) {
  std::string text = std::to_string(number);
  for (std::size_t i = text.size(); i > 3;) text.insert(i -= 3, ",");
  return text;
}

std::string Tile(const std::string& value, const std::string& what) {
  return "<div class=\"tile\"><b>" + value + "</b><span>" + what + "</span></div>\n";
}

std::string Tiles(const ReportData& data) {
  std::map<std::int32_t, std::uint64_t> givens;
  std::int32_t hardest = 0;
  for (int level = 1; level <= kRatings; ++level) {
    for (const auto& [value, count] : data.Givens(level)) givens[value] += count;
    if (!data.Scores(level).empty()) hardest = std::max(hardest, data.Scores(level).rbegin()->first);
  }
  int used = 0;
  for (int slot = 0; slot < kTechniques; ++slot) used += Sum(data.Needing(slot)) > 0 ? 1 : 0;
  std::string tiles = Tile(Grouped(data.Puzzles()), data.Puzzles() == 1 ? "puzzle" : "puzzles") +
                      Tile(std::to_string(used), "of " + std::to_string(kTechniques) + " techniques needed") +
                      Tile(std::to_string(hardest), "highest score") +
                      Tile(std::to_string(Quantile(givens, 0.5)), "givens in the middle puzzle");
  if (!data.BestTimes().empty()) tiles += Tile(Grouped(data.BestTimes().size()), "best times");
  return "<div class=\"tiles\">\n" + tiles + "</div>\n";
}

std::string Section(const std::string& title, const std::string& explanation, const std::string& content) {
  if (content.empty()) return {};
  return "<section>\n<h2>" + title + "</h2>\n<p>" + explanation + "</p>\n" + content + "</section>\n";
}

// A bar divided among the levels, and what the colours mean.
std::string LevelBar(const ReportData& data) {
  std::string bar;
  std::string legend;
  for (int level = 1; level <= kRatings; ++level) {
    const std::uint64_t count = data.ByLevel()[static_cast<std::size_t>(level - 1)];
    if (count == 0) continue;
    const std::string kind = "\"l" + std::to_string(level) + '"';
    bar += "<div class=" + kind + " style=\"flex:" + std::to_string(count) + "\" title=\"" +
           RatingName(level) + ": " + Grouped(count) + "\"></div>";
    legend += "<li class=" + kind + ">" + RatingName(level) + ": " + Grouped(count) + " (" +
              Percent(count, data.Puzzles()) + ")</li>\n";
  }
  return "<div class=\"bar\">" + bar + "</div>\n<ul class=\"legend\">\n" + legend + "</ul>\n";
}

std::string Numbers(const ReportData& data) {
  std::string rows;
  for (int level = 1; level <= kRatings; ++level) {
    const std::uint64_t count = data.ByLevel()[static_cast<std::size_t>(level - 1)];
    if (count == 0) continue;
    const auto& scores = data.Scores(level);
    const auto& givens = data.Givens(level);
    std::string row = "<tr><td>" + RatingName(level) + "</td><td>" + Grouped(count) + "</td>";
    for (const double share : {0.0, 0.25, 0.5, 0.75, 1.0}) {
      row += "<td>" + (level > kLevels ? "-" : std::to_string(Quantile(scores, share))) + "</td>";
    }
    row += "<td>" + std::to_string(givens.begin()->first) + " to " + std::to_string(givens.rbegin()->first) +
           "</td></tr>\n";
    rows += row;
  }
  return "<div class=\"wide\"><table>\n<tr><th>Level</th><th>Puzzles</th><th>Lowest score</th><th>A quarter "
         "below</th><th>Median</th><th>Three quarters below</th><th>Highest</th><th>Givens</th></tr>\n" +
         rows + "</table></div>\n";
}

}  // namespace

std::string ReportPage(std::string_view title, const ReportData& data) {
  const std::string name = Escaped(title);
  std::string page =
      "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
      "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n<title>" +
      name + " - " + std::string(texts::kProductName) + "</title>\n<style>" + std::string(kStyle) +
      "</style>\n</head>\n<body>\n<main>\n<h1>" + name +
      "</h1>\n<p>A report on these puzzles, as rated by the solver of " + std::string(texts::kProductName) +
      "</p>\n";
  if (data.Puzzles() == 0) return page + "<p>There are no puzzles in it.</p>\n</main>\n</body>\n</html>\n";
  page += Tiles(data);
  page += Section("How hard they are",
                  "The level of a puzzle is that of the hardest technique that solving it takes.",
                  LevelBar(data));
  page +=
      Section("Scores within each level",
              "The score adds up the steps, harder ones counting more. Under each row the thick line spans "
              "the middle half of the puzzles, and the tick is the median.",
              ScorePlot(data));
  page +=
      Section("Techniques that they need",
              "The share of the puzzles in which the solver used a technique at least once, in the colours "
              "of the levels.",
              TechniquePlot(data));
  page += Section("Givens", "How many digits are there at the start.", GivensPlot(data));
  page +=
      Section("Best times against scores",
              "Every dot is a puzzle with a best time. Do harder puzzles take longer?", BestTimesPlot(data));
  page += Section("In numbers", "Scores and givens, level by level.", Numbers(data));
  return page + "</main>\n</body>\n</html>\n";
}

}  // namespace kestrel
