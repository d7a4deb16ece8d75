// SPDX-License-Identifier: MIT
// The windows of a front end as a script plays on them: what the game asks of them, and what a user can do to
// them. The in-memory front end is one; one with real windows works its widgets instead, so that the same
// script plays on both. Used by User and the script runner.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "forms/asker.h"
#include "forms/help_window.h"
#include "forms/ports.h"
#include "forms/screen.h"

namespace kestrel {

// Whoever plays the user: lets the game wait inside a box or dialog while further actions arrive.
class InputSource {
 public:
  InputSource() = default;
  InputSource(const InputSource&) = delete;
  InputSource& operator=(const InputSource&) = delete;
  virtual ~InputSource() = default;
  // Does the next action. False: there is none any more, the program is to end where it stands.
  [[nodiscard]] virtual bool NextAction() = 0;
};

enum class Reach : std::uint8_t {
  Done,      // the control got it
  Modal,     // the control lies behind a box or a modal dialog
  Hidden,    // it is hidden, or its window is not on the screen
  Disabled,  // it is disabled
  NoSuch     // there is no control of that name that could take it, or no such line or value
};

class Stage : public Asker, public Screen, public HelpWindow {
 public:
  // The size of the screen, 1920 x 1080 pixels, whatever the real one has.
  static constexpr int kScreenWidth = 1920 * kTwipsPerPixel;
  static constexpr int kScreenHeight = 1080 * kTwipsPerPixel;

  // The game that is played, and who acts while it waits; before Start.
  virtual void Attach(GameLoop& game, InputSource& input) = 0;

  int Width() final { return kScreenWidth; }
  int Height() final { return kScreenHeight; }

  // True while a message or input box is open; nothing else gets input then.
  [[nodiscard]] virtual bool BoxOpen() const = 0;
  // The modal dialog that is open, if any.
  [[nodiscard]] virtual std::optional<FormId> ModalForm() const = 0;
  // Whether the user gets at a control: the first that holds of Modal, Hidden, Disabled; or Done.
  [[nodiscard]] virtual Reach Check(FormId form, ControlId id, const Control& control) = 0;

  // Presses a button of the open message box by its caption, or gives the open input box a text; false when
  // there is no such button or box.
  virtual bool GiveAnswer(std::string_view text) = 0;
  virtual bool GiveCancel() = 0;

  // The rest is for controls that the user gets at.
  // A button, option button, check box, label or picture. Labels that are no links and pictures for the eye
  // do not react, and an option that is chosen stays so.
  virtual void Click(FormId form, ControlId id) = 0;
  // A mouse button comes up over a mark or header; x and y in twips from its corner.
  virtual void Release(ControlId id, MouseButton button, int x, int y) = 0;
  // A line of a list or combo, from 0, -1 for none; the lines exist.
  virtual void SelectLine(FormId form, ControlId id, int line) = 0;
  virtual void DoubleClickLine(FormId form, ControlId id, int line) = 0;
  // A value that the slider has.
  virtual void MoveSlider(FormId form, ControlId id, int value) = 0;
  // A text box: types after its text, empties it, presses a key in it, takes the focus out of it.
  virtual void Type(FormId form, ControlId id, std::string_view text) = 0;
  virtual void Clear(FormId form, ControlId id) = 0;
  virtual void PressKey(FormId form, ControlId id, Key key) = 0;
  virtual void Leave(FormId form, ControlId id) = 0;
  // The main window goes to a state that it does not have.
  virtual void SetWindowState(WindowState state) = 0;
  // The close button of a window.
  virtual void Close(FormId form) = 0;
  // Timer1, which is enabled, fires.
  virtual void Tick() = 0;
};

}  // namespace kestrel
