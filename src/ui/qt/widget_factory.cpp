// SPDX-License-Identifier: MIT
#include "ui/qt/widget_factory.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpressionValidator>
#include <QTimer>

#include "ui/qt/fonts.h"
#include "ui/qt/form_window.h"
#include "ui/qt/help_view.h"
#include "ui/qt/input_widgets.h"
#include "ui/qt/look.h"
#include "ui/qt/page_preview.h"
#include "ui/qt/palette.h"
#include "ui/qt/small_widgets.h"

namespace kestrel {

namespace {

// ---- showing, one function per kind; captions of what can be pressed are the design's ----

void SetFace(QWidget& widget, Colour back) {
  QPalette palette = QApplication::palette();
  palette.setColor(QPalette::Button, TheColours().Of(back, TheColours().button));
  widget.setPalette(palette);
}

void ShowButton(QPushButton& widget, const Button& now, const Button* before) {
  if (before == nullptr) widget.setText(WithMnemonic(now.caption, now.mnemonic));
  if (before == nullptr || now.back != before->back) SetFace(widget, now.back);
}

// Of a group of options, the Tab key goes to the chosen one; the arrow keys go on from there.
void SetTabStop(QRadioButton& widget) {
  const auto stop = widget.isChecked() ? Qt::TabFocus : Qt::NoFocus;
  widget.setFocusPolicy(static_cast<Qt::FocusPolicy>((widget.focusPolicy() & ~Qt::TabFocus) | stop));
}

void ShowOption(QRadioButton& widget, const OptionButton& now, const OptionButton* before) {
  if (before == nullptr) widget.setText(WithMnemonic(now.caption, now.mnemonic));
  if (widget.isChecked() == now.value) return;
  // With the group's rule on, the last chosen option could not be taken back.
  widget.setAutoExclusive(false);
  widget.setChecked(now.value);
  widget.setAutoExclusive(true);
  SetTabStop(widget);
}

void ShowCheckBox(QCheckBox& widget, const CheckBox& now, const CheckBox* before) {
  if (before == nullptr) widget.setText(WithMnemonic(now.caption, now.mnemonic));
  widget.setChecked(now.value);
}

void ShowList(LineList& widget, const ListBox& now, const ListBox* before) {
  if (before == nullptr) widget.setFont(ToQFont(now.font, TheLook().zoom));
  if (before == nullptr || now.lines != before->lines) {
    widget.clear();
    for (const std::string& line : now.lines) widget.addItem(ToQString(line));
  }
  widget.Select(now.index);
}

void ShowCombo(QComboBox& widget, const ComboBox& now, const ComboBox* before) {
  if (before == nullptr || now.lines != before->lines) {
    widget.clear();
    for (const std::string& line : now.lines) widget.addItem(ToQString(line));
  }
  widget.setCurrentIndex(now.index);
}

void ShowTextBox(TextField& widget, const TextBox& now, const TextBox* before) {
  if (before == nullptr) {
    widget.setFont(ToQFont(now.font, TheLook().zoom));
    if (now.max_length > 0) widget.setMaxLength(now.max_length);
    if (now.digits_only && widget.validator() == nullptr) {
      widget.setValidator(new QRegularExpressionValidator(QRegularExpression("[0-9]*"), &widget));
    }
  }
  if (const QString text = ToQString(now.text); widget.text() != text) widget.setText(text);
}

void ShowSlider(StepSlider& widget, const Slider& now, const Slider* /*before*/) {
  widget.setRange(now.minimum, now.maximum);
  widget.setValue(now.value);
}

void ShowProgress(SlimProgress& widget, const ProgressBar& now, const ProgressBar* /*before*/) {
  widget.setRange(now.minimum, now.maximum);
  widget.setValue(now.value);
  widget.update();
}

void ShowText(TextLabel& widget, const Label& now, const Label* /*before*/) {
  widget.Show(now);
}

void ShowLink(LinkLabel& widget, const Label& now, const Label* /*before*/) {
  widget.Show(now);
}

void ShowPanel(StatusLabel& widget, const StatusPanel& now, const StatusPanel* /*before*/) {
  widget.Show(now);
}

void ShowPicture(PictureButton& widget, const Picture& now, const Picture* before) {
  if (before == nullptr || now.file != before->file) widget.Show(now);
}

void ShowPage(PagePreview& widget, const PageView& now, const PageView* /*before*/) {
  widget.Show(now.page);
}

// The panel paints itself; there is no file.
void ShowPanelPicture(StartPanel& /*widget*/, const Picture& /*now*/, const Picture* /*before*/) {
}

void ShowHelpView(HelpView& widget, const WebView& /*now*/, const WebView* before) {
  if (before == nullptr) widget.FollowLook();
}

// A timer without a widget.
class MirroredTimer final : public MirroredControl {
 public:
  MirroredTimer(FormId form, ControlId id, EventSink& sink, Timer& control)
      : MirroredControl(form, id, sink), control_(control) {
    QObject::connect(&timer_, &QTimer::timeout, [this] { Send(EventKind::Timer); });
    timer_.setTimerType(Qt::PreciseTimer);
    Sync();
  }

