// SPDX-License-Identifier: MIT
// How loud a sound is.
#include "sounds/level.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace kestrel::sounds {
namespace {

constexpr double kSilence = -200;

// One second-order filter section in transposed direct form.
struct Section {
  std::array<double, 3> b;
  std::array<double, 2> a;
  double z1 = 0;
  double z2 = 0;

  double Next(double in) {
    const double out = b[0] * in + z1;
    z1 = b[1] * in - a[0] * out + z2;
    z2 = b[2] * in - a[1] * out;
    return out;
  }
};

// The weighting of BS.1770 at 44.1 kHz: a shelf that lifts what the head lifts, then a high pass.
struct EarWeighting {
  Section shelf{{1.5308412300503478, -2.6509799951547297, 1.169079079921587},
                {-1.6636551132560204, 0.7125954280732254}};
  Section high_pass{{1.0, -2.0, 1.0}, {-1.989169673629796, 0.9891990357870393}};
  double Next(double in) { return high_pass.Next(shelf.Next(in)); }
};

double Decibels(double power) {
  return power > 0 ? 10 * std::log10(power) : kSilence;
}

}  // namespace

double PeakLevel(const Wave& wave) {
  int peak = 0;
  for (const std::int16_t sample : wave.samples) peak = std::max(peak, std::abs(int{sample}));
  const double share = peak / 32768.0;
  return Decibels(share * share);
}

double Loudness(const Wave& wave) {
  const auto window = static_cast<std::size_t>(wave.sample_rate / 5);
  const std::size_t hop = window / 20;
  const auto channels = static_cast<std::size_t>(wave.channels);
  // Energy per hop, so that a window is a sum of twenty of them.
  std::vector<double> energy(wave.Frames() / hop + 1, 0.0);
  for (std::size_t channel = 0; channel < channels; ++channel) {
    EarWeighting weighting;
    for (std::size_t i = 0; i < wave.Frames(); ++i) {
      const double heard = weighting.Next(wave.samples[i * channels + channel] / 32768.0);
      energy[i / hop] += heard * heard;
    }
  }
  double loudest = 0;
  for (std::size_t first = 0; first < energy.size(); ++first) {
    double sum = 0;
    for (std::size_t i = first; i < std::min(energy.size(), first + 20); ++i) sum += energy[i];
    loudest = std::max(loudest, sum);
  }
  return Decibels(loudest / static_cast<double>(window));
}

}  // namespace kestrel::sounds
