// SPDX-License-Identifier: MIT
#include "course.h"

#include <cstdlib>
#include <istream>
#include <sstream>
#include <streambuf>

#include "core/settings_file.h"
#include "support/faulty_calls.h"
#include "ui/memory/transcript.h"
#include "ui/script/runner.h"

namespace kestrel::testing {

namespace {

// Hands a script over line by line, looking before each at what the game printed last.
class Feed final : public std::streambuf {
 public:
  Feed(std::string_view script, std::function<bool()> in_message)
      : script_(script), in_message_(std::move(in_message)) {}
  std::string Given() const { return given_; }

 protected:
  int_type underflow() override {
    if (in_message_()) {
      line_ = "answer OK\n";
    } else {
      line_ = script_.substr(0, script_.find('\n') + 1);
      script_.remove_prefix(line_.size());
    }
    given_ += line_;
    setg(line_.data(), line_.data(), line_.data() + line_.size());
    return line_.empty() ? traits_type::eof() : traits_type::to_int_type(line_[0]);
  }

 private:
  std::string_view script_;
  std::function<bool()> in_message_;
  std::string line_;
  std::string given_;
};

// Passes everything on and remembers how the last line began.
class Tee final : public std::streambuf {
 public:
  explicit Tee(std::ostream& out) : out_(out) {}
  // Whether the last line, not yet asked for, tells of a message box.
  bool InMessage() {
    const bool is_message = last_.starts_with("message ");
    last_.clear();
    return is_message;
  }

 protected:
  int_type overflow(int_type c) override {
    if (ended_) last_.clear();
    ended_ = c == '\n';
    if (last_.size() < 10) last_ += traits_type::to_char_type(c);
    out_.put(traits_type::to_char_type(c));
    return c;
  }
  int sync() override { return out_.flush() ? 0 : -1; }

 private:
  std::ostream& out_;
  std::string last_;
  bool ended_ = false;
};

int PlayFed(const GameHome& home, SystemCalls& calls, std::string_view script, std::ostream& out,
            const std::function<void()>& before_line, std::string* given) {
  HostFiles files(calls);
  NeverStop yield;
  Tee tee(out);
  Feed feed(script, [&] {
    before_line();
    return tee.InMessage();
  });
  std::istream lines(&feed);
  std::ostream printed(&tee);
  std::ostringstream errors;
  const int status = ScriptRunner(home.options, files, yield, lines, printed, errors).Run();
  EXPECT_EQ(errors.str(), "");
  if (given != nullptr) *given = feed.Given();
  return status;
}

std::vector<std::string> LinesOf(const std::string& text, std::string_view start) {
  std::vector<std::string> found;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with(start)) found.push_back(line.substr(start.size()));
  }
  return found;
}

// "SECTION KEY VALUE" as key and value.
std::pair<std::string, std::string> SettingOf(const std::string& line) {
  const std::size_t blank = line.find(' ', line.find(' ') + 1);
  return {line.substr(0, blank), line.substr(blank + 1)};
}

void ExpectSettings(const GameHome& home, const Course& course, const std::string& output) {
  const SettingsText settings(home.home.Get("settings.ini"));
  std::set<std::string> stored;
  for (const std::string& line : LinesOf(output, "setting ")) stored.insert(SettingOf(line).first);
  for (const auto& [name, values] : course.settings) {
    const std::size_t blank = name.find(' ');
    const auto value = settings.Find(name.substr(0, blank), name.substr(blank + 1));
    EXPECT_TRUE(value || !stored.contains(name)) << name;
    EXPECT_TRUE(!value || values.contains(JsonString(*value))) << name;
  }
}

}  // namespace

Course Rehearse(std::string_view script) {
  GameHome home;
  Course course;
  course.script = script;
  FaultyCalls calls;
  std::ostringstream out;
  const auto look = [&] {
    if (course.stocks.empty() || home.StockBytes() != course.stocks.back())
      course.stocks.push_back(home.StockBytes());
  };
  EXPECT_EQ(PlayFed(home, calls, script, out, look, &course.answered), 0);
  course.calls = calls.Count();
  EXPECT_EQ(course.stocks.size(), 1 + LinesOf(out.str(), "stock written").size());
  for (const std::string& line : LinesOf(out.str(), "setting ")) {
    const auto& [name, value] = SettingOf(line);
    course.settings[name].insert(value);
  }
  return course;
}

int PlayOn(const GameHome& home, SystemCalls& calls, const Course& course, std::ostream& out) {
  return PlayFed(
      home, calls, course.script, out, [] {}, nullptr);
}

void ExpectNothingLost(GameHome& home, const Course& course, const std::string& output) {
  std::size_t attempts = 0, written = 0;
  for (const std::string& end : LinesOf(output, "stock ")) {
    ++attempts;
    if (end == "written") written = attempts;
  }
  // A write that failed, or that was under way, may have put the new stock in place as well.
  const std::string stock = home.StockBytes();
  bool is_whole = stock.empty() && attempts == 0 &&
                  !std::filesystem::exists(home.home.Path("KestrelSudoku/sudstock.kpz"));
  for (std::size_t k = written; k <= attempts + 1 && k < course.stocks.size(); ++k) {
    is_whole = is_whole || stock == course.stocks[k];
  }
  EXPECT_TRUE(is_whole) << stock.size();
  ExpectSettings(home, course, output);

  const Played again = home.Play("var StockStatus\n");
  EXPECT_TRUE(again.status == 0 && again.Has("StockStatus = 63") && again.Count("message") == 0)
      << again.output;
  EXPECT_EQ(home.StockBytes(), stock.empty() ? course.stocks[0] : stock);
  for (const auto& entry : std::filesystem::directory_iterator(home.home.Path("KestrelSudoku"))) {
    EXPECT_TRUE(entry.path().filename().string().starts_with("sudstock.kpz")) << entry;
  }
}

bool LongForm() {
  return std::getenv("KESTREL_LONG") != nullptr;
}

std::string SolveLines(int first, int count) {
  std::string lines;
  for (int number = first; number < first + count; ++number) {
    lines += "clock 10:00:00\npress CommandOpen\nanswer " + std::to_string(number) +
             "\nclock 10:00:" + std::to_string(10 + number) + "\ntick\n" + FillIn(2, number);
  }
  return lines;
}

}  // namespace kestrel::testing
