// SPDX-License-Identifier: MIT
#include "course.h"

#include <sys/wait.h>
#include <unistd.h>

#include <sstream>

#include "core/settings_file.h"
#include "support/answering_script.h"
#include "support/faulty_calls.h"
#include "ui/memory/json_string.h"
#include "ui/memory/transcript.h"
#include "ui/script/runner.h"

namespace kestrel::testing {

namespace {

// What follows `start` in each line that begins with it.
std::vector<std::string> LinesOf(const std::string& text, std::string_view start) {
  std::vector<std::string> found;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with(start)) found.push_back(line.substr(start.size()));
  }
  return found;
}

}  // namespace

Played PlayOn(const GameHome& home, SystemCalls& calls, std::string_view script,
              const std::function<void()>& look) {
  HostFiles files(calls);
  NeverStop yield;
  std::ostringstream output, errors;
  AnsweringScript answering(script, output, look);
  std::istream lines(&answering);
  const int status = ScriptRunner(home.options, files, yield, lines, output, errors).Run();
  EXPECT_EQ(errors.str(), "");
  return {output.str(), errors.str(), status};
}

Course::Course(std::string_view played) : script(played) {
  GameHome home;
  FaultyCalls faulty;
  const auto look = [&] {
    const std::string stock = home.StockBytes();
    if (stocks.empty() || stock != stocks.back()) stocks.push_back(stock);
  };
  const Played run = PlayOn(home, faulty, script, look);
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.Count("stock written") + 1, static_cast<int>(stocks.size()));
  calls = faulty.Count();
  for (const std::string& line : LinesOf(run.output, "setting ")) settings.insert(line);
}

void ExpectNothingLost(GameHome& home, const Course& course, const std::string& output_of_run) {
  // A kill may leave a line unfinished.
  const std::string output = output_of_run.substr(0, output_of_run.rfind('\n') + 1);
  std::size_t attempts = 0, written = 0;
  for (const std::string& end : LinesOf(output, "stock ")) {
    ++attempts;
    if (end == "written") written = attempts;
  }
  // A write that failed, or that was under way, may have put the new stock in place as well.
  const std::string stock = home.StockBytes();
  const bool exists = std::filesystem::exists(home.home.Path("KestrelSudoku/sudstock.kpz"));
  bool is_whole = !exists && attempts == 0;
  for (std::size_t k = written; k <= attempts + 1 && k < course.stocks.size(); ++k) {
    is_whole = is_whole || stock == course.stocks[k];
  }
  EXPECT_TRUE(is_whole) << stock.size() << " bytes, " << written << " of " << attempts << " times written";
  const SettingsText stored(home.home.Get("settings.ini"));
  for (const std::string& line : LinesOf(output, "setting ")) {
    const std::size_t first = line.find(' '), second = line.find(' ', first + 1);
    const auto value = stored.Find(line.substr(0, first), line.substr(first + 1, second - first - 1));
    EXPECT_TRUE(value && course.settings.contains(line.substr(0, second + 1) + JsonString(*value))) << line;
  }

  const Played again = home.Play("var StockStatus\n");
  EXPECT_TRUE(again.status == 0 && again.Has("StockStatus = 63") && again.Count("message") == 0)
      << again.output;
  EXPECT_EQ(home.StockBytes(), exists ? stock : course.stocks[0]);
  for (const auto& entry : std::filesystem::directory_iterator(home.home.Path("KestrelSudoku"))) {
    EXPECT_TRUE(entry.path().filename().string().starts_with("sudstock.kpz")) << entry;
  }
}

int InAChild(const std::function<int()>& run) {
  const pid_t child = fork();
  if (child == 0) _exit(run());
  int status = -1;
  waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

std::string SolveLines(int first, int count) {
  std::string lines;
  for (int number = first; number < first + count; ++number) {
    lines += "clock 10:00:00\npress CommandOpen\nanswer " + std::to_string(number) +
             "\nclock 10:00:" + std::to_string(10 + number) + "\ntick\n" + FillIn(2, number) + "answer OK\n";
  }
  return lines;
}

}  // namespace kestrel::testing
