// SPDX-License-Identifier: MIT
#include "ui/qt/dispatcher.h"

#include <QCoreApplication>
#include <cstdio>
#include <exception>

namespace kestrel {

namespace {

// Short enough for a click to be painted within a frame of 16 ms, long enough to cost a renewal nothing.
constexpr std::chrono::milliseconds kPumpInterval(5);

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
  AfterCall();
}

void Dispatcher::AfterCall() {
  if (Ended()) {
    rounds_.stop();
    QCoreApplication::exit(ExitStatus());
    return;
  }
  sync_();
}

bool Dispatcher::Start() {
  Guarded([this] { game_->Start(); });
  if (Ended()) return false;
  rounds_.start();
  return true;
}

void Dispatcher::Send(const Event& event) {
  if (Ended()) return;
  ++handled_;
  Guarded([&] { game_->Handle(event); });
  if (depth_ == 0 && !Ended()) rounds_.start();
}

void Dispatcher::RunRound() {
  // Behind an open box nothing happens until it is answered; Send then starts the rounds again.
  if (depth_ > 0) {
    rounds_.stop();
    return;
  }
  bool due = false;
  Guarded([&] { due = game_->Round(); });
  if (!due) rounds_.stop();
}

void Dispatcher::RunWorkLeft() {
  while (!Ended() && depth_ == 0 && game_->WorkLeft()) RunRound();
}

bool Dispatcher::KeepGoing() {
  if (Ended()) return false;
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
