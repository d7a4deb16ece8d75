// SPDX-License-Identifier: MIT
#include "ui/qt/dispatcher.h"

#include <QCoreApplication>
#include <cstdio>
#include <exception>
#include <utility>

namespace kestrel {

namespace {

// A renewal's rounds take some 30 microseconds each. Looking for events after every one, and comparing all
// controls with the screen, took several times as long as the rounds; so events are looked for four times a
// millisecond, which nobody notices in a click, and the screen follows every few milliseconds.
constexpr std::chrono::microseconds kLookInterval(250);
constexpr std::chrono::milliseconds kShowInterval(4);
// The same for a round that takes long by itself.
constexpr std::chrono::milliseconds kPumpInterval(4);
constexpr unsigned kQuestionsPerClock = 8;  // the clock costs more than most steps

constexpr int kExitFatal = 1;
constexpr int kExitBroken = 3;

}  // namespace

Dispatcher::Dispatcher() {
  rounds_.setInterval(0);
  QObject::connect(&rounds_, &QTimer::timeout, [this] { RunRound(); });
}

void Dispatcher::Attach(GameLoop& game, std::function<void()> sync) {
  game_ = &game;
  sync_ = std::move(sync);
}

bool Dispatcher::Ended() const {
  return broken_ || game_->End() != EndReason::None;
}

int Dispatcher::ExitStatus() const {
  if (broken_) return kExitBroken;
  return game_->End() == EndReason::Fatal ? kExitFatal : 0;
}

// No exception may pass through Qt's frames.
void Dispatcher::Guarded(const std::function<void()>& call) {
  ++depth_;
  try {
    call();
  } catch (const std::exception& error) {
    std::fprintf(stderr, "kestrel-sudoku: %s\n", error.what());
    broken_ = true;
  } catch (...) {
    broken_ = true;
  }
  --depth_;
  if (!Ended()) return;
  rounds_.stop();
  QCoreApplication::exit(ExitStatus());
}

void Dispatcher::Show() {
  if (Ended()) return;
  sync_();
  last_show_ = std::chrono::steady_clock::now();
}

bool Dispatcher::Start() {
  Guarded([this] { game_->Start(); });
  Show();
  if (Ended()) return false;
  rounds_.start();
  return true;
}

void Dispatcher::Send(const Event& event) {
  if (Ended()) return;
  ++handled_;
  first_after_event_ = true;
  if (depth_ == 0) last_pump_ = std::chrono::steady_clock::now();
  Guarded([&] { game_->Handle(event); });
  Show();
  if (depth_ == 0 && !Ended()) rounds_.start();
}

void Dispatcher::RunRound() {
  // Behind an open box nothing happens until it is answered; Send then starts the rounds again.
  if (depth_ > 0) {
    rounds_.stop();
    return;
  }
  last_pump_ = std::chrono::steady_clock::now();
  const auto until = last_pump_ + kLookInterval;
  const int handled = handled_;
  bool due = false;
  const auto stay = [&] { return due && handled == handled_ && std::chrono::steady_clock::now() < until; };
  Guarded([&] {
    do {
      due = game_->Round();
    } while (stay());
  });
  if (!due) rounds_.stop();
  const bool first = std::exchange(first_after_event_, false);
  if (first || !due || std::chrono::steady_clock::now() - last_show_ >= kShowInterval) Show();
}

void Dispatcher::RunWorkLeft() {
  while (!Ended() && depth_ == 0 && game_->WorkLeft()) RunRound();
}

bool Dispatcher::KeepGoing() {
  if (Ended()) return false;
  if (++questions_ % kQuestionsPerClock != 0) return true;
  const auto now = std::chrono::steady_clock::now();
  if (now - last_pump_ < kPumpInterval) return true;
  sync_();
  int handled = 0;
  do {
    // What an event changed is painted by a later pass of the same loop.
    handled = handled_;
    QCoreApplication::processEvents();
  } while (handled != handled_ && !Ended());
  last_pump_ = std::chrono::steady_clock::now();
  return !Ended();
}

}  // namespace kestrel
