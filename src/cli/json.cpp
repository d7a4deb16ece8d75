// SPDX-License-Identifier: MIT
#include "cli/json.h"

namespace kestrel {

JsonObject& JsonObject::AddRaw(std::string_view name, std::string_view json) {
  if (!members_.empty()) members_ += ',';
  members_ += JsonString(name);
  members_ += ':';
  members_ += json;
  return *this;
}

JsonObject JsonLine() {
  JsonObject object;
  object.Add("schema", kJsonSchema);
  return object;
}

JsonArray& JsonArray::AddRaw(std::string_view json) {
  if (!values_.empty()) values_ += ',';
  values_ += json;
  return *this;
}

}  // namespace kestrel
