// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <map>
#include <set>
#include <sstream>
#include <string>

#include "forms/forms.h"
#include "support/approved.h"

namespace kestrel {
namespace {

// Everything about every control, in tests/ui/controls.txt.
TEST(Controls, AreAsApproved) {
  Forms forms;
  std::set<std::string> names;
  std::ostringstream all;
  EachControl(forms, [&](FormId form, ControlId id, const auto& c) {
    all << static_cast<int>(form) << ' ' << FullName(id) << ' ' << c.left << ',' << c.top << ' ' << c.width
        << 'x' << c.height << (c.visible ? "" : " hidden") << (c.enabled ? "" : " off")
        << (c.transparent ? " clear" : "");
    if (c.tab_index >= 0) all << " tab " << c.tab_index;
    if (c.fore != kWindowTextColour || c.back != kWindowColour)
      all << std::hex << ' ' << c.fore << " on " << c.back;
    all << std::dec;
    if (c.font != Font()) all << ' ' << c.font.family << ' ' << c.font.size << (c.font.bold ? " bold" : "");
    if constexpr (requires { c.align; })
      all << " align " << static_cast<int>(c.align) << (c.link ? " link" : "");
    if constexpr (requires { c.value; }) all << " is " << c.value;
    if constexpr (requires { c.maximum; }) all << " of " << c.minimum << ".." << c.maximum;
    if constexpr (requires { c.is_default; }) all << " keys " << c.is_default << c.is_cancel;
    if constexpr (requires { c.lines; }) all << " line " << c.index << " of " << c.lines.size();
    if constexpr (requires { c.max_length; })
      all << " takes " << c.max_length << c.digits_only << " \"" << c.text << '"';
    if constexpr (requires { c.interval; }) all << " every " << c.interval;
    if constexpr (requires { c.modal; }) all << " state " << static_cast<int>(c.state) << c.open << c.modal;
    if constexpr (requires { c.caption; }) all << " \"" << c.caption << '"';
    if constexpr (requires { c.mnemonic; }) all << " [" << (c.mnemonic != 0 ? c.mnemonic : ' ') << ']';
    for (const std::string& text : {c.tooltip, c.tag, c.spoken}) all << (text.empty() ? "" : " | ") << text;
    all << '\n';
    // Scripts name a control without its form, and screen readers read every control.
    EXPECT_TRUE(names.insert(FullName(id)).second) << FullName(id);
    for (const int twips : {c.left, c.top, c.width, c.height}) {
      EXPECT_EQ(twips % kTwipsPerPixel, 0) << FullName(id);  // half pixels would blur every edge at 100 %
    }
  });
  ExpectApproved("ui/controls.txt", all.str());
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
