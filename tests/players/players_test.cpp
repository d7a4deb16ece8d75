// SPDX-License-Identifier: MIT
#include "players/players.h"

#include <gtest/gtest.h>

#include <cstdint>

#include "players/records.h"
#include "support/map_settings.h"

namespace kestrel {
namespace {

Players Load(testing::MapSettings& settings) {
  Players players;
  FormNamen form = MakeFormNamen();
  players.Setup_Players(settings, form);
  EXPECT_EQ(form.Naamlijst.lines.size(), players.PlayerCount());
  return players;
}

TEST(Players, SurviveTamperedSettings) {
  testing::MapSettings settings;
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
  testing::MapSettings settings;
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

}  // namespace
}  // namespace kestrel
