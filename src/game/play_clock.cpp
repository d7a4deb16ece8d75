// SPDX-License-Identifier: MIT
#include "game/play_clock.h"

#include <cstdint>

#include "game/texts.h"

namespace kestrel {

namespace {

constexpr int kSecondsPerDay = 86400;

}  // namespace

void PlayClock::Show(std::int32_t seconds) {
  ElapsedSeconds = seconds;
  main_.LabelTijd.caption = texts::Time(seconds / 60, seconds % 60);
}

void PlayClock::Reset() {
  Stop();
  Show(0);
}

void PlayClock::Start() {
  StartSecond = clock_.SecondsOfDay();
  ClockStopped = false;
  main_.Timer1.enabled = true;
  Show(0);
}

void PlayClock::Stop() {
  main_.Timer1.enabled = false;
  ClockStopped = true;
}

void PlayClock::Tick() {
  int now = clock_.SecondsOfDay();
  if (now < StartSecond) now += kSecondsPerDay;  // the run crossed midnight
  Show(now - StartSecond);
}

void PlayClock::Pause() {
  PausedMinutes = ElapsedSeconds / 60;
  PausedSeconds = ElapsedSeconds % 60;
  ClockPaused = true;
}

void PlayClock::Resume() {
  Show(PausedMinutes * 60 + PausedSeconds);
  int now = clock_.SecondsOfDay();
  if (ElapsedSeconds > now) now += kSecondsPerDay;
  StartSecond = now - ElapsedSeconds;
  ClockPaused = false;
}

void PlayClock::AddPenalty(int seconds) {
  StartSecond -= seconds;
  Show(ElapsedSeconds + seconds);
  if (!ClockPaused) return;
  const std::int32_t saved = PausedMinutes * 60 + PausedSeconds + seconds;
  PausedMinutes = saved / 60;
  PausedSeconds = saved % 60;
}

}  // namespace kestrel
