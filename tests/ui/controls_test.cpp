// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>
#include <concepts>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "forms/forms.h"

namespace kestrel {
namespace {

// Scripts name a control without its form, and screen readers read every control.
TEST(Controls, HaveNamesOfTheirOwn) {
  Forms forms;
  std::set<std::string> names;
  int count = 0;
  EachControl(forms, [&](FormId, ControlId id, auto&) {
    names.insert(FullName(id));
    ++count;
  });
  EXPECT_EQ(names.size(), count);
  EXPECT_TRUE(names.contains("Mark9(80)"));
  EXPECT_TRUE(names.contains("LabelCount(43)"));
  EXPECT_TRUE(names.contains("StatusBar(5)"));
  EXPECT_TRUE(names.contains("OptionAantal(2)"));
}

// Nothing lies outside its window or on top of another control, but for the marks, the start-up panel and the
// bars on it, which are meant to.
TEST(Controls, DoNotOverlap) {
  Forms forms;
  struct Place {
    FormId form;
    std::string name;
    int left, top, right, bottom;
  };
  std::vector<Place> places;
  EachControl(forms, [&](FormId form, ControlId id, auto& control) {
    using Kind = std::remove_cvref_t<decltype(control)>;
    if constexpr (!std::same_as<Kind, Window> && !std::same_as<Kind, Timer>) {
      if (id.name.starts_with("Mark") || id.name == "Picture3" || id.name == "ProgressBar1") return;
      places.push_back({form, FullName(id), control.left, control.top, control.left + control.width,
                        control.top + control.height});
    }
  });
  for (const Place& a : places) {
    const Window& window = forms.WindowOf(a.form);
    EXPECT_TRUE(a.left >= 0 && a.top >= 0 && a.right <= window.width && a.bottom <= window.height) << a.name;
    for (const Place& b : places) {
      if (&a == &b || a.form != b.form) continue;
      const bool apart = a.right <= b.left || b.right <= a.left || a.bottom <= b.top || b.bottom <= a.top;
      EXPECT_TRUE(apart) << a.name << " and " << b.name;
    }
  }
}

// The keyboard's order is gapless, and a letter means one thing in a window.
TEST(Controls, CanBeReachedByKeyboard) {
  Forms forms;
  std::map<FormId, std::multiset<int>> order;
  std::map<FormId, std::multiset<int>> letters;
  EachControl(forms, [&](FormId form, ControlId, auto& control) {
    if (control.tab_index >= 0) order[form].insert(control.tab_index);
    if constexpr (requires { control.mnemonic; }) {
      int letter = control.mnemonic;
      const std::size_t own = control.caption.find('&');
      if (own != std::string::npos) letter = control.caption[own + 1];
      if (letter == 0) return;
      letters[form].insert(std::toupper(letter));
      EXPECT_TRUE(own != std::string::npos || control.caption.find(control.mnemonic) != std::string::npos)
          << control.caption;
    }
  });
  for (const auto& [form, indices] : order) {
    int next = 0;
    for (const int index : indices) EXPECT_EQ(index, next++);
  }
  for (const auto& [form, used] : letters) {
    for (const int letter : used) EXPECT_EQ(used.count(letter), 1) << static_cast<char>(letter);
  }
}

}  // namespace
}  // namespace kestrel
