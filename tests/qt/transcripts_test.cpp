// SPDX-License-Identifier: MIT
// The recorded games on the real widgets: the transcripts must be those of the in-memory front end, byte for
// byte. What differs is a mistake in the wiring of the window.
#include <gtest/gtest.h>

#include "qt/qt_stage.h"
#include "support/script_files.h"

namespace kestrel::testing {
namespace {

class WindowTranscripts : public ::testing::TestWithParam<std::string> {};

TEST_P(WindowTranscripts, AreThoseOfMemory) {
  const RecordedGame recorded(GetParam());
  const auto play = [](GameHome& home, const std::string& run) {
    QtStage stage;
    return home.Play(run, stage.TheYield(), stage);
  };
  EXPECT_EQ(recorded.Play(play), recorded.Expected());
}

INSTANTIATE_TEST_SUITE_P(All, WindowTranscripts, ::testing::ValuesIn(RecordedGame::Names()),
                         [](const auto& test) { return test.param; });

}  // namespace
}  // namespace kestrel::testing
