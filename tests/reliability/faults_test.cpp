// SPDX-License-Identifier: MIT
// The whole game on files that fail: each system call in turn fails, once or from then on, or ends the
// process.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>
#include <sstream>

#include "course.h"
#include "support/faulty_calls.h"

namespace kestrel::testing {
namespace {

const Course& Playing() {
  static const Course course = Rehearse(std::string(kAnnPlays) + SolveLines(1, 2));
  return course;
}

const Course& Renewing() {
  static const Course course = Rehearse("press RenewLevel(1)\nrenew 100000\n");
  return course;
}

// A renewal takes a while and touches the files only at its end; the calls before that are those of any
// start.
constexpr int kCallsOfAWrite = 25;
int FirstCall(const Course& course) {
  return &course == &Playing() ? 1 : course.calls - kCallsOfAWrite;
}

// Of the short form's steps, which are prime to each other, each meets other calls.
void FailAtCalls(const Course& course, int step, int error, bool for_good) {
  int tried = 0;
  for (int n = FirstCall(course); n <= course.calls; n += LongForm() ? 1 : step, ++tried) {
    SCOPED_TRACE(::testing::Message()
                 << "call " << n << ", error " << error << (for_good ? " for good" : ""));
    GameHome home;
    FaultyCalls calls;
    calls.FailAt(n, for_good, error);
    std::ostringstream out;
    const int status = PlayOn(home, calls, course, out);
    const Played played{out.str(), "", status};
    EXPECT_EQ(played.Count("stock failed"), played.Count("message \"File Error\" \"Error writing"));
    EXPECT_EQ(played.Count("message \"Critical Error!\""), status);
    ExpectNothingLost(home, course, played.output);
    if (::testing::Test::HasFailure()) FAIL() << played.output;
  }
  std::cout << course.calls << " calls, " << tried << " failed\n";
}

TEST(Reliability, AnyFileOperationMayFailOnce) {
  FailAtCalls(Playing(), 5, EIO, false);
  FailAtCalls(Playing(), 23, EACCES, false);
  FailAtCalls(Renewing(), 5, ENOSPC, false);
}

TEST(Reliability, FileOperationsMayFailForGood) {
  FailAtCalls(Playing(), 7, EIO, true);
  FailAtCalls(Playing(), 29, ENOSPC, true);
  FailAtCalls(Playing(), 31, EROFS, true);
  FailAtCalls(Playing(), 37, ENOENT, true);
  FailAtCalls(Playing(), 41, EACCES, true);
  FailAtCalls(Renewing(), 9, EROFS, true);
}

TEST(Reliability, TheGameMayBeKilledAtAnyCall) {
  for (const Course* course : {&Playing(), &Renewing()}) {
    const int step = LongForm() ? 1 : (course == &Playing() ? 5 : 9);
    for (int n = FirstCall(*course); n <= course->calls; n += step) {
      SCOPED_TRACE(::testing::Message() << "call " << n << " of " << course->calls);
      GameHome home;
      const std::string output = home.program.Path("output").string();
      const pid_t child = fork();
      if (child == 0) {
        FaultyCalls calls;
        calls.KillAt(n);
        std::ofstream out(output);
        PlayOn(home, calls, *course, out);
        _exit(0);
      }
      int status = 0;
      ASSERT_EQ(waitpid(child, &status, 0), child);
      ASSERT_EQ(WEXITSTATUS(status), FaultyCalls::kKilled);
      ExpectNothingLost(home, *course, home.program.Get("output"));
      if (HasFailure()) FAIL() << home.program.Get("output");
    }
  }
}

}  // namespace
}  // namespace kestrel::testing
