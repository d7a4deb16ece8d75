// SPDX-License-Identifier: MIT
// One control and the widget that shows it. Used by the mirror alone.
//
// Down: Sync() compares the control with the copy last shown and touches the widget only where they differ,
// with its signals blocked. Up: what the user changed is written into the control and into the copy, and then
// told.
#pragma once

#include <QObject>
#include <QSignalBlocker>
#include <QWidget>
#include <functional>
#include <utility>

#include "forms/event.h"
#include "ui/qt/event_sink.h"
#include "ui/qt/text_conversion.h"

namespace kestrel {

class MirroredControl {
 public:
  MirroredControl(FormId form, ControlId id, EventSink& sink) : form_(form), id_(id), sink_(sink) {}
  MirroredControl(const MirroredControl&) = delete;
  MirroredControl& operator=(const MirroredControl&) = delete;
  virtual ~MirroredControl() = default;

  virtual void Sync() = 0;
  // Shows everything anew, after a change of the look.
  virtual void Refresh() {}
  [[nodiscard]] virtual QWidget* Widget() const { return nullptr; }
  // Takes the choice from an option button because another of its array was chosen.
  virtual void Unchoose() {}

  [[nodiscard]] ControlId Id() const { return id_; }

 protected:
  void Send(EventKind kind, Key key = Key::None) const {
    Event event;
    event.form = form_;
    event.control = id_;
    event.kind = kind;
    event.key = key;
    sink_.Send(event);
  }

 private:
  FormId form_;
  ControlId id_;
  EventSink& sink_;
};

// Shows what all controls have in common; `before` is null at first.
void ShowCommon(QWidget& widget, const Control& now, const Control* before, const QString& caption);

// Show(widget, control, before) shows the rest; one overload per pair in mirrored.cpp.
template <class C, class W>
class Mirrored final : public MirroredControl {
 public:
  using Shower = void (*)(W&, const C& now, const C* before);

  Mirrored(FormId form, ControlId id, EventSink& sink, C& control, W& widget, Shower show)
      : MirroredControl(form, id, sink), control_(control), widget_(widget), show_(show) {
    widget.setObjectName(ToQString(FullName(id)));
    Apply(nullptr);
  }

  void Sync() override {
    if (control_ == shown_) return;
    // A handler that this wakes may look at the controls: the copy must be true by then.
    const C before = std::exchange(shown_, control_);
    Apply(&before);
  }

  void Refresh() override { Apply(nullptr); }

  [[nodiscard]] QWidget* Widget() const override { return &widget_; }

  // What the user did to the widget: into the control and the copy, then told.
  template <class Member, class Value>
  void UserChanged(Member member, Value value, EventKind kind) {
    Set(member, std::move(value));
    Send(kind);
  }
  template <class Member, class Value>
  void Set(Member member, Value value) {
    control_.*member = value;
    shown_.*member = std::move(value);
  }
  void Tell(EventKind kind, Key key = Key::None) const { Send(kind, key); }

  [[nodiscard]] const C& Control() const { return control_; }

  void Unchoose() override {
    if constexpr (requires { &C::value; }) {
      if constexpr (std::is_same_v<decltype(std::declval<C>().value), bool>) Set(&C::value, false);
    }
  }

 private:
  void Apply(const C* before) {
    const QSignalBlocker quiet(&widget_);
    QString caption;
    if constexpr (requires { control_.caption; }) caption = WithoutMnemonic(control_.caption);
    ShowCommon(widget_, control_, before, caption);
    show_(widget_, control_, before);
  }

  C& control_;
  C shown_ = control_;
  W& widget_;
  Shower show_;
};

}  // namespace kestrel
