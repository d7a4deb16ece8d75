// SPDX-License-Identifier: MIT
#include "stock/puzzle_judge.h"

#include <cstdint>

#include "core/yield.h"
#include "solver/solver.h"

namespace kestrel {

const Verdict& PuzzleJudge::Judge(const DigitGrid& givens) {
  if (judged_ != givens) {
    verdict_ = Work(givens);
    judged_ = givens;
  }
  return verdict_;
}

Verdict PuzzleJudge::Work(const DigitGrid& givens) {
  Verdict verdict;
  const SolutionCount found = counter_.Count(givens);
  verdict.solutions = found.count;
  if (found.count != 1) return verdict;
  verdict.solution = found.first;
  verdict.form = CanonicalForm(givens, found.first);
  NeverStop yield;
  const Rating rating = SolveAndRate(givens, yield);
  verdict.level = rating.level;
  verdict.score = rating.Score();
  verdict.counts = CountsBySlot(rating.counters);
  return verdict;
}

SudokuRecord RecordOf(const DigitGrid& givens, const Verdict& verdict) {
  SudokuRecord record;
  record.Level = static_cast<std::int16_t>(verdict.level);
  record.GivenCells = givens;
  record.SolutionCells = verdict.solution;
  record.TechniqueCount = verdict.counts;
  record.Score = verdict.score;
  return record;
}

}  // namespace kestrel
