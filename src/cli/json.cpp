// SPDX-License-Identifier: MIT
#include "cli/json.h"

namespace kestrel {

Json JsonLine() {
  return {{"schema", kJsonSchema}};
}

std::string JsonText(const Json& value) {
  return value.dump(-1, ' ', false, Json::error_handler_t::replace) + '\n';
}

}  // namespace kestrel
