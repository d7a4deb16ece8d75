// SPDX-License-Identifier: MIT
#include "cli/report_plots.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

#include "cli/rating_text.h"

namespace kestrel {
namespace {

constexpr double kWidth = 760;
constexpr double kLeft = 120;   // room for names
constexpr double kRight = 735;  // the end of the scale

// A coordinate with one decimal.
std::string At(double value) {
  const auto tenths = std::llround(value * 10);
  return std::to_string(tenths / 10) + '.' + std::to_string(std::abs(tenths % 10));
}

std::string Attribute(const char* name, double value) {
  return std::string(" ") + name + "=\"" + At(value) + '"';
}

std::string TextAt(double x, double y, const std::string& text, const char* anchor = "start",
                   const char* kind = "ink") {
  return "<text class=\"" + std::string(kind) + "\" text-anchor=\"" + anchor + '"' + Attribute("x", x) +
         Attribute("y", y) + ">" + text + "</text>\n";
}

// A bar with what it says when the pointer rests on it.
std::string Bar(double x, double y, double width, double height, int level, const std::string& tip) {
  return "<rect class=\"l" + std::to_string(level) + '"' + Attribute("x", x) + Attribute("y", y) +
         Attribute("width", std::max(width, 0.0)) + Attribute("height", height) + "><title>" + tip +
         "</title></rect>\n";
}

std::string GridLine(double x1, double y1, double x2, double y2) {
  return "<line class=\"grid\"" + Attribute("x1", x1) + Attribute("y1", y1) + Attribute("x2", x2) +
         Attribute("y2", y2) + "/>\n";
}

std::string Picture(double height, const std::string& description, const std::string& content) {
  return "<svg viewBox=\"0 0 " + At(kWidth) + ' ' + At(height) + "\" role=\"img\" aria-label=\"" +
         description + "\">\n" + content + "</svg>\n";
}

// A round step that makes about `marks` of a length: 1, 2 or 5 with zeros behind it.
double RoundStep(double length, double marks) {
  const double rough = std::max(length, 1.0) / marks;
  const double power = std::pow(10, std::floor(std::log10(rough)));
  for (const double step : {1.0, 2.0, 5.0}) {
    if (rough <= step * power) return std::max(1.0, step * power);
  }
  return std::max(1.0, 10 * power);
}

// A scale of whole numbers along a picture.
struct Scale {
  double lowest;
  double highest;
  double start;
  double end;
  [[nodiscard]] double operator()(double value) const {
    return start + (value - lowest) / std::max(highest - lowest, 1.0) * (end - start);
  }
  [[nodiscard]] std::vector<double> Marks(double count) const {
    const double step = RoundStep(highest - lowest, count);
    std::vector<double> marks;
    const std::int64_t last = std::llround(std::floor(highest / step));
    for (std::int64_t i = std::llround(std::ceil(lowest / step)); i <= last; ++i) {
      marks.push_back(static_cast<double>(i) * step);
    }
    return marks;
  }
};

std::string PuzzlesOf(std::uint64_t count, int level) {
  return std::to_string(count) + (count == 1 ? " puzzle of " : " puzzles of ") + RatingName(level);
}

std::string Whole(double value) {
  return std::to_string(std::llround(value));
}

// The numbers under a picture, with thin lines up through it.
std::string Axis(const Scale& scale, double top, double bottom, const std::string& name) {
  std::string svg;
  for (const double mark : scale.Marks(8)) {
    svg += GridLine(scale(mark), top, scale(mark), bottom) +
           TextAt(scale(mark), bottom + 16, Whole(mark), "middle", "small");
  }
  return svg + TextAt((scale.start + scale.end) / 2, bottom + 34, name, "middle", "small");
}

using Counts = std::map<std::int32_t, std::uint64_t>;

// The bars of one level, as high as `height` where it has most.
std::string ScoreRow(const Counts& scores, int level, const Scale& scale, double bin, double base,
                     double height) {
  std::map<std::int64_t, std::uint64_t> bins;
  for (const auto& [score, count] : scores) bins[std::llround(std::floor(score / bin))] += count;
  std::uint64_t most = 1;
  for (const auto& [number, count] : bins) most = std::max(most, count);
  std::string svg;
  for (const auto& [number, count] : bins) {
    const double from = static_cast<double>(number) * bin;
    const double high = std::max(1.0, height * static_cast<double>(count) / static_cast<double>(most));
    const double width = scale(from + bin) - scale(from);
    const std::string to = bin > 1 ? " to " + Whole(from + bin - 1) : "";
    svg += Bar(scale(from), base - high, width - (width > 3 ? 1 : 0), high, level,
               RatingName(level) + ", score " + Whole(from) + to + ": " + std::to_string(count));
  }
  // Below the bars: the middle half as a thick line, the median as a tick.
  const double low = scale(Quantile(scores, 0.25));
  const double high = scale(Quantile(scores, 0.75));
  svg += Bar(low, base + 3, std::max(high - low, 2.0), 3, level, "half of the puzzles lie here");
  svg += Bar(scale(Quantile(scores, 0.5)) - 1, base + 1, 2, 7, level,
             "median " + std::to_string(Quantile(scores, 0.5)));
  return svg;
}

}  // namespace

std::string Percent(std::uint64_t part, std::uint64_t whole) {
  const double percent = whole == 0 ? 0 : 100.0 * static_cast<double>(part) / static_cast<double>(whole);
  if (part > 0 && percent < 0.05) return "&lt; 0.1 %";
  return (percent < 10 && part > 0 ? At(percent) : Whole(percent)) + " %";
}

std::string TimeText(int seconds) {
  const auto two = [](int number) { return (number < 10 ? "0" : "") + std::to_string(number); };
  const int minutes = seconds / 60;
  if (minutes < 60) return std::to_string(minutes) + ':' + two(seconds % 60);
  return std::to_string(minutes / 60) + ':' + two(minutes % 60) + ':' + two(seconds % 60);
}

std::string ScorePlot(const ReportData& data) {
  constexpr double kRow = 74;
  Scale scale{1e9, 0, kLeft, kRight};
  std::vector<int> levels;
  for (int level = 1; level <= kLevels; ++level) {
    const Counts& scores = data.Scores(level);
    if (scores.empty()) continue;
    levels.push_back(level);
    scale.lowest = std::min<double>(scale.lowest, scores.begin()->first);
    scale.highest = std::max<double>(scale.highest, scores.rbegin()->first + 1);
  }
  if (levels.empty()) return {};
  const double bin = std::max(1.0, RoundStep(scale.highest - scale.lowest, 130));
  const double bottom = kRow * static_cast<double>(levels.size()) + 6;
  std::string svg = Axis(scale, 6, bottom, "score");
  double base = 0;
  for (const int level : levels) {
    base += kRow;
    svg += TextAt(kLeft - 12, base - 14, RatingName(level), "end") +
           TextAt(kLeft - 12, base + 2, "median " + std::to_string(Quantile(data.Scores(level), 0.5)), "end",
                  "small") +
           ScoreRow(data.Scores(level), level, scale, bin, base - 6, kRow - 20);
  }
  return Picture(bottom + 44, "Histograms of the scores within each level", svg);
}

std::string TechniquePlot(const ReportData& data) {
  constexpr double kRow = 22;
  std::string svg;
  const double bottom = kRow * kTechniques + 6;
  const Scale scale{0, 100, kLeft + 20, kRight - 45};
  for (const double mark : {0.0, 25.0, 50.0, 75.0, 100.0}) {
    svg += GridLine(scale(mark), 0, scale(mark), bottom) +
           TextAt(scale(mark), bottom + 16, Whole(mark) + " %", "middle", "small");
  }
  const auto all = static_cast<double>(std::max<std::uint64_t>(data.Puzzles(), 1));
  for (int slot = 0; slot < kTechniques; ++slot) {
    const double top = kRow * slot + 3;
    const std::string caption(kTechniqueTable[static_cast<std::size_t>(slot)].caption);
    const PerLevel& needing = data.Needing(slot);
    svg += TextAt(scale.start - 10, top + 13, caption, "end");
    double share = 0;
    for (int level = 1; level <= kRatings; ++level) {
      const std::uint64_t count = needing[static_cast<std::size_t>(level - 1)];
      if (count == 0) continue;
      const double part = 100 * static_cast<double>(count) / all;
      svg += Bar(scale(share), top, scale(share + part) - scale(share), kRow - 6, level,
                 caption + ": " + PuzzlesOf(count, level));
      share += part;
    }
    svg += TextAt(scale(share) + 6, top + 13, Percent(Sum(needing), data.Puzzles()), "start", "small");
  }
  return Picture(bottom + 26, "The share of the puzzles that need each technique", svg);
}

std::string GivensPlot(const ReportData& data) {
  constexpr double kTop = 10;
  constexpr double kBottom = 220;
  Scale scale{100, 0, 60, kRight};
  std::map<std::int32_t, PerLevel> columns;
  for (int level = 1; level <= kRatings; ++level) {
    for (const auto& [givens, count] : data.Givens(level)) {
      columns[givens][static_cast<std::size_t>(level - 1)] = count;
      scale.lowest = std::min<double>(scale.lowest, givens - 1);
      scale.highest = std::max<double>(scale.highest, givens + 2);
    }
  }
  std::uint64_t most = 1;
  for (const auto& [givens, counts] : columns) most = std::max(most, Sum(counts));
  const Scale up{0, static_cast<double>(most), kBottom, kTop};
  std::string svg;
  for (const double mark : up.Marks(4)) {
    svg += GridLine(scale.start, up(mark), scale.end, up(mark)) +
           TextAt(scale.start - 8, up(mark) + 4, Whole(mark), "end", "small");
  }
  const double width = scale(1) - scale(0);
  for (const auto& [givens, counts] : columns) {
    double height = 0;
    for (int level = 1; level <= kRatings; ++level) {
      const std::uint64_t count = counts[static_cast<std::size_t>(level - 1)];
      if (count == 0) continue;
      const double top = height + static_cast<double>(count);
      svg += Bar(scale(givens) + width * 0.08, up(top), width * 0.84, up(height) - up(top), level,
                 std::to_string(givens) + " givens: " + PuzzlesOf(count, level));
      height = top;
    }
    svg += TextAt(scale(givens) + width / 2, kBottom + 16, std::to_string(givens), "middle", "small");
  }
  svg += TextAt((scale.start + scale.end) / 2, kBottom + 36, "givens", "middle", "small");
  return Picture(kBottom + 46, "How many puzzles have how many givens", svg);
}

std::string BestTimesPlot(const ReportData& data) {
  constexpr double kTop = 12;
  constexpr double kBottom = 320;
  if (data.BestTimes().empty()) return {};
  Scale scale{1e9, 0, 70, kRight};
  double longest = 60;
  for (const BestTimeDot& dot : data.BestTimes()) {
    scale.lowest = std::min<double>(scale.lowest, dot.score - 2);
    scale.highest = std::max<double>(scale.highest, dot.score + 2);
    longest = std::max<double>(longest, dot.seconds);
  }
  const Scale minutes{0, longest / 60 * 1.05, kBottom, kTop};
  std::string svg = Axis(scale, kTop, kBottom, "score");
  for (const double mark : minutes.Marks(6)) {
    svg += GridLine(scale.start, minutes(mark), scale.end, minutes(mark)) +
           TextAt(scale.start - 8, minutes(mark) + 4, Whole(mark) + " min", "end", "small");
  }
  for (const BestTimeDot& dot : data.BestTimes()) {
    svg += "<circle class=\"l" + std::to_string(dot.level) + " dot\" r=\"5\"" +
           Attribute("cx", scale(dot.score)) + Attribute("cy", minutes(dot.seconds / 60.0)) + "><title>" +
           dot.name + ": " + TimeText(dot.seconds) + ", score " + std::to_string(dot.score) +
           "</title></circle>\n";
  }
  return Picture(kBottom + 44, "Best times by the score of the puzzle", svg);
}

}  // namespace kestrel
