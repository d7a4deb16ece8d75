// SPDX-License-Identifier: MIT
#include "players/players.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <map>

#include "players/best_time.h"
#include "players/records.h"

namespace kestrel {
namespace {

class MapSettings final : public Settings {
 public:
  std::string Read(std::string_view section, std::string_view key, std::string_view fallback) override {
    ++reads;
    const auto value = values.find(std::string(section) + "/" + std::string(key));
    return value == values.end() ? std::string(fallback) : value->second;
  }
  bool Write(std::string_view section, std::string_view key, std::string_view value) override {
    values[std::string(section) + "/" + std::string(key)] = value;
    return true;
  }
  std::map<std::string, std::string> values;
  int reads = 0;
};

Players Load(MapSettings& settings) {
  Players players;
  FormNamen form = MakeFormNamen();
  players.Setup_Players(settings, form);
  EXPECT_EQ(form.Naamlijst.lines.size(), players.PlayerCount());
  return players;
}

TEST(Players, AreSavedAndLoaded) {
  MapSettings settings;
  Players players = Load(settings);
  EXPECT_EQ(players.PlayerCount(), 0);
  players.Add("Ann");
  players.Add("A name of more than sixteen characters");
  players.Rename(1, "Z\xC3\xA9no\xC3\xAB");
  players.CurrentPlayer = 2;
  players.SavePlayers(settings);
  players.SaveLastPlayer(settings);
  EXPECT_EQ(settings.values.at("Players/Player01"), "Z\xC3\xA9no\xC3\xAB           ");
  EXPECT_EQ(settings.values.at("Players/Player02"), "A name of more t");
  const Players again = Load(settings);
  EXPECT_EQ(again.PlayerCount(), 2);
  EXPECT_EQ(again.CurrentPlayer, 2);
  EXPECT_EQ(again.Name(1), "Z\xC3\xA9no\xC3\xAB");
  EXPECT_EQ(again.Name(0), "");
  EXPECT_EQ(again.Name(3), "");
}

TEST(Players, SurviveTamperedSettings) {
  MapSettings settings;
  for (const char* count : {"-1", "two", "", "99999", "1.5"}) {
    settings.values = {{"Players/Count", count}, {"Players/Last_Player", "1"}};
    const Players players = Load(settings);
    EXPECT_EQ(players.PlayerCount(), 0) << count;
    EXPECT_EQ(players.CurrentPlayer, 0) << count;
  }
  // A hundred keys are all there are.
  settings.values = {{"Players/Count", "32767"}, {"Players/Player07", "Bob"}, {"Players/Last_Player", "-3"}};
  settings.reads = 0;
  const Players players = Load(settings);
  EXPECT_LE(settings.reads, 102);
  EXPECT_EQ(players.PlayerCount(), 32767);
  EXPECT_EQ(players.Name(7), "Bob");
  EXPECT_EQ(players.Name(32707), "Bob");
  EXPECT_EQ(players.Name(32700), "Player00");
  EXPECT_EQ(players.CurrentPlayer, 0);
}

TEST(Records, AreWeighedWithinTheirLevel) {
  MapSettings settings;
  Players players = Load(settings);
  players.Add("Ann");
  players.Add("Bob");
  StockTable stock;
  const auto put = [&](int number, std::int16_t seconds, std::int16_t player) {
    SudokuRecord& record = stock(2, number);
    record.BestMinutes = static_cast<std::int16_t>(seconds / 60);
    record.BestSeconds = static_cast<std::int16_t>(seconds % 60);
    record.BestPlayer = player;
  };
  put(1, 100, 2);
  put(7, 7505, 1);
  put(99, 300, 2);
  put(50, -3, 1);  // no time, and nobody's
  const LevelRecords records = RecordsOf(stock, players, 2);
  EXPECT_TRUE(records.Of(1).merit == 1 && records.Of(7).merit == 0 && records.Of(50).seconds == 0);
  ASSERT_EQ(records.holders.size(), 2U);
  EXPECT_EQ(records.holders[0].name + std::to_string(records.holders[0].count), "Bob2");
  EXPECT_EQ(texts::PuzzleRecordText(records, 7), "Number 7: 125:05 by Ann");
  EXPECT_EQ(texts::PuzzleRecordText(records, 50), "Number 50: no best time yet");
  // A player of another home.
  put(3, 200, 9);
  EXPECT_EQ(texts::PuzzleRecordText(RecordsOf(stock, players, 2), 3), "Number 3: 03:20 by somebody else");
}

TEST(BestTime, IsBetterThanTheOld) {
  OpenPuzzle puzzle;
  EXPECT_TRUE(IsNewBestTime(puzzle, 0));
  puzzle.PuzzleBestMinutes = 3;
  puzzle.PuzzleBestSeconds = 7;
  EXPECT_FALSE(IsNewBestTime(puzzle, 187));
  EXPECT_TRUE(IsNewBestTime(puzzle, 186));
  puzzle.PuzzleBestMinutes = -3;
  EXPECT_FALSE(IsNewBestTime(puzzle, 0));
  SudokuRecord record;
  EnterBestTime(record, puzzle, 6001, 4);
  EXPECT_EQ(record.BestMinutes, 100);
  EXPECT_EQ(record.BestSeconds, 1);
  EXPECT_EQ(record.BestPlayer, 4);
  EXPECT_EQ(puzzle.PuzzleBestMinutes, 100);
}

}  // namespace
}  // namespace kestrel
