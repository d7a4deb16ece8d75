// SPDX-License-Identifier: MIT
#include "cli/progress.h"

#include <algorithm>
#include <cstdint>
#include <ostream>
#include <utility>

namespace kestrel {
namespace {

constexpr std::uint64_t kBarWidth = 30;
constexpr std::chrono::milliseconds kFirst{500};
constexpr std::chrono::milliseconds kBetween{100};

}  // namespace

std::string ProgressLine(const std::string& label, std::uint64_t done, std::uint64_t total,
                         const std::string& note) {
  if (total == 0) return label + "  " + note;
  const auto part = static_cast<double>(std::min(done, total)) / static_cast<double>(total);
  const auto filled = static_cast<std::size_t>(part * kBarWidth);
  std::string percent = std::to_string(static_cast<int>(part * 100));
  percent.insert(0, 3 - percent.size(), ' ');
  return label + " [" + std::string(filled, '#') + std::string(kBarWidth - filled, '.') + "] " + percent +
         " %  " + note;
}

Progress::Progress(std::ostream& err, bool enabled, std::string label, std::uint64_t total)
    : err_(err),
      enabled_(enabled),
      label_(std::move(label)),
      total_(total),
      next_(std::chrono::steady_clock::now() + kFirst) {
}

void Progress::Show(std::uint64_t done, const std::string& note) {
  if (!enabled_) return;
  const auto now = std::chrono::steady_clock::now();
  if (now < next_) return;
  next_ = now + kBetween;
  visible_ = true;
  err_ << "\r\033[K" << ProgressLine(label_, done, total_, note) << std::flush;
}

void Progress::Hide() {
  if (!visible_) return;
  visible_ = false;
  err_ << "\r\033[K" << std::flush;
}

}  // namespace kestrel
