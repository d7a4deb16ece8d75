// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "host/host_files.h"
#include "media/sounds.h"
#include "media/web_link.h"
#include "support/temp_folder.h"
#include "ui/memory/recording_ports.h"

namespace kestrel {
namespace {

class LineList final : public Transcript {
 public:
  void Line(std::string_view line) override { lines.emplace_back(line); }
  std::vector<std::string> lines;
};

// Keeps what is asked, among the other lines.
class Listener final : public Asker {
 public:
  explicit Listener(LineList& lines) : lines_(lines) {}
  Answer Message(const MessageBox& box) override {
    lines_.Line(box.title + ": " + box.text);
    return Answer::Ok;
  }
  std::optional<std::string> Input(const InputBox&) override { return std::nullopt; }

 private:
  LineList& lines_;
};

// A device that takes every second file, and gives ids of its own.
class PickyDevice final : public SoundDevice {
 public:
  bool Open() override { return opens; }
  std::int32_t Load(std::string_view path) override {
    paths.emplace_back(path);
    return paths.size() % 2 == 0 ? -1 : static_cast<std::int32_t>(100 * paths.size());
  }
  void Play(std::int32_t id) override { played.push_back(id); }
  bool opens = true;
  std::vector<std::string> paths;
  std::vector<std::int32_t> played;
};

TEST(Sounds, PlayWhatCouldBeLoadedAndIsWanted) {
  PickyDevice device;
  Sounds sounds(device);
  sounds.SoundOn = true;
  sounds.Speel(Sound::Assign);  // before anything was opened
  sounds.Init_Sound("/p\\");
  EXPECT_TRUE(sounds.SoundAvailable());
  EXPECT_EQ(device.paths.size(), 10);
  EXPECT_EQ(device.paths.front(), "/p\\Applause.wav");
  EXPECT_EQ(device.paths.back(), "/p\\Giggle.wav");
  sounds.Speel(Sound::Assign);
  sounds.Speel(Sound::Discard);
  sounds.SoundOn = false;
  sounds.Speel(Sound::Applause);
  EXPECT_EQ(device.played, std::vector<std::int32_t>{300});
  device.opens = false;
  sounds.Init_Sound("/p\\");
  sounds.SoundOn = true;
  sounds.Speel(Sound::Assign);
  EXPECT_FALSE(sounds.SoundAvailable());
  EXPECT_EQ(device.paths.size() + device.played.size(), 11);
}

// The temporary file is gone in every case, and a folder that takes none does not stop the link.
TEST(WebLink, ReportsWhatFails) {
  struct Case {
    bool has_browser, starts;
    std::string line;
  };
  const std::vector<Case> cases = {{true, true, "shell " + std::string(kWebSite)},
                                   {true, false, "URL Failed: Web Page not Opened"},
                                   {false, true, "Browser Not Found: Could not find associated Browser"}};
  SystemCalls calls;
  HostFiles files(calls);
  for (const Case& test : cases) {
    for (const bool writable : {true, false}) {
      const TempFolder folder;
      LineList lines;
      Listener asker(lines);
      MemoryShell shell(test.has_browser, test.starts, lines);
      OpenWebSite(kWebSite, writable ? folder.Written() : folder.Written("gone\\"), files, shell, asker);
      EXPECT_EQ(lines.lines, std::vector{test.line});
      EXPECT_EQ(folder.Count(), 0);
    }
  }
}

// What has the probe's name already is somebody else's, and so is what a link of that name leads to.
TEST(WebLink, LeavesAFileOrALinkOfTheProbesNameAlone) {
  SystemCalls calls;
  HostFiles files(calls);
  for (const char* leads_to : {"", "victim", "nowhere"}) {
    const TempFolder folder;
    folder.Put("victim", "precious");
    if (*leads_to == '\0')
      folder.Put("temphtm.HTM", "own");
    else
      std::filesystem::create_symlink(leads_to, folder.Path("temphtm.HTM"));
    LineList lines;
    Listener asker(lines);
    MemoryShell shell(true, true, lines);
    OpenWebSite(kWebSite, folder.Written(), files, shell, asker);
    EXPECT_EQ(lines.lines, std::vector{"shell " + std::string(kWebSite)});
    EXPECT_EQ(folder.Get("victim"), "precious");
    EXPECT_EQ(folder.Count(), 2) << leads_to;
  }
}

}  // namespace
}  // namespace kestrel
