// SPDX-License-Identifier: MIT
#include "game/stockroom.h"

#include "game/texts.h"

namespace kestrel {

bool Stockroom::Save(Files& files, Asker& asker) {
  if (WriteStock(files, DataFolder, *stock, *known)) return true;
  return asker.Message({std::string(texts::kFileError), std::string(texts::kWriteError),
                        MessageIcon::Exclamation, MessageButtons::Ok}) != Answer::Ended;
}

}  // namespace kestrel
