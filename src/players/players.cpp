// SPDX-License-Identifier: MIT
#include "players/players.h"

#include "core/check.h"
#include "core/global.h"
#include "players/names.h"

namespace kestrel {

namespace {

// Keys have two digits, so that players 100 apart share one.
constexpr int kKeys = 100;

int ReadNumber(Settings& settings, std::string_view key) {
  return WholeNumber(settings.Read(names::kPlayers, key, "0")).value_or(0);
}

}  // namespace

void Players::Setup_Players(Settings& settings, FormNamen& form) {
  names_.clear();
  form.Naamlijst.lines.clear();
  const int count = ReadNumber(settings, names::kCount);
  for (int i = 1; i <= count; ++i) {
    const std::string key = names::PlayerKey(i);
    // A tampered count of thousands must not read thousands of settings.
    Add(i <= kKeys ? settings.Read(names::kPlayers, key, key) : PlayerNames(i - kKeys));
    form.Naamlijst.lines.push_back(PlayerNames(i));
  }
  CurrentPlayer = ReadNumber(settings, names::kLastPlayer);
  if (CurrentPlayer < 0 || CurrentPlayer > PlayerCount()) CurrentPlayer = 0;
}

void Players::SavePlayers(Settings& settings) const {
  (void)settings.Write(names::kPlayers, names::kCount, std::to_string(PlayerCount()));
  for (int i = 1; i <= PlayerCount(); ++i) {
    (void)settings.Write(names::kPlayers, names::PlayerKey(i), PlayerNames(i));
  }
}

void Players::SaveLastPlayer(Settings& settings) const {
  (void)settings.Write(names::kPlayers, names::kLastPlayer, std::to_string(CurrentPlayer));
}

const std::string& Players::PlayerNames(int number) const {
  Require(number >= 1 && number <= PlayerCount());
  return names_[static_cast<std::size_t>(number - 1)];
}

std::string Players::Name(int number) const {
  if (number < 1 || number > PlayerCount()) return {};
  std::string name = PlayerNames(number);
  return StripTrailingBlanks(name);
}

void Players::Add(std::string_view name) {
  names_.push_back(PadName(name));
}

void Players::Rename(int number, std::string_view name) {
  Require(number >= 1 && number <= PlayerCount());
  names_[static_cast<std::size_t>(number - 1)] = PadName(name);
}

}  // namespace kestrel
