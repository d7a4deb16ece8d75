// SPDX-License-Identifier: MIT
// What the logic asks of the windows beyond the fields of their controls. Implemented by every front end.
#pragma once

#include "forms/event.h"

namespace kestrel {

class Screen {
 public:
  Screen() = default;
  Screen(const Screen&) = delete;
  Screen& operator=(const Screen&) = delete;
  virtual ~Screen() = default;

  // The size of the screen in twips.
  virtual int Width() = 0;
  virtual int Height() = 0;

  // Puts a window on the screen, in the place and state that its struct has, and sets `open`. The windows
  // under a modal one get no input until it is hidden. Nothing happens to a window that is open.
  virtual void Show(FormId form) = 0;

  // Takes it off the screen and clears `open`; ends a WaitUntilHidden for it.
  virtual void Hide(FormId form) = 0;

  // Handles events until the form is hidden, none when it is already. False: the program is ending. No round
  // of the main loop runs.
  [[nodiscard]] virtual bool WaitUntilHidden(FormId form) = 0;

  virtual void Focus(FormId form, ControlId control) = 0;

  // The system's warning sound.
  virtual void Beep() = 0;
};

}  // namespace kestrel
