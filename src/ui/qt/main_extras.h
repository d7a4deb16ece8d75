// SPDX-License-Identifier: MIT
// What the main window shows beyond the game's controls: the View menu, the guide, tooltips that depend on the
// state of play, the sign of a solved puzzle. Used by the mirror.
#pragma once

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "core/technique.h"
#include "forms/main_window.h"
#include "ui/qt/event_sink.h"
#include "view/guide.h"
#include "view/state_tips.h"

class QWidget;

namespace kestrel {

class FormWindow;
class GuideCard;
class GuideLine;
class Mirror;
class SlimProgress;
class TextLabel;
class ViewChoices;
class ViewMenu;

class MainExtras {
 public:
  struct Surroundings {
    std::function<TipState()> state;
    ViewChoices& choices;
    EventSink& sink;
  };

  // Everything must outlive this object but the window, whose children the widgets are.
  MainExtras(Mirror& mirror, const MainWindow& main, FormWindow& window, Surroundings surroundings);

  // Brings everything in line with the controls.
  void Sync();
  // After a change of the look.
  void ApplyLook();

  [[nodiscard]] ViewMenu& Menu() const { return *menu_; }

 private:
  void MakeWidgets(FormWindow& window);
  void PressNext();
  void SyncGuide();
  void SyncTips();
  void SyncList();
  void SyncRenewal();

  // A control with the tooltip of its design.
  struct Tipped {
    ControlId id;
    QWidget* widget;
    std::string own;
  };

  const MainWindow& main_;
  Mirror& mirror_;
  Surroundings surroundings_;
  ViewMenu* menu_ = nullptr;
  GuideCard* card_ = nullptr;
  GuideLine* line_ = nullptr;
  TextLabel* clock_ = nullptr;
  SlimProgress* renewal_ = nullptr;
  std::array<TextLabel*, 2 * kTechniques> list_{};  // the technique list: names, then counts
  std::vector<Tipped> tipped_;
  Guide shown_;
};

}  // namespace kestrel
