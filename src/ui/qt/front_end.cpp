// SPDX-License-Identifier: MIT
#include "ui/qt/front_end.h"

#include <QApplication>
#include <QIcon>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>
#include <cstdio>

#include "host/command_line.h"
#include "ui/qt/fonts.h"
#include "ui/qt/form_window.h"
#include "ui/qt/main_extras.h"
#include "ui/qt/shortcuts.h"
#include "ui/qt/small_widgets.h"
#include "ui/qt/text_conversion.h"
#include "ui/qt/view_menu.h"
#include "ui/qt/window_access.h"

namespace kestrel {

namespace {

// The window's own picture, which covers it until it was shown once. Painted while the window manager gets the
// window ready, so that all there is to do when the window comes is to copy it.
class FirstPicture final : public QWidget {
 public:
  explicit FirstPicture(QWidget& window) : picture_(window.grab()) {
    setParent(&window);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setGeometry(window.rect());
    show();
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter(this).drawPixmap(0, 0, picture_);
    deleteLater();
  }

 private:
  QPixmap picture_;
};

// Not more sizes than windows show: the window manager gets them all. The desktop takes larger ones from where
// they are installed.
void SetWindowIcon() {
  QIcon icon;
  for (const int size : {16, 22, 24, 32, 48, 64}) {
    icon.addFile(QStringLiteral(":/icons/kestrel-sudoku-%1.png").arg(size), QSize(size, size));
  }
  QApplication::setWindowIcon(icon);
}

// Calls a function for each click on a widget that has no clicks of its own.
class ClickFilter final : public QObject {
 public:
  ClickFilter(QWidget& widget, std::function<void()> on_click)
      : QObject(&widget), on_click_(std::move(on_click)) {
    widget.installEventFilter(this);
  }
  bool eventFilter(QObject* watched, QEvent* event) override {
    // Who takes no press gets no release.
    if (event->type() == QEvent::MouseButtonPress) return true;
    if (event->type() != QEvent::MouseButtonRelease) return false;
    const auto* mouse = static_cast<QMouseEvent*>(event);
    const auto* widget = static_cast<QWidget*>(watched);
    if (mouse->button() == Qt::LeftButton && widget->rect().contains(mouse->position().toPoint()))
      on_click_();
    return false;
  }

 private:
  std::function<void()> on_click_;
};

}  // namespace

FrontEnd::FrontEnd(const HostPorts& host, const std::string& help_folder, bool unattended,
                   const DesktopLook& desktop)
    : desktop_(desktop),
      choices_(host.settings, desktop_),
      mirror_(dispatcher_,
              {[this] {
                 const Session& state = game_.State();
                 return TipState{state.play.puzzle.MarksAreCandidates(), state.stockroom.RenewingLevel};
               },
               choices_, host.files, QString::fromStdString(help_folder)}),
      asker_(mirror_, dispatcher_,
             [this](int level) {
               return RecordsOf(*game_.State().stockroom.stock, game_.State().players, level);
             }),
      screen_(mirror_, dispatcher_, [this] { PrepareMainWindow(); }),
      sound_(host.files),
      help_(mirror_),
      printer_(mirror_, dispatcher_, host.host_files, asker_, host.settings),
      game_(Ports{host.program, host.folders, host.files, host.settings, host.clock, host.seeds, dispatcher_,
                  unattended ? static_cast<Asker&>(unattended_asker_) : asker_, screen_, sound_, help_,
                  shell_, printer_}) {
  mirror_.Attach(game_.Controls());
  dispatcher_.Attach(game_, [this] {
    mirror_.Sync();
    if (records_) records_->Sync();
    if (announcer_) announcer_->Sync();
  });
  choices_.on_look = [this] {
    mirror_.ApplyLook();
    if (records_) records_->ApplyLook();
  };
}

void FrontEnd::PrepareMainWindow() {
  announcer_ = std::make_unique<Announcer>(*mirror_.Board());
  mirror_.on_other_page = [this](const QString& title) { announcer_->Say(title); };
  InstallShortcuts(mirror_);
  mirror_.Extras()->Menu().on_records = [this] { OpenRecords(); };
  for (int panel = 3; panel <= 5; ++panel) {
    QWidget* widget = mirror_.WidgetOf(FormId::Main, {"StatusBar", panel});
    widget->setCursor(Qt::PointingHandCursor);
    new ClickFilter(*widget, [this] { OpenRecords(); });
  }
}

void FrontEnd::OpenRecords(int level) {
  if (!records_) records_ = std::make_unique<RecordsWindow>(game_.State());
  const int chosen = game_.State().choices.SelectedLevel;
  records_->Open(level != 0 ? level : chosen != 0 ? chosen : 1, mirror_.WindowOf(FormId::Main));
}

int FrontEnd::Run() {
  if (!dispatcher_.Start()) return dispatcher_.ExitStatus();
  dispatcher_.RunWorkLeft();
  QObject::connect(new FirstPicture(mirror_.WindowOf(FormId::Main)), &QObject::destroyed, [this] {
    SetWindowIcon();
    desktop_.Watch();
  });
  const int status = QApplication::exec();
  return dispatcher_.Ended() ? dispatcher_.ExitStatus() : status;
}

int FrontEnd::TakeScreenshot(const std::string& file) {
  if (!dispatcher_.Start()) return dispatcher_.ExitStatus();
  dispatcher_.RunWorkLeft();
  Event next;
  next.control = {"CommandNew"};
  dispatcher_.Send(next);
  dispatcher_.RunWorkLeft();
  QApplication::processEvents();
  if (dispatcher_.Ended()) return dispatcher_.ExitStatus();
  if (mirror_.WindowOf(FormId::Main).grab().save(QString::fromStdString(file))) return 0;
  std::fprintf(stderr, "kestrel-sudoku: the picture could not be written to %s\n", file.c_str());
  return kExitUsage;
}

void SetUpApplication(const Look& look) {
  InstallFontSubstitutes();
  InstallLabelAccess();
  InstallWindowAccess();
  SetUpLook(look);
  // A last window that hides is not the end; only the game's own decision is.
  QApplication::setQuitOnLastWindowClosed(false);
}

}  // namespace kestrel
