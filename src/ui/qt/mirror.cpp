// SPDX-License-Identifier: MIT
#include "ui/qt/mirror.h"

#include <QApplication>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <algorithm>
#include <map>
#include <utility>

#include "forms/texts.h"
#include "ui/qt/board_widget.h"
#include "ui/qt/form_window.h"
#include "ui/qt/help_bar.h"
#include "ui/qt/help_view.h"
#include "ui/qt/look.h"
#include "ui/qt/main_extras.h"
#include "ui/qt/mirrored.h"
#include "ui/qt/texts.h"
#include "ui/qt/widget_factory.h"

namespace kestrel {

namespace {

// Controls that the board paints.
bool OnBoard(ControlId id) {
  return id.name == "Grid" || id.name.starts_with("Mark") || id.name == "LabelRow" ||
         id.name == "LabelColumn";
}

// A frame round the technique list, in its own pixels outside the labels.
void PaintListFrame(QPainter& painter, const MainWindow& main) {
  UseDevicePixels(painter);
  const PixelGrid grid(painter.device()->devicePixelRatioF() * TheLook().zoom);
  const Label& first = main.LabelCount(0);
  const Label& last = main.LabelCount(2 * kTechniques - 1);
  const QRect list = grid.Rect(first.left, first.top, last.left + last.width - first.left,
                               last.top + last.height - first.top);
  const int line = grid.Pixels(1);
  painter.fillRect(list.adjusted(-line, -line, line, line), QColor(TheColours().thin_line));
}

}  // namespace

struct Mirror::View {
  FormId form;
  std::unique_ptr<FormWindow> window;
  Window* control = nullptr;
  Window shown;
  std::vector<MirroredPtr> controls;
  std::map<int, QWidget*> tab_order;

