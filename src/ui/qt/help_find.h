// SPDX-License-Identifier: MIT
// The strip that finds words in a help page. Used by the help view.
#pragma once

#include <QFrame>
#include <QTextDocument>

class QLabel;
class QLineEdit;
class QTextBrowser;

namespace kestrel {

class HelpFind final : public QFrame {
 public:
  explicit HelpFind(QTextBrowser& view);

  // Comes up with the words in it chosen, ready to be typed over.
  void Open();
  // Goes away and hands the keys back to the page.
  void Close();
  // Takes its place at the foot of the view.
  void Fit();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  // Goes to the next place from the chosen one, or from its start while the words are typed; from the other end
  // when there is none, and says so when there is none at all.
  void Find(QTextDocument::FindFlags flags, bool typing);

  QTextBrowser& view_;
  QLineEdit* words_;
  QLabel* answer_;
};

}  // namespace kestrel
