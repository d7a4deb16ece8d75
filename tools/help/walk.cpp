// SPDX-License-Identifier: MIT
#include "help/walk.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "core/yield.h"
#include "explain/names.h"
#include "explain/reasons.h"
#include "explain/svg.h"
#include "explain/walkthrough.h"

namespace kestrel::help {
namespace {

constexpr std::size_t kStepsOfPicture = 6;

// "4 in A3: no other place for it in the top right box."
std::string InShort(const Finding& finding) {
  const std::string digit = std::to_string(finding.placed_digit);
  const std::string cell = CellName(finding.placed_cell);
  if (finding.technique == Technique::NakedSingle) {
    return "<b>" + digit + "</b> in <b>" + cell + "</b>: no other digit fits there.";
  }
  return "<b>" + digit + "</b> in <b>" + cell + "</b>: the only place for it in " +
         TheUnit(finding.units[0]) + '.';
}

}  // namespace

Walk::Walk(const DigitGrid& givens) {
  NeverStop yield;
  std::optional<Walkthrough> solved = ExplainPuzzle(givens, yield);
  if (!solved || solved->rating.level != 1) return;
  steps_ = std::move(solved->steps);
  const auto naked = std::find_if(steps_.begin(), steps_.end(), [](const Example& step) {
    return step.finding.technique == Technique::NakedSingle;
  });
  if (naked != steps_.end()) naked_ = static_cast<std::size_t>(naked - steps_.begin());
}

std::string Walk::Part(HelpFiles& files, std::string_view word) const {
  if (naked_ == 0) return {};
  if (word == "start") {
    return "<p class=\"picture\">" + Image(files, "first_steps-start", DrawBoard(Board(0), Frame::Plain)) +
           "</p>\n";
  }
  if (word == "first") return Reasoned(files, 0);
  if (word == "run") return Run(files, 1, naked_);
  if (word == "naked") return Reasoned(files, naked_);
  if (word == "end") return Run(files, naked_ + 1, steps_.size());
  return {};
}

std::string Walk::Run(HelpFiles& files, std::size_t from, std::size_t to) const {
  std::string html;
  while (from < to) {
    const std::size_t end = std::min(from + kStepsOfPicture, to);
    std::string words;
    std::vector<Placement> placed;
    for (std::size_t i = from; i < end; ++i) {
      const Finding& step = steps_[i].finding;
      words += "<p>" + std::to_string(i - from + 1) + ". " + InShort(step) + "</p>\n";
      placed.push_back({step.placed_cell, step.placed_digit});
    }
    const BoardPicture picture = DrawSingles(Board(end), placed);
    html += BesidePicture(words + Legend(files, picture.signs),
                          Image(files, "first_steps-" + std::to_string(end), picture));
    from = end;
  }
  return html;
}

std::string Walk::Reasoned(HelpFiles& files, std::size_t step) const {
  Example shown = steps_[step];
  shown.marks = {};
  const BoardPicture picture = DrawBoard(shown);
  return BesidePicture("<p>" + Escaped(ExampleText(steps_[step])) + "</p>\n" + Legend(files, picture.signs),
                       Image(files, "first_steps-" + std::to_string(step + 1), picture));
}

Example Walk::Board(std::size_t count) const {
  Example board = steps_.front();
  board.marks = {};
  for (std::size_t i = 0; i < count; ++i) {
    const Finding& step = steps_[i].finding;
    board.digits[step.placed_cell] = static_cast<std::uint8_t>(step.placed_digit);
  }
  return board;
}

}  // namespace kestrel::help
