// SPDX-License-Identifier: MIT
// The programs as they are called: same input, same output; bad input changes nothing.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>

#include "explain/clarity.h"
#include "explain/technique_words.h"
#include "help/site_files.h"

namespace kestrel::help {
namespace {

namespace fs = std::filesystem;

class Programs : public testing::Test {
 protected:
  void SetUp() override {
    folder_ = fs::temp_directory_path() / ("kestrel-programs-" + std::to_string(std::rand()) +
                                           testing::UnitTest::GetInstance()->current_test_info()->name());
    fs::remove_all(folder_);
    fs::create_directories(folder_);
  }
  void TearDown() override { fs::remove_all(folder_); }

  // The exit status of a program of the build.
  [[nodiscard]] int Run(const std::string& program, const std::string& arguments) const {
    const std::string line = std::string(KESTREL_BIN_DIR) + '/' + program + ' ' + arguments + " >" +
                             (folder_ / "output").string() + " 2>&1";
    return std::system(line.c_str()) / 256;
  }
  [[nodiscard]] std::string Path(const char* name) const { return (folder_ / name).string(); }

  fs::path folder_;
};

std::map<std::string, double> Clarities(const std::string& path) {
  std::map<std::string, double> clarities;
  const ExampleFile file = ReadExamples(FileText(path));
  EXPECT_EQ(file.error, "");
  for (const Example& example : file.examples) {
    clarities[example.key] = Clarity(example.Position(), example.finding);
  }
  return clarities;
}

TEST_F(Programs, ExamplesAreRepeatableAndOnlyGetBetter) {
  ASSERT_EQ(Run("find-examples", Path("a") + " --seed 3 --puzzles 150"), 0);
  ASSERT_EQ(Run("find-examples", Path("b") + " --puzzles 150 --seed 3"), 0);
  EXPECT_EQ(FileText(Path("a")), FileText(Path("b")));
  const auto before = Clarities(Path("a"));
  EXPECT_GT(before.size(), 10U);
  ASSERT_EQ(Run("find-examples", Path("a") + " --seed 4 --puzzles 150"), 0);
  const auto after = Clarities(Path("a"));
  EXPECT_GE(after.size(), before.size());
  int better = 0;
  double sum = 0;  // of examples that were found good by looking at them
  for (const auto& each : before) sum += each.second;
  EXPECT_NEAR(sum, -86.02, 0.01);
  for (const auto& [key, clarity] : before) {
    ASSERT_EQ(after.count(key), 1U) << key;
    EXPECT_GE(after.at(key), clarity) << key;
    better += after.at(key) > clarity ? 1 : 0;
  }
  EXPECT_GT(better, 0);
}

// Where an earlier removal, not a digit, keeps a cell free of the digit, that counts as much as two removals.
TEST(Clarities, CountAgainstHiddenReasons) {
  Example example =
      *ReadExamples(FileText(KESTREL_SOURCE_DIR "/data/examples.txt")).Find("hidden_single-box");
  const double clear = Clarity(example.Position(), example.finding);
  const int hidden = 74;  // the 2 in J3, by which column 3 has its own
  example.marks[hidden] = static_cast<CandidateMask>(DigitBit(2) | DigitBit(4));
  example.digits[hidden] = 0;
  EXPECT_NEAR(clear - Clarity(example.Position(), example.finding), 10.62, 0.01);
}

TEST_F(Programs, BadInputIsRefusedAndLeftAlone) {
  std::ofstream(Path("broken")) << "example x\nrow B\n";
  EXPECT_EQ(Run("find-examples", Path("broken") + " --puzzles 1"), 1);
  EXPECT_EQ(FileText(Path("broken")), "example x\nrow B\n");
  EXPECT_NE(FileText(Path("output")).find("line 2"), std::string::npos);
  EXPECT_EQ(Run("make-help", Path("nowhere")), 1);
  EXPECT_FALSE(fs::exists(Path("nowhere")));
  EXPECT_EQ(Run("make-sounds", Path("nowhere")), 1);
}

}  // namespace
}  // namespace kestrel::help
