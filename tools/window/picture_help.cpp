// SPDX-License-Identifier: MIT
// Pictures of the help pages as the help window shows them, for a look at all of them. Run by tools/picture_help.sh.
//
// Usage: picture-help HELP_FOLDER OUTPUT_FOLDER WIDTH HEIGHT light|dark|contrast [SIZE [PUZZLE]]
//
// Writes NAME.png for every page, in its whole length as laid out in a window of that size; SIZE is per cent of the
// design. With a PUZZLE of 81 digits only the page on how it is solved, and says how long it took.
#include <QApplication>
#include <QDir>
#include <QPainter>
#include <QScrollBar>
#include <QTextDocument>
#include <cstdint>
#include <cstdio>
#include <ctime>
#include <string>

#include "explain/walkthrough_page.h"
#include "media/help.h"
#include "ui/qt/help_view.h"
#include "ui/qt/look.h"

namespace {

using namespace kestrel;

void ShowPage(HelpView& view, const QString& page) {
  view.Navigate(std::string(kHelpFolder) + page.toStdString());
  QApplication::processEvents();
}

// False when the picture could not be written.
bool Save(const HelpView& view, const QString& path) {
  const QSizeF size = view.document()->size();
  QImage image(view.viewport()->width(), static_cast<int>(size.height()) + 1, QImage::Format_RGB32);
  image.fill(view.palette().color(QPalette::Base));
  QPainter painter(&image);
  view.document()->drawContents(&painter);
  painter.end();
  return image.save(path);
}

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  const QStringList words = QApplication::arguments();
  if (words.size() < 6) {
    std::fputs(
        "Usage: picture-help HELP_FOLDER OUTPUT_FOLDER WIDTH HEIGHT light|dark|contrast [SIZE [PUZZLE]]\n",
        stderr);
    return 2;
  }
  const QString& scheme = words[5];
  Look look;
  look.scheme = scheme == "dark" ? Scheme::Dark : scheme == "contrast" ? Scheme::HighContrast : Scheme::Light;
  if (words.size() > 6) look.zoom = words[6].toInt() / 100.0;
  SetUpLook(look);
  HelpView view(nullptr);
  view.SetFolder(QDir(words[1]).absolutePath());
  view.resize(words[3].toInt(), words[4].toInt());
  view.show();
  QStringList pages = QDir(words[1]).entryList({"*.html"});
  if (words.size() > 7) {
    DigitGrid givens{};
    const std::string digits = words[7].toStdString();
    for (std::size_t i = 0; i < givens.size() && i < digits.size(); ++i) {
      if (digits[i] > '0' && digits[i] <= '9') givens[i] = static_cast<std::uint8_t>(digits[i] - '0');
    }
    view.OfferSolving(&givens);
    pages = QStringList{kSolvedPage};
    const std::clock_t before = std::clock();
    ShowPage(view, kSolvedPage);
    std::printf("made and shown in %.1f ms of processor time\n",
                1000.0 * static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC);
  }
  for (const QString& page : pages) {
    ShowPage(view, page);
    // Long pages are laid out piece by piece; asking for the size brings that to an end.
    const bool wide = view.document()->size().width() > view.viewport()->width();
    if (wide) std::printf("%s is too wide\n", qPrintable(page));
    if (!Save(view, words[2] + '/' + page.chopped(5) + ".png")) return 1;
  }
  return 0;
}
