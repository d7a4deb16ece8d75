// SPDX-License-Identifier: MIT
// Hands events to the game, runs its rounds while any are due, and ends the program. Used by the front end.
//
// Calls nest: a handler may wait in a box, a computation may let events in. Two rules keep that in order.
// No round starts while any call has not returned: otherwise the loop would go on behind an open dialog. And
// whoever sees first that the game has ended, at whatever depth, tells Qt's loops to return; each frame then
// returns in its own time.
#pragma once

#include <QTimer>
#include <chrono>
#include <functional>

#include "core/yield.h"
#include "forms/ports.h"
#include "ui/qt/event_sink.h"

namespace kestrel {

class Dispatcher final : public EventSink, public Yield {
 public:
  Dispatcher();

  // The game, and what brings the screen in line with it; before the first event.
  void Attach(GameLoop& game, std::function<void()> sync);

  // Start-up. False when the program ended in it.
  [[nodiscard]] bool Start();

  void Send(const Event& event) override;

  // Lets events in every few milliseconds, so that a click is painted while a level is being renewed. False:
  // the program is ending.
  [[nodiscard]] bool KeepGoing() override;

  // Runs rounds until none has anything to lay out or to acknowledge.
  void RunWorkLeft();

  [[nodiscard]] bool Ended() const;
  // What the program returns to its caller.
  [[nodiscard]] int ExitStatus() const;

 private:
  void Guarded(const std::function<void()>& call);
  void RunRound();
  void Show();

  GameLoop* game_ = nullptr;
  std::function<void()> sync_;
  QTimer rounds_;
  std::chrono::steady_clock::time_point last_pump_;  // when events were let in last
  std::chrono::steady_clock::time_point last_show_;
  unsigned questions_ = 0;  // calls of KeepGoing
  int depth_ = 0;
  int handled_ = 0;                 // events so far; tells a pump that brought some from an idle one
  bool first_after_event_ = false;  // the next round may lay out what an event has chosen
  bool broken_ = false;
};

}  // namespace kestrel
