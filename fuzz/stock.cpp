// SPDX-License-Identifier: MIT
// The stock reader, and, for one input in eight, opening, playing, hinting, solving and printing the first records of
// what it read. Input: a byte that chooses the level and whether they are printed, then the records of that level from
// number 1 on; the last one may be cut short.
#include <algorithm>

#include "played_game.h"

namespace kestrel::fuzz {
namespace {

constexpr std::string_view kAnn =
    "[Players]\nCount=\"1\"\nPlayer01=\"Ann             \"\nLast_Player=\"1\"\n[Options]\nLevel=\"";

// Wrong digits, marks, hints, history, and then the solution as far as it can be clicked.
std::string PlayRecord(const SudokuRecord& record, int number) {
  std::string lines =
      "press CommandOpen\nanswer " + std::to_string(number) +
      "\nget StatusBar(3).caption\nget StatusBar(5).caption\npress CommandHint\npress LabelHint\n"
      "mark 0 1\nmark 40 9 right\nrow 4\ncolumn 8\npress CommandHint\nsteps\n"
      "press CommandUndo\npress CommandRedo\npress CommandRestart\nclock 12:00:09\ntick\n";
  for (int cell = 0; cell < kCells; ++cell) {
    const int digit = DigitAt(record.SolutionCells, cell);
    if (digit > 0 && digit != record.GivenCells[cell])
      lines += "mark " + std::to_string(cell) + " " + std::to_string(digit) + "\n";
  }
  return lines +
         "board\npencil\npress CommandHint\npress CommandResetCell\npress CommandSolution\nclock 12:00:00\n";
}

void TestOneInput(const std::uint8_t* data, std::size_t size) {
  const int level = size == 0 ? 1 : 1 + data[0] % kLevels;
  const std::string_view records = AsText(data, size).substr(std::min<std::size_t>(size, 1));
  MemoryFiles files;
  const std::size_t offset = static_cast<std::size_t>(level - 1) * kPuzzlesPerLevel * kRecordBytes;
  files.Put(kStock, (std::string(offset, '\0') + std::string(records)).substr(0, kStockBytes + 99));
  files.Put(kSettings, std::string(kAnn) + std::to_string(level) + "\"\n");

  StockTable table;
  Require(static_cast<bool>(ReadStockFile(files, kStock, table)));
  std::string read = files.Get(kStock);
  read.resize(kStockBytes);
  const Bytes encoded = EncodeStock(table);
  Require(AsText(encoded.data(), encoded.size()) == read);

  if (!OneIn(8, records)) return;
  std::string script;
  // Many show nothing that two do not, and take long.
  const int count = static_cast<int>(std::min<std::size_t>(records.size() / kRecordBytes + 1, 2));
  for (int number = 1; number <= count; ++number) script += PlayRecord(table(level, number), number);
  if (size > 0 && data[0] / kLevels % 2 == 0) {
    script += "press CommandPrint\nselect SudokuTypeKeuze " + std::to_string(level - 1) +
              "\npress OptionAantal(1)\nselect PageSlider 1\npress Command2\npress Command1\n";
  }
  const PlayedGame played = PlayInMemory(files, script, true);
  Require(played.status == 0);
  Require(files.Length(kStock) >= read.size() || played.output.find("stock written") == std::string::npos);
}

}  // namespace
}  // namespace kestrel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  kestrel::fuzz::TestOneInput(data, size);
  return 0;
}
