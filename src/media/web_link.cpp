// SPDX-License-Identifier: MIT
#include "media/web_link.h"

#include <optional>
#include <span>
#include <string>

#include "media/texts.h"

namespace kestrel {

namespace {

constexpr std::string_view kProbeFile = "temphtm.HTM";
constexpr std::string_view kProbeText = "<HTML> <\\HTML>\r\n";

// The file exists only while this object does. One that is there already, or a link of its name, is somebody else's: it
// stays, and does as well.
class ProbeFile {
 public:
  ProbeFile(Files& files, std::string path) : files_(files), path_(std::move(path)) {
    const Bytes text(kProbeText.begin(), kProbeText.end());
    made_ = static_cast<bool>(files_.Create(path_, text));
  }
  ProbeFile(const ProbeFile&) = delete;
  ProbeFile& operator=(const ProbeFile&) = delete;
  ~ProbeFile() {
    if (made_) (void)files_.Remove(path_);
  }
  [[nodiscard]] const std::string& Path() const { return path_; }

 private:
  Files& files_;
  std::string path_;
  bool made_ = false;
};

void Report(Asker& asker, std::string_view title, std::string_view text) {
  // There is nothing to do afterwards, whether the box was answered or the program is ending.
  (void)asker.Message({std::string(title), std::string(text), MessageIcon::Exclamation, MessageButtons::Ok});
}

}  // namespace

void OpenWebSite(std::string_view address, std::string_view program_folder, Files& files, Shell& shell,
                 Asker& asker) {
  const ProbeFile probe(files, std::string(program_folder) + std::string(kProbeFile));
  const std::optional<std::string> program = shell.FindExecutable(probe.Path());
  if (!program) {
    Report(asker, texts::kNoBrowserTitle, texts::kNoBrowser);
  } else if (!shell.Open(*program, address)) {
    Report(asker, texts::kPageNotOpenedTitle, texts::kPageNotOpened);
  }
}

}  // namespace kestrel
