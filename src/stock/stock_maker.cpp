// SPDX-License-Identifier: MIT
#include "stock/stock_maker.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <set>
#include <span>
#include <tuple>

#include "core/check.h"
#include "generator/level_renewal.h"
#include "stock/canonical_form.h"

namespace kestrel {
namespace {

// The puzzles of one level that have one score: [first, last) of the level's sorted list.
struct ScoreGroup {
  std::size_t first;
  std::size_t last;
  std::size_t wanted = 0;
};

std::vector<ScoreGroup> GroupsOf(const std::vector<PoolPuzzle>& sorted) {
  std::vector<ScoreGroup> groups;
  for (std::size_t i = 0; i < sorted.size(); ++i) {
    if (i == 0 || sorted[i].score != sorted[i - 1].score) groups.push_back({i, i});
    groups.back().last = i + 1;
  }
  return groups;
}

std::vector<PoolPuzzle> SpreadOverScores(const std::vector<PoolPuzzle>& sorted) {
  std::vector<ScoreGroup> groups = GroupsOf(sorted);
  // In rounds, one of every score that has any left; the last round takes scores at even distances.
  std::size_t left = std::min<std::size_t>(sorted.size(), kPuzzlesPerLevel);
  while (left > 0) {
    std::vector<ScoreGroup*> open;
    for (ScoreGroup& group : groups) {
      if (group.wanted < group.last - group.first) open.push_back(&group);
    }
    const std::size_t takes = std::min(left, open.size());
    for (std::size_t i = 0; i < takes; ++i) {
      ++open[takes == 1 ? open.size() / 2 : i * (open.size() - 1) / (takes - 1)]->wanted;
    }
    left -= takes;
  }
  std::vector<PoolPuzzle> chosen;
  for (const ScoreGroup& group : groups) {
    chosen.insert(chosen.end(), sorted.begin() + static_cast<std::ptrdiff_t>(group.first),
                  sorted.begin() + static_cast<std::ptrdiff_t>(group.first + group.wanted));
  }
  return chosen;
}

// Brings rare techniques into a choice by exchanging puzzles.
class RareTechniques {
 public:
  RareTechniques(const Pool& pool, Pool& chosen) : pool_(pool), chosen_(chosen) {
    for (int slot = 0; slot < kTechniques; ++slot) {
      in_pool_[slot] = CountWith(pool, slot);
      in_choice_[slot] = CountWith(chosen, slot);
    }
    for (const auto& level : chosen) {
      for (const PoolPuzzle& puzzle : level) used_.insert(puzzle.attempt);
    }
  }

  void BringIn() {
    std::array<int, kTechniques> rarest_first{};
    for (int slot = 0; slot < kTechniques; ++slot) rarest_first[slot] = slot;
    std::ranges::stable_sort(rarest_first, {}, [&](int slot) { return in_pool_[slot]; });
    for (const int slot : rarest_first) {
      while (in_choice_[slot] < std::min(kWantedPerTechnique, in_pool_[slot])) {
        if (!ExchangeFor(slot)) break;
      }
    }
  }

 private:
  struct Exchange {
    int distance = INT32_MAX;  // between the scores
    std::size_t level = 0;
    PoolPuzzle comes;
    PoolPuzzle* goes = nullptr;
  };

  // Whether the choice can do without a puzzle: none of its techniques becomes, or is, too rare.
  bool CanGo(const PoolPuzzle& puzzle) const {
    for (int slot = 0; slot < kTechniques; ++slot) {
      if (puzzle.Needs(slot) && in_choice_[slot] <= kWantedPerTechnique) return false;
    }
    return true;
  }

  // The chosen puzzle of the level that is nearest in score and can go.
  void Consider(std::size_t level, const PoolPuzzle& comes, Exchange& best) {
    for (PoolPuzzle& goes : chosen_[level]) {
      const int distance = std::abs(goes.score - comes.score);
      if (distance < best.distance && CanGo(goes)) best = {distance, level, comes, &goes};
    }
  }

  // Exchanges the two puzzles nearest in score of which the one outside has the technique.
  bool ExchangeFor(int slot) {
    Exchange best;
    for (std::size_t level = 0; level < pool_.size() && best.distance > 0; ++level) {
      for (const PoolPuzzle& puzzle : pool_[level]) {
        if (!puzzle.Needs(slot) || used_.contains(puzzle.attempt)) continue;
        Consider(level, puzzle, best);
        if (best.distance == 0) break;
      }
    }
    if (best.goes == nullptr) return false;
    for (int s = 0; s < kTechniques; ++s) {
      in_choice_[s] += best.comes.Needs(s) ? 1 : 0;
      in_choice_[s] -= best.goes->Needs(s) ? 1 : 0;
    }
    used_.erase(best.goes->attempt);
    used_.insert(best.comes.attempt);
    *best.goes = best.comes;
    return true;
  }