  void Sync() override {
    if (timer_.interval() != control_.interval) timer_.setInterval(control_.interval);
    if (control_.enabled == timer_.isActive()) return;
    control_.enabled ? timer_.start() : timer_.stop();
  }

 private:
  Timer& control_;
  QTimer timer_;
};

// The main window is played with the mouse: a click must not leave the keyboard's mark on a button there.
void SetFocusPolicy(QWidget& widget, FormId form, int tab_index) {
  if (tab_index < 0) {
    widget.setFocusPolicy(Qt::NoFocus);
  } else {
    widget.setFocusPolicy(form == FormId::Main ? Qt::TabFocus : Qt::StrongFocus);
  }
}

// What the user pressed, or an assistive tool, which sees no dialog in front.
template <class Entry>
void TellClick(const Entry& entry, const QWidget& widget) {
  if (widget.isEnabled() && !BehindDialog(widget)) entry.Tell(EventKind::Click);
}

// True, and the widget as it was, when an assistive tool changed it behind a dialog. What else the change
// does to the widget or to its neighbours comes first.
bool Refused(MirroredControl& entry, QWidget& widget) {
  if (!BehindDialog(widget)) return false;
  QTimer::singleShot(0, &widget, [&entry] { entry.Refresh(); });
  return true;
}

// A button pressed by its letter has not taken the focus; a text box must learn that it is left.
void LeaveTextBox(QWidget& pressed) {
  if (dynamic_cast<TextField*>(pressed.window()->focusWidget()) != nullptr) pressed.setFocus();
}

}  // namespace

MirroredPtr MakeMirrored(const WidgetContext& context, QWidget* parent, ControlId id, Label& control) {
  if (!control.link) {
    auto* text = new TextLabel(parent);
    auto mirrored = std::make_unique<Mirrored<Label, TextLabel>>(context.form, id, context.sink, control,
                                                                 *text, ShowText);
    // A row of the technique list opens its page.
    if (id.name == "LabelCount") {
      text->SetClick([entry = mirrored.get(), text] { TellClick(*entry, *text); });
    }
    return mirrored;
  }
  auto* widget = new LinkLabel(parent);
  auto mirrored = std::make_unique<Mirrored<Label, LinkLabel>>(context.form, id, context.sink, control,
                                                               *widget, ShowLink);
  QObject::connect(widget, &LinkLabel::clicked,
                   [entry = mirrored.get(), widget] { TellClick(*entry, *widget); });
  return mirrored;
}

MirroredPtr MakeMirrored(const WidgetContext& context, QWidget* parent, ControlId id, Button& control) {
  auto* widget = new QPushButton(parent);
  widget->setAutoDefault(false);
  widget->setDefault(control.is_default);
  if (control.is_default) context.window.SetDefaultButton(widget);
  if (control.is_cancel) context.window.SetCancelButton(widget);
  auto mirrored = std::make_unique<Mirrored<Button, QPushButton>>(context.form, id, context.sink, control,
                                                                  *widget, ShowButton);
  SetFocusPolicy(*widget, context.form, control.tab_index);
  QObject::connect(widget, &QPushButton::clicked, [entry = mirrored.get(), widget] {
    LeaveTextBox(*widget);
    TellClick(*entry, *widget);
  });
  return mirrored;
}

MirroredPtr MakeMirrored(const WidgetContext& context, QWidget* parent, ControlId id, OptionButton& control) {
  auto* widget = new QRadioButton(parent);
  auto mirrored = std::make_unique<Mirrored<OptionButton, QRadioButton>>(context.form, id, context.sink,
                                                                         control, *widget, ShowOption);
  SetFocusPolicy(*widget, context.form, control.tab_index);
  SetTabStop(*widget);
  // Not clicked(): assistive tools toggle without clicking.
  QObject::connect(widget, &QRadioButton::toggled,
                   [entry = mirrored.get(), widget, id, unchoose = context.unchoose_others](bool checked) {
                     SetTabStop(*widget);
                     if (Refused(*entry, *widget)) return;
                     if (!checked || entry->Control().value) return;
                     LeaveTextBox(*widget);
                     unchoose(id);
                     entry->UserChanged(&OptionButton::value, true, EventKind::Click);
                   });
  return mirrored;
}

MirroredPtr MakeMirrored(const WidgetContext& context, QWidget* parent, ControlId id, CheckBox& control) {
  auto* widget = new QCheckBox(parent);
  auto mirrored = std::make_unique<Mirrored<CheckBox, QCheckBox>>(context.form, id, context.sink, control,
                                                                  *widget, ShowCheckBox);
  SetFocusPolicy(*widget, context.form, control.tab_index);
  QObject::connect(widget, &QCheckBox::toggled, [entry = mirrored.get(), widget](bool checked) {
    if (Refused(*entry, *widget)) return;
    LeaveTextBox(*widget);
    entry->UserChanged(&CheckBox::value, checked, EventKind::Click);
  });
  return mirrored;
}

MirroredPtr MakeMirrored(const WidgetContext& context, QWidget* parent, ControlId id, ListBox& control) {
  auto* widget = new LineList(parent);
  auto mirrored = std::make_unique<Mirrored<ListBox, LineList>>(context.form, id, context.sink, control,
                                                                *widget, ShowList);
  // A click on the line that is selected already counts as one, too.
  const auto selected = [entry = mirrored.get(), widget] {
    if (Refused(*entry, *widget)) return;
    entry->UserChanged(&ListBox::index, widget->Selected(), EventKind::Click);
  };
  QObject::connect(widget, &LineList::itemSelectionChanged, selected);
  QObject::connect(widget, &LineList::itemDoubleClicked, [entry = mirrored.get(), widget] {
    if (!BehindDialog(*widget)) entry->Tell(EventKind::DoubleClick);
  });
  return mirrored;
}

MirroredPtr MakeMirrored(const WidgetContext& context, QWidget* parent, ControlId id, ComboBox& control) {
  auto* widget = new QComboBox(parent);
  auto mirrored = std::make_unique<Mirrored<ComboBox, QComboBox>>(context.form, id, context.sink, control,
                                                                  *widget, ShowCombo);
  QObject::connect(widget, &QComboBox::activated, [entry = mirrored.get(), widget](int index) {
    if (Refused(*entry, *widget)) return;
    entry->UserChanged(&ComboBox::index, index, EventKind::Click);
  });
  return mirrored;
}

MirroredPtr MakeMirrored(const WidgetContext& context, QWidget* parent, ControlId id, TextBox& control) {
  auto* widget = new TextField(parent);
  auto mirrored = std::make_unique<Mirrored<TextBox, TextField>>(context.form, id, context.sink, control,
                                                                 *widget, ShowTextBox);
  auto* entry = mirrored.get();
  QObject::connect(widget, &TextField::textEdited,
                   [entry](const QString& text) { entry->Set(&TextBox::text, text.toStdString()); });
  widget->on_key = [entry](Key key) { entry->Tell(EventKind::Key, key); };
  widget->on_leave = [entry] { entry->Tell(EventKind::Leave); };
  return mirrored;
}

MirroredPtr MakeMirrored(const WidgetContext& context, QWidget* parent, ControlId id, Slider& control) {
  auto* widget = new StepSlider(parent);
  auto mirrored = std::make_unique<Mirrored<Slider, StepSlider>>(context.form, id, context.sink, control,
                                                                 *widget, ShowSlider);
  QObject::connect(widget, &StepSlider::valueChanged, [entry = mirrored.get(), widget](int value) {
    if (Refused(*entry, *widget)) return;
    entry->UserChanged(&Slider::value, value, EventKind::Change);
  });
  return mirrored;
}

MirroredPtr MakeMirrored(const WidgetContext& context, QWidget* parent, ControlId id, ProgressBar& control) {
  return std::make_unique<Mirrored<ProgressBar, SlimProgress>>(context.form, id, context.sink, control,
                                                               *new SlimProgress(parent), ShowProgress);
}

MirroredPtr MakeMirrored(const WidgetContext& context, QWidget* parent, ControlId id, StatusPanel& control) {
  return std::make_unique<Mirrored<StatusPanel, StatusLabel>>(context.form, id, context.sink, control,
                                                              *new StatusLabel(parent), ShowPanel);
}

MirroredPtr MakeMirrored(const WidgetContext& context, QWidget* parent, ControlId id, Picture& control) {
  if (id.name == "Picture3") {
    return std::make_unique<Mirrored<Picture, StartPanel>>(context.form, id, context.sink, control,
                                                           *new StartPanel(parent), ShowPanelPicture);
  }
  auto* widget = new PictureButton(context.logo, context.files, parent);
  auto mirrored = std::make_unique<Mirrored<Picture, PictureButton>>(context.form, id, context.sink, control,
                                                                     *widget, ShowPicture);
  if (control.tab_index < 0) return mirrored;  // for the eye only
  QObject::connect(widget, &PictureButton::clicked,
                   [entry = mirrored.get(), widget] { TellClick(*entry, *widget); });
  return mirrored;
}

MirroredPtr MakeMirrored(const WidgetContext& context, QWidget* parent, ControlId id, PageView& control) {
  return std::make_unique<Mirrored<PageView, PagePreview>>(context.form, id, context.sink, control,
                                                           *new PagePreview(parent), ShowPage);
}

MirroredPtr MakeMirrored(const WidgetContext& context, QWidget* parent, ControlId id, WebView& control) {
  return std::make_unique<Mirrored<WebView, HelpView>>(context.form, id, context.sink, control,
                                                       *new HelpView(parent), ShowHelpView);
}

MirroredPtr MakeMirrored(const WidgetContext& context, QWidget* /*parent*/, ControlId id, Timer& control) {
  return std::make_unique<MirroredTimer>(context.form, id, context.sink, control);
}

}  // namespace kestrel
