// SPDX-License-Identifier: MIT
// What the player chose in the View menu, and its effect on the look. Made by the front end, used by the
// windows.
#pragma once

#include <QTimer>
#include <functional>
#include <optional>

#include "core/settings.h"
#include "ui/qt/desktop_colours.h"
#include "ui/qt/look.h"
#include "view/view_settings.h"

namespace kestrel {

class ViewChoices {
 public:
  // Takes what the settings say; the look stays as it is until something is chosen. Both must outlive this.
  ViewChoices(Settings& settings, DesktopColours& desktop);
  ~ViewChoices();
  ViewChoices(const ViewChoices&) = delete;
  ViewChoices& operator=(const ViewChoices&) = delete;

  [[nodiscard]] const ViewSettings& Now() const { return now_; }
  // The size that is shown, per cent; smaller than the chosen one where the screen is too small.
  [[nodiscard]] static int Size();
  // True when a window of that size fits the screen.
  [[nodiscard]] static bool Fits(int size);

  // Each is remembered and takes effect at once. A size that does not fit is not taken.
  void SetSize(int size);
  void SetColours(ColourChoice choice);
  void SetDigitLens(bool on);
  void CloseGuide();

  // A mark was clicked. Saved a moment later, so that the click does not wait for the disk.
  void MarkClicked();

  std::function<void()> on_look;  // colours or size have changed

 private:
  void Keep(const ViewSettings& changed);
  void Save();
  void ApplyLook(double zoom);

  Settings& settings_;
  DesktopColours& desktop_;
  ViewSettings now_;
  ViewSettings saved_;
  QTimer save_later_;
};

// How many times larger the screen is than the main window at 100 per cent with its title bar, in the tighter
// direction. Nothing where there is no real screen.
std::optional<double> ScreensInWindows();

// The size to start with, per cent: the chosen one or a comfortable one, less where the screen is too small.
int SizeAtStart(int chosen);

}  // namespace kestrel
