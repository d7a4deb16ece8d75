// SPDX-License-Identifier: MIT
// The real program, killed at random moments. KESTREL_KILLS says how often (each of the three ways to play
// gets a third), KESTREL_SEED with which random numbers.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <thread>

#include "core/random_source.h"
#include "course.h"

namespace kestrel::testing {
namespace {

using std::chrono::steady_clock;

int NumberFrom(const char* variable, int fallback) {
  const char* text = std::getenv(variable);
  return text == nullptr ? fallback : std::atoi(text);
}

// The program, playing "script" in the program folder and printing into "output" there.
class Running {
 public:
  explicit Running(const GameHome& home) {
    const std::string script = home.program.Path("script"), output = home.program.Path("output");
    std::vector<std::string> words{KESTREL_SCRIPT_PROGRAM, "--home", home.options.home, "--program",
                                   home.options.program,   script};
    std::vector<char*> arguments;
    for (std::string& word : words) arguments.push_back(word.data());
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, output.c_str(), O_WRONLY | O_CREAT | O_TRUNC,
                                     0600);
    EXPECT_EQ(posix_spawn(&pid_, arguments[0], &actions, nullptr, arguments.data(), environ), 0);
    posix_spawn_file_actions_destroy(&actions);
  }

  // Kills it; false when it had ended before.
  bool Kill() const {
    kill(pid_, SIGKILL);  // not yet waited for, so the number is still its own
    return WIFSIGNALED(Wait());
  }

  int Wait() const {
    int status = -1;
    EXPECT_EQ(waitpid(pid_, &status, 0), pid_);
    return status;
  }

 private:
  pid_t pid_ = 0;
};

void KillTheProgram(const Course& course, int kills) {
  const int seed = NumberFrom("KESTREL_SEED", 1);
  RandomSource random(static_cast<std::uint64_t>(seed));
  std::map<std::size_t, int> writes;  // how many of the killed had written the stock so often
  steady_clock::duration whole{};
  for (int killed = 0, tries = 0; killed < kills; ++tries) {
    SCOPED_TRACE(::testing::Message() << "try " << tries << ", KESTREL_SEED=" << seed);
    ASSERT_LT(tries, 5 * kills + 10) << "the program was too fast";
    GameHome home;
    home.program.Put("script", course.answered);
    const auto start = steady_clock::now();
    const Running program(home);
    if (whole == steady_clock::duration()) {
      ASSERT_EQ(program.Wait(), 0);  // the first run shows how long it takes
      whole = steady_clock::now() - start;
    } else {
      std::this_thread::sleep_for(whole * random.Next());
      if (!program.Kill())
        whole = whole * 9 / 10;
      else
        ++killed;
    }
    const std::string output = home.program.Get("output");
    ExpectNothingLost(home, course, output);
    ++writes[static_cast<std::size_t>(Played{output, "", 0}.Count("stock written"))];
    if (::testing::Test::HasFailure()) FAIL() << output;
  }
  std::cout << kills << " kills, after so many writes of the stock:";
  for (const auto& [count, runs] : writes) std::cout << ' ' << count << " (" << runs << ')';
  std::cout << '\n';
}

int Share() {
  return NumberFrom("KESTREL_KILLS", 60) / 3;
}

TEST(Kills, DuringPlay) {
  KillTheProgram(Rehearse(std::string(kAnnPlays) + SolveLines(1, 20)), Share());
}

TEST(Kills, DuringARenewal) {
  KillTheProgram(Rehearse("press RenewLevel(1)\nrenew 100000\n"), Share() / 2);
}

TEST(Kills, DuringPlayWhileALevelIsRenewed) {
  KillTheProgram(Rehearse(std::string(kAnnPlays) + "press RenewLevel(1)\n" + SolveLines(1, 4) +
                          "renew 100000\n" + SolveLines(5, 2)),
                 Share());
}

}  // namespace
}  // namespace kestrel::testing
