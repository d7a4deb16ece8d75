// SPDX-License-Identifier: MIT
#include "ui/qt/help_view.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QPushButton>
#include <algorithm>
#include <string>

#include "host/host_files.h"
#include "media/help.h"
#include "ui/qt/fonts.h"
#include "ui/qt/look.h"
#include "ui/qt/text_conversion.h"
#include "ui/qt/texts.h"

namespace kestrel {

namespace {

constexpr int kTextWidth = 820;  // longer lines are hard to read
constexpr int kTextMargin = 16;

QString ErrorPage(const QUrl& name) {
  return QStringLiteral(
             "<html><head><title>%1</title></head><body><h1>%1</h1><p>%2</p><p>%3</p></body></html>")
      .arg(QLatin1String(texts::kNoPage), QLatin1String(texts::kNoPageWhy),
           name.toLocalFile().toHtmlEscaped());
}

}  // namespace

HelpView::HelpView(QWidget* parent) : QTextBrowser(parent) {
  setOpenLinks(true);
  setFrameShape(QFrame::StyledPanel);
  FollowLook();
  document()->setDocumentMargin(kTextMargin);
}

void HelpView::FollowLook() {
  Font font;
  font.size = 11.25;
  setFont(ToQFont(font, TheLook().zoom));
}

QUrl HelpView::UrlOf(std::string_view page) const {
  if (!page.starts_with(kHelpFolder)) return QUrl::fromLocalFile(ToQString(ToHostPath(page)));
  page.remove_prefix(kHelpFolder.size());
  return QUrl::fromLocalFile(folder_ + QLatin1Char('/') + ToQString(page).replace('\\', '/'));
}

void HelpView::Navigate(std::string_view page) {
  setSource(UrlOf(page));
}

// Links that leave the pages open in the desktop's web browser.
void HelpView::doSetSource(const QUrl& name, QTextDocument::ResourceType type) {
  const QUrl target = source().resolved(name);
  if (!target.isLocalFile() && !target.isRelative()) {
    QDesktopServices::openUrl(target);
    return;
  }
  QTextBrowser::doSetSource(name, type);
}

QVariant HelpView::loadResource(int type, const QUrl& name) {
  const QUrl target = source().resolved(name);
  const bool missing = target.isLocalFile() && !QFileInfo(target.toLocalFile()).isFile();
  if (missing && type == QTextDocument::HtmlResource) return ErrorPage(target);
  if (missing) return {};
  return QTextBrowser::loadResource(type, name);
}

void AddHelpBar(QWidget& window, HelpView& view) {
  int left = view.x();
  const auto add = [&](const char* name, const char* caption, bool enabled) {
    auto* button = new QPushButton(QLatin1String(caption), &window);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false);
    button->setEnabled(enabled);
    button->setGeometry(left, 3, 84, 25);
    left += 90;
    return button;
  };
  QPushButton* back = add("HelpBack", texts::kBack, false);
  QPushButton* forward = add("HelpForward", texts::kForward, false);
  QPushButton* contents = add("HelpContents", texts::kContents, true);
  QObject::connect(back, &QPushButton::clicked, &view, &HelpView::backward);
  QObject::connect(forward, &QPushButton::clicked, &view, &HelpView::forward);
  QObject::connect(contents, &QPushButton::clicked, &view,
                   [&view] { view.Navigate(std::string(kHelpFolder) + std::string(kHelpIndex)); });
  QObject::connect(&view, &HelpView::backwardAvailable, back, &QPushButton::setEnabled);
  QObject::connect(&view, &HelpView::forwardAvailable, forward, &QPushButton::setEnabled);
}

// The text stands in the middle, in lines of a readable length.
void HelpView::resizeEvent(QResizeEvent* event) {
  const int side = std::max(0, (width() - kTextWidth) / 2);
  setViewportMargins(side, 0, side, 0);
  QTextBrowser::resizeEvent(event);
}

}  // namespace kestrel
