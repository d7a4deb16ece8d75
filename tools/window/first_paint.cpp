// SPDX-License-Identifier: MIT
// Time from the start of a program until its picture is on the screen: first-paint PROGRAM [ARGUMENT...]
// Prints milliseconds and ends the program. Used by tools/first_paint.sh, on a screen where nothing else is shown.
//
// The picture counts as being there when a third of nine rows of pixels, spread over the screen, show six colours
// each: a window that is still empty, its title bar included, does not.
#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <set>
#include <thread>

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr int kRows = 9;
constexpr int kPaintedRows = 3;
constexpr std::size_t kColours = 6;
constexpr auto kBetweenLooks = std::chrono::microseconds(1500);
constexpr milliseconds kPatience(20000);

// All rows are asked for before the first answer is waited for.
bool Painted(xcb_connection_t* display, const xcb_screen_t& screen) {
  xcb_get_image_cookie_t asked[kRows];
  for (int i = 0; i < kRows; ++i) {
    const auto y = static_cast<std::int16_t>(screen.height_in_pixels * (i + 1) / (kRows + 1));
    asked[i] =
        xcb_get_image(display, XCB_IMAGE_FORMAT_Z_PIXMAP, screen.root, 0, y, screen.width_in_pixels, 1, ~0U);
  }
  int painted = 0;
  for (const xcb_get_image_cookie_t& each : asked) {
    xcb_get_image_reply_t* row = xcb_get_image_reply(display, each, nullptr);
    if (row == nullptr) continue;
    const auto* pixels = reinterpret_cast<const std::uint32_t*>(xcb_get_image_data(row));
    const std::set<std::uint32_t> colours(pixels, pixels + xcb_get_image_data_length(row) / 4);
    if (colours.size() >= kColours) ++painted;
    std::free(row);
  }
  return painted >= kPaintedRows;
}

bool WaitFor(bool painted, xcb_connection_t* display, const xcb_screen_t& screen) {
  for (const auto start = Clock::now(); Clock::now() - start < kPatience;) {
    if (Painted(display, screen) == painted) return true;
    std::this_thread::sleep_for(kBetweenLooks);
  }
  return false;
}

}  // namespace

int main(int argc, char** argv) {
  xcb_connection_t* display = xcb_connect(nullptr, nullptr);
  if (argc < 2 || xcb_connection_has_error(display) != 0) {
    std::fprintf(stderr, "usage: first-paint PROGRAM [ARGUMENT...], with a display\n");
    return 2;
  }
  const xcb_screen_t& screen = *xcb_setup_roots_iterator(xcb_get_setup(display)).data;
  if (!WaitFor(false, display, screen)) {
    std::fprintf(stderr, "first-paint: the screen is not empty\n");
    return 1;
  }
  posix_spawn_file_actions_t quiet;
  posix_spawn_file_actions_init(&quiet);
  posix_spawn_file_actions_addopen(&quiet, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
  pid_t program = 0;
  const auto start = Clock::now();
  if (posix_spawnp(&program, argv[1], &quiet, nullptr, argv + 1, environ) != 0) {
    std::fprintf(stderr, "first-paint: %s cannot be started\n", argv[1]);
    return 1;
  }
  const bool painted = WaitFor(true, display, screen);
  const std::chrono::duration<double, std::milli> took = Clock::now() - start;
  kill(program, SIGTERM);
  waitpid(program, nullptr, 0);
  const bool gone = WaitFor(false, display, screen);
  xcb_disconnect(display);
  if (!painted || !gone) {
    std::fprintf(stderr, "first-paint: %s %s\n", argv[1], painted ? "stays" : "shows nothing");
    return 1;
  }
  std::printf("%.1f\n", took.count());
  return 0;
}
