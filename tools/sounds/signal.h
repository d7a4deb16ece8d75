// SPDX-License-Identifier: MIT
// What the sounds are made of: gliding tones, noise, resonances, a small room. Used by sound_set.cpp.
//
// A signal is a list of samples at kSampleRate, about -1..1 but not bounded; times are in seconds, pitches in
// hertz. Everything adds to a signal and grows it where it is too short.
#pragma once

#include <vector>

#include "core/random_source.h"

namespace kestrel::sounds {

using Signal = std::vector<double>;

// Seconds as a number of samples.
std::size_t Samples(double seconds);

// A struck or plucked tone: quick rise, then halving its level again and again.
struct Tone {
  double start = 0;
  double pitch = 440;        // at the start ...
  double end_pitch = 440;    // ... and after `glide` seconds; steady from then on
  double glide = 0;          // 0: `pitch` all the way
  double level = 1;          // at the top of the rise
  double attack = 0.002;     // length of the rise
  double half_life = 0.030;  // time in which the level halves
};
void AddTone(Signal& signal, const Tone& tone);

// A two-pole resonance: noise or pulses in, the part around `pitch` out, `width` hertz wide, unit gain there.
class Resonator {
 public:
  Resonator(double pitch, double width) { Tune(pitch, width); }
  // Changes pitch and width while it sounds on.
  void Tune(double pitch, double width);
  double Next(double in);

 private:
  double feedback1_ = 0;
  double feedback2_ = 0;
  double gain_ = 0;
  double last_[2] = {0, 0};
  double last_in_[2] = {0, 0};
};

// A breath of noise through a resonance whose pitch glides; bell-shaped when attack and release meet.
struct Breath {
  double start = 0;
  double length = 0.05;
  double pitch = 1000;
  double end_pitch = 1000;
  double width = 800;
  double level = 1;
  double attack = 0.01;  // share of `length` spent rising, 0..1; the rest falls
};
void AddBreath(Signal& signal, const Breath& breath, RandomSource& random);

// Takes off what lies above about `pitch`, 6 dB an octave.
void LowPass(Signal& signal, double pitch);

// Adds the first reflections and a short tail of a small room, `amount` of the dry level. Different `seat`s
// hear different reflections, which is what makes two channels wide.
void AddRoom(Signal& signal, double amount, int seat);

// Raises the first and lowers the last samples smoothly, so that the signal starts and ends at 0.
void FadeEnds(Signal& signal, double in, double out);

}  // namespace kestrel::sounds
