// SPDX-License-Identifier: MIT
#include "stock/solution_counter.h"

#include <cstdint>

namespace kestrel {
namespace {

// The four constraint heads (1..324) that digit `digit` in cell `cell` meets.
std::array<int, 4> HeadsOf(int cell, int digit) {
  const int d = digit - 1;
  return {1 + cell, 82 + 9 * (cell / 9) + d, 163 + 9 * (cell % 9) + d,
          244 + 9 * (3 * (cell / 27) + cell % 9 / 3) + d};
}

std::int16_t Narrow(int value) {
  return static_cast<std::int16_t>(value);
}

}  // namespace

SolutionCounter::SolutionCounter() {
  for (int head = 0; head <= kConstraints; ++head) {
    full_.up[head] = full_.down[head] = Narrow(head);
    full_.left[head] = Narrow(head == 0 ? kConstraints : head - 1);
    full_.right[head] = Narrow(head == kConstraints ? 0 : head + 1);
    head_[head] = Narrow(head);
  }
  for (int choice = 0; choice < kChoices; ++choice) {
    int node = FirstNode(choice);
    for (const int head : HeadsOf(choice / 9, choice % 9 + 1)) {
      head_[node] = Narrow(head);
      full_.up[node] = full_.up[head];
      full_.down[node] = Narrow(head);
      full_.down[full_.up[head]] = Narrow(node);
      full_.up[head] = Narrow(node);
      ++full_.size[head];
      ++node;
    }
  }
}

// Takes a constraint off the list of open ones, and every choice that could meet it out of all the others.
void SolutionCounter::Cover(int head) {
  covered_[head] = true;
  now_.left[now_.right[head]] = now_.left[head];
  now_.right[now_.left[head]] = now_.right[head];
  for (int node = now_.down[head]; node != head; node = now_.down[node]) {
    const int first = node - (node - 1 - kConstraints) % 4;
    for (int other = first; other < first + 4; ++other) {
      if (other == node) continue;
      now_.up[now_.down[other]] = now_.up[other];
      now_.down[now_.up[other]] = now_.down[other];
      --now_.size[Head(other)];
    }
  }
}

// Undoes Cover; the links of what was taken out still point to its old neighbours.
void SolutionCounter::Uncover(int head) {
  for (int node = now_.up[head]; node != head; node = now_.up[node]) {
    const int first = node - (node - 1 - kConstraints) % 4;
    for (int other = first + 3; other >= first; --other) {
      if (other == node) continue;
      now_.up[now_.down[other]] = Narrow(other);
      now_.down[now_.up[other]] = Narrow(other);
      ++now_.size[Head(other)];
    }
  }
  now_.left[now_.right[head]] = Narrow(head);
  now_.right[now_.left[head]] = Narrow(head);
  covered_[head] = false;
}

bool SolutionCounter::IsOpen(int choice) const {
  for (int node = FirstNode(choice); node < FirstNode(choice) + 4; ++node) {
    if (covered_[Head(node)]) return false;
  }
  return true;
}

void SolutionCounter::Choose(int choice) {
  grid_[choice / 9] = static_cast<std::uint8_t>(choice % 9 + 1);
  for (int k = 0; k < 4; ++k) Cover(Head(FirstNode(choice) + k));
}

void SolutionCounter::TakeBack(int choice) {
  for (int k = 3; k >= 0; --k) Uncover(Head(FirstNode(choice) + k));
  grid_[choice / 9] = 0;
}

// The open constraint that the fewest choices can meet.
int SolutionCounter::SmallestConstraint() const {
  int best = now_.right[0];
  for (int head = best; head != 0; head = now_.right[head]) {
    if (now_.size[head] < now_.size[best]) best = head;
    if (now_.size[best] <= 1) break;
  }
  return best;
}

void SolutionCounter::Search(int filled) {
  if (filled == kCells) {
    if (++result_.count == 1) result_.first = grid_;
    return;
  }
  const int head = SmallestConstraint();
  // A covered choice keeps its `down` link, so the ring may be walked while its members are tried.
  for (int node = now_.down[head]; node != head && result_.count < 2; node = now_.down[node]) {
    const int choice = (node - 1 - kConstraints) / 4;
    Choose(choice);
    Search(filled + 1);
    TakeBack(choice);
  }
}

SolutionCount SolutionCounter::Count(const DigitGrid& givens) {
  now_ = full_;
  covered_.fill(false);
  grid_.fill(0);
  result_ = {};
  int filled = 0;
  for (int cell = 0; cell < kCells; ++cell) {
    const int digit = givens[cell];
    if (digit == 0) continue;
    const int choice = 9 * cell + digit - 1;
    if (digit > 9 || !IsOpen(choice)) return result_;
    Choose(choice);
    ++filled;
  }
  Search(filled);
  return result_;
}

}  // namespace kestrel
