// SPDX-License-Identifier: MIT
// kestrel-sudoku-cli: joins the commands with the host's streams and files.
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <csignal>
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

namespace {

using namespace kestrel;

// A closed standard stream would hand its number to the next file opened, and messages would be written into
// that file. What stands in refuses to be written to, so that lost output is still noticed.
void FillClosedStreams() {
  for (int file = 0; file <= 2; ++file) {
    if (fcntl(file, F_GETFD) == -1) (void)open("/dev/null", O_RDONLY);
  }
}

bool ReaderLeft() {
  pollfd output{.fd = STDOUT_FILENO, .events = POLLOUT, .revents = 0};
  return poll(&output, 1, 0) == 1 && (output.revents & POLLERR) != 0;
}

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
  FillClosedStreams();
  // A reader that went away, or a full quota, is to fail the write instead of killing the program.
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);
  std::ios::sync_with_stdio(false);
  std::cin.tie(nullptr);
  SystemCalls calls;
  HostFiles files(calls, PathForm::kHost);
  ClockSeeds seeds;
  CliPorts ports{std::cin,    std::cout,           std::cerr, isatty(STDERR_FILENO) == 1, files, seeds,
                 UserStock(), ShippedStock(files), ReaderLeft};
  const std::vector<std::string> words(argv + (argc > 0 ? 1 : 0), argv + argc);
  return static_cast<int>(RunCli(words, ports));
}
