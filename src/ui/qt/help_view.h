// SPDX-License-Identifier: MIT
// Shows the help pages in the help window. Used by the mirror and the help port.
#pragma once

#include <QTextBrowser>
#include <QUrl>
#include <functional>
#include <optional>
#include <string_view>

#include "core/grid.h"
#include "explain/page_parts.h"
#include "explain/palette.h"
#include "ui/qt/palette.h"

namespace kestrel {

class HelpFind;
class HelpPictures;

class HelpView final : public QTextBrowser {
 public:
  explicit HelpView(QWidget* parent);

  // Takes colours and the size of its text from the present look.
  void FollowLook();

  // The colours of the pictures.
  static const Palette& PictureColours(Scheme scheme);

  // The host folder that stands for the game's help folder.
  void SetFolder(const QString& folder) { folder_ = folder; }

  // Goes to a page, full path in the written form.
  void Navigate(std::string_view page);

  // The page that tells how the puzzle with these givens is solved can be looked at from now on; null: no puzzle's can,
  // and what is shown of one goes away.
  void OfferSolving(const DigitGrid* givens);

  // A page has come; its title, which may be empty.
  std::function<void(const QString& title)> on_page;

  QVariant loadResource(int type, const QUrl& name) override;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void doSetSource(const QUrl& name, QTextDocument::ResourceType type) override;

 private:
  static bool IsSolvedPage(const QUrl& page);
  QString SolvedPage();
  // The SVG text of an image of the page at hand; nothing when there is none.
  [[nodiscard]] QByteArray Drawing(const QString& name) const;
  [[nodiscard]] QUrl UrlOf(std::string_view page) const;
  // The window is too narrow for text and picture side by side.
  [[nodiscard]] bool IsNarrow() const;
  // Makes the page again, for another width or other colours, with the same line at the top.
  void Renew();
  // Follows the view's size, or the look's.
  void Fit();
  void FitSides();
  void FitPictures();

  QString folder_;
  QUrl page_;                       // what is being shown or loaded; its pictures stand beside it
  std::optional<DigitGrid> ended_;  // the puzzle that one may look at
  HelpFiles solved_;                // page and pictures of it, once looked at
  HelpPictures* pictures_;
  HelpFind* find_;
  bool narrow_ = false;  // how the page at hand was made
  Scheme scheme_ = Scheme::Light;
};

}  // namespace kestrel
