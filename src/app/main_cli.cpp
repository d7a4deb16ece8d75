// SPDX-License-Identifier: MIT
// kestrel-sudoku-cli: joins the commands with the host's streams and files.
#include <unistd.h>

#include <iostream>
#include <string>
#include <vector>

#include "cli/run.h"
#include "core/stock_file.h"
#include "game/names.h"
#include "host/host_clock.h"
#include "host/host_files.h"
#include "host/host_folders.h"
#include "host/program_folder.h"
#include "host/standard_streams.h"

namespace {

using namespace kestrel;

// The user's stock, which the game keeps in its folder.
std::string UserStock() {
  std::string folder;
  HostFolders folders;
  if (!folders.Find(kLocalAppData, folder)) return std::string(kStockFileName);
  return folder.append("/").append(names::kDataFolder).append("/").append(kStockFileName);
}

// The stock that was installed with this program; empty when there is none.
std::string ShippedStock(Files& files) {
  const std::string stock = ProgramFolder().append("/").append(kStockFileName);
  return files.Exists(stock) ? stock : "";
}

}  // namespace

int main(int argc, char** argv) {
  PrepareStandardStreams();
  std::ios::sync_with_stdio(false);
  std::cin.tie(nullptr);
  SystemCalls calls;
  HostFiles files(calls, PathForm::kHost);
  ClockSeeds seeds;
  CliPorts ports{std::cin,    std::cout,           std::cerr,       isatty(STDERR_FILENO) == 1, files, seeds,
                 UserStock(), ShippedStock(files), OutputReaderLeft};
  const std::vector<std::string> words(argv + (argc > 0 ? 1 : 0), argv + argc);
  return static_cast<int>(RunCli(words, ports));
}
