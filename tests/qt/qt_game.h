// SPDX-License-Identifier: MIT
// The game in its window, off screen, in a home of its own, and a user with a mouse. Used by the tests of the
// window.
#pragma once

#include <gtest/gtest.h>

#include <QMessageBox>
#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <deque>
#include <functional>
#include <string_view>
#include <vector>

#include "core/settings_file.h"
#include "host/host_files.h"
#include "host/host_settings.h"
#include "support/temp_folder.h"
#include "ui/qt/board_widget.h"
#include "ui/qt/form_window.h"
#include "ui/qt/front_end.h"

namespace kestrel::testing {

class StillClock final : public Clock {
 public:
  int SecondsOfDay() override { return now; }
  int now = 12 * 3600;
};

inline constexpr int kPatience = 20000;  // milliseconds; a busy machine is no failure

class QtGame {
 public:
  static constexpr int kNotStarted = -1;

  // Starts the game; with a level, 1..5, puzzle 1 of that level is open.
  explicit QtGame(int level = 0);

  // Lets everything happen that is due.
  void Settle();
  // Lets the program run until something holds; false when it does not within that many milliseconds.
  bool WaitFor(const std::function<bool()>& what, int milliseconds = kPatience);

  // What is to be done with the next dialog or box that opens; one that nobody expects fails the test.
  void Expect(std::function<void(QWidget&)> action);
  // The next one is a message box with this title; presses the button of that caption.
  void ExpectBox(const QString& title, const QString& button);
  [[nodiscard]] std::size_t StillExpected() const { return expected_.size(); }

  // Mouse, at points of the main window in its own pixels.
  void Press(QPoint point, Qt::MouseButton button = Qt::LeftButton);
  void Release(QPoint point, Qt::MouseButton button = Qt::LeftButton);
  void Click(QPoint point, Qt::MouseButton button = Qt::LeftButton);
  void ClickControl(std::string_view name);  // "CommandNew", "OptionType(3)"
  void ClickMark(int cell, int digit, Qt::MouseButton button = Qt::LeftButton);

  // The top-left pixel of a mark or header.
  static QPoint Corner(const Control& control);
  QWidget* Widget(std::string_view name);
  // An object of that name that stands for a control towards assistive tools, on the board or elsewhere.
  QObject* Object(std::string_view name);

  // The first cell without a digit, and its solution.
  int EmptyCell();
  int SolutionOf(int cell) { return State().play.puzzle.SolutionDigits[cell]; }
  // "Mark4(7)": the mark that is right for that cell.
  std::string NextMark();

  const Session& State() { return front_end.TheGame().State(); }
  Forms& Controls() { return front_end.TheGame().Controls(); }
  MainWindow& Main() { return Controls().main; }
  FormWindow& Window() { return front_end.Windows().WindowOf(FormId::Main); }

  TempFolder program_folder;
  TempFolder home_folder;
  SystemCalls calls;
  HostFiles files{calls};
  HostFiles host_files{calls, PathForm::kHost};
  SettingsFile settings{files, home_folder.Written("settings.ini")};
  HomeFolders folders{home_folder.Path().string()};
  ProgramPlace program{program_folder.Path().string()};
  StillClock clock;
  FixedSeeds seeds{1};
  FrontEnd front_end{{program, folders, files, host_files, settings, clock, seeds},
                     program_folder.Path("help").string()};

 private:
  void WatchBoxes();
  void ForgetClosedBoxes();

  std::deque<std::function<void(QWidget&)>> expected_;
  std::vector<QPointer<QWidget>> seen_;  // open boxes that an expectation has got
  QTimer watch_;
};

// Where a game has ended outside exec(), Qt refuses new loops until exec() has run.
void AllowLoops();

// Presses a button of a box or dialog by its caption, mnemonic left out.
void PressCaption(QWidget& box, const QString& caption);

}  // namespace kestrel::testing