  // Of the options of one name only one is chosen.
  void UnchooseOthers(ControlId chosen) const {
    for (const MirroredPtr& other : controls) {
      const ControlId each = other->Id();
      if (each.name == chosen.name && each.index != chosen.index) other->Unchoose();
    }
  }
};

Mirror::Mirror(EventSink& sink, Surroundings surroundings)
    : sink_(sink), surroundings_(std::move(surroundings)) {
}

Mirror::~Mirror() {
  // Dialogs are children of the main window: they go first.
  for (auto view = views_.rbegin(); view != views_.rend(); ++view) view->reset();
}

// ---- building ----

template <class C>
void Mirror::Add(View& view, ControlId id, C& control) {
  if constexpr (!std::is_same_v<C, Window>) {
    if (OnBoard(id)) return;
    const WidgetContext context{view.form,
                                sink_,
                                *view.window,
                                [&view](ControlId chosen) { view.UnchooseOthers(chosen); },
                                QStringLiteral(":/icons/logo.png"),
                                surroundings_.files};
    view.controls.push_back(MakeMirrored(context, ParentFor(view, id), id, control));
    QWidget* widget = view.controls.back()->Widget();
    if (widget != nullptr && control.tab_index >= 0) view.tab_order[control.tab_index] = widget;
  }
}

// The levels' progress bars stand on the start-up panel and go with it.
QWidget* Mirror::ParentFor(View& view, ControlId id) {
  if (id.name != "ProgressBar1") return view.window.get();
  for (const MirroredPtr& other : view.controls) {
    if (other->Id().name == "Picture3") return other->Widget();
  }
  return view.window.get();
}

// The help window is as large as the user makes it, the others as designed.
void Mirror::SizeWindow(View& view) {
  const QSize size(Logical(view.control->width), Logical(view.control->height));
  if (view.form == FormId::Browser) {
    view.window->resize(size);
  } else {
    view.window->setFixedSize(size);
  }
}

template <class Form>
void Mirror::BuildForm(View& view, Form& form) {
  view.control = &form.window;
  view.shown = form.window;
  FormWindow* main = ExistingWindow(FormId::Main);
  view.window = std::make_unique<FormWindow>(view.form, form.window.modal,
                                             form.window.modal ? static_cast<QWidget*>(main) : nullptr);
  view.window->setWindowTitle(ToQString(form.window.caption));
  SizeWindow(view);
  // A panel must be there before what stands on it.
  EachControl(form, [&](ControlId id, auto& control) {
    if (id.name != "ProgressBar1") Add(view, id, control);
  });
  EachControl(form, [&](ControlId id, auto& control) {
    if (id.name == "ProgressBar1") Add(view, id, control);
  });
  ConnectWindow(view, form.window);
  SetTabOrder(view);
}

void Mirror::BuildMain(View& view) {
  BuildForm(view, forms_->main);
  board_ = new BoardWidget(
      forms_->main, sink_, [this] { return surroundings_.state().marks_are_candidates; },
      surroundings_.choices, view.window.get());
  board_->lower();
  view.window->on_paint = [this](QPainter& painter) { PaintListFrame(painter, forms_->main); };
}

void Mirror::BuildBrowser(View& view) {
  BuildForm(view, forms_->browser);
  help_ = dynamic_cast<HelpView*>(WidgetOf(FormId::Browser, {"WebBrowser1"}));
  help_->SetFolder(surroundings_.help_folder);
  help_bar_ = new HelpBar(*view.window, *help_);
  help_->on_page = [this, &view](const QString& title) {
    std::string& spoken = forms_->browser.WebBrowser1.spoken;
    const std::string before =
        std::exchange(spoken, title.isEmpty() ? std::string(texts::kHelpPage) : title.toStdString());
    for (const MirroredPtr& each : view.controls) each->Sync();
    // When the window opens, a screen reader says it with the place of the keyboard.
    if (on_other_page && help_->isVisible() && spoken != before) on_other_page(ToQString(spoken));
  };
  OfferSolving(ended_ ? &*ended_ : nullptr);
}

void Mirror::OfferSolving(const DigitGrid* givens) {
  ended_ = givens == nullptr ? std::nullopt : std::optional(*givens);
  if (help_ == nullptr) return;
  help_->OfferSolving(givens);
  help_bar_->Offer(ended_.has_value());
}

void Mirror::ConnectWindow(View& view, Window& window) {
  FormWindow* widget = view.window.get();
  const FormId form = view.form;
  widget->on_close = [this, form] {
    Event event;
    event.form = form;
    event.kind = EventKind::Close;
    sink_.Send(event);
  };
  widget->on_state = [this, form, &view, &window](WindowState state) {
    if (!view.window->isVisible() || state == window.state) return;
    window.state = view.shown.state = state;
    if (form != FormId::Main) return;
    Event event;
    event.control = {"MainWindow"};
    event.kind = EventKind::Resize;
    sink_.Send(event);
  };
  widget->on_place = [this, &view, &window] {
    if (!view.window->isVisible() || view.window->isMinimized()) return;
    window.left = view.shown.left = Twips(view.window->x());
    window.top = view.shown.top = Twips(view.window->y());
    if (view.form == FormId::Browser) FitHelpView(view);
  };
}

// The help window's own rule: the view is smaller than the window by a fixed margin.
void Mirror::FitHelpView(View& view) {
  Window& window = forms_->browser.window;
  window.width = view.shown.width = Twips(view.window->width());
  window.height = view.shown.height = Twips(view.window->height());
  forms_->browser.WebBrowser1.width = window.width - kBrowserMarginX;
  forms_->browser.WebBrowser1.height = window.height - kBrowserMarginY;
  for (const MirroredPtr& control : view.controls) control->Sync();
  help_bar_->Fit();
}

void Mirror::SetTabOrder(View& view) {
  QWidget* last = nullptr;
  for (const auto& [index, widget] : view.tab_order) {
    if (last != nullptr) QWidget::setTabOrder(last, widget);
    last = widget;
  }
}

// ---- showing ----

void Mirror::Sync() {
  if (board_ != nullptr) board_->Sync();
  for (const std::unique_ptr<View>& view : views_) {
    if (!view) continue;
    for (const MirroredPtr& control : view->controls) control->Sync();
    SyncWindow(*view);
  }
  if (extras_) extras_->Sync();
}

void Mirror::ApplyLook() {
  for (const std::unique_ptr<View>& view : views_) {
    if (!view) continue;
    if (view->form != FormId::Browser) SizeWindow(*view);
    for (const MirroredPtr& control : view->controls) control->Refresh();
    view->window->update();
  }
  if (board_ != nullptr) board_->ApplyLook();
  if (extras_) extras_->ApplyLook();
  if (help_ != nullptr) FitHelpView(ViewOf(FormId::Browser));
  Sync();
  KeepOnScreen();
}

// A main window that has grown keeps its title bar and, if it can, its lower edge on the screen.
void Mirror::KeepOnScreen() {
  FormWindow* window = ExistingWindow(FormId::Main);
  if (window == nullptr || !window->isVisible()) return;
  const QRect screen = window->screen()->availableGeometry();
  const QSize frame = window->size() + (window->frameGeometry().size() - window->geometry().size());
  const int left = std::max(screen.left(), std::min(window->x(), screen.right() + 1 - frame.width()));
  const int top = std::max(screen.top(), std::min(window->y(), screen.bottom() + 1 - frame.height()));
  if (QPoint(left, top) != window->pos()) window->move(left, top);
}

void Mirror::SyncWindow(View& view) {
  const Window& now = *view.control;
  if (now == view.shown) return;
  const Window before = std::exchange(view.shown, now);
  if (now.caption != before.caption) view.window->setWindowTitle(ToQString(now.caption));
  if (now.left != before.left || now.top != before.top) {
    view.window->move(Logical(now.left), Logical(now.top));
  }
}

// ---- finding ----

Mirror::View& Mirror::ViewOf(FormId form) {
  std::unique_ptr<View>& view = views_[static_cast<std::size_t>(form)];
  if (view) return *view;
  view = std::make_unique<View>();
  view->form = form;
  switch (form) {
    case FormId::Main:
      BuildMain(*view);
      extras_ = std::make_unique<MainExtras>(
          *this, forms_->main, *view->window,
          MainExtras::Surroundings{surroundings_.state, surroundings_.choices, sink_});
      break;
    case FormId::Names:
      BuildForm(*view, forms_->names);
      break;
    case FormId::Print:
      BuildForm(*view, forms_->print);
      break;
    case FormId::Browser:
      BuildBrowser(*view);
      break;
  }
  return *view;
}

FormWindow& Mirror::WindowOf(FormId form) {
  return *ViewOf(form).window;
}

FormWindow* Mirror::ExistingWindow(FormId form) const {
  const std::unique_ptr<View>& view = views_[static_cast<std::size_t>(form)];
  return view ? view->window.get() : nullptr;
}

QWidget* Mirror::WidgetOf(FormId form, ControlId control) {
  for (const MirroredPtr& each : ViewOf(form).controls) {
    if (each->Id() == control) return each->Widget();
  }
  return nullptr;
}

void Mirror::FocusFirst(FormId form) {
  View& view = ViewOf(form);
  if (form == FormId::Main) {
    view.window->setFocusPolicy(Qt::StrongFocus);
    view.window->setFocus();
  } else if (!view.tab_order.empty()) {
    view.tab_order.begin()->second->setFocus();
  }
}

QWidget* Mirror::TopWindow() const {
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  return ExistingWindow(FormId::Main);
}

}  // namespace kestrel
