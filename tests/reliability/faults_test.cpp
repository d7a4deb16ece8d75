// SPDX-License-Identifier: MIT
// The game on files that fail, and killed: at each system call in turn, and the real
// program at random moments; and several real programs at once. KESTREL_LONG=1 takes every call, not a share
// of them; KESTREL_KILLS says how often the program is killed, KESTREL_SEED at which moments.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <fstream>
#include <map>
#include <thread>

#include "core/random_source.h"
#include "course.h"
#include "support/faulty_calls.h"
#include "ui/script/runner.h"

namespace kestrel::testing {
namespace {

using std::chrono::steady_clock;

const std::string kRenewing = "press RenewLevel(1)\nanswer OK\nrenew 100000\n";
const std::string kAnn(kAnnPlays);
const std::string kPlaying = kAnn + SolveLines(1, 2);

int NumberFrom(const char* variable, int otherwise) {
  const char* text = std::getenv(variable);
  return text == nullptr ? otherwise : std::atoi(text);
}

// Calls try_call(n) for system calls n of the course. A renewal takes a while and touches the files at its
// end only; the calls before that are those of any start.
template <class Try>
void AtCalls(const Course& course, int step, Try try_call) {
  constexpr int kCallsOfAWrite = 25;
  int tried = 0;
  if (NumberFrom("KESTREL_LONG", 0) != 0) step = 1;
  for (int n = course.stocks.size() > 2 ? 1 : course.calls - kCallsOfAWrite; n <= course.calls; n += step) {
    SCOPED_TRACE(::testing::Message() << "call " << n << " of " << course.calls);
    GameHome home;
    const std::string output = try_call(n, home);
    ExpectNothingLost(home, course, output);
    if (::testing::Test::HasFailure()) FAIL() << output;
    ++tried;
  }
  std::cout << tried << " of " << course.calls << " calls\n";
}

void FailAtCalls(const Course& course, int step, int error, bool for_good) {
  AtCalls(course, step, [&](int n, GameHome& home) {
    FaultyCalls calls;
    calls.FailAt(n, for_good, error);
    const Played played = PlayOn(home, calls, course.script);
    EXPECT_EQ(played.Count("stock failed"), played.Count("message \"File Error\" \"Error writing"));
    EXPECT_EQ(played.Count("message \"Critical Error!\""), played.status) << strerror(error);
    return played.output;
  });
}

// The steps are prime to each other, so that each error meets other calls.
TEST(Faults, AnyCallMayFailOnceOrForGood) {
  const Course playing(kPlaying), renewing(kRenewing);
  for (const bool for_good : {false, true}) {
    for (const auto& [step, error] :
         {std::pair{7, EIO}, {23, EACCES}, {29, ENOSPC}, {31, EROFS}, {37, ENOENT}, {43, EDQUOT}}) {
      FailAtCalls(playing, step, error, for_good);
    }
    FailAtCalls(renewing, 5, ENOSPC, for_good);
    FailAtCalls(renewing, 9, EROFS, for_good);
  }
}

TEST(Kills, AtAnyCall) {
  for (const auto& [script, step] : {std::pair{&kPlaying, 5}, {&kRenewing, 9}}) {
    const Course course(*script);
    AtCalls(course, step, [&](int n, GameHome& home) {
      const std::string file = home.program.Path("output");
      const int status = InAChild([&] {
        FaultyCalls calls;
        calls.KillAt(n);
        HostFiles files(calls);
        NeverStop yield;
        std::istringstream lines(course.script);
        std::ofstream output(file);
        return ScriptRunner(home.options, files, yield, lines, output, output).Run();
      });
      EXPECT_EQ(status, FaultyCalls::kKilled);
      return home.program.Get("output");
    });
  }
}

// Starts the real program on the script; its output goes to a file of the program folder.
pid_t Start(const GameHome& home, const std::string& lines, const std::string& output_name = "output") {
  const std::string output = home.program.Path(output_name), script = output + ".script";
  home.program.Put(output_name + ".script", lines);
  const pid_t program = fork();
  if (program != 0) return program;
  dup2(open(output.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600), STDOUT_FILENO);
  execl(KESTREL_SCRIPT_PROGRAM, "kestrel-sudoku-script", "--home", home.options.home.c_str(), "--program",
        home.options.program.c_str(), script.c_str(), nullptr);
  _exit(3);
}

void KillTheProgram(const Course& course, int kills) {
  RandomSource random(static_cast<std::uint64_t>(NumberFrom("KESTREL_SEED", 1)));
  std::map<int, int> writes;  // how many of the killed had written the stock so often
  steady_clock::duration whole{};
  for (int killed = 0, tries = 0; killed < kills && !::testing::Test::HasFailure(); ++tries) {
    ASSERT_LT(tries, 5 * kills + 10) << "the program is too fast";
    GameHome home;
    const auto start = steady_clock::now();
    const pid_t program = Start(home, course.script);
    if (tries > 0) {  // the first run shows how long it takes
      std::this_thread::sleep_for(whole * random.Next());
      kill(program, SIGKILL);  // its own number still, for it was not waited for
    }
    int status = 0;
    ASSERT_EQ(waitpid(program, &status, 0), program);
    ASSERT_TRUE(WIFSIGNALED(status) || WEXITSTATUS(status) == 0) << status;
    if (tries == 0) whole = steady_clock::now() - start;
    const Played played{home.program.Get("output"), "", 0};
    if (WIFSIGNALED(status)) ++writes[played.Count("stock written")];
    killed += WIFSIGNALED(status) ? 1 : 0;
    SCOPED_TRACE(played.output);
    ExpectNothingLost(home, course, played.output);
  }
  std::cout << kills << " kills, after so many writes of the stock:";
  for (const auto& [count, runs] : writes) std::cout << ' ' << count << " (" << runs << ')';
  std::cout << '\n';
}

TEST(Kills, AtRandomMoments) {
  const int share = NumberFrom("KESTREL_KILLS", 60) / 6;
  KillTheProgram(Course(kAnn + SolveLines(1, 20)), 3 * share);
  KillTheProgram(Course(kRenewing), share);
  KillTheProgram(Course(kAnn + "press RenewLevel(1)\nanswer OK\n" + SolveLines(1, 4) + "renew 100000\n" +
                        SolveLines(5, 2)),
                 2 * share);
}

// Two players at one level, and a third program that renews another, all with the same files.
TEST(Copies, KeepEachOthersBestTimesAndLevels) {
  GameHome home;
  home.Play(kAnn);
  std::filesystem::remove(home.home.Path("KestrelSudoku/sudstock.kpz"));
  const std::vector programs{Start(home, SolveLines(1, 20), "1"), Start(home, SolveLines(21, 20), "2"),
                             Start(home, kRenewing, "3")};
  for (const pid_t program : programs) {
    int status = -1;
    waitpid(program, &status, 0);
    EXPECT_EQ(status, 0);
  }
  const StockTable stock = home.Stock();
  for (int number = 1; number <= 40; ++number) {
    EXPECT_EQ(BestTime(stock(2, number)), 10 + number);
    EXPECT_EQ(stock(1, number).Reserved2, 0) << "still an old puzzle";
  }
}

}  // namespace
}  // namespace kestrel::testing
