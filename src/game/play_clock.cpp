// SPDX-License-Identifier: MIT
#include "game/play_clock.h"

#include "game/texts.h"

namespace kestrel {

namespace {

constexpr int kSecondsPerDay = 86400;

}  // namespace

void PlayClock::Start() {
  StartSecond = clock_.SecondsOfDay();
  ClockStopped = false;
  main_.Timer1.enabled = true;
  main_.LabelTijd.caption = texts::Time(0, 0);
}

void PlayClock::Stop() {
  main_.Timer1.enabled = false;
  ClockStopped = true;
}

void PlayClock::Tick() {
  int now = clock_.SecondsOfDay();
  if (now < StartSecond) now += kSecondsPerDay;  // the run crossed midnight
  ElapsedSeconds = now - StartSecond;
  main_.LabelTijd.caption = texts::Time(ElapsedSeconds / 60, ElapsedSeconds % 60);
}

void PlayClock::Pause() {
  PausedMinutes = ElapsedSeconds / 60;
  PausedSeconds = ElapsedSeconds % 60;
  ClockPaused = true;
}

void PlayClock::Resume() {
  ElapsedSeconds = PausedMinutes * 60 + PausedSeconds;
  int now = clock_.SecondsOfDay();
  if (ElapsedSeconds > now) now += kSecondsPerDay;
  StartSecond = now - ElapsedSeconds;
  ClockPaused = false;
}

void PlayClock::AddPenalty(int seconds) {
  StartSecond -= seconds;
  ElapsedSeconds += seconds;
}

}  // namespace kestrel
