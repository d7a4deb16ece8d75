// SPDX-License-Identifier: MIT
// Ports that report what the game does with them. Used by the script front end and by tests.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "core/clock.h"
#include "core/files.h"
#include "core/global.h"
#include "core/settings.h"
#include "forms/shell.h"
#include "forms/sound_device.h"
#include "ui/memory/stage.h"
#include "ui/memory/transcript.h"

namespace kestrel {

// A time of day that moves only when it is set.
class MemoryClock final : public Clock {
 public:
  int SecondsOfDay() override { return now_; }
  void Set(int second_of_day) { now_ = second_of_day; }

 private:
  int now_ = 12 * 3600;
};

class MemoryFolders final : public SpecialFolders {
 public:
  // The user's local application data folder, in the host's form.
  explicit MemoryFolders(std::string home) : home_(std::move(home)) {}
  bool Find(int folder_id, std::string& path) override;

 private:
  std::string home_;
};

// Reports "setting SECTION KEY VALUE" for every value that was stored.
class RecordingSettings final : public Settings {
 public:
  RecordingSettings(Settings& inner, Transcript& transcript) : inner_(inner), transcript_(transcript) {}
  std::string Read(std::string_view section, std::string_view key, std::string_view fallback) override;
  bool Write(std::string_view section, std::string_view key, std::string_view value) override;

 private:
  Settings& inner_;
  Transcript& transcript_;
};

// Reports "stock written" or "stock failed" when a stock file was to be written.
class RecordingFiles final : public Files {
 public:
  RecordingFiles(Files& inner, Transcript& transcript) : inner_(inner), transcript_(transcript) {}
  bool Exists(std::string_view path) override { return inner_.Exists(path); }
  std::optional<std::uint64_t> Length(std::string_view path) override { return inner_.Length(path); }
  FileResult Read(std::string_view path, std::size_t max_bytes, Bytes& bytes) override {
    return inner_.Read(path, max_bytes, bytes);
  }
  FileResult Replace(std::string_view path, std::span<const std::uint8_t> bytes) override;
  FileResult Update(std::string_view path, std::size_t max_bytes, const FileChange& change) override;
  FileResult Copy(std::string_view from, std::string_view to) override { return inner_.Copy(from, to); }
  FileResult Create(std::string_view path, std::span<const std::uint8_t> bytes) override {
    return inner_.Create(path, bytes);
  }
  FileResult KeepAside(std::string_view path) override { return inner_.KeepAside(path); }
  FileResult MakeFolder(std::string_view path) override { return inner_.MakeFolder(path); }
  FileResult Remove(std::string_view path) override { return inner_.Remove(path); }

 private:
  FileResult Report(std::string_view path, FileResult result);

  Files& inner_;
  Transcript& transcript_;
};

// Reports "sound N"; N is the place of the sound among those that were loaded. Scripts are mostly played on
// program folders that bring a stock and nothing else: there every sound counts as present. Where there are
// sounds, a missing one is missing.
class MemorySound final : public SoundDevice {
 public:
  MemorySound(bool available, Files& files, Transcript& transcript)
      : available_(available), files_(files), transcript_(transcript) {}
  bool Open() override { return available_; }
  std::int32_t Load(std::string_view path) override;
  void Play(std::int32_t id) override;

 private:
  bool available_;
  Files& files_;
  Transcript& transcript_;
  std::vector<bool> exists_;  // by id
};

// Reports boxes before they open, "dialog NAME shown" and "hidden" for the windows beside the main one, "beep"
// and "browse PAGE".
class RecordingStage final : public Asker, public Screen, public HelpWindow {
 public:
  RecordingStage(Stage& inner, Transcript& transcript) : inner_(inner), transcript_(transcript) {}
  // Before Start.
  void Attach(Forms& forms) { forms_ = &forms; }

  [[nodiscard]] Answer Message(const MessageBox& box) override;
  [[nodiscard]] std::optional<std::string> Input(const InputBox& box) override;
  int Width() override { return inner_.Width(); }
  int Height() override { return inner_.Height(); }
  void Show(FormId form) override;
  void Hide(FormId form) override;
  [[nodiscard]] bool WaitUntilHidden(FormId form) override { return inner_.WaitUntilHidden(form); }
  void Focus(FormId form, ControlId control) override { inner_.Focus(form, control); }
  void Beep() override;
  void Navigate(std::string_view page) override;
  void OfferSolving(const DigitGrid* givens) override { inner_.OfferSolving(givens); }

 private:
  Stage& inner_;
  Transcript& transcript_;
  Forms* forms_ = nullptr;
};

// Reports "shell ADDRESS".
class MemoryShell final : public Shell {
 public:
  // Without a browser no program is associated with HTML files; `starts` tells whether it can be started.
  MemoryShell(bool has_browser, bool starts, Transcript& transcript)
      : has_browser_(has_browser), starts_(starts), transcript_(transcript) {}
  std::optional<std::string> FindExecutable(std::string_view path) override;
  bool Open(std::string_view program, std::string_view address) override;

 private:
  bool has_browser_;
  bool starts_;
  Transcript& transcript_;
};

}  // namespace kestrel
