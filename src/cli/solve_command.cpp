// SPDX-License-Identifier: MIT
// `solve`: the solved grid of puzzles, or every step on the way there.
#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "cli/command.h"
#include "cli/json.h"
#include "cli/puzzle_reader.h"
#include "cli/puzzle_run.h"
#include "cli/rating_text.h"
#include "core/text.h"
#include "explain/explain.h"
#include "explain/names.h"
#include "solver/solver.h"

namespace kestrel {
namespace {

constexpr std::array<OptionSpec, 4> kSolveOptions{{
    {"steps", "", "write every step in words"},
    {"trace", "", "write the numbers (1..22) of the techniques that made progress"},
    {"format", "FORMAT", "text (default) or json, one object a line"},
    kJobsOption,
}};

enum class Detail { kGrid, kSteps, kTrace };

Json DigitsJson(CandidateMask digits) {
  Json array = Json::array();
  for (int digit = 1; digit <= 9; ++digit) {
    if (HasDigit(digits, digit)) array.push_back(digit);
  }
  return array;
}

std::string_view RoleName(Role role) {
  constexpr std::array<std::string_view, 7> kNames{"base", "pivot", "wing", "fin", "floor", "roof", "link"};
  return kNames[static_cast<std::size_t>(role)];
}

Json UnitsJson(const std::vector<Unit>& units) {
  Json array = Json::array();
  for (const Unit& unit : units) array.push_back(UnitName(unit));
  return array;
}

Json CellJson(int cell, CandidateMask digits) {
  return {{"cell", CellName(cell)}, {"digits", DigitsJson(digits)}};
}

Json StepJson(int number, const Finding& finding) {
  Json pattern = Json::array();
  for (const PatternCell& cell : finding.pattern) {
    Json& added = pattern.emplace_back(CellJson(cell.cell, cell.digits));
    added["role"] = RoleName(cell.role);
  }
  Json object{{"number", number},
              {"step", StepOf(finding.technique)},
              {"technique", RowOf(finding.technique).caption},
              {"form", finding.form},
              {"digits", DigitsJson(finding.digits)},
              {"pattern", std::move(pattern)},
              {"units", UnitsJson(finding.units)},
              {"covers", UnitsJson(finding.covers)}};
  if (finding.placed_cell >= 0) {
    object["place"] = {{"cell", CellName(finding.placed_cell)}, {"digit", finding.placed_digit}};
  } else {
    Json& removals = object["remove"] = Json::array();
    for (const Removal& removal : finding.removals) {
      removals.push_back(CellJson(removal.cell, removal.digits));
    }
  }
  object["text"] = StepSentence(finding);
  return object;
}

// Collects the steps of one puzzle in the form that is wanted.
class StepWriter final : public StepObserver {
 public:
  StepWriter(Detail detail, bool json) : detail_(detail), json_(json) {}

  void OnStep(const Finding& finding, const SolverState& /*after*/) override {
    ++count_;
    if (detail_ == Detail::kTrace && json_) {
      steps_.push_back(StepOf(finding.technique));
    } else if (detail_ == Detail::kTrace) {
      text_ += (count_ == 1 ? "" : " ") + std::to_string(StepOf(finding.technique));
    } else if (json_) {
      steps_.push_back(StepJson(count_, finding));
    } else {
      text_ += std::to_string(count_) + ". " + StepSentence(finding) + '\n';
    }
  }

  const std::string& Text() const { return text_; }
  const Json& Steps() const { return steps_; }
  int Count() const { return count_; }

 private:
  Detail detail_;
  bool json_;
  int count_ = 0;
  std::string text_;
  Json steps_ = Json::array();
};

std::string SolveJson(const DigitGrid& givens, const Rating& rating, Detail detail, const StepWriter& steps) {
  Json object = JsonLine();
  object["puzzle"] = GridText(givens);
  object["level"] = rating.level;
  object["score"] = rating.Score();
  if (detail == Detail::kSteps) object["steps"] = steps.Steps();
  if (detail == Detail::kTrace) object["trace"] = steps.Steps();
  object["grid"] = GridText(SolvedGrid(rating.state));
  return JsonText(object);
}

// A block of lines: the puzzle, its steps, how it ended, and a blank line.
std::string StepsText(const DigitGrid& givens, const Rating& rating, const StepWriter& steps) {
  std::string end = "Solved in ";
  if (rating.level == kBeyondTechniques) end = "Not solved, no technique helps after ";
  end += std::to_string(steps.Count()) + (steps.Count() == 1 ? " step" : " steps");
  if (rating.level != kBeyondTechniques) {
    end += ": level " + std::to_string(rating.level) + ", score " + std::to_string(rating.Score());
  }
  return "Puzzle " + GridText(givens) + '\n' + steps.Text() + end + ".\nGrid   " +
         GridText(SolvedGrid(rating.state)) + "\n\n";
}

std::string SolveText(const InputLine& line, Detail detail, bool json) {
  StepWriter steps(detail, json);
  NeverStop yield;
  RateOptions options;
  if (detail != Detail::kGrid) options.observer = &steps;  // describing every step takes time
  // A puzzle that says how far it has been solved is solved on from there.
  const std::optional<SolverState> start = StartOf(line);
  options.start = start ? &*start : nullptr;
  const DigitGrid& givens = line.givens;
  const Rating rating = SolveAndRate(givens, yield, options);
  if (json) return SolveJson(givens, rating, detail, steps);
  if (detail == Detail::kSteps) return StepsText(givens, rating, steps);
  if (detail == Detail::kTrace) return steps.Text() + '\n';
  return GridText(SolvedGrid(rating.state)) + '\n';
}

}  // namespace

const CommandSpec kSolveSpec{
    "solve",
    "[FILE...]",
    1 << 20,
    "Solve puzzles as people do, without guessing",
    "Reads puzzles as 'rate' does; where one says how far it has been solved, that is\n"
    "where solving goes on. Writes the grid of each, 81 digits with 0 for a cell\n"
    "that the game's techniques leave open; with --steps every step in words: its number, the\n"
    "technique, the cells and digits of the pattern, and what is placed or removed.\n"
    "Rows are called A to H and J, columns 1 to 9: C7 is in the third row.\n"
    "With --trace one line a puzzle: the numbers of the techniques, in order.",
    kSolveOptions,
    "solve puzzles.txt\n"
    "solve --steps puzzles.txt"};

ExitStatus SolveCommand(Arguments& arguments, CliPorts& ports) {
  constexpr std::array<std::string_view, 2> kFormats{"text", "json"};
  PuzzleRun run;
  run.label = "solve";
  run.files = arguments.Operands();
  run.jobs = JobsOf(arguments);
  run.json = arguments.OneOf("format", kFormats) == 1;
  if (arguments.Has("steps") && arguments.Has("trace")) {
    arguments.Fail("'--steps' and '--trace' exclude each other");
  }
  if (!arguments.Error().empty()) return ExitStatus::kFailure;
  const Detail detail = arguments.Has("steps")   ? Detail::kSteps
                        : arguments.Has("trace") ? Detail::kTrace
                                                 : Detail::kGrid;
  run.make_writer = [detail, json = run.json] {
    return [=](const InputLine& line, std::string& text) { text += SolveText(line, detail, json); };
  };
  return RunOnPuzzles(run, ports);
}

}  // namespace kestrel
