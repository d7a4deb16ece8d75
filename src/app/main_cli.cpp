// SPDX-License-Identifier: MIT
// kestrel-sudoku-cli: joins the commands with the host's streams and files.
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <iostream>
#include <string>
#include <system_error>
#include <vector>

#include "cli/run.h"
#include "core/host_clock.h"
#include "core/host_files.h"
#include "core/host_folders.h"
#include "core/stock_file.h"
#include "game/names.h"

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

// The stock that was installed with this program or, for a program that runs where it was built, that of the
// source; empty when there is none.
std::string ShippedStock() {
  std::error_code error;
  const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error);
  for (const char* folder : {KESTREL_SHARE_FROM_BIN, KESTREL_DATA_FROM_BUILD}) {
    const std::filesystem::path stock = program.parent_path() / folder / kStockFileName;
    if (std::filesystem::exists(stock, error)) return stock.lexically_normal().string();
  }
  return "";
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
  CliPorts ports{std::cin,    std::cout,      std::cerr, isatty(STDERR_FILENO) == 1, files, seeds,
                 UserStock(), ShippedStock(), ReaderLeft};
  const std::vector<std::string> words(argv + (argc > 0 ? 1 : 0), argv + argc);
  return static_cast<int>(RunCli(words, ports));
}
