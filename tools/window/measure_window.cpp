// SPDX-License-Identifier: MIT
// Measures the window: start, clicks, renewals, idling, memory. Run by tools/measure_window.sh.
//
// Usage: measure-window DATA_FOLDER HOME_FOLDER START [start], with START the time at which it was started,
// in nanoseconds since 1970; with the word "start" nothing else is measured. Clicks come from a thread of
// their own, like a user's, at any moment of what the program does; each is timed from its release event
// until the board has been painted.
#include <sys/resource.h>

#include <QMessageBox>
#include <QMouseEvent>
#include <QPointingDevice>
#include <QTimer>
#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

#include "ui/qt/board_widget.h"
#include "ui/qt/form_window.h"
#include "ui/qt/game_application.h"

namespace {

using namespace kestrel;
using Clock = std::chrono::steady_clock;

double Milliseconds(Clock::duration time) {
  return std::chrono::duration<double, std::milli>(time).count();
}

double ProcessorSeconds() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  const auto seconds = [](const timeval& time) {
    return static_cast<double>(time.tv_sec) + 1e-6 * static_cast<double>(time.tv_usec);
  };
  return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

// The most memory that the process has held so far, in megabytes.
double PeakMemory() {
  std::ifstream status("/proc/self/status");
  std::string word;
  while (status >> word) {
    double kilobytes = 0;
    if (word == "VmHWM:" && status >> kilobytes) return kilobytes / 1024;
  }
  return 0;
}

void Wait(int milliseconds) {
  QEventLoop loop;
  QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
  loop.exec();
}

void WaitUntil(const std::function<bool()>& condition) {
  while (!condition()) Wait(1);
}

// Sees the first painting of a widget.
class PaintWatch final : public QObject {
 public:
  explicit PaintWatch(QWidget& widget) { widget.installEventFilter(this); }
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    seen = seen || event->type() == QEvent::Paint;
    return false;
  }
  bool seen = false;
};

// Times the clicks on the board: a filter on its events sees the release and the end of the painting after
// it.
class ClickTimer final : public QObject {
 public:
  explicit ClickTimer(BoardWidget& board) : board_(board) { board.installEventFilter(this); }

  // `count` clicks of the right button on marks that are shown, one about every 20 ms, each on another mark.
  std::vector<double> Run(GameApplication& game, int count) {
    times_.clear();
    (void)QPointingDevice::primaryPointingDevice();  // belongs to this thread, not to the one that clicks
    done_ = false;
    std::thread user([&] {
      for (int i = 0; i < count; ++i) {
        std::this_thread::sleep_for(std::chrono::milliseconds(19 + i % 3));
        busy_ = true;
        QMetaObject::invokeMethod(
            &board_, [this, &game] { ChooseSpot(game); }, Qt::QueuedConnection);
        while (busy_) std::this_thread::sleep_for(std::chrono::microseconds(100));
        std::this_thread::sleep_for(std::chrono::milliseconds(1 + i % 11));
        Post(QEvent::MouseButtonPress, Qt::RightButton);
        busy_ = true;
        start_ = Clock::now();
        Post(QEvent::MouseButtonRelease, Qt::NoButton);
        while (busy_) std::this_thread::sleep_for(std::chrono::microseconds(100));
      }
      done_ = true;
    });
    WaitUntil([this] { return done_.load(); });
    user.join();
    std::sort(times_.begin(), times_.end());
    return times_;
  }

  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::MouseButtonRelease) released_ = true;
    if (event->type() != QEvent::Paint || !released_) return false;
    // Painted when the event has been handled, which is before anything else is.
    released_ = false;
    board_.removeEventFilter(this);
    QCoreApplication::sendEvent(&board_, event);
    board_.installEventFilter(this);
    times_.push_back(Milliseconds(Clock::now() - start_));
    busy_ = false;
    return true;
  }

 private:
  // A mark that is shown; when few are left, the puzzle starts again.
  void ChooseSpot(GameApplication& game) {
    MainWindow& main = game.TheFrontEnd().TheGame().Controls().main;
    for (int tries = 0; tries < 2; ++tries) {
      for (int i = 0; i < 9 * kCells; ++i) {
        place_ = (place_ + 31) % (9 * kCells);
        const Label& mark = main.Mark(place_ / kCells + 1)(place_ % kCells);
        if (!mark.visible) continue;
        spot_ = QPointF(mark.left, mark.top) / kTwipsPerPixel + QPointF(8, 8);
        on_screen_ = board_.mapToGlobal(spot_);
        busy_ = false;
        return;
      }
      Event restart;
      restart.control = {"CommandRestart"};
      game.TheFrontEnd().Events().Send(restart);
    }
    std::abort();
  }

  void Post(QEvent::Type type, Qt::MouseButtons buttons) {
    QCoreApplication::postEvent(
        &board_, new QMouseEvent(type, spot_, on_screen_, Qt::RightButton, buttons, Qt::NoModifier));
  }

  BoardWidget& board_;
  std::vector<double> times_;
  std::atomic<bool> busy_ = false;
  std::atomic<bool> done_ = false;
  Clock::time_point start_;
  QPointF spot_;
  QPointF on_screen_;
  int place_ = 0;
  bool released_ = false;
};

