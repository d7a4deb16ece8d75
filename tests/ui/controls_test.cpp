// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

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
}

// Half pixels would blur every edge at 100 %.
TEST(Controls, StandOnWholePixels) {
  Forms forms;
  EachControl(forms, [](FormId, ControlId id, const Control& control) {
    for (const int twips : {control.left, control.top, control.width, control.height}) {
      EXPECT_EQ(twips % kTwipsPerPixel, 0) << FullName(id);
    }
  });
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
