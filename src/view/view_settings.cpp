// SPDX-License-Identifier: MIT
#include "view/view_settings.h"

#include <algorithm>
#include <array>
#include <string>

#include "core/text.h"

namespace kestrel {

namespace {

constexpr std::string_view kView = "View";
constexpr std::string_view kSize = "Size";
constexpr std::string_view kColours = "Colours";
constexpr std::string_view kLens = "Digit_Lens";
constexpr std::string_view kGuide = "Guide";
constexpr std::string_view kMarksClicked = "Marks_Clicked";
constexpr std::string_view kTrue = "True";
constexpr std::string_view kFalse = "False";

constexpr std::array<std::string_view, 4> kColourNames = {"Desktop", "Light", "Dark", "High_Contrast"};

std::string_view NameOf(bool value) {
  return value ? kTrue : kFalse;
}

std::string_view NameOf(ColourChoice choice) {
  return kColourNames[static_cast<std::size_t>(choice)];
}

}  // namespace

ViewSettings LoadViewSettings(Settings& settings) {
  ViewSettings view;
  const int size = WholeNumber(settings.Read(kView, kSize, "")).value_or(kNoSize);
  if (IsWindowSize(size)) view.size = size;
  const auto named = std::ranges::find(kColourNames, settings.Read(kView, kColours, ""));
  if (named != kColourNames.end()) view.colours = static_cast<ColourChoice>(named - kColourNames.begin());
  view.digit_lens = settings.Read(kView, kLens, kTrue) != kFalse;
  view.guide = settings.Read(kView, kGuide, kTrue) != kFalse;
  view.marks_clicked = std::max(0, WholeNumber(settings.Read(kView, kMarksClicked, "0")).value_or(0));
  return view;
}

void SaveViewSettings(Settings& settings, const ViewSettings& now, const ViewSettings& before) {
  const auto write = [&](std::string_view key, std::string_view value) {
    (void)settings.Write(kView, key, value);
  };
  if (now.size != before.size) write(kSize, std::to_string(now.size));
  if (now.colours != before.colours) write(kColours, NameOf(now.colours));
  if (now.digit_lens != before.digit_lens) write(kLens, NameOf(now.digit_lens));
  if (now.guide != before.guide) write(kGuide, NameOf(now.guide));
  if (now.marks_clicked != before.marks_clicked) write(kMarksClicked, std::to_string(now.marks_clicked));
}

}  // namespace kestrel
