// SPDX-License-Identifier: MIT
// The main window's logic as a whole: start-up, events, rounds of the main loop, the end. Built by each
// program's start, driven by its front end.
#pragma once

#include "forms/ports.h"
#include "game/renewal.h"
#include "game/session.h"

namespace kestrel {

class Game final : public GameLoop {
 public:
  // What the ports refer to must outlive this object.
  explicit Game(const Ports& ports) : session_(ports) {}

  void Start() override;
  void Handle(const Event& event) override;
  bool Round() override;
  [[nodiscard]] bool WorkLeft() const override;
  [[nodiscard]] EndReason End() const override { return session_.ending.Reason(); }
  Forms& Controls() override { return session_.forms; }

  // The named values of the game, for the script front end and for tests.
  [[nodiscard]] const Session& State() const { return session_; }

 private:
  // A call in progress; only the outermost may run rounds.
  class Busy {
   public:
    explicit Busy(int& depth) : depth_(depth) { ++depth_; }
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;
    ~Busy() { --depth_; }

   private:
    int& depth_;
  };

  void FindFolders();
  void LoadStock();
  void Tick();
  void ResetPlay();
  void RunRound();
  void Acknowledge();
  void ShowPlayer();
  void ShowControls();

  void HandleForm(const Event& event);
  void HandleMain(const Event& event);
  void Click(ControlId control);
  void Release(const Event& event);
  void Resize(WindowState state);
  void AskToQuit();
  void RunPlayersDialog();
  void RunPrintDialog();

  Session session_;
  Renewal renewal_{session_.stockroom, session_.forms.main, session_.ports.seeds};
  int depth_ = 0;
  int last_tick_ = 0;  // second of the day
};

}  // namespace kestrel
