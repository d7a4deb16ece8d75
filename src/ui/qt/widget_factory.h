// SPDX-License-Identifier: MIT
// Makes the widget for each kind of control, connected both ways. Used by the mirror.
#pragma once

#include <functional>
#include <memory>

#include "core/files.h"
#include "forms/event.h"
#include "forms/page_view.h"
#include "ui/qt/mirrored.h"

namespace kestrel {

class FormWindow;
class HelpView;

// Where the widgets of one form go.
struct WidgetContext {
  FormId form;
  EventSink& sink;
  FormWindow& window;
  // Takes the choice from the other options of an array.
  std::function<void(ControlId)> unchoose_others;
  // The picture for Picture1 where its control names none; a host path.
  QString logo;
  Files& files;  // reads the pictures that controls name
};

using MirroredPtr = std::unique_ptr<MirroredControl>;

MirroredPtr MakeMirrored(const WidgetContext& context, QWidget* parent, ControlId id, Label& control);
MirroredPtr MakeMirrored(const WidgetContext& context, QWidget* parent, ControlId id, Button& control);
MirroredPtr MakeMirrored(const WidgetContext& context, QWidget* parent, ControlId id, OptionButton& control);
MirroredPtr MakeMirrored(const WidgetContext& context, QWidget* parent, ControlId id, CheckBox& control);
MirroredPtr MakeMirrored(const WidgetContext& context, QWidget* parent, ControlId id, ListBox& control);
MirroredPtr MakeMirrored(const WidgetContext& context, QWidget* parent, ControlId id, ComboBox& control);
MirroredPtr MakeMirrored(const WidgetContext& context, QWidget* parent, ControlId id, TextBox& control);
MirroredPtr MakeMirrored(const WidgetContext& context, QWidget* parent, ControlId id, Slider& control);
MirroredPtr MakeMirrored(const WidgetContext& context, QWidget* parent, ControlId id, ProgressBar& control);
MirroredPtr MakeMirrored(const WidgetContext& context, QWidget* parent, ControlId id, StatusPanel& control);
MirroredPtr MakeMirrored(const WidgetContext& context, QWidget* parent, ControlId id, Picture& control);
MirroredPtr MakeMirrored(const WidgetContext& context, QWidget* parent, ControlId id, PageView& control);
MirroredPtr MakeMirrored(const WidgetContext& context, QWidget* parent, ControlId id, WebView& control);
MirroredPtr MakeMirrored(const WidgetContext& context, QWidget* parent, ControlId id, Timer& control);

}  // namespace kestrel
