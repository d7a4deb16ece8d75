// SPDX-License-Identifier: MIT
// What the sounds are made of.
#include "sounds/signal.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "sounds/steady_math.h"
#include "sounds/wave_file.h"

namespace kestrel::sounds {
namespace {

constexpr double kStep = 1.0 / kSampleRate;
constexpr double kInaudible = -75;  // decibels: where a tone is given up

void Grow(Signal& signal, std::size_t size) {
  if (signal.size() < size) signal.resize(size, 0.0);
}

// A smooth 0..1 for x = 0..1.
double Rise(double x) {
  return x >= 1 ? 1 : 0.5 - 0.5 * Cosine(0.5 * x);
}

}  // namespace

std::size_t Samples(double seconds) {
  return static_cast<std::size_t>(std::lround(seconds * kSampleRate));
}

void AddTone(Signal& signal, const Tone& tone) {
  const double length = tone.attack + tone.half_life * (-kInaudible / 6.0206);
  const std::size_t first = Samples(tone.start);
  const std::size_t count = Samples(length);
  Grow(signal, first + count);
  double phase = 0;
  for (std::size_t i = 0; i < count; ++i) {
    const double t = static_cast<double>(i) * kStep;
    const double along = tone.glide > 0 ? std::min(1.0, t / tone.glide) : 0;
    phase += (tone.pitch + (tone.end_pitch - tone.pitch) * along) * kStep;
    const double fall = Exp2(-std::max(0.0, t - tone.attack) / tone.half_life);
    signal[first + i] += tone.level * Rise(t / tone.attack) * fall * Sine(phase);
  }
}

void Resonator::Tune(double pitch, double width) {
  const double radius = Exp2(-1.4427 * kPi * width * kStep);  // e to the power -pi width / rate
  feedback1_ = 2 * radius * Cosine(pitch * kStep);
  feedback2_ = -radius * radius;
  gain_ = 0.5 * (1 - radius * radius);
}

double Resonator::Next(double in) {
  // Zeros at both ends of the spectrum keep rumble and hiss out.
  const double out = gain_ * (in - last_in_[1]) + feedback1_ * last_[0] + feedback2_ * last_[1];
  last_in_[1] = last_in_[0];
  last_in_[0] = in;
  last_[1] = last_[0];
  last_[0] = out;
  return out;
}

void AddBreath(Signal& signal, const Breath& breath, RandomSource& random) {
  const std::size_t first = Samples(breath.start);
  const std::size_t count = Samples(breath.length);
  Grow(signal, first + count);
  Resonator resonator(breath.pitch, breath.width);
  for (std::size_t i = 0; i < count; ++i) {
    const double along = static_cast<double>(i) / static_cast<double>(count);
    if (i % 32 == 0) {  // retuning at every sample is not heard
      resonator.Tune(breath.pitch + (breath.end_pitch - breath.pitch) * along, breath.width);
    }
    const double shape = along < breath.attack ? Rise(along / breath.attack)
                                               : Rise((1 - along) / std::max(1e-9, 1 - breath.attack));
    signal[first + i] += breath.level * shape * resonator.Next(2 * random.Next() - 1);
  }
}

void LowPass(Signal& signal, double pitch) {
  const double keep = Exp2(-1.4427 * 2 * kPi * pitch * kStep);
  double level = 0;
  for (double& sample : signal) sample = level = sample + keep * (level - sample);
}

void AddRoom(Signal& signal, double amount, int seat) {
  // Schroeder's reverberator, small: four combs side by side, their lengths in samples without common
  // divisor.
  static constexpr std::array<int, 4> kDelays{1116, 1277, 1491, 1693};
  const Signal dry = signal;
  signal.resize(signal.size() + Samples(0.25), 0.0);
  for (const int base : kDelays) {
    Signal line(static_cast<std::size_t>(base + 37 * seat), 0.0);
    std::size_t at = 0;
    double dull = 0;
    for (std::size_t i = 0; i < signal.size(); ++i) {
      const double echo = line[at];
      dull = 0.6 * dull + 0.4 * echo;  // walls swallow the highs first
      line[at] = (i < dry.size() ? dry[i] : 0.0) + 0.70 * dull;
      at = (at + 1) % line.size();
      signal[i] += amount * 0.5 * echo;
    }
  }
}

void FadeEnds(Signal& signal, double in, double out) {
  const std::size_t rising = std::min(signal.size(), Samples(in));
  for (std::size_t i = 0; i < rising; ++i) {
    signal[i] *= Rise(static_cast<double>(i) / static_cast<double>(rising));
  }
  const std::size_t falling = std::min(signal.size(), Samples(out));
  for (std::size_t i = 0; i < falling; ++i) {
    signal[signal.size() - 1 - i] *= Rise(static_cast<double>(i) / static_cast<double>(falling));
  }
}

}  // namespace kestrel::sounds
