// SPDX-License-Identifier: MIT
#include "ui/qt/main_extras.h"

#include <type_traits>

#include "core/level_names.h"
#include "core/text.h"
#include "forms/texts.h"
#include "solver/technique_table.h"
#include "ui/qt/form_window.h"
#include "ui/qt/guide_widgets.h"
#include "ui/qt/mirror.h"
#include "ui/qt/small_widgets.h"
#include "ui/qt/text_conversion.h"
#include "ui/qt/view_menu.h"
#include "ui/qt/window_access.h"

namespace kestrel {

namespace {

// Whether the tooltip of such a control depends on the state: what can be pressed says why it cannot be now.
template <typename Control>
constexpr bool IsTipped(ControlId id) {
  return std::is_same_v<Control, Button> || std::is_same_v<Control, CheckBox> ||
         std::is_same_v<Control, OptionButton> || id.name == "RenewLevel";
}

void SetTip(QWidget& widget, const std::string& tip) {
  const QString text = ToQString(tip);
  if (widget.toolTip() == text) return;
  widget.setToolTip(text);
  widget.setAccessibleDescription(text);
}

}  // namespace

MainExtras::MainExtras(Mirror& mirror, const MainWindow& main, FormWindow& window, Surroundings surroundings)
    : main_(main), mirror_(mirror), surroundings_(std::move(surroundings)) {
  MakeWidgets(window);
  for (int i = 0; i < 2 * kTechniques; ++i) {
    auto* label = dynamic_cast<TextLabel*>(mirror_.WidgetOf(FormId::Main, {"LabelCount", i}));
    list_[static_cast<std::size_t>(i)] = label;
    SetTip(*label, StateTip(main_, {}, {"LabelCount", i}));
    if (i < kTechniques) LeaveToAnother(*label);  // the count is read with its name
  }
  EachControl(main_, [&](ControlId id, const auto& control) {
    if (!IsTipped<std::remove_cvref_t<decltype(control)>>(id)) return;
    tipped_.push_back({id, mirror_.WidgetOf(FormId::Main, id), control.tooltip});
  });
  clock_ = dynamic_cast<TextLabel*>(mirror_.WidgetOf(FormId::Main, {"LabelTijd"}));
  renewal_ = dynamic_cast<SlimProgress*>(mirror_.WidgetOf(FormId::Main, {"ProgressBar2"}));
  Sync();
}

void MainExtras::MakeWidgets(FormWindow& window) {
  ViewChoices& choices = surroundings_.choices;
  menu_ = new ViewMenu(choices, &window);
  card_ = new GuideCard(&window);
  card_->hide();
  card_->on_next = [this] { PressNext(); };
  window.SetDefaultButton(&card_->Next());
  line_ = new GuideLine(&window);
  card_->on_close = line_->on_close = [this, &choices] {
    choices.CloseGuide();
    SyncGuide();
  };
}

void MainExtras::PressNext() {
  if (!main_.CommandNew.enabled || BehindDialog(*card_)) return;
  Event event;
  event.control = {"CommandNew"};
  surroundings_.sink.Send(event);
}

void MainExtras::ApplyLook() {
  menu_->PlaceButton();
  card_->PlaceAll();
  line_->PlaceAll();
}

void MainExtras::Sync() {
  SyncGuide();
  SyncTips();
  SyncList();
  SyncRenewal();
  clock_->SetSolved(main_.end == PuzzleEnd::Solved);
}

void MainExtras::SyncGuide() {
  const TipState state = surroundings_.state();
  const Guide guide = GuideFor(main_, surroundings_.choices.Now(), state.marks_are_candidates);
  for (int level = 1; level <= kLevels; ++level) {
    if (main_.OptionType(level).value) card_->SetLevel(ToQString(main_.OptionType(level).caption));
  }
  if (guide == shown_) return;
  shown_ = guide;
  card_->setVisible(guide.card);
  card_->raise();
  line_->Show(guide);
}

void MainExtras::SyncTips() {
  const TipState state = surroundings_.state();
  for (const Tipped& each : tipped_) {
    const std::string tip = StateTip(main_, state, each.id);
    SetTip(*each.widget, tip.empty() ? each.own : tip);
  }
}

// The technique list as a whole: a hairline where the tier changes, a frame round the hinted row, and counts
// that are read with their names.
void MainExtras::SyncList() {
  const int hinted = main_.LabelHint.visible ? WholeNumber(main_.LabelHint.tag).value_or(0) - 1 : -1;
  for (int slot = 0; slot < kTechniques; ++slot) {
    const Label& name = main_.LabelCount(slot);
    const Label& count = main_.LabelCount(kTechniques + slot);
    const bool rule = slot > 0 && name.back != main_.LabelCount(slot - 1).back;
    TextLabel* left = list_[static_cast<std::size_t>(slot)];
    TextLabel* right = list_[static_cast<std::size_t>(kTechniques + slot)];
    left->SetRule(rule);
    right->SetRule(rule);
    left->SetFrame(slot == hinted ? RowFrame::LeftEnd : RowFrame::None);
    right->SetFrame(slot == hinted ? RowFrame::RightEnd : RowFrame::None);
    const QString spoken = ToQString(name.caption) + QStringLiteral(": ") + ToQString(count.caption);
    if (right->accessibleName() != spoken) right->setAccessibleName(spoken);
  }
}

void MainExtras::SyncRenewal() {
  const int level = surroundings_.state().renewing_level;
  if (level == 0) return;
  const QString format = ToQString(LevelName(level)) + QStringLiteral(": %v of %m");
  if (renewal_->format() != format) renewal_->setFormat(format);
}

}  // namespace kestrel
