// SPDX-License-Identifier: MIT
// The window as a stage for scripts: every line works the real widget, box or dialog with mouse and keyboard, and
// what is refused is refused by the widget. Before each, every widget must show what its control says. Used by the test of the recorded games.
//
// What stays in memory is what a script itself says or what only a transcript can show: files and settings, the time
// of day and the ticks, the number of rounds, the size of the screen, sounds, the web link and the printed pages.
#pragma once

#include <QLineEdit>

#include "game/game.h"
#include "host/host_files.h"
#include "ui/memory/stage.h"
#include "ui/qt/dispatcher.h"
#include "ui/qt/mirror.h"
#include "ui/qt/qt_ports.h"
#include "ui/qt/view_choices.h"

namespace kestrel::testing {

class QtStage final : public Stage {
 public:
  QtStage();

  // Lets the window handle its events, as it does in the program.
  [[nodiscard]] Yield& TheYield() { return dispatcher_; }

  void Attach(GameLoop& game, InputSource& input) override;

  [[nodiscard]] Answer Message(const MessageBox& box) override;
  [[nodiscard]] std::optional<std::string> Input(const InputBox& box) override;
  void Show(FormId form) override { screen_.Show(form); }
  void Hide(FormId form) override { screen_.Hide(form); }
  [[nodiscard]] bool WaitUntilHidden(FormId form) override;
  void Focus(FormId form, ControlId id) override { screen_.Focus(form, id); }
  void Beep() override { screen_.Beep(); }
  void Navigate(std::string_view page) override { help_.Navigate(page); }
  void OfferSolving(const DigitGrid* givens) override { help_.OfferSolving(givens); }

  [[nodiscard]] bool BoxOpen() const override;
  [[nodiscard]] std::optional<FormId> ModalForm() const override;
  [[nodiscard]] Reach Check(FormId form, ControlId id, const Control& control) override;
  bool GiveAnswer(std::string_view text) override;
  bool GiveCancel() override;
  void Click(FormId form, ControlId id) override;
  void Release(ControlId id, MouseButton button, int x, int y) override;
  void SelectLine(FormId form, ControlId id, int line) override;
  void DoubleClickLine(FormId form, ControlId id, int line) override;
  void MoveSlider(FormId form, ControlId id, int value) override;
  void Type(FormId form, ControlId id, std::string_view text) override;
  void Clear(FormId form, ControlId id) override;
  void PressKey(FormId form, ControlId id, Key key) override;
  void Leave(FormId form, ControlId id) override;
  void SetWindowState(WindowState state) override;
  void Close(FormId form) override;
  void Tick() override;

 private:
  // The game without its rounds, which the script counts.
  class WithoutRounds final : public GameLoop {
   public:
    void Start() override {}
    void Handle(const Event& event) override { game->Handle(event); }
    bool Round() override { return false; }
    [[nodiscard]] bool WorkLeft() const override { return false; }
    [[nodiscard]] EndReason End() const override { return cut_short ? EndReason::Killed : game->End(); }
    Forms& Controls() override { return game->Controls(); }

    GameLoop* game = nullptr;
    bool cut_short = false;  // the script ended in a box or dialog
  };
  // Time passes when the script says so.
  class WithoutTicks final : public EventSink {
   public:
    explicit WithoutTicks(EventSink& inner) : inner_(inner) {}
    void Send(const Event& event) override {
      if (event.kind != EventKind::Timer) inner_.Send(event);
    }

   private:
    EventSink& inner_;
  };
  class NoSettings final : public Settings {
   public:
    std::string Read(std::string_view, std::string_view, std::string_view fallback) override {
      return std::string(fallback);
    }
    bool Write(std::string_view, std::string_view, std::string_view) override { return true; }
  };

  template <class Wait>
  auto Play(const std::function<bool()>& over, Wait wait);
  void CompareAll();
  QWidget& Live(FormId form, ControlId id);
  QLineEdit& Field(FormId form, ControlId id);

  NoSettings settings_;
  SystemCalls calls_;
  HostFiles files_{calls_};
  DesktopColours desktop_{{}};
  ViewChoices choices_{settings_, desktop_};
  Dispatcher dispatcher_;
  WithoutTicks sink_{dispatcher_};
  WithoutRounds game_;
  const Session* state_ = nullptr;
  InputSource* input_ = nullptr;
  Mirror mirror_;
  QtAsker asker_;
  QtScreen screen_;
  QtHelpWindow help_;
};

}  // namespace kestrel::testing
