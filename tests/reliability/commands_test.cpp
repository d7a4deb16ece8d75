// SPDX-License-Identifier: MIT
// The stock commands on files that fail, and killed at each system call: the stock is wholly old or wholly
// new.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <sstream>

#include "cli/run.h"
#include "core/host_files.h"
#include "core/stock_file.h"
#include "support/faulty_calls.h"
#include "support/temp_folder.h"
#include "support/test_stock.h"

namespace kestrel::testing {
namespace {

ExitStatus Renew(FaultyCalls& calls, const std::string& stock, std::string& error) {
  std::istringstream in;
  std::ostringstream out, err;
  HostFiles files(calls, PathForm::kHost);
  FixedSeeds seeds(1);
  CliPorts ports{in, out, err, false, files, seeds, stock, ""};
  const std::vector<std::string> words{"stock", "renew", "--level", "1", "--seed", "5", "--jobs", "1"};
  const ExitStatus status = RunCli(words, ports);
  error = err.str();
  return status;
}

TEST(StockCommands, AnyCallMayFailOrBeTheLast) {
  TempFolder folder;
  const std::string path = folder.Path("sudstock.kpz");
  const Bytes bytes = EncodeStock(MakeTestStock());
  const std::string old_stock(bytes.begin(), bytes.end());
  folder.Put("sudstock.kpz", old_stock);
  std::string error;
  FaultyCalls counted;
  ASSERT_EQ(Renew(counted, path, error), ExitStatus::kGood);
  const std::string new_stock = folder.Get("sudstock.kpz");
  ASSERT_NE(new_stock, old_stock);
  for (int n = 1; n <= counted.Count(); ++n) {
    for (const bool killed : {false, true}) {
      SCOPED_TRACE(::testing::Message() << "call " << n << (killed ? " killed" : " failed"));
      folder.Put("sudstock.kpz", old_stock);
      FaultyCalls calls;
      ExitStatus status = ExitStatus::kFailure;
      if (!killed) {
        calls.FailAt(n, n % 2 == 0, n % 3 == 0 ? ENOSPC : EIO);
        status = Renew(calls, path, error);
        EXPECT_EQ(status == ExitStatus::kGood, error.empty()) << error;
      } else if (fork() == 0) {
        calls.KillAt(n);
        Renew(calls, path, error);
        _exit(0);
      } else {
        int ended = 0;
        wait(&ended);
        EXPECT_EQ(WEXITSTATUS(ended), FaultyCalls::kKilled);
      }
      const std::string stock = folder.Get("sudstock.kpz");
      EXPECT_TRUE(stock == new_stock || (stock == old_stock && status != ExitStatus::kGood));
    }
  }
}

}  // namespace
}  // namespace kestrel::testing