  const Pool& pool_;
  Pool& chosen_;
  std::array<int, kTechniques> in_pool_{};
  std::array<int, kTechniques> in_choice_{};
  std::set<std::uint64_t> used_;
};

// Solves as far as the rows of the table, tried in this order, go; whether that is to the end.
bool SolvableWith(std::span<const int> rows, const DigitGrid& givens) {
  SolverState state(givens);
  const SolverInput input{givens};
  const auto makes_progress = [&](int row) { return kTechniqueTable[row].routine(state, input); };
  while (!state.Solved() && std::ranges::any_of(rows, makes_progress)) {
  }
  return state.Solved();
}

void SortByScore(std::vector<PoolPuzzle>& puzzles) {
  std::ranges::sort(puzzles, {}, [](const PoolPuzzle& p) { return std::tie(p.score, p.attempt); });
}

// Makes the chosen puzzles again and files them into the stock. Returns the attempts of those that cannot
// stay.
std::set<std::uint64_t> FillStock(std::uint64_t seed, MadeStock& made) {
  std::set<std::uint64_t> unfit;
  std::set<CanonicalPuzzle> forms;
  made.stock = {};
  for (int level = 1; level <= kLevels; ++level) {
    const std::vector<PoolPuzzle>& chosen = made.chosen[static_cast<std::size_t>(level - 1)];
    if (chosen.size() < kPuzzlesPerLevel) {
      made.error = "the pool has only " + std::to_string(chosen.size()) + " puzzles of level " +
                   std::to_string(level) + " instead of 100";
      return {};
    }
    SetFloor(made.stock, level);
    // From the highest score down: filing puts a puzzle below its equals, so they stay in the chosen order.
    for (auto entry = chosen.rbegin(); entry != chosen.rend(); ++entry) {
      const RatedPuzzle puzzle = MakeRatedPuzzle(seed, entry->attempt, kLevels);
      Require(puzzle.level == level && puzzle.score == entry->score);
      const bool is_new = forms.insert(CanonicalForm(puzzle.givens, puzzle.solution)).second;
      if (!is_new || SolvableBelow(level, puzzle.givens)) unfit.insert(puzzle.attempt);
      FilePuzzle(made.stock, puzzle);
    }
  }
  return unfit;
}

}  // namespace

void AddToPool(Pool& pool, const RatedPuzzle& puzzle) {
  if (puzzle.level < 1 || puzzle.level > kLevels) return;
  PoolPuzzle entry{puzzle.attempt, puzzle.score, 0};
  const SlotCounts counts = CountsBySlot(puzzle.counters);
  for (int slot = 0; slot < kTechniques; ++slot) {
    if (counts[slot] > 0) entry.techniques |= 1U << static_cast<unsigned>(slot);
  }
  pool[static_cast<std::size_t>(puzzle.level - 1)].push_back(entry);
}

Pool ChooseStock(const Pool& pool) {
  Pool chosen;
  for (std::size_t level = 0; level < pool.size(); ++level) {
    std::vector<PoolPuzzle> sorted = pool[level];
    SortByScore(sorted);
    chosen[level] = SpreadOverScores(sorted);
  }
  RareTechniques(pool, chosen).BringIn();
  std::ranges::for_each(chosen, SortByScore);
  return chosen;
}

int CountWith(const Pool& pool, int slot) {
  std::ptrdiff_t count = 0;
  for (const auto& level : pool) {
    count += std::ranges::count_if(level, [&](const PoolPuzzle& p) { return p.Needs(slot); });
  }
  return static_cast<int>(count);
}

bool SolvableBelow(int level, const DigitGrid& givens) {
  constexpr int kOrders = 8;
  std::vector<int> rows;
  for (int row = 0; row < TechniquesUpTo(level - 1); ++row) rows.push_back(row);
  if (rows.empty()) return false;
  if (SolvableWith(rows, givens)) return true;
  std::ranges::reverse(rows);
  if (SolvableWith(rows, givens)) return true;
  RandomSource random(1);
  for (int order = 0; order < kOrders; ++order) {
    for (std::size_t i = rows.size() - 1; i > 0; --i)
      std::swap(rows[i], rows[random.Below(static_cast<int>(i) + 1)]);
    if (SolvableWith(rows, givens)) return true;
  }
  return false;
}

MadeStock MakeStock(Pool pool, std::uint64_t seed) {
  MadeStock made;
  for (std::set<std::uint64_t> unfit; made.error.empty();) {
    made.chosen = ChooseStock(pool);
    unfit = FillStock(seed, made);
    if (unfit.empty()) break;
    for (auto& level : pool) {
      std::erase_if(level, [&](const PoolPuzzle& p) { return unfit.contains(p.attempt); });
    }
  }
  return made;
}

}  // namespace kestrel
