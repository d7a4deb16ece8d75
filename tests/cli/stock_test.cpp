// SPDX-License-Identifier: MIT
// The stock commands.
#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>

#include "cli/cli_run.h"
#include "core/stock_file.h"
#include "support/faulty_calls.h"
#include "support/temp_folder.h"

namespace kestrel {
namespace {

const std::string kShipped = KESTREL_SOURCE_DIR "/data/sudstock.kpz";

StockTable ReadShipped() {
  SystemCalls calls;
  HostFiles files(calls, PathForm::kHost);
  StockTable stock;
  EXPECT_TRUE(ReadStockFile(files, kShipped, stock));
  return stock;
}

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
  EXPECT_EQ(Lines(result.out).size(), 6U);
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

TEST(StockVerify, TellsThatTheFileIsShort) {
  TempFolder folder;
  Save(ReadShipped(), folder, "stock");
  folder.Put("stock", folder.Get("stock").substr(0, 110'900));
  const CliResult result = RunWith({"stock", "verify", folder.Path("stock")});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(Lines(result.out)[0], "file: 110900 bytes instead of 111000");
  EXPECT_TRUE(Lines(result.out)[1].starts_with("level 5 number 100: "));
}

TEST(StockExport, LinesCanBeRatedAgain) {
  const CliResult lines = RunWith({"stock", "export", "--level", "4", kShipped});
  ASSERT_EQ(Lines(lines.out).size(), 100U);
  const std::vector<std::string> rated = Lines(RunWith({"rate"}, lines.out).out);
  const std::vector<std::string> listed =
      Lines(RunWith({"stock", "list", "--level=4"}, "", "none", kShipped).out);
  ASSERT_EQ(listed.size(), 101U);
  for (std::size_t i = 0; i < 100; ++i) {
    const std::vector<std::string> exported = Fields(Lines(lines.out)[i]);
    const std::vector<std::string> rating = Fields(rated[i + 1]);
    const std::vector<std::string> row = Fields(listed[i + 1]);
    EXPECT_EQ(exported[0], rating[0]);
    EXPECT_EQ(exported[1], rating[25]);
    EXPECT_EQ(exported[2] + exported[4], rating[1] + rating[2]);
    EXPECT_EQ(row[0] + row[1] + row[2], "4" + std::to_string(i + 1) + rating[2]);
    EXPECT_TRUE(std::equal(row.begin() + 6, row.end(), rating.begin() + 3, rating.begin() + 25));
  }
  const CliResult json = RunWith({"stock", "export", "--format=json", kShipped});
  EXPECT_EQ(Lines(json.out).size(), 500U);
  EXPECT_TRUE(json.out.starts_with(R"({"schema":1,"level":1,"number":1,"score":)"));
  // No stock anywhere.
  EXPECT_EQ(RunWith({"stock", "list"}).status, 2);
  // A stock of nonsense is listed and exported without harm.
  TempFolder folder;
  folder.Put("junk", std::string(50'000, '\xFE'));
  EXPECT_EQ(Lines(RunWith({"stock", "export", folder.Path("junk")}).out).size(), 500U);
  EXPECT_EQ(RunWith({"stock", "verify", folder.Path("junk")}).status, 1);
}

// The stock is wholly old or wholly new, and new when that was said.
TEST(StockRenew, AnyCallMayFailOrBeTheLast) {
  TempFolder folder;
  Save(ReadShipped(), folder, "stock");
  const std::string old_stock = folder.Get("stock");
  const auto renew = [&](FaultyCalls& calls) {
    return RunWith({"stock", "renew", "--level", "1", "--seed", "5", "--jobs", "1", folder.Path("stock")}, "",
                   "", "", calls);
  };
  FaultyCalls counted;
  ASSERT_EQ(renew(counted).status, 0);
  const std::string new_stock = folder.Get("stock");
  ASSERT_NE(new_stock, old_stock);
  for (int n = 1; n <= counted.Count(); ++n) {
    SCOPED_TRACE(n);
    FaultyCalls failing, killing;
    failing.FailAt(n, n % 2 == 0, n % 3 == 0 ? ENOSPC : EIO);
    folder.Put("stock", old_stock);
    const CliResult failed = renew(failing);
    EXPECT_EQ(failed.status == 0, failed.err.empty()) << failed.err;
    std::string stock = folder.Get("stock");
    EXPECT_TRUE(stock == new_stock || (stock == old_stock && failed.status != 0));
    folder.Put("stock", old_stock);
    killing.KillAt(n);
    if (fork() == 0) _exit(renew(killing).status);
    int end = 0;
    wait(&end);
    EXPECT_EQ(WEXITSTATUS(end), FaultyCalls::kKilled);
    stock = folder.Get("stock");
    EXPECT_TRUE(stock == new_stock || stock == old_stock);
  }
}

}  // namespace
}  // namespace kestrel
