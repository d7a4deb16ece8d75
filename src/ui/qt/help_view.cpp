// SPDX-License-Identifier: MIT
#include "ui/qt/help_view.h"

#include <QAbstractTextDocumentLayout>
#include <QDesktopServices>
#include <QFile>
#include <QFileInfo>
#include <QKeyEvent>
#include <QScrollBar>
#include <QTextBlock>
#include <algorithm>
#include <string>

#include "core/yield.h"
#include "explain/palette.h"
#include "explain/walkthrough_page.h"
#include "host/host_files.h"
#include "media/help.h"
#include "ui/qt/fonts.h"
#include "ui/qt/help_find.h"
#include "ui/qt/help_pictures.h"
#include "ui/qt/look.h"
#include "ui/qt/text_conversion.h"
#include "ui/qt/texts.h"

namespace kestrel {

namespace {

constexpr int kTextWidth = 1020;  // longer lines are hard to read
constexpr int kTextMargin = 16;
constexpr int kNarrow = 720;  // below this, a picture stands under its explanation, not beside it

// A picture and its explanation fit on one screen, below the head of a page.
constexpr int kHeadOfPage = 204;
constexpr double kPictureShare = 0.56;  // of the page's width, beside an explanation
constexpr int kSmallestPicture = 300;

QByteArray Content(const QUrl& file) {
  QFile in(file.toLocalFile());
  return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray();
}

// The drawing, which carries plain colour values of the light palette, in those of another. In one go, for what is
// ink in one palette is paper in the other.
QByteArray InColours(const QByteArray& svg, const Palette& colours) {
  QByteArray result;
  qsizetype done = 0;
  for (qsizetype at = svg.indexOf("\"#"); at >= 0; at = svg.indexOf("\"#", at + 1)) {
    const QByteArray colour = svg.mid(at + 1, 7);
    for (const auto part :
         {&Palette::paper, &Palette::ink, &Palette::thin, &Palette::mark, &Palette::given, &Palette::digit,
          &Palette::cause, &Palette::gone, &Palette::gone_ground, &Palette::unit_wash, &Palette::lose_wash}) {
      if (colour != kLightPalette.*part) continue;
      result += svg.mid(done, at + 1 - done) + colours.*part;
      done = at + 1 + colour.size();
      break;
    }
  }
  return result + svg.mid(done);
}

QString ErrorPage(const QUrl& name) {
  return QStringLiteral(
             "<html><head><title>%1</title></head><body><h1>%1</h1><p>%2</p><p>%3</p></body></html>")
      .arg(QLatin1String(texts::kNoPage), QLatin1String(texts::kNoPageWhy),
           name.toLocalFile().toHtmlEscaped());
}

}  // namespace

HelpView::HelpView(QWidget* parent)
    : QTextBrowser(parent),
      pictures_(new HelpPictures(this,
                                 [this](const QString& name) {
                                   const QByteArray svg = Drawing(name);
                                   if (scheme_ == Scheme::Light) return svg;
                                   return InColours(svg, PictureColours(scheme_));
                                 })),
      find_(new HelpFind(*this)) {
  setOpenLinks(true);
  setFrameShape(QFrame::StyledPanel);
  document()->setDocumentMargin(kTextMargin);
  document()->documentLayout()->registerHandler(QTextFormat::ImageObject, pictures_);
  FollowLook();
}

void HelpView::FollowLook() {
  Font font;
  font.size = 11.25;
  setFont(ToQFont(font, TheLook().zoom));
  pictures_->SetZoom(TheLook().zoom);
  FitSides();
  if (page_.isEmpty()) return;
  if (TheLook().scheme != scheme_) Renew();
  Fit();
}

const Palette& HelpView::PictureColours(Scheme scheme) {
  if (scheme == Scheme::Dark) return kDarkPalette;
  return scheme == Scheme::HighContrast ? kContrastPalette : kLightPalette;
}

QUrl HelpView::UrlOf(std::string_view page) const {
  if (!page.starts_with(kHelpFolder)) return QUrl::fromLocalFile(ToQString(ToHostPath(page)));
  page.remove_prefix(kHelpFolder.size());
  return QUrl::fromLocalFile(folder_ + QLatin1Char('/') + ToQString(page).replace('\\', '/'));
}

void HelpView::Navigate(std::string_view page) {
  setSource(UrlOf(page));
}

void HelpView::OfferSolving(const DigitGrid* givens) {
  ended_ = givens == nullptr ? std::nullopt : std::optional(*givens);
  solved_.clear();
  if (IsSolvedPage(page_)) reload();
}

bool HelpView::IsSolvedPage(const QUrl& page) {
  return page.fileName() == QLatin1String(kSolvedPage);
}

// Made when it is first looked at.
QString HelpView::SolvedPage() {
  if (!ended_) return QString::fromStdString(SolvedHelpToCome());
  if (solved_.empty()) {
    NeverStop yield;  // a puzzle takes a few milliseconds
    solved_ = SolvedHelp(*ExplainPuzzle(*ended_, yield));
  }
  return QString::fromStdString(solved_[kSolvedPage]);
}

QByteArray HelpView::Drawing(const QString& name) const {
  if (!IsSolvedPage(page_)) return Content(page_.resolved(QUrl(name)));
  const auto found = solved_.find(name.toStdString());
  return found == solved_.end() ? QByteArray() : QByteArray::fromStdString(found->second);
}

// Links that leave the pages open in the desktop's web browser.
void HelpView::doSetSource(const QUrl& name, QTextDocument::ResourceType type) {
  const QUrl target = source().resolved(name);
  if (!target.isLocalFile() && !target.isRelative()) {
    QDesktopServices::openUrl(target);
    return;
  }
  page_ = target;
  narrow_ = IsNarrow();
  scheme_ = TheLook().scheme;
  pictures_->Forget();
  QTextBrowser::doSetSource(name, type);
  // Not only what Qt takes for changed: nothing of the page before may stay.
  update();
  viewport()->update();
  if (on_page) on_page(documentTitle());
}

QVariant HelpView::loadResource(int type, const QUrl& name) {
  const QUrl target = source().resolved(name);
  const bool page = type == QTextDocument::HtmlResource;
  const bool solved = page && IsSolvedPage(target);
  const bool missing = !solved && target.isLocalFile() && !QFileInfo(target.toLocalFile()).isFile();
  if (missing) return page ? QVariant(ErrorPage(target)) : QVariant();
  if (page) {
    QString html = solved ? SolvedPage() : QString::fromUtf8(Content(target));
    // In a narrow window the two cells of an example stand one below the other; browsers do it by the style.
    if (narrow_) {
      html.replace(QLatin1String("</td>\n<td class=\"picture\">"),
                   QLatin1String("</td></tr>\n<tr><td class=\"picture\">"));
    }
    return html;
  }
  if (type == QTextDocument::StyleSheetResource) {
    QByteArray style = Content(target);
    const auto add = [&](const QString& more) { style += Content(target.resolved(QUrl(more))); };
    if (scheme_ != Scheme::Light) add(QStringLiteral("help_dark.css"));
    if (scheme_ == Scheme::HighContrast) add(QStringLiteral("help_contrast.css"));
    return style;
  }
  return QTextBrowser::loadResource(type, name);
}

bool HelpView::IsNarrow() const {
  return width() < kNarrow * TheLook().zoom;
}

void HelpView::FitPictures() {
  const QSize room = viewport()->size();
  const double width = room.width() - 2.0 * kTextMargin - 12;
  pictures_->SetLargest({IsNarrow() ? width : width * kPictureShare,
                         std::max<double>(kSmallestPicture, room.height() - kHeadOfPage * TheLook().zoom)});
}

void HelpView::Renew() {
  const int top = cursorForPosition({viewport()->width() / 2, kTextMargin}).block().blockNumber();
  const bool at_start = verticalScrollBar()->value() == 0;
  reload();
  const QTextBlock block = document()->findBlockByNumber(top);
  if (at_start || !block.isValid()) return;
  verticalScrollBar()->setValue(
      static_cast<int>(document()->documentLayout()->blockBoundingRect(block).top()));
}

// The text stands in the middle, in lines of a readable length.
void HelpView::FitSides() {
  const int side = std::max(0, (width() - static_cast<int>(kTextWidth * TheLook().zoom)) / 2);
  setViewportMargins(side, 0, side, 0);
}

void HelpView::Fit() {
  FitPictures();
  find_->Fit();
  if (IsNarrow() != narrow_) {
    Renew();
  } else {
    document()->markContentsDirty(0, document()->characterCount());  // the pictures have other sizes now
  }
}

void HelpView::resizeEvent(QResizeEvent* event) {
  FitSides();  // before the text is laid out between them
  QTextBrowser::resizeEvent(event);
  Fit();
}

void HelpView::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Find)) {
    find_->Open();
  } else if (event->key() == Qt::Key_Escape) {
    window()->close();
  } else {
    QTextBrowser::keyPressEvent(event);
  }
}

}  // namespace kestrel
