// SPDX-License-Identifier: MIT
// Plays every script in tests/scripts and compares what it prints with the stored transcript. After a wanted
// change, KESTREL_RENEW=1 writes the transcripts anew; look at the difference before committing it.
#include <gtest/gtest.h>

#include <cstdlib>

#include "support/script_files.h"

namespace kestrel::testing {
namespace {

class Transcripts : public ::testing::TestWithParam<std::string> {};

TEST_P(Transcripts, Agree) {
  const RecordedGame recorded(GetParam());
  const std::string report =
      recorded.Play([](GameHome& home, const std::string& run) { return home.Play(run); });
  if (std::getenv("KESTREL_RENEW") != nullptr) recorded.Store(report);
  EXPECT_EQ(report, recorded.Expected());
}

INSTANTIATE_TEST_SUITE_P(All, Transcripts, ::testing::ValuesIn(RecordedGame::Names()),
                         [](const auto& test) { return test.param; });

}  // namespace
}  // namespace kestrel::testing
