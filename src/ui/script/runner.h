// SPDX-License-Identifier: MIT
// Plays a script: each line is what a user does or asks, and the answers and whatever the game does are
// printed. Used by the script program and by tests.
#pragma once

#include <cstdint>
#include <functional>
#include <iosfwd>
#include <string>
#include <string_view>

#include "core/random_source.h"
#include "core/settings_file.h"
#include "game/game.h"
#include "ui/memory/memory_desk.h"
#include "ui/memory/memory_printer.h"
#include "ui/memory/recording_ports.h"
#include "ui/memory/user.h"
#include "ui/script/command_line.h"
#include "ui/script/kept_lines.h"

namespace kestrel {

// What the program returns to the system.
inline constexpr int kStatusGood = 0;   // the script ended, or the game as asked
inline constexpr int kStatusFatal = 1;  // the game ended by its fatal message
inline constexpr int kStatusUsage = 2;  // bad usage, or a line that is no command

// Prints each line at once.
class StreamTranscript final : public Transcript {
 public:
  explicit StreamTranscript(std::ostream& out) : out_(out) {}
  void Line(std::string_view line) override;
  // False once a line could not be written.
  bool Good() const { return out_.good(); }

 private:
  std::ostream& out_;
};

class ScriptRunner final : private InputSource {
 public:
  // All references must outlive this object. `yield` is asked by the game's computations and rounds. The game
  // is played on `stage`; in memory when there is none.
  ScriptRunner(const ScriptOptions& options, Files& files, Yield& yield, std::istream& script,
               std::ostream& out, std::ostream& errors, Stage* stage = nullptr);

  // Starts the game and plays the whole script. Returns the exit status.
  int Run();

  // The game that is played, for whoever looks at it or lets events happen inside its computations.
  [[nodiscard]] Game& PlayedGame() { return game_; }

 private:
  // What a line was.
  enum class LineKind : std::uint8_t {
    Question,  // runs no round
    Event,     // runs a round, and what is left to do after it
    Kept,      // will be carried out inside a later line
    Error      // ends the script
  };
  using Handler = LineKind (ScriptRunner::*)(std::string_view rest);
  struct Command {
    std::string_view word;
    Handler handler;
    bool keepable = false;  // a click or the like, which "at" can keep
  };

  // While the game waits in a box or dialog.
  [[nodiscard]] bool NextAction() override;

  bool ReadLine(std::string& line);
  const Command* FindCommand(std::string_view word) const;
  LineKind Execute(std::string_view line);
  bool CarryOut(const std::string& line, int line_number);
  LineKind Fail(const std::string& reason);
  LineKind Report(std::string_view name, Reach reach);
  void RunRounds();
  void FinishWork();

  // Events
  LineKind Press(std::string_view rest);
  LineKind Release(std::string_view rest);
  LineKind Mark(std::string_view rest);
  LineKind Row(std::string_view rest);
  LineKind Column(std::string_view rest);
  LineKind Select(std::string_view rest);
  LineKind DoubleClick(std::string_view rest);
  LineKind Type(std::string_view rest);
  LineKind Clear(std::string_view rest);
  LineKind PressKey(std::string_view rest);
  LineKind Leave(std::string_view rest);
  LineKind Answer(std::string_view rest);
  LineKind Cancel(std::string_view rest);
  LineKind MainWindowState(std::string_view rest);
  LineKind Dialog(std::string_view rest);
  LineKind SetClock(std::string_view rest);
  LineKind Tick(std::string_view rest);
  LineKind Rounds(std::string_view rest);
  LineKind Renew(std::string_view rest);
  LineKind At(std::string_view rest);

  // Questions
  LineKind Get(std::string_view rest);
  LineKind Var(std::string_view rest);
  LineKind Board(std::string_view rest);
  LineKind Givens(std::string_view rest);
  LineKind Solution(std::string_view rest);
  LineKind Pencil(std::string_view rest);
  LineKind Steps(std::string_view rest);
  LineKind Record(std::string_view rest);
  LineKind Echo(std::string_view rest);

  LineKind PickLine(std::string_view rest, Reach (User::*pick)(std::string_view, int));
  LineKind Header(std::string_view array, std::string_view rest);

  std::istream& script_;
  std::ostream& errors_;
  StreamTranscript transcript_;
  int lines_read_ = 0;
  int line_number_ = 0;  // of the line that is being worked off
  int depth_ = 0;        // lines that are being worked off, one inside the other
  bool failed_ = false;

  ProgramPlace program_;
  MemoryFolders folders_;
  RecordingFiles files_;
  SettingsFile settings_file_;
  RecordingSettings settings_;
  MemoryClock clock_;
  FixedSeeds seeds_;
  MemoryDesk desk_;
  Stage& stage_;
  RecordingStage windows_;
  MemorySound sound_;
  MemoryShell shell_;
  MemoryPrinter printer_;
  KeptLines kept_lines_;
  Game game_;
  User user_;
};

}  // namespace kestrel
