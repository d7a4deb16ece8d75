// SPDX-License-Identifier: MIT
// The buttons over a help page. Used by the mirror.
#pragma once

#include <QWidget>
#include <array>

class QPushButton;

namespace kestrel {

class HelpView;

class HelpBar final : public QWidget {
 public:
  // Both must outlive the bar.
  HelpBar(QWidget& window, HelpView& view);

  // Shows or hides the button that leads to how the puzzle is solved.
  void Offer(bool solving);
  // Takes its place over the view, at the present size; in a narrow window the buttons move together.
  void Fit();

 private:
  QPushButton* Add(const char* name, const char* caption);

  HelpView& view_;
  std::array<QPushButton*, 4> buttons_;  // back, forward, contents, solved
};

}  // namespace kestrel
