// SPDX-License-Identifier: MIT
// Looks for positions in generated puzzles, for the help pages:
//
//   find-examples FILE [--seed N] [--puzzles N]                       one worked example of every form
//   find-examples FILE --exercises EXAMPLES [--seed N] [--puzzles N]  three exercises of every form, none of them
//                                                                    from a puzzle that EXAMPLES shows
//
// A position of FILE is replaced when a clearer one turns up; the file is written at the end. The same files,
// seed and number of puzzles always give the same result.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <map>
#include <optional>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "core/text.h"
#include "core/yield.h"
#include "explain/clarity.h"
#include "explain/example.h"
#include "explain/technique_words.h"
#include "generator/generator.h"
#include "solver/solver.h"

namespace {

using namespace kestrel;

constexpr const char* kExamplesHeading =
    "# Worked examples of the help pages: positions from generated puzzles and what the solver finds "
    "there.\n";
constexpr const char* kExercisesHeading =
    "# Exercises of the help pages: positions from generated puzzles and what the solver finds there.\n";
constexpr const char* kHeading =
    "# Written by find-examples; docs/help-pages.md tells how. src/explain/example.h has the format.\n";

constexpr std::size_t kExercisesPerForm = 3;

struct Options {
  std::string file;
  std::string examples;  // looking for exercises: the file of the examples; else empty
  std::uint64_t seed = 1;
  int puzzles = 10000;
};

// The clearest positions so far of every form, each of another puzzle.
class Collection {
 public:
  // Takes over what `file` holds. `each` is how many positions of a form are wanted, `shown` lists the puzzles
  // that must not be used.
  Collection(const ExampleFile& file, bool exercises, std::set<DigitGrid> shown)
      : exercises_(exercises), shown_(std::move(shown)) {
    for (const Form& form : AllForms()) {
      for (std::size_t i = 0; i < Wanted(); ++i) {
        const Example* example = file.Find(Key(form, i));
        if (example == nullptr || !IsOfForm(example->finding, form)) continue;
        Insert(form, {Clarity(example->Position(), example->finding), *example});
      }
    }
  }

  void Offer(const DigitGrid& givens, const SolverState& before, const Finding& finding,
             const SolverState& after) {
    for (const Form& form : AllForms()) {
      if (!IsOfForm(finding, form)) continue;
      const double clarity = Clarity(before, finding);
      const std::vector<Choice>& best = best_[form.key];
      if (best.size() == Wanted() && best.back().clarity >= clarity) continue;
      if (exercises_ && (shown_.contains(givens) || HasSecondAnswer(givens, finding, after))) continue;
      Example example{{}, givens, {}, {}, finding};
      for (int cell = 0; cell < kCells; ++cell) {
        example.digits[cell] = static_cast<std::uint8_t>(before.CellValue(cell));
        example.marks[cell] = before.CellMask(cell);
      }
      replaced_ += Insert(form, {clarity, example}) ? 1 : 0;
    }
  }

  [[nodiscard]] std::string Text() const {
    std::string text = exercises_ ? kExercisesHeading : kExamplesHeading;
    text += kHeading;
    for (const Form& form : AllForms()) {
      const auto found = best_.find(form.key);
      if (found == best_.end()) continue;
      for (std::size_t i = 0; i < found->second.size(); ++i) {
        Example example = found->second[i].example;
        example.key = Key(form, i);
        text += '\n' + WriteExample(example);
      }
    }
    return text;
  }

  void Report() const {
    for (const Form& form : AllForms()) {
      std::printf("%-32s", std::string(form.key).c_str());
      const auto found = best_.find(form.key);
      if (found == best_.end() || found->second.empty()) {
        std::printf("   none\n");
        continue;
      }
      for (const Choice& choice : found->second) std::printf(" %6.1f", choice.clarity);
      std::printf("\n");
    }
    std::printf("%d replaced\n", replaced_);
  }

 private:
  struct Choice {
    double clarity = 0;
    Example example;
  };

  [[nodiscard]] std::size_t Wanted() const { return exercises_ ? kExercisesPerForm : 1; }
  [[nodiscard]] std::string Key(const Form& form, std::size_t i) const {
    return std::string(form.key) + (exercises_ ? '-' + std::to_string(i + 1) : "");
  }

