// SPDX-License-Identifier: MIT
#include "cli/stock_path.h"

#include "core/stock_file.h"

namespace kestrel {

namespace {

constexpr const char* kNotMadeYet = "; the game makes it when it is first started, or name another FILE";

}  // namespace

std::string WritableStockPath(Arguments& arguments, CliPorts& ports) {
  const bool by_option = arguments.Has(kStockOption.name);
  if (by_option && !arguments.Operands().empty()) arguments.Fail("the stock file is named twice");
  if (by_option) return arguments.Text(kStockOption.name, "");
  return arguments.Operands().empty() ? ports.user_stock : arguments.Operands()[0];
}

std::string StockPath(Arguments& arguments, CliPorts& ports) {
  std::string path = WritableStockPath(arguments, ports);
  const bool named = arguments.Has(kStockOption.name) || !arguments.Operands().empty();
  if (!named && !ports.shipped_stock.empty() && !ports.files.Exists(path)) return ports.shipped_stock;
  return path;
}

bool ReadStockOf(const std::string& path, CliPorts& ports, StockTable& stock) {
  const FileResult result = ReadStockFile(ports.files, path, stock);
  const bool not_made_yet = path == ports.user_stock && !ports.files.Exists(path);
  if (!result) PrintError(ports, path + ": " + result.Reason() + (not_made_yet ? kNotMadeYet : ""));
  return static_cast<bool>(result);
}

bool ReadSoundStock(const std::string& path, CliPorts& ports, const RecordRange& range, StockTable& stock) {
  if (!ReadStockOf(path, ports, stock)) return false;
  const std::string doubt = WhyNoStock(ports.files.Length(path).value_or(0), stock, range);
  if (!doubt.empty()) PrintError(ports, path + ": " + doubt);
  return doubt.empty();
}

}  // namespace kestrel