void PrintClicks(const char* what, const std::vector<double>& times) {
  const auto at = [&](double part) {
    return times[std::min(times.size() - 1,
                          static_cast<std::size_t>(part * static_cast<double>(times.size())))];
  };
  std::printf("%-34s median %.2f ms, 99th percentile %.2f ms, longest %.2f ms (%zu clicks)\n", what, at(0.5),
              at(0.99), times.back(), times.size());
}

// How long mere counting takes that needs `milliseconds` in the middle, as far apart as clicks: how much longer it
// takes now and then is what the machine adds by itself, to read the times of clicks against.
std::vector<double> CountingTimes(double milliseconds) {
  const auto measure = [](long steps, int times) {
    std::vector<double> taken;
    for (int i = 0; i < times; ++i) {
      std::this_thread::sleep_for(std::chrono::milliseconds(25));
      const Clock::time_point start = Clock::now();
      for (volatile long step = 0; step < steps;) step = step + 1;
      taken.push_back(Milliseconds(Clock::now() - start));
    }
    std::sort(taken.begin(), taken.end());
    return taken;
  };
  constexpr long kTrial = 100'000;
  const double trial = measure(kTrial, 51)[25];
  return measure(static_cast<long>(milliseconds / trial * static_cast<double>(kTrial)), 500);
}

void Send(GameApplication& game, ControlId control) {
  Event event;
  event.control = control;
  game.TheFrontEnd().Events().Send(event);
}

// Opens the next puzzle of a level.
void Open(GameApplication& game, int level) {
  Forms& forms = game.TheFrontEnd().TheGame().Controls();
  for (int each = 1; each <= 5; ++each) forms.main.OptionType(each).value = each == level;
  Send(game, {"OptionType", level});
  Send(game, {"CommandNew"});
  Wait(50);
}

// Starts a renewal; the question is answered as soon as it is asked.
void StartRenewal(GameApplication& game, int level) {
  QTimer::singleShot(20, [] {
    if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
      box->button(QMessageBox::Ok)->click();
    }
  });
  Send(game, {"RenewLevel", level});
}

bool Renewing(GameApplication& game) {
  return game.TheFrontEnd().TheGame().State().stockroom.RenewingLevel != 0;
}

// Each level while another one is selected, which takes a board that is not in play.
void MeasureRenewals(GameApplication& game) {
  Send(game, {"CommandSolution"});
  for (int level = 1; level <= 5; ++level) {
    Send(game, {"OptionType", level % 5 + 1});
    StartRenewal(game, level);
    const Clock::time_point start = Clock::now();
    const double processor = ProcessorSeconds();
    WaitUntil([&] { return !Renewing(game); });
    std::printf("renewal of level %d                 %.2f s, %.2f s of processor time\n", level,
                Milliseconds(Clock::now() - start) / 1000, ProcessorSeconds() - processor);
  }
}

// Renews one level again and again while clicks arrive.
void MeasureClicksInRenewal(GameApplication& game, ClickTimer& clicks) {
  QTimer again;
  QObject::connect(&again, &QTimer::timeout, [&] {
    if (!Renewing(game)) StartRenewal(game, 5);
  });
  again.start(1);
  Wait(50);
  PrintClicks("click while a level is renewed", clicks.Run(game, 300));
  again.stop();
  WaitUntil([&] { return !Renewing(game); });
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 4) {
    std::fprintf(stderr, "usage: measure-window DATA_FOLDER HOME_FOLDER START [start]\n");
    return 2;
  }
  qputenv("QT_QPA_PLATFORM", "offscreen");
  GameOptions options;
  options.home = argv[2];
  GameApplication game(options, argv[1], argv);
  Dispatcher& events = game.TheFrontEnd().Events();
  if (!events.Start()) return events.ExitStatus();
  events.RunWorkLeft();
  PaintWatch painted(*game.TheFrontEnd().Windows().Board());
  while (!painted.seen) QApplication::processEvents();
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  const double started = std::chrono::duration<double, std::milli>(now).count() - std::atof(argv[3]) / 1e6;
  std::printf("start to a usable window           %.0f ms\n", started);
  if (argc > 4) return 0;

  BoardWidget& board = *game.TheFrontEnd().Windows().Board();
  ClickTimer clicks(board);
  Open(game, 3);
  const std::vector<double> played = clicks.Run(game, 500);
  PrintClicks("click to painted board", played);
  PrintClicks("mere counting as long", CountingTimes(played[played.size() / 2]));
  std::printf("peak memory, playing               %.1f MB\n", PeakMemory());
  constexpr int kIdleSeconds = 10;
  const double before = ProcessorSeconds();
  Wait(kIdleSeconds * 1000);
  std::printf("idle with a running clock          %.2f %% of a core\n",
              (ProcessorSeconds() - before) / kIdleSeconds * 100);
  MeasureClicksInRenewal(game, clicks);
  MeasureRenewals(game);
  std::printf("peak memory, at the end            %.1f MB\n", PeakMemory());
  std::fflush(stdout);
  return 0;
}
