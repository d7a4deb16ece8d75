// SPDX-License-Identifier: MIT
#include "host/standard_streams.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <csignal>
#include <iostream>

namespace kestrel {

void PrepareStandardStreams() {
  for (int file = 0; file <= 2; ++file) {
    if (fcntl(file, F_GETFD) == -1) (void)open("/dev/null", O_RDONLY);
  }
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);
}

bool OutputReaderLeft() {
  pollfd output{.fd = STDOUT_FILENO, .events = POLLOUT, .revents = 0};
  return poll(&output, 1, 0) == 1 && (output.revents & POLLERR) != 0;
}

bool FinishOutput(const char* program) {
  std::cout.flush();
  if (std::cout) return true;
  if (!OutputReaderLeft()) std::cerr << program << ": standard output could not be written\n";
  return false;
}

}  // namespace kestrel
