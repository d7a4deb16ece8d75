// SPDX-License-Identifier: MIT
// The ten sounds of the game, each a few lines of tones and breaths.
//
// They belong to one family: short strokes on something wooden, all pitches from one pentatonic scale (D E G
// A B), so that any two that overlap sound well together. What happens at every click is quiet, dull and over
// within an eighth of a second; what happens once per puzzle may take its time.
#include "sounds/sound_set.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <utility>

#include "sounds/level.h"
#include "sounds/signal.h"
#include "sounds/steady_math.h"

namespace kestrel::sounds {
namespace {

// Loudness as level.h measures it, in decibels.
constexpr double kEveryClick = -27;
constexpr double kNowAndThen = -24;
constexpr double kCelebration = -20;

// The scale, in hertz.
constexpr double kD4 = 293.66;
constexpr double kG4 = 392.00;
constexpr double kA4 = 440.00;
constexpr double kB4 = 493.88;
constexpr double kD5 = 587.33;
constexpr double kE5 = 659.26;
constexpr double kG5 = 783.99;
constexpr double kA5 = 880.00;
constexpr double kB5 = 987.77;

Wave ToWave(std::initializer_list<const Signal*> channels, double gain) {
  Wave wave;
  wave.channels = static_cast<int>(channels.size());
  const std::size_t frames = (*channels.begin())->size();
  for (std::size_t i = 0; i < frames; ++i) {
    for (const Signal* channel : channels) {
      const double value = std::clamp((*channel)[i] * gain * 32767, -32767.0, 32767.0);
      wave.samples.push_back(static_cast<std::int16_t>(std::lround(value)));
    }
  }
  return wave;
}

// The signals as a wave of exactly that loudness. Measured on a quiet trial copy, then scaled.
Wave AtLoudness(std::initializer_list<const Signal*> channels, double loudness) {
  double top = 0;
  for (const Signal* channel : channels) {
    for (const double sample : *channel) top = std::max(top, std::fabs(sample));
  }
  const double trial = 0.9 / top;
  const double measured = Loudness(ToWave(channels, trial));
  // Whole hundredths of a decibel: a last bit of the logarithm cannot reach the samples.
  return ToWave(channels, trial * Gain(std::round((loudness - measured) * 100) / 100));
}

Wave Finish(Signal signal, double seconds, double loudness) {
  signal.resize(Samples(seconds), 0.0);
  FadeEnds(signal, 0.0008, std::min(0.03, seconds / 3));
  return AtLoudness({&signal}, loudness);
}

// A marimba-like stroke: the overtones of a wooden bar, dying sooner the higher they are.
void AddStroke(Signal& signal, double start, double pitch, double level, double half_life) {
  AddTone(signal, {.start = start, .pitch = pitch, .level = level, .half_life = half_life});
  AddTone(signal, {.start = start,
                   .pitch = 3.93 * pitch,
                   .level = 0.16 * level,
                   .attack = 0.001,
                   .half_life = 0.3 * half_life});
}

Wave Assign() {
  RandomSource random(2);
  Signal signal;
  AddStroke(signal, 0, kD5, 1, 0.020);
  AddBreath(signal,
            {.length = 0.012, .pitch = 2200, .end_pitch = 1500, .width = 1500, .level = 0.5, .attack = 0.1},
            random);
  return Finish(signal, 0.140, kEveryClick);
}

Wave Discard() {
  RandomSource random(1);
  Signal signal;
  AddTone(signal, {.pitch = kG4, .end_pitch = kD4, .glide = 0.05, .level = 0.7, .half_life = 0.012});
  AddBreath(signal,
            {.length = 0.070, .pitch = 1500, .end_pitch = 700, .width = 900, .level = 2.2, .attack = 0.15},
            random);
  LowPass(signal, 2500);
  return Finish(signal, 0.110, kEveryClick);
}

Wave Label() {
  Signal signal;
  AddStroke(signal, 0, kA5, 1, 0.009);
  return Finish(signal, 0.070, kEveryClick);
}

// Two equal light strokes: there and back, no direction, since Undo and Redo share it.
Wave UndoRedo() {
  Signal signal;
  AddStroke(signal, 0, kB4, 0.8, 0.011);
  AddStroke(signal, 0.055, kB4, 1, 0.016);
  return Finish(signal, 0.160, kEveryClick);
}

// A wipe across the cell, then the empty wood.
Wave ResetCell() {
  RandomSource random(3);
  Signal signal;
  AddBreath(signal,
            {.length = 0.190, .pitch = 700, .end_pitch = 2600, .width = 700, .level = 2.0, .attack = 0.6},
            random);
  AddStroke(signal, 0.165, kG4, 0.45, 0.022);
  return Finish(signal, 0.300, kNowAndThen);
}

// The whole board turned over: a soft run down the scale that comes to rest.
Wave Solution() {
  Signal signal;
  double start = 0;
  for (const double pitch : {kB5, kG5, kE5, kD5, kB4, kG4}) {
    AddStroke(signal, start, pitch, 0.8, 0.075);
    start += 0.085;
  }
  AddStroke(signal, start, kD4, 0.9, 0.130);
  AddStroke(signal, start, kA4, 0.5, 0.130);
  AddRoom(signal, 0.15, 0);
  return Finish(signal, 1.400, kNowAndThen);
}

// Two bells upwards: look here.
Wave Hint() {
  Signal signal;
  for (const auto& [start, pitch] : {std::pair{0.0, kE5}, std::pair{0.13, kB5}}) {
    AddTone(signal, {.start = start, .pitch = pitch, .attack = 0.004, .half_life = 0.090});
    AddTone(signal, {.start = start, .pitch = 2 * pitch, .level = 0.18, .half_life = 0.050});
    AddTone(signal, {.start = start, .pitch = 2.76 * pitch, .level = 0.10, .half_life = 0.025});
  }
  AddRoom(signal, 0.12, 0);
  return Finish(signal, 0.850, kNowAndThen);
}

// Two low, rounded tones, the second a step down: not so. No alarm.
Wave Error() {
  Signal signal;
  for (const auto& [start, pitch] : {std::pair{0.0, kD4 * 0.75}, std::pair{0.15, kD4 * 0.6674}}) {
    for (const int overtone : {1, 2, 3, 5}) {
      AddTone(signal, {.start = start,
                       .pitch = overtone * pitch,
                       .level = 1.0 / overtone,
                       .attack = 0.008,
                       .half_life = 0.045});
    }
  }
  LowPass(signal, 1200);
  return Finish(signal, 0.480, kNowAndThen);
}

// One pair of hands in the audience.
struct Hands {
  double pan;       // 0 left .. 1 right
  double nearness;  // level
  double pitch;     // the hollow between the palms
  double width;
  double period;  // seconds between two claps
  double first;   // seconds
  double last;
};

// One clap: a burst of noise that dies within hundredths of a second, through the hollow of the hands, with a
// brighter slap on top.
void AddClap(Signal& left, Signal& right, const Hands& hands, double start, double level,
             RandomSource& random) {
  const double tune = 0.92 + 0.16 * random.Next();
  Resonator hollow(hands.pitch * tune, hands.width);
  Resonator slap(2.3 * hands.pitch * tune, 2 * hands.width);
  const double half_life = 0.0035 + 0.0035 * random.Next();
  const std::size_t first = Samples(start);
  const std::size_t far = Samples(0.0004 * std::fabs(hands.pan - 0.5) * 2);  // the farther ear hears it later
  for (std::size_t i = 0; i < Samples(0.06) && first + far + i < left.size(); ++i) {
    const double t = static_cast<double>(i) / kSampleRate;
    const double burst = (2 * random.Next() - 1) * Exp2(-t / half_life) * std::min(1.0, t / 0.0007);
    const double sound = level * (hollow.Next(burst) + 0.35 * slap.Next(burst));
    left[first + (hands.pan > 0.5 ? far : 0) + i] += sound * (1 - hands.pan);
    right[first + (hands.pan < 0.5 ? far : 0) + i] += sound * hands.pan;
  }
}

// A small, friendly audience: every pair of hands has its own place, size, pace and staying power.
Wave Applause() {
  constexpr double kLength = 2.7;
  constexpr int kAudience = 26;
  RandomSource random(7);
  const auto between = [&random](double low, double high) { return low + (high - low) * random.Next(); };
  Signal left(Samples(kLength), 0.0);
  Signal right = left;
  for (int i = 0; i < kAudience; ++i) {
    const double nearness = between(0.25, 1.0);
    const Hands hands{between(0.12, 0.88), nearness * nearness, between(750, 1500), between(500, 1100),
                      between(0.17, 0.25), between(0.0, 0.45),  between(1.4, 2.55)};
    double tired = 1;
    double t = hands.first;
    while (t < hands.last) {
      const double fade = std::min(1.0, 0.35 + (hands.last - t) * 1.2);
      AddClap(left, right, hands, t, hands.nearness * fade * between(0.7, 1.0), random);
      tired += 0.012;  // hands slow down
      t += hands.period * tired * between(0.9, 1.1);
    }
  }
  AddRoom(left, 0.22, 0);
  AddRoom(right, 0.22, 1);
  for (Signal* side : {&left, &right}) {
    side->resize(Samples(kLength));
    FadeEnds(*side, 0.0008, 0.5);
  }
  return AtLoudness({&left, &right}, kCelebration);
}

// One "hee": pulses of a gliding voice through the three lowest resonances of a small mouth, after a breath.
void AddHee(Signal& signal, double start, double pitch, double length, RandomSource& random) {
  AddBreath(signal,
            {.start = start,
             .length = 0.045,
             .pitch = 2400,
             .end_pitch = 2600,
             .width = 900,
             .level = 0.22,
             .attack = 0.6},
            random);
  Signal voice(Samples(length), 0.0);
  double phase = 0;
  for (std::size_t i = 0; i < voice.size(); ++i) {
    const double along = static_cast<double>(i) / static_cast<double>(voice.size());
    phase += pitch * (1.10 - 0.22 * along) / kSampleRate;
    phase -= std::floor(phase);
    const double open = std::min(1.0, phase / 0.7);  // the vocal folds open slowly and close at once
    voice[i] = phase < 0.7 ? open * open - 0.23 : -0.23;
  }
  Resonator throat(420, 90);
  Resonator mouth(2300, 160);
  Resonator lips(3050, 240);
  for (double& v : voice) v = throat.Next(v) + 2.2 * mouth.Next(v) + 1.2 * lips.Next(v);
  FadeEnds(voice, 0.25 * length, 0.55 * length);
  const std::size_t first = Samples(start + 0.025);
  if (signal.size() < first + voice.size()) signal.resize(first + voice.size(), 0.0);
  for (std::size_t i = 0; i < voice.size(); ++i) signal[first + i] += voice[i];
}

Wave Giggle() {
  RandomSource random(9);
  Signal signal;
  double start = 0;
  double pitch = 500;
  for (const double length : {0.085, 0.085, 0.090, 0.095, 0.105, 0.150}) {
    AddHee(signal, start, pitch, length, random);
    start += length + 0.055;
    pitch *= 0.955;
  }
  LowPass(signal, 4500);
  AddRoom(signal, 0.10, 0);
  return Finish(signal, 1.150, kNowAndThen);
}

}  // namespace

std::array<NamedSound, kSounds> MakeSounds() {
  return {{{"Applause.wav", Applause()},
           {"Discard.wav", Discard()},
           {"Assign.wav", Assign()},
           {"ResetCell.wav", ResetCell()},
           {"Solution.wav", Solution()},
           {"Label.wav", Label()},
           {"UndoRedo.wav", UndoRedo()},
           {"Hint.wav", Hint()},
           {"Error.wav", Error()},
           {"Giggle.wav", Giggle()}}};
}

}  // namespace kestrel::sounds
