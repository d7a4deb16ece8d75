// SPDX-License-Identifier: MIT
#include "ui/memory/recording_ports.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "core/stock_file.h"
#include "ui/memory/json_string.h"

namespace kestrel {

namespace {

std::string_view IconName(MessageIcon icon) {
  constexpr std::array<std::string_view, 5> kNames = {"none", "critical", "exclamation", "information",
                                                      "question"};
  return kNames[static_cast<std::size_t>(icon)];
}

// The name by which scripts know a window.
std::string FormName(FormId form) {
  constexpr std::array<std::string_view, 4> kNames = {"MainWindow", "FormNamen", "FormPrint", "Browser"};
  return std::string(kNames[static_cast<std::size_t>(form)]);
}

}  // namespace

bool MemoryFolders::Find(int folder_id, std::string& path) {
  if (folder_id != kLocalAppData) return false;
  path = home_;
  return true;
}

std::string RecordingSettings::Read(std::string_view section, std::string_view key,
                                    std::string_view fallback) {
  return inner_.Read(section, key, fallback);
}

bool RecordingSettings::Write(std::string_view section, std::string_view key, std::string_view value) {
  const bool stored = inner_.Write(section, key, value);
  if (stored) {
    transcript_.Line("setting " + std::string(section) + " " + std::string(key) + " " + JsonString(value));
  }
  return stored;
}

FileResult RecordingFiles::Replace(std::string_view path, std::span<const std::uint8_t> bytes) {
  return Report(path, inner_.Replace(path, bytes));
}

FileResult RecordingFiles::Update(std::string_view path, std::size_t max_bytes, const FileChange& change) {
  return Report(path, inner_.Update(path, max_bytes, change));
}

FileResult RecordingFiles::Report(std::string_view path, FileResult result) {
  if (path.ends_with("\\" + std::string(kStockFileName))) {
    transcript_.Line(result ? "stock written" : "stock failed");
  }
  return result;
}

std::int32_t MemorySound::Load(std::string_view path) {
  exists_.push_back(files_.Exists(path));
  return static_cast<std::int32_t>(exists_.size()) - 1;
}

void MemorySound::Play(std::int32_t id) {
  const bool any = std::ranges::find(exists_, true) != exists_.end();
  if (exists_[static_cast<std::size_t>(id)] || !any) transcript_.Line("sound " + std::to_string(id));
}

Answer RecordingStage::Message(const MessageBox& box) {
  std::string captions;
  for (const Answer button : AnswersOf(box.buttons)) {
    captions += captions.empty() ? "" : ",";
    captions += ButtonCaption(button);
  }
  transcript_.Line("message " + JsonString(box.title) + " " + JsonString(box.text) + " " +
                   std::string(IconName(box.icon)) + " " + captions);
  return inner_.Message(box);
}

std::optional<std::string> RecordingStage::Input(const InputBox& box) {
  transcript_.Line("input " + JsonString(box.title) + " " + JsonString(box.prompt) + " " +
                   JsonString(box.proposal));
  return inner_.Input(box);
}

void RecordingStage::Show(FormId form) {
  if (forms_->WindowOf(form).open) return;
  inner_.Show(form);
  if (form != FormId::Main) transcript_.Line("dialog " + FormName(form) + " shown");
}

void RecordingStage::Hide(FormId form) {
  if (!forms_->WindowOf(form).open) return;
  inner_.Hide(form);
  if (form != FormId::Main) transcript_.Line("dialog " + FormName(form) + " hidden");
}

void RecordingStage::Beep() {
  transcript_.Line("beep");
  inner_.Beep();
}

void RecordingStage::Navigate(std::string_view page) {
  transcript_.Line("browse " + JsonString(page));
  inner_.Navigate(page);
}

std::optional<std::string> MemoryShell::FindExecutable(std::string_view) {
  if (!has_browser_) return std::nullopt;
  return "browser";
}

bool MemoryShell::Open(std::string_view, std::string_view address) {
  if (starts_) transcript_.Line("shell " + std::string(address));
  return starts_;
}

}  // namespace kestrel
