// SPDX-License-Identifier: MIT
#include "ui/qt/front_end.h"

#include <QApplication>
#include <QIcon>
#include <QPixmap>
#include <cstdio>

#include "host/command_line.h"
#include "ui/qt/fonts.h"
#include "ui/qt/form_window.h"
#include "ui/qt/small_widgets.h"
#include "ui/qt/text_conversion.h"
#include "ui/qt/window_access.h"

namespace kestrel {

FrontEnd::FrontEnd(const HostPorts& host, const std::string& help_folder, bool unattended)
    : choices_(host.settings, desktop_),
      mirror_(dispatcher_,
              {[this] {
                 const Session& state = game_.State();
                 return TipState{state.play.puzzle.MarksAreCandidates(), state.stockroom.RenewingLevel};
               },
               choices_, QString::fromStdString(help_folder)}),
      asker_(mirror_, dispatcher_),
      screen_(mirror_, dispatcher_),
      help_(mirror_),
      printer_(mirror_, dispatcher_, host.host_files, asker_, host.settings),
      game_(Ports{host.program, host.folders, host.files, host.settings, host.clock, host.seeds, dispatcher_,
                  unattended ? static_cast<Asker&>(unattended_asker_) : asker_, screen_, sound_, help_,
                  shell_, printer_}) {
  mirror_.Attach(game_.Controls());
  dispatcher_.Attach(game_, [this] { mirror_.Sync(); });
  choices_.on_look = [this] { mirror_.ApplyLook(); };
}

int FrontEnd::Run() {
  if (!dispatcher_.Start()) return dispatcher_.ExitStatus();
  // Once the window is painted.
  QTimer::singleShot(0, [this] { desktop_.Watch(); });
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
  QIcon icon;
  for (const int size : {16, 22, 24, 32, 48, 64, 128, 256}) {
    icon.addFile(QStringLiteral(":/icons/kestrel-sudoku-%1.png").arg(size), QSize(size, size));
  }
  QApplication::setWindowIcon(icon);
  // A last window that hides is not the end; only the game's own decision is.
  QApplication::setQuitOnLastWindowClosed(false);
}

}  // namespace kestrel
