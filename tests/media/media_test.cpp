// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "host/host_files.h"
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

// The temporary file is gone in every case, and a folder that takes none does not stop the link.
TEST(WebLink, ReportsWhatFails) {
  SystemCalls calls;
  HostFiles files(calls);
  for (const auto& [has_browser, starts, line] :
       {std::tuple{true, true, "shell " + std::string(kWebSite)},
        {true, false, "URL Failed: Web Page not Opened"},
        {false, true, "Browser Not Found: Could not find associated Browser"}}) {
    for (const bool writable : {true, false}) {
      const TempFolder folder;
      LineList lines;
      Listener asker(lines);
      MemoryShell shell(has_browser, starts, lines);
      OpenWebSite(kWebSite, writable ? folder.Written() : folder.Written("gone\\"), files, shell, asker);
      EXPECT_EQ(lines.lines, std::vector{line});
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
