// SPDX-License-Identifier: MIT
#include "ui/qt/view_choices.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>
#include <cmath>

#include "forms/main_window.h"
#include "view/guide.h"

namespace kestrel {

namespace {

constexpr int kSaveAfter = 1500;  // milliseconds

}  // namespace

std::optional<double> ScreensInWindows() {
  constexpr double kTitleBar = 30;
  const QScreen* primary = QGuiApplication::primaryScreen();
  // Off screen, windows may be larger than what stands in for a screen.
  if (primary == nullptr || QGuiApplication::platformName() == QLatin1String("offscreen")) {
    return std::nullopt;
  }
  const Window window = MakeMainWindow().window;
  const QSize screen = primary->availableSize();
  return std::min(screen.width() / (1.0 * window.width / kTwipsPerPixel),
                  screen.height() / (1.0 * window.height / kTwipsPerPixel + kTitleBar));
}

int SizeAtStart(int chosen) {
  const std::optional<double> room = ScreensInWindows();
  if (!room) return chosen == kNoSize ? kDesignSize : chosen;
  return chosen == kNoSize ? ComfortableSize(*room) : FittingSize(chosen, *room);
}

ViewChoices::ViewChoices(Settings& settings, DesktopColours& desktop)
    : settings_(settings), desktop_(desktop), now_(LoadViewSettings(settings)), saved_(now_) {
  save_later_.setSingleShot(true);
  save_later_.setInterval(kSaveAfter);
  QObject::connect(&save_later_, &QTimer::timeout, [this] { Save(); });
  desktop_.on_change = [this] { ApplyLook(TheLook().zoom); };
}

ViewChoices::~ViewChoices() {
  desktop_.on_change = nullptr;
  Save();
}

int ViewChoices::Size() {
  return static_cast<int>(std::lround(TheLook().zoom * 100));
}

bool ViewChoices::Fits(int size) {
  const std::optional<double> room = ScreensInWindows();
  return !room || size <= *room * 100;
}

void ViewChoices::SetSize(int size) {
  if (!IsWindowSize(size) || !Fits(size)) return;
  ViewSettings changed = now_;
  changed.size = size;
  Keep(changed);
  ApplyLook(size / 100.0);
}

void ViewChoices::SetColours(ColourChoice choice) {
  ViewSettings changed = now_;
  changed.colours = choice;
  Keep(changed);
  ApplyLook(TheLook().zoom);
}

void ViewChoices::SetDigitLens(bool on) {
  ViewSettings changed = now_;
  changed.digit_lens = on;
  Keep(changed);
}

void ViewChoices::CloseGuide() {
  ViewSettings changed = now_;
  changed.guide = false;
  Keep(changed);
}

void ViewChoices::MarkClicked() {
  CountMark(now_);
  if (now_ != saved_) save_later_.start();
}

void ViewChoices::Keep(const ViewSettings& changed) {
  now_ = changed;
  Save();
}

void ViewChoices::Save() {
  save_later_.stop();
  SaveViewSettings(settings_, now_, saved_);
  saved_ = now_;
}

void ViewChoices::ApplyLook(double zoom) {
  const Look look{desktop_.SchemeFor(now_.colours), zoom};
  if (look == TheLook()) return;
  SetUpLook(look);
  if (on_look) on_look();
}

}  // namespace kestrel
