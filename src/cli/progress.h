// SPDX-License-Identifier: MIT
// The progress bar of long work, on standard error. Used by the commands.
#pragma once

#include <chrono>
#include <cstdint>
#include <iosfwd>
#include <string>

namespace kestrel {

class Progress {
 public:
  // Shows nothing unless `enabled`, and nothing in the first half second. `total` is the amount of work, or 0
  // when it is not known: then only the amount done is shown.
  Progress(std::ostream& err, bool enabled, std::string label, std::uint64_t total);
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;
  ~Progress() { Hide(); }

  // Tells how much is done (of `total`), and what else to show behind the bar.
  void Show(std::uint64_t done, const std::string& note);
  // Takes the bar off the terminal, before anything else is written there.
  void Hide();

 private:
  std::ostream& err_;
  bool enabled_;
  std::string label_;
  std::uint64_t total_;
  bool visible_ = false;
  std::chrono::steady_clock::time_point next_;  // not drawn again before this
};

// One drawing of the bar: "rate [#####...............]  25 %  1200 puzzles".
std::string ProgressLine(const std::string& label, std::uint64_t done, std::uint64_t total,
                         const std::string& note);

}  // namespace kestrel
