// SPDX-License-Identifier: MIT
// Everything that the game needs from outside, built by each program's start and handed to the game, and the
// game as the front ends see it.
#pragma once

#include <cstdint>
#include <string>

#include "forms/forms.h"

namespace kestrel {

class Asker;
class Clock;
class Files;
class HelpWindow;
class Printer;
class Screen;
class SeedSource;
class Settings;
class Shell;
class SoundDevice;
class SpecialFolders;
class Yield;

// Where the program itself lies, in the written form; holds the first stock, the sounds, the previews.
struct ProgramPlace {
  std::string folder;
};

struct Ports {
  const ProgramPlace& program;
  SpecialFolders& folders;
  Files& files;
  Settings& settings;
  Clock& clock;
  SeedSource& seeds;
  Yield& yield;  // lets the front end handle events; false when it wants the program to end
  Asker& asker;
  Screen& screen;
  SoundDevice& sound;
  HelpWindow& help;
  Shell& shell;
  Printer& printer;
};

// Why the program ends.
enum class EndReason : std::uint8_t {
  None,   // it does not
  Quit,   // the user said yes to the quit question: exit status 0
  Fatal,  // the stock could not be read: exit status 1
  Killed  // the front end ended it: a port answered "ended", nothing more is done
};

// The game for a front end. Calls may nest: while Handle waits in a question or a computation yields, the
// front end may hand over further events.
//
// Order: Start once; then, for as long as End() is None, at least one round after every outermost Handle, and
// further rounds while Round says so. No round runs while a call of Start, Handle or Round has not returned:
// Round then does nothing.
class GameLoop {
 public:
  GameLoop() = default;
  GameLoop(const GameLoop&) = delete;
  GameLoop& operator=(const GameLoop&) = delete;
  virtual ~GameLoop() = default;

  // Start-up: folders, settings, stock, main window shown.
  virtual void Start() = 0;

  // One event of the user, or a timer. The front end has checked that the control can be reached.
  virtual void Handle(const Event& event) = 0;

  // One round of the main loop. True: another one is due without waiting for an event. False, and nothing
  // done, while another call has not returned.
  virtual bool Round() = 0;

  // True when the next round has something to lay out or to acknowledge, whatever a renewal does.
  [[nodiscard]] virtual bool WorkLeft() const = 0;

  [[nodiscard]] virtual EndReason End() const = 0;

  virtual Forms& Controls() = 0;
};

}  // namespace kestrel
