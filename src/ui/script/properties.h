// SPDX-License-Identifier: MIT
// The properties of the controls as text, for the question "get".
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "forms/forms.h"

namespace kestrel {

// The value of NAME.PROPERTY; nothing when there is no such control or when it has no such property.
std::optional<std::string> PropertyText(const Forms& forms, std::string_view name, std::string_view property);

}  // namespace kestrel
