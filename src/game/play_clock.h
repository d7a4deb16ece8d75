// SPDX-License-Identifier: MIT
// The clock of the open puzzle: measured against the time of day, shown in LabelTijd, driven by Timer1. Used
// by opening, the board commands, completion and hints.
#pragma once

#include <cstdint>

#include "core/clock.h"
#include "forms/main_window.h"

namespace kestrel {

class PlayClock {
 public:
  // Both must outlive this object.
  PlayClock(Clock& clock, MainWindow& main) : clock_(clock), main_(main) {}

  // Stopped at 00:00.
  void Reset();

  // Starts at 00:00.
  void Start();

  // Stops the timer; the display keeps the time.
  void Stop();

  // Timer1 fired: reads the time of day and shows the time played. A run longer than 24 hours cannot be told
  // from a shorter one.
  void Tick();

  // Saves the clock value; Resume goes on from it, whatever time passed in between, and shows it. The timer
  // ticks on meanwhile.
  void Pause();
  void Resume();

  // Adds `seconds` to the time played for good, to a saved value, too.
  void AddPenalty(int seconds);

  // Forgets a saved value (the clock stays paused or not, as it was).
  void ClearPause() { PausedMinutes = PausedSeconds = 0; }

  std::int32_t StartSecond = 0;  // time of day at which the clock would have read 0; below 0 after a penalty
  std::int32_t ElapsedSeconds = 0;  // the clock value; LabelTijd always shows it
  bool ClockPaused = false;         // a value is saved in the next two
  std::int32_t PausedMinutes = 0;
  std::int32_t PausedSeconds = 0;
  bool ClockStopped = true;  // no puzzle is being timed

 private:
  void Show(std::int32_t seconds);

  Clock& clock_;
  MainWindow& main_;
};

}  // namespace kestrel
