// SPDX-License-Identifier: MIT
// Looks for worked examples in generated puzzles: find-examples FILE [--seed N] [--puzzles N]
// Every example of FILE that is missing, or for which a clearer one turns up, is replaced; the file is
// written at the end. The same file, seed and number of puzzles always give the same result.
#include <charconv>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <map>
#include <sstream>
#include <string>

#include "core/yield.h"
#include "explain/clarity.h"
#include "explain/example.h"
#include "explain/technique_words.h"
#include "generator/generator.h"
#include "solver/solver.h"

namespace {

using namespace kestrel;

constexpr const char* kHeading =
    "# Worked examples of the help pages: positions from generated puzzles and what the solver finds there.\n"
    "# Written by find-examples; docs/help-pages.md tells how. src/explain/example.h has the format.\n";

struct Options {
  std::string file;
  std::uint64_t seed = 1;
  int puzzles = 10000;
};

// The best example so far of every form.
class Collection {
 public:
  explicit Collection(const ExampleFile& file) {
    for (const Form& form : AllForms()) {
      const Example* example = file.Find(form.key);
      if (example == nullptr || !IsOfForm(example->finding, form)) continue;
      best_[form.key] = {Clarity(example->Position(), example->finding), *example};
    }
  }

  void Offer(const DigitGrid& givens, const SolverState& position, const Finding& finding) {
    for (const Form& form : AllForms()) {
      if (!IsOfForm(finding, form)) continue;
      const double clarity = Clarity(position, finding);
      const auto found = best_.find(form.key);
      if (found != best_.end() && found->second.clarity >= clarity) continue;
      Example example{std::string(form.key), givens, {}, {}, finding};
      for (int cell = 0; cell < kCells; ++cell) {
        example.digits[cell] = static_cast<std::uint8_t>(position.CellValue(cell));
        example.marks[cell] = position.CellMask(cell);
      }
      best_[form.key] = {clarity, example};
      ++replaced_;
    }
  }

  [[nodiscard]] std::string Text() const {
    std::string text = kHeading;
    for (const Form& form : AllForms()) {
      const auto found = best_.find(form.key);
      if (found != best_.end()) text += '\n' + WriteExample(found->second.example);
    }
    return text;
  }

  void Report() const {
    for (const Form& form : AllForms()) {
      const auto found = best_.find(form.key);
      if (found == best_.end()) {
        std::printf("%-32s none\n", std::string(form.key).c_str());
      } else {
        std::printf("%-32s %6.1f\n", std::string(form.key).c_str(), found->second.clarity);
      }
    }
    std::printf("%d replaced\n", replaced_);
  }

 private:
  struct Best {
    double clarity = 0;
    Example example;
  };
  std::map<std::string_view, Best> best_;
  int replaced_ = 0;
};

// Hands every step of one puzzle to the collection, together with the position before it.
class Watcher final : public StepObserver {
 public:
  Watcher(Collection& collection, const DigitGrid& givens)
      : collection_(collection), givens_(givens), before_(givens) {}
  void OnStep(const Finding& finding, const SolverState& after) override {
    collection_.Offer(givens_, before_, finding);
    before_ = after;
  }

 private:
  Collection& collection_;
  const DigitGrid& givens_;
  SolverState before_;
};

bool ReadNumber(const char* text, std::uint64_t& number) {
  const char* end = text + std::char_traits<char>::length(text);
  const auto [stop, error] = std::from_chars(text, end, number);
  return error == std::errc() && stop == end;
}

bool ReadOptions(int argc, char** argv, Options& options) {
  for (int i = 1; i < argc; ++i) {
    const std::string word = argv[i];
    std::uint64_t number = 0;
    if (word == "--seed" || word == "--puzzles") {
      if (i + 1 >= argc || !ReadNumber(argv[++i], number) || number > 100000000) return false;
      if (word == "--seed") {
        options.seed = number;
      } else {
        options.puzzles = static_cast<int>(number);
      }
    } else if (options.file.empty()) {
      options.file = word;
    } else {
      return false;
    }
  }
  return !options.file.empty();
}

}  // namespace

int main(int argc, char** argv) {
  Options options;
  if (!ReadOptions(argc, argv, options)) {
    std::fputs("Usage: find-examples FILE [--seed N] [--puzzles N]\n", stderr);
    return 2;
  }
  std::ostringstream old;
  if (const std::ifstream in(options.file); in) old << in.rdbuf();
  const ExampleFile file = ReadExamples(old.str());
  if (!file.error.empty()) {
    std::fprintf(stderr, "%s, %s\n", options.file.c_str(), file.error.c_str());
    return 1;
  }
  Collection collection(file);
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
