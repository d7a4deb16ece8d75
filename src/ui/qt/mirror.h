// SPDX-License-Identifier: MIT
// The forms on the screen: windows and widgets made from the controls' one list per form, kept like them by
// Sync(), and the user's doings told to the event sink. Used by the front end.
#pragma once

#include <QString>
#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "core/files.h"
#include "forms/forms.h"
#include "ui/qt/event_sink.h"
#include "view/state_tips.h"

class QWidget;

namespace kestrel {

class BoardWidget;
class FormWindow;
class HelpBar;
class HelpView;
class MainExtras;
class MirroredControl;
class ViewChoices;

class Mirror {
 public:
  struct Surroundings {
    std::function<TipState()> state;  // of play
    ViewChoices& choices;
    Files& files;         // of the program: its pictures
    QString help_folder;  // host path of the installed help pages
  };

  // The sink must outlive the mirror.
  Mirror(EventSink& sink, Surroundings surroundings);
  ~Mirror();
  Mirror(const Mirror&) = delete;
  Mirror& operator=(const Mirror&) = delete;

  // The forms to show, which must outlive the mirror; before everything else. Windows are made when they are
  // first needed.
  void Attach(Forms& forms) { forms_ = &forms; }
  [[nodiscard]] Forms& Controls() const { return *forms_; }

  // Brings everything on the screen in line with the controls.
  void Sync();

  // The same after a change of the look, which touches everything.
  void ApplyLook();

  // The window of a form, made if need be.
  FormWindow& WindowOf(FormId form);
  // Null while the window was never needed.
  [[nodiscard]] FormWindow* ExistingWindow(FormId form) const;
  // The widget of a control; null for those that are painted as part of the board.
  QWidget* WidgetOf(FormId form, ControlId control);
  [[nodiscard]] BoardWidget* Board() const { return board_; }
  [[nodiscard]] HelpView* Help() const { return help_; }
  // The help window, while it is open, shows another page; its title.
  std::function<void(const QString& title)> on_other_page;
  // The puzzle that the help window may tell all about; null: none.
  void OfferSolving(const DigitGrid* givens);
  // Null before the main window was made.
  [[nodiscard]] MainExtras* Extras() const { return extras_.get(); }

  // Gives the keyboard to the first control of a dialog, to nothing in the main window.
  void FocusFirst(FormId form);

  // The topmost window on screen, for boxes to stand over.
  [[nodiscard]] QWidget* TopWindow() const;

 private:
  struct View;

  View& ViewOf(FormId form);
  void BuildMain(View& view);
  template <class Form>
  void BuildForm(View& view, Form& form);
  template <class C>
  void Add(View& view, ControlId id, C& control);
  void ConnectWindow(View& view, Window& window);
  void SetTabOrder(View& view);
  void BuildBrowser(View& view);
  void FitHelpView(View& view);
  void SyncWindow(View& view);
  void SizeWindow(View& view);
  void KeepOnScreen();
  QWidget* ParentFor(View& view, ControlId id);

  Forms* forms_ = nullptr;
  EventSink& sink_;
  Surroundings surroundings_;
  std::array<std::unique_ptr<View>, 4> views_;
  BoardWidget* board_ = nullptr;
  HelpView* help_ = nullptr;
  HelpBar* help_bar_ = nullptr;
  std::optional<DigitGrid> ended_;
  std::unique_ptr<MainExtras> extras_;
};

}  // namespace kestrel
