// SPDX-License-Identifier: MIT
// Numbers and names as text, and the small helpers.
#include "core/text.h"

#include <gtest/gtest.h>

#include <cfenv>
#include <cstdlib>
#include <sstream>

#include "core/cell_names.h"
#include "core/global.h"
#include "host/host_folders.h"

namespace kestrel {
namespace {

TEST(Text, NumbersAreWrittenAndReadByTheirRules) {
  for (const auto& [value, text] : {std::pair{0, "00"}, {7, "07"}, {123, "23"}, {-5, "95"}, {-95, "5"}}) {
    EXPECT_EQ(TwoDigits(value), text);
  }
  for (const auto& [text, value] : {std::pair{" 42 ", 42}, {"+7", 7}, {"-32768", -32768}}) {
    EXPECT_EQ(WholeNumber(text), value);
  }
  for (const char* text : {"", " ", "2.5", "12abc", "32768", "99999999999999999999", "+-3", "0x10", "1 2"}) {
    EXPECT_EQ(WholeNumber(text), std::nullopt) << text;
  }
  std::fesetround(FE_UPWARD);  // must not matter
  std::istringstream typed(
      "12abc 12 7.5 8 8.5 8 8.51 9 0.5 0 -1.5 -2 +9 9 .9 1 1e1x 10 32767.4 32767 32767.5 0 -32769 0 1e999 0 "
      "1e-999 0 abc 0 - 0 . 0 +-3 0 inf 0 -nan 0");
  std::string text;
  for (int value = 0; typed >> text >> value;) EXPECT_EQ(LeadingNumber("  " + text), value) << text;
  EXPECT_EQ(LeadingNumber("") + LeadingNumber("  "), 0);
  std::fesetround(FE_TONEAREST);
}

TEST(Text, CellsHaveTheirNames) {
  for (int cell = 0; cell < kCells; ++cell) EXPECT_EQ(CellOfName(CellName(cell)), cell);
  for (const char* name : {"", "A", "A0", "A:", "I1", "K1", "a1", "A11"})
    EXPECT_EQ(CellOfName(name), -1) << name;
}

TEST(Text, NamesHaveSixteenCharactersNotBytes) {
  EXPECT_EQ(PadName("Ann"), "Ann" + std::string(13, ' '));
  for (const std::string character : {"x", "\u00e4", "\u20ac", "\U0001F600", "\xFF"}) {
    std::string twenty;
    for (int i = 0; i < 20; ++i) twenty += character;
    EXPECT_EQ(PadName(twenty), twenty.substr(0, 16 * character.size()));
  }
  // Bytes that are no text: one character each, and no reading behind the end.
  EXPECT_EQ(CharacterCount("\xF0\x9F\x98"), 3U);
  EXPECT_EQ(CharacterCount("\xFFz\xC3\xA4"), 3U);
}

TEST(Global, FoldersAreThoseOfTheUser) {
  std::string name = "Bob  \t  ";
  EXPECT_EQ(StripTrailingBlanks(name), "Bob  \t");
  setenv("HOME", "/users/ann", 1);
  setenv("XDG_DATA_HOME", "relative", 1);  // to be ignored
  setenv("XDG_CONFIG_HOME", "/etc/ann//", 1);
  HostFolders host;
  EXPECT_EQ(GetSpecialFolder(host, kLocalAppData), "/users/ann/.local/share");
  EXPECT_EQ(HostFolders::Settings(), "/etc/ann");
}

}  // namespace
}  // namespace kestrel
