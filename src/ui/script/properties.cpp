// SPDX-License-Identifier: MIT
#include "ui/script/properties.h"

#include <concepts>

#include "ui/memory/json_string.h"
#include "ui/memory/transcript.h"
#include "ui/memory/user.h"
#include "ui/script/parsing.h"

namespace kestrel {

namespace {

std::string ColourText(Colour colour) {
  if (colour == kWindowColour) return "window";
  if (colour == kWindowTextColour) return "windowtext";
  return std::to_string(colour);
}

std::optional<std::string> CommonProperty(const Control& control, std::string_view property) {
  if (property == "visible") return TruthValue(control.visible);
  if (property == "enabled") return TruthValue(control.enabled);
  if (property == "tag") return JsonString(control.tag);
  if (property == "tooltip") return JsonString(control.tooltip);
  if (property == "forecolor") return ColourText(control.fore);
  if (property == "backcolor") return ColourText(control.back);
  if (property == "left") return std::to_string(control.left);
  if (property == "top") return std::to_string(control.top);
  if (property == "width") return std::to_string(control.width);
  if (property == "height") return std::to_string(control.height);
  return std::nullopt;
}

std::optional<std::string> LineText(const std::vector<std::string>& lines, std::string_view property) {
  const auto line = ParseIndexedName(property);
  if (!line || line->name != "line" || !line->index) return std::nullopt;
  if (*line->index < 0 || *line->index >= static_cast<int>(lines.size())) return std::nullopt;
  return JsonString(lines[static_cast<std::size_t>(*line->index)]);
}

// The properties that only some kinds of control have.
template <class T>
std::optional<std::string> OwnProperty(const T& control, std::string_view property) {
  if constexpr (std::same_as<T, Window>) {
    if (property == "visible") return TruthValue(control.open);
  }
  if constexpr (requires { control.caption; }) {
    if (property == "caption") return JsonString(control.caption);
  }
  if constexpr (requires { control.value; }) {
    if (property == "value") {
      if constexpr (std::same_as<decltype(control.value), bool>) return TruthValue(control.value);
      return std::to_string(control.value);
    }
  }
  if constexpr (requires { control.text; }) {
    if (property == "text") return JsonString(control.text);
  }
  if constexpr (requires { control.lines; }) {
    if (property == "index") return std::to_string(control.index);
    if (property == "count") return std::to_string(control.lines.size());
    return LineText(control.lines, property);
  }
  if constexpr (std::same_as<T, Picture>) {
    if (property == "picture") return JsonString(control.file.substr(control.file.rfind('\\') + 1));
  }
  return std::nullopt;
}

}  // namespace

std::optional<std::string> PropertyText(const Forms& forms, std::string_view name,
                                        std::string_view property) {
  std::optional<std::string> text;
  EachControl(forms, [&](FormId, ControlId id, const auto& control) {
    if (!HasName(id, name)) return;
    text = OwnProperty(control, property);
    if (!text) text = CommonProperty(control, property);
  });
  return text;
}

}  // namespace kestrel
