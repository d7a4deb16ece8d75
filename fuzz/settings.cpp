// SPDX-License-Identifier: MIT
// The settings file, and a game that starts with it and changes it. Input: the file; one file in eight is
// played with, too, which takes far longer than reading it.
#include "played_game.h"

namespace kestrel::fuzz {
namespace {

constexpr std::string_view kScript =
    "var SelectedLevel\nvar PlayerCount\nvar CurrentPlayer\nget MainWindow.caption\npress OptionType(4)\n"
    "press CommandNew\npress CommandSolution\npress chkSound\npress cmdPlayers\npress KnopNieuweSpeler\n"
    "type NaamInvoerveld Ann\nkey NaamInvoerveld enter\nselect Naamlijst 0\npress KnopWijzigen\n"
    "type NaamInvoerveld x\nkey NaamInvoerveld enter\npress KnopOK\npress CommandNew\n";

void TestOneInput(std::string_view input) {
  const SettingsText text(input);
  std::string kept(input);
  if (!kept.empty() && !kept.ends_with('\n')) kept += '\n';
  Require(text.Text() == kept);
  SettingsText changed(input);
  changed.Set("Options", "Level", input.substr(0, 20));
  Require(SettingsText(changed.Text()).Find("Options", "Level") == input.substr(0, 20));
  Require(changed.Find("Players", "Count") == text.Find("Players", "Count"));
  if (!OneIn(8, input)) return;

  MemoryFiles files;
  PutSoundStock(files);
  files.Put(kSettings, input);
  Require(PlayInMemory(files, kScript, true).status == 0);
  const SettingsText stored(files.Get(kSettings));
  Require(stored.Find("Options", "Level") == "4");
  // What another one wrote into the file is there still.
  Require(stored.Find("Foreign", "Key") == text.Find("Foreign", "Key"));
}

}  // namespace
}  // namespace kestrel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  kestrel::fuzz::TestOneInput(kestrel::fuzz::AsText(data, size));
  return 0;
}
