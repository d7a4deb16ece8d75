// SPDX-License-Identifier: MIT
// How the player likes the windows, as the View menu sets it and the settings keep it. Used by the window's
// front end.
#pragma once

#include <cstdint>
#include <string_view>

#include "core/settings.h"
#include "view/window_size.h"

namespace kestrel {

enum class ColourChoice : std::uint8_t { Desktop, Light, Dark, HighContrast };

struct ViewSettings {
  int size = kNoSize;  // per cent
  ColourChoice colours = ColourChoice::Desktop;
  bool digit_lens = true;
  bool guide = true;      // the first steps are shown, until that is switched off or they are done
  int marks_clicked = 0;  // in this home, counted while the guide needs it

  friend bool operator==(const ViewSettings&, const ViewSettings&) = default;
};

// What the settings hold; defaults for what is missing or makes no sense.
ViewSettings LoadViewSettings(Settings& settings);

// Writes what differs from `before`. What cannot be saved lasts for this run.
void SaveViewSettings(Settings& settings, const ViewSettings& now, const ViewSettings& before);

}  // namespace kestrel
