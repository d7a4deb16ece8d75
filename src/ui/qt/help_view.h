// SPDX-License-Identifier: MIT
// Shows the help pages in the help window. Used by the mirror and the help port.
#pragma once

#include <QTextBrowser>
#include <QUrl>
#include <string_view>

namespace kestrel {

class HelpView final : public QTextBrowser {
 public:
  explicit HelpView(QWidget* parent);

  // Takes the size of its text from the present look.
  void FollowLook();

  // The host folder that stands for the game's help folder.
  void SetFolder(const QString& folder) { folder_ = folder; }

  // Goes to a page, full path in the written form.
  void Navigate(std::string_view page);

  QVariant loadResource(int type, const QUrl& name) override;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void doSetSource(const QUrl& name, QTextDocument::ResourceType type) override;

 private:
  [[nodiscard]] QUrl UrlOf(std::string_view page) const;

  QString folder_;
};

// Puts the buttons Back, Forward and Contents into the strip over the view.
void AddHelpBar(QWidget& window, HelpView& view);

}  // namespace kestrel