  // An exercise asks for one thing: after the answer the same technique must not work once more. Of singles
  // there are always several.
  static bool HasSecondAnswer(const DigitGrid& givens, const Finding& finding, SolverState after) {
    return finding.placed_cell < 0 && FirstTechnique(after, givens) == finding.technique;
  }

  // Puts the choice in its place, the clearest first, and drops what is too many. Of equally clear ones the
  // first found stays in front. False when it was not taken.
  bool Insert(const Form& form, const Choice& choice) {
    std::vector<Choice>& best = best_[form.key];
    const auto same = std::find_if(best.begin(), best.end(), [&](const Choice& other) {
      return other.example.givens == choice.example.givens;
    });
    if (same != best.end()) {
      if (same->clarity >= choice.clarity) return false;
      best.erase(same);
    }
    const auto after = std::find_if(best.begin(), best.end(),
                                    [&](const Choice& other) { return other.clarity < choice.clarity; });
    best.insert(after, choice);
    if (best.size() > Wanted()) best.pop_back();
    return true;
  }

  bool exercises_;
  std::set<DigitGrid> shown_;
  std::map<std::string_view, std::vector<Choice>> best_;
  int replaced_ = 0;
};

// Hands every step of one puzzle to the collection, together with the position before it.
class Watcher final : public StepObserver {
 public:
  Watcher(Collection& collection, const DigitGrid& givens)
      : collection_(collection), givens_(givens), before_(givens) {}
  void OnStep(const Finding& finding, const SolverState& after) override {
    collection_.Offer(givens_, before_, finding, after);
    before_ = after;
  }

 private:
  Collection& collection_;
  const DigitGrid& givens_;
  SolverState before_;
};

bool ReadOptions(int argc, char** argv, Options& options) {
  for (int i = 1; i < argc; ++i) {
    const std::string word = argv[i];
    if (word == "--seed" || word == "--puzzles") {
      const auto number = ++i < argc ? ParseNumber<std::uint64_t>(argv[i]) : std::nullopt;
      if (number.value_or(~0ULL) > 100000000) return false;
      if (word == "--seed") {
        options.seed = *number;
      } else {
        options.puzzles = static_cast<int>(*number);
      }
    } else if (word == "--exercises") {
      if (++i >= argc) return false;
      options.examples = argv[i];
    } else if (options.file.empty()) {
      options.file = word;
    } else {
      return false;
    }
  }
  return !options.file.empty();
}

// The positions of the file; none when it is missing. Says on the error output what is wrong with it.
std::optional<ExampleFile> Read(const std::string& path) {
  std::ostringstream text;
  if (const std::ifstream in(path); in) text << in.rdbuf();
  ExampleFile file = ReadExamples(text.str());
  if (file.error.empty()) return file;
  std::fprintf(stderr, "%s, %s\n", path.c_str(), file.error.c_str());
  return std::nullopt;
}

}  // namespace

int main(int argc, char** argv) {
  Options options;
  if (!ReadOptions(argc, argv, options)) {
    std::fputs("Usage: find-examples FILE [--exercises EXAMPLES] [--seed N] [--puzzles N]\n", stderr);
    return 2;
  }
  const std::optional<ExampleFile> file = Read(options.file);
  const std::optional<ExampleFile> shown = Read(options.examples);
  if (!file || !shown) return 1;
  std::set<DigitGrid> shown_puzzles;
  for (const Example& example : shown->examples) shown_puzzles.insert(example.givens);
  Collection collection(*file, !options.examples.empty(), std::move(shown_puzzles));
  FixedSeeds seeds(options.seed);
  Generator generator(seeds);
  NeverStop yield;
  for (int i = 0; i < options.puzzles; ++i) {
    if (generator.MakeFullGrid(yield) != Making::Made || generator.MakePuzzle(yield) != Making::Made)
      return 1;
    Watcher watcher(collection, generator.Givens);
    RateOptions rate;
    rate.observer = &watcher;
    (void)SolveAndRate(generator.Givens, yield, rate);
  }
  collection.Report();
  std::ofstream out(options.file);
  out << collection.Text();
  out.close();
  if (!out) {
    std::fprintf(stderr, "%s cannot be written\n", options.file.c_str());
    return 1;
  }
  return 0;
}
