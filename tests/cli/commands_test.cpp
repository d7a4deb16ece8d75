// SPDX-License-Identifier: MIT
// The command line as a whole: arguments, input lines, and what rate, solve and generate write.
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <set>

#include "cli/cli_run.h"
#include "cli/puzzle_reader.h"
#include "core/text.h"
#include "explain/walkthrough.h"
#include "support/plain_solver.h"
#include "support/temp_folder.h"
#include "support/test_puzzles.h"

namespace kestrel {
namespace {

// Puzzles of all kinds, and some that contradict themselves, one a line.
std::string ManyPuzzles(int count, std::uint64_t seed) {
  RandomSource random(seed);
  std::string text;
  for (int i = 0; i < count; ++i) {
    DigitGrid puzzle = testing::MakeTestPuzzle(random);
    if (i % 10 == 9) puzzle[random.Below(81)] = static_cast<std::uint8_t>(random.Below(10));
    text += GridText(puzzle) + '\n';
  }
  return text;
}

// Level, score, counts, grid, trace and number of steps, against the plain solver of the tests.
TEST(RateAndSolve, AgreeWithThePlainSolver) {
  const std::string input = ManyPuzzles(300, 11);
  const std::vector<std::string> rated = Lines(RunWith({"rate", "--solutions", "--jobs", "2"}, input).out);
  const std::vector<std::string> traces = Lines(RunWith({"solve", "--trace"}, input).out);
  const std::vector<std::string> steps = Lines(RunWith({"solve", "--steps", "--jobs=1"}, input).out);
  EXPECT_EQ(rated[0],
            "puzzle\tlevel\tscore\tHS\tNS\tPP\tBL\tN2\tN3\tH2\tN4\tH3\tN5\tXW\tYW\tTS\tSS\tSF\tMX\tFX\tUR\tAR"
            "\tZW\tER\tJF\tgrid\tsolutions");
  ASSERT_TRUE(rated.size() == 301 && traces.size() == 300);
  constexpr std::array<int, kTechniques> kCounters{0,  1,  2,  3,  4,  5,  6,  7,  8,  9,  10,
                                                   11, 14, 15, 12, 13, 16, 17, 18, 19, 21, 20};
  std::set<std::string> levels;
  std::size_t next = 0;
  for (std::size_t i = 0; i < traces.size(); ++i) {
    const std::string puzzle = Lines(input)[i];
    std::array<int, 81> givens{};
    for (std::size_t cell = 0; cell < 81; ++cell) givens[cell] = puzzle[cell] - '0';
    plain::PlainSolver solver;
    const int level = solver.SolveAndRate(givens);
    const int score = level == 6 ? 0 : plain::PlainSolver::Score(level, solver.TechniqueCounters);
    std::string line = puzzle + '\t' + std::to_string(level) + '\t' + std::to_string(score);
    for (const int counter : kCounters) line += '\t' + std::to_string(solver.TechniqueCounters[counter]);
    line += '\t';
    for (const int digit : solver.CellValue) line += static_cast<char>('0' + digit);
    const int solutions = testing::CountSolutions(testing::GridFromText(puzzle), 2);
    EXPECT_EQ(rated[i + 1], line + '\t' + std::to_string(solutions));
    levels.insert(std::to_string(level) + "/" + std::to_string(solutions));

    std::string trace;
    for (const Technique technique : solver.Steps) {
      trace += (trace.empty() ? "" : " ") + std::to_string(StepOf(technique));
    }
    EXPECT_EQ(traces[i], trace);
    EXPECT_EQ(steps[next], "Puzzle " + puzzle);
    next += 1 + solver.Steps.size();
    EXPECT_EQ(steps[next].starts_with("Solved in " + std::to_string(solver.Steps.size()) + " step"),
              level < 6);
    next += 3;
  }
  EXPECT_TRUE(levels.contains("1/1") && levels.contains("6/0")) << levels.size();
}

// A sentence for every form of every technique, each from the solution of a puzzle. Read them when you change
// them: `solve --steps` gives the new ones.
TEST(Solve, SaysEveryStepInWords) {
  std::ifstream file(KESTREL_SOURCE_DIR "/tests/cli/sentences.txt");
  int sentences = 0;
  for (std::string line; std::getline(file, line); ++sentences) {
    const CliResult solved = RunWith({"solve", "--steps", "--jobs", "1"}, line);
    EXPECT_NE(solved.out.find(Fields(line)[1] + "\n"), std::string::npos) << line;
  }
  EXPECT_EQ(sentences, 48);
}

// Every stored puzzle's page tells of the steps of the trace in their order, and nothing that it removes or places
// goes against the solution.
TEST(Explain, TellsTheStepsOfTheTraceAndKeepsToTheSolution) {
  std::ifstream file(KESTREL_SOURCE_DIR "/data/sudstock.kpz", std::ios::binary);
  NeverStop yield;
  std::vector<std::uint8_t> bytes(kRecordBytes);
  int puzzles = 0;
  for (; file.read(reinterpret_cast<char*>(bytes.data()), kRecordBytes); ++puzzles) {
    const SudokuRecord record = DecodeRecord(std::span(bytes).first<kRecordBytes>());
    const std::string puzzle = GridText(record.GivenCells) + '\n';
    const std::optional<Walkthrough> walkthrough = ExplainPuzzle(record.GivenCells, yield);
    for (const Example& step : walkthrough->steps) {
      const Finding& f = step.finding;
      for (const Removal& r : f.removals)
        EXPECT_FALSE(HasDigit(r.digits, record.SolutionCells[r.cell])) << puzzle;
      if (f.placed_cell >= 0) {
        EXPECT_EQ(f.placed_digit, record.SolutionCells[f.placed_cell]) << puzzle;
      }
    }
    const std::string page =
        RunWith({"explain", "--steps", puzzles % 2 == 0 ? "all" : "gathered"}, puzzle).out;
    std::istringstream trace(RunWith({"solve", "--trace"}, puzzle).out);
    std::size_t at = 0;
    int count = 0;
    for (int step = 0; trace >> step;) {
      std::string start = "id=\"step-" + std::to_string(++count) + "\"><b>";
      at = page.find(start.append(RowOf(TechniqueOfStep(step)).caption), at);
      ASSERT_NE(at, std::string::npos) << puzzle << count;
    }
    EXPECT_EQ(page.find("id=\"step-" + std::to_string(count + 1)), std::string::npos);
    EXPECT_TRUE(page.find("http://") == page.find("http://www.w3.org/2000/svg") &&
                page.find("<script") == std::string::npos);
  }
  EXPECT_EQ(puzzles, 500);
}

TEST(Generate, SameSeedSamePuzzlesWhateverTheJobs) {
  const CliResult one = RunWith({"generate", "--count", "60", "--seed", "12", "--jobs", "1"});
  EXPECT_EQ(one.err, "");
  EXPECT_EQ(RunWith({"generate", "--count", "60", "--seed", "12", "--jobs", "4"}).out, one.out);
  EXPECT_NE(RunWith({"generate", "--count", "60", "--seed", "13"}).out, one.out);
  std::string of_level;
  std::string puzzles;
  for (const std::string& line : Lines(one.out)) {
    const std::vector<std::string> fields = Fields(line);
    ASSERT_EQ(fields.size(), 4U);
    DigitGrid solution{};
    EXPECT_EQ(testing::CountSolutions(testing::GridFromText(fields[0]), 2, &solution), 1);
    EXPECT_EQ(GridText(solution), fields[1]);
    if (fields[2] == "2") of_level += line + '\n';
    puzzles += line + '\n';
  }
  // What generate says of a puzzle is what rate says of it; rate passes over the rest of the line.
  const std::vector<std::string> rated = Lines(RunWith({"rate"}, puzzles).out);
  ASSERT_EQ(rated.size(), 61U);
  for (std::size_t i = 1; i < rated.size(); ++i) {
    const std::vector<std::string> made = Fields(Lines(one.out)[i - 1]);
    EXPECT_TRUE(rated[i].starts_with(made[0] + '\t' + made[2] + '\t' + made[3] + '\t'));
  }
  // With a level the same puzzles are made and the others left out.
  const std::string count = std::to_string(Lines(of_level).size());
  ASSERT_NE(count, "0");
  EXPECT_EQ(RunWith({"generate", "--count", count, "--level", "2", "--seed", "12", "--jobs", "3"}).out,
            of_level);
}

// All parts in order are the whole run, whatever their number.
TEST(Shards, JoinToTheWhole) {
  TempFolder folder;
  folder.Put("puzzles", ManyPuzzles(50, 6) + "bad\n" + ManyPuzzles(9, 7));
  const std::vector<std::vector<std::string>> commands{
      {"rate", folder.Path("puzzles")},
      {"convert", "--to", "opensudoku", folder.Path("puzzles")},
      {"generate", "--seed", "3", "--count", "50", "--format", "csv"},
      {"generate", "--seed", "3", "--attempts", "200", "--level", "3"}};
  for (const std::vector<std::string>& command : commands) {
    const CliResult whole = RunWith(command);
    EXPECT_GE(Lines(whole.out).size(), 3U);
    for (const int of : {1, 2, 7, 90}) {
      CliResult joined;
      for (int part = 1; part <= of; ++part) {
        std::vector<std::string> words = command;
        words.insert(words.end(), {"--shard", std::to_string(part) + "/" + std::to_string(of)});
        const CliResult result = RunWith(words);
        joined.out += result.out;
        joined.err += result.err;
      }
      EXPECT_EQ(joined.out, whole.out) << command[0] << of;
      EXPECT_EQ(joined.err, whole.err);
    }
  }
}

// Whatever a killed run left behind its last note is made again.
TEST(Generate, GoesOnWhereItStopped) {
  TempFolder folder;
  const std::string file = folder.Path("out");
  const std::vector<std::string> words{"generate", "--seed",   "3",        "--count", "90",
                                       "--level",  "4",        "--format", "ss",      "--jobs",
                                       "1",        "--output", file,       "--resume"};
  const std::string whole =
      RunWith({"generate", "--seed", "3", "--count", "90", "--level", "4", "--format", "ss"}).out;
  for (const std::string& note : {std::string("0 0 0"), std::string("1000000 1 9999999")}) {
    folder.Put("out.part", "rubbish");
    folder.Put(
        "out.resume",
        "generate seed 3 attempts 0 to 18446744073709551615 level 4 most 90 format ss shard 1/1\n" + note);
    EXPECT_EQ(RunWith(words).status, 0);
    EXPECT_EQ(folder.Get("out"), whole);
    std::filesystem::remove(file);
  }
  // Killed at many moments; what it had not told of is damaged.
  for (int n = 1; !std::filesystem::exists(file); ++n) {
    if (const pid_t child = fork(); child == 0) {
      rlimit limit{.rlim_cur = static_cast<rlim_t>(n) * 977, .rlim_max = RLIM_INFINITY};
      setrlimit(RLIMIT_FSIZE, &limit);  // a write that reaches this length ends the process
      _exit(RunWith(words).status);
    } else {
      waitpid(child, nullptr, 0);
    }
  }
  EXPECT_EQ(folder.Get("out"), whole);
  EXPECT_EQ(folder.Count(), 1);
  EXPECT_EQ(RunWith(words).status, 0);  // complete: nothing is done
  std::filesystem::remove(file);
  folder.Put("out.part", "of a run");
  folder.Put("out.resume", "with other options");
  EXPECT_EQ(RunWith(words).status, 2);
  EXPECT_EQ(folder.Get("out.part"), "of a run");
}

}  // namespace
}  // namespace kestrel
