// SPDX-License-Identifier: MIT
// The stock commands.
#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>

#include "cli/cli_run.h"
#include "core/stock_file.h"
#include "support/approved.h"
#include "support/faulty_calls.h"
#include "support/temp_folder.h"
#include "support/test_stock.h"

namespace kestrel {
namespace {

void Save(const StockTable& stock, const TempFolder& folder, std::string_view name) {
  const Bytes bytes = EncodeStock(stock);
  folder.Put(name, std::string(bytes.begin(), bytes.end()));
}

TEST(StockNew, IsRepeatableAndVerified) {
  TempFolder folder;
  const std::vector<std::string> words{"stock", "new", "--seed", "5", "--pool", "10000", "--jobs", "1"};
  auto one = words;
  auto two = words;
  one.push_back(folder.Path("one"));
  two.back() = "3";
  two.insert(two.end(), {"--stock", folder.Path("two")});
  const CliResult result = RunWith(one);
  ASSERT_EQ(result.status, 0) << result.err;
  ExpectApproved("cli/new_stock.txt", result.out + RunWith({"stock", "list", folder.Path("one")}).out);
  ASSERT_EQ(RunWith(two).status, 0);
  EXPECT_EQ(folder.Get("one"), folder.Get("two"));
  const CliResult verified = RunWith({"stock", "verify", folder.Path("one")});
  EXPECT_EQ(verified.status, 0) << verified.out;
  // A pool that is too small is an error, and the file stays.
  auto small = one;
  small[5] = "100";
  EXPECT_EQ(RunWith(small).status, 1);
  EXPECT_EQ(folder.Get("one"), folder.Get("two"));
  // Best times are not thrown away unless that is asked for.
  std::string with_time = folder.Get("one");
  with_time[222 + 170] = 59;
  folder.Put("one", with_time);
  EXPECT_EQ(RunWith(one).status, 2);
  EXPECT_EQ(folder.Get("one"), with_time);
  one.emplace_back("--force");
  EXPECT_EQ(RunWith(one).status, 0);
  EXPECT_EQ(folder.Get("one"), folder.Get("two"));
}

// What a stock holds after each of these commands: `words` go between the command and the stock.
struct Change {
  std::string command;
  std::vector<std::string> words;
  friend void PrintTo(const Change& change, std::ostream* out) { *out << change.command; }
};

class StockChange : public ::testing::TestWithParam<Change> {
 protected:
  CliResult Run(FaultyCalls& calls) {
    std::vector<std::string> words{"stock", GetParam().command, "--jobs", "1"};
    words.insert(words.end(), GetParam().words.begin(), GetParam().words.end());
    words.insert(words.end(), {"--stock", folder_.Path("stock")});
    return RunWith(words, puzzles_, "", "", calls);
  }
  TempFolder folder_;
  std::string puzzles_;
};
INSTANTIATE_TEST_SUITE_P(Stock, StockChange,
                         ::testing::Values(Change{"renew", {"--level", "1", "--seed", "5"}},
                                           Change{"import", {"--level", "1", "-"}},
                                           Change{"repair", {"--seed", "5"}}));

// The stock is wholly old or wholly new, and new when that was said.
TEST_P(StockChange, AnyCallMayFailOrBeTheLast) {
  StockTable hurt = testing::ShippedStock();
  if (GetParam().command == "import") puzzles_ = RunWith({"generate", "--count", "20", "--seed", "9"}).out;
  if (GetParam().command == "repair") hurt(1, 50) = SudokuRecord{};
  Save(hurt, folder_, "stock");
  const std::string old_stock = folder_.Get("stock");
  FaultyCalls counted;
  ASSERT_EQ(Run(counted).status, 0);
  const std::string new_stock = folder_.Get("stock");
  ASSERT_NE(new_stock, old_stock);
  EXPECT_EQ(RunWith({"stock", "verify", folder_.Path("stock")}).status, 0);
  for (int n = 1; n <= counted.Count(); ++n) {
    SCOPED_TRACE(n);
    FaultyCalls failing, killing;
    failing.FailAt(n, n % 2 == 0, n % 3 == 0 ? ENOSPC : EIO);
    folder_.Put("stock", old_stock);
    const CliResult failed = Run(failing);
    EXPECT_EQ(failed.status == 0, failed.err.empty()) << failed.err;
    std::string stock = folder_.Get("stock");
    EXPECT_TRUE(stock == new_stock || (stock == old_stock && failed.status != 0));
    if (GetParam().command == "repair" && n % 4 != 0) continue;  // takes a second each
    folder_.Put("stock", old_stock);
    killing.KillAt(n);
    if (fork() == 0) _exit(Run(killing).status);
    int end = 0;
    wait(&end);
    EXPECT_EQ(WEXITSTATUS(end), FaultyCalls::kKilled);
    stock = folder_.Get("stock");
    EXPECT_TRUE(stock == new_stock || stock == old_stock);
  }
}

TEST(StockImport, KeepsTimesThatAreSetMeanwhileAndWritesNothingWhenDry) {
  TempFolder folder;
  StockTable stock = testing::ShippedStock();
  stock(1, 3).BestMinutes = 4;
  Save(stock, folder, "stock");
  const std::string before = folder.Get("stock");
  folder.Put("puzzles", RunWith({"generate", "--count", "30", "--seed", "9"}).out + "rubbish\n");
  const std::vector<std::string> words{"stock", "import", "--stock", folder.Path("stock"),
                                       folder.Path("puzzles")};
  auto dry = words;
  dry.emplace_back("--dry-run");
  const CliResult planned = RunWith(dry);
  EXPECT_EQ(planned.status, 1);  // for the bad line
  EXPECT_NE(planned.err.find("puzzles:31: "), std::string::npos);
  EXPECT_EQ(folder.Get("stock"), before);
  EXPECT_EQ(RunWith(words).status, 1);
  EXPECT_EQ(RunWith({"stock", "verify", folder.Path("stock")}).status, 0);
  EXPECT_NE(RunWith({"stock", "list", folder.Path("stock")}).out.find("\t4:00\t"), std::string::npos);
  EXPECT_NE(RunWith(words).out.find("nothing to change"), std::string::npos);
}

TEST(Report, IsOnePageThatIsValid) {
  TempFolder folder;
  StockTable stock = testing::ShippedStock();
  for (std::int16_t number = 1; number <= 20; ++number) stock(4, number).BestMinutes = number;
  for (const int number : {5, 6, 7}) stock(4, number).BestMinutes = static_cast<std::int16_t>(54 + number);
  stock(4, 3).BestMinutes = 71;
  stock(3, 80).BestSeconds = 1;
  Save(stock, folder, "<&\">.kpz");
  folder.Put("puzzles", RunWith({"generate", "--count", "50", "--seed", "3"}).out);
  folder.Put("none", "# nothing\n");
  for (const std::vector<std::string>& words : {std::vector<std::string>{"--stock", folder.Path("<&\">.kpz")},
                                                {folder.Path("puzzles")},
                                                {folder.Path("none")},
                                                {folder.Path("puzzles"), folder.Path("none")}}) {
    std::vector<std::string> all{"report", "--output", folder.Path("page.html")};
    all.insert(all.end(), words.begin(), words.end());
    ASSERT_EQ(RunWith(all).status, 0);
    const std::string page = folder.Get("page.html");
    EXPECT_EQ(page.find("http"), std::string::npos) << "needs something from elsewhere";
    EXPECT_EQ(page.find("best times"), words[0] == "--stock" ? page.find("best times") : std::string::npos);
    const std::string tidy =
        "command -v tidy >/dev/null || exit 0; tidy -q -e " + folder.Path("page.html").string();
    EXPECT_EQ(std::system(tidy.c_str()), 0);
    if (words[0] == "--stock") ExpectApproved("cli/report.html", page);  // looked at in a browser
  }
  EXPECT_NE(RunWith({"report", "--stock", folder.Path("<&\">.kpz")}).out.find("Hard 3: 1:11:00, score"),
            std::string::npos);
}

}  // namespace
}  // namespace kestrel
