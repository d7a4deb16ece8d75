// SPDX-License-Identifier: MIT
#include "ui/qt/qt_printer.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontMetricsF>
#include <QPageLayout>
#include <QStandardPaths>
#include <cmath>

#include "forms/texts.h"
#include "print/texts.h"
#include "ui/qt/fonts.h"
#include "ui/qt/palette.h"
#include "ui/qt/print_queue.h"
#include "ui/qt/text_conversion.h"
#include "ui/qt/texts.h"

namespace kestrel {

namespace {

// Dots per inch. Set without asking what the printer has: a printer of CUPS claims to have 72 alone, and takes
// any, since it is given PDF.
constexpr int kMediumQuality = 600;
constexpr double kPointsPerInch = 72;
constexpr double kUnitsPerInch = 2540;
constexpr double kUnitsPerMillimetre = 100;
constexpr QRgb kPrinterBlack = 0xFF000000;
constexpr int kProgressAfter = 400;  // milliseconds

// The setting that holds the folder of the last PDF file.
constexpr std::string_view kSection = "Options";
constexpr std::string_view kFolderKey = "PdfFolder";

}  // namespace

// ---- QtPage ----

QtPage::QtPage(const QString& printer_name) : printer_(QPrinter::HighResolution) {
  printer_.setPrinterName(printer_name);
  SetUpPaper();
}

QtPage::QtPage(const IntoFile& file) : printer_(QPrinter::HighResolution) {
  printer_.setOutputFormat(QPrinter::PdfFormat);
  printer_.setOutputFileName(file.name);
  SetUpPaper();
}

void QtPage::SetUpPaper() {
  printer_.setFullPage(true);
  if (printer_.pageLayout().pageSize().id() != QPageSize::A4) printer_.setPageSize(QPageSize(QPageSize::A4));
  if (printer_.pageLayout().orientation() != QPageLayout::Portrait) {
    printer_.setPageOrientation(QPageLayout::Portrait);
  }
  printer_.setResolution(kMediumQuality);
}

bool QtPage::Usable() {
  return printer_.isValid() && printer_.pageLayout().pageSize().id() == QPageSize::A4 &&
         !printer_.paperRect(QPrinter::DevicePixel).isEmpty();
}

bool QtPage::Begin(const QString& title) {
  printer_.setDocName(title);
  new_page_pending_ = false;
  if (!painter_.begin(&printer_)) return false;
  const double dots_per_unit = printer_.resolution() / kUnitsPerInch;
  painter_.scale(dots_per_unit, dots_per_unit);
  return true;
}

void QtPage::End(bool keep) {
  if (!keep) printer_.abort();
  painter_.end();
}

int QtPage::Width() {
  return static_cast<int>(
      std::lround(printer_.paperRect(QPrinter::Millimeter).width() * kUnitsPerMillimetre));
}

int QtPage::Height() {
  return static_cast<int>(
      std::lround(printer_.paperRect(QPrinter::Millimeter).height() * kUnitsPerMillimetre));
}

// As the PDF page has it: every letter by its own width alone.
QFont QtPage::FontOf(const Font& font) {
  QFont result = ToQFont(font, 1);
  result.setPixelSize(static_cast<int>(std::lround(font.size * kUnitsPerInch / kPointsPerInch)));
  result.setKerning(false);
  result.setHintingPreference(QFont::PreferNoHinting);
  return result;
}

TextSize QtPage::Measure(const TextStyle& style, std::string_view text) {
  const QFontMetricsF metrics(FontOf(style.font), &printer_);
  return {static_cast<int>(std::lround(metrics.horizontalAdvance(ToQString(text)))),
          static_cast<int>(std::lround(metrics.ascent() + metrics.descent()))};
}

void QtPage::Text(int x, int y, const TextStyle& style, std::string_view text) {
  StartPending();
  const QFont font = FontOf(style.font);
  painter_.setFont(font);
  painter_.setPen(ToQColor(style.colour, kPrinterBlack));
  painter_.drawText(QPointF(x, y + QFontMetricsF(font, &printer_).ascent()), ToQString(text));
}

void QtPage::SetPen(int width) {
  StartPending();
  QPen pen(Qt::black, width * kLineWidthStep);
  pen.setCapStyle(Qt::FlatCap);
  pen.setJoinStyle(Qt::MiterJoin);
  painter_.setPen(pen);
  painter_.setBrush(Qt::NoBrush);
}

void QtPage::Line(int x1, int y1, int x2, int y2, int width) {
  SetPen(width);
  painter_.drawLine(x1, y1, x2, y2);
}

void QtPage::Box(int x1, int y1, int x2, int y2, int width) {
  SetPen(width);
  painter_.drawRect(QRectF(QPointF(x1, y1), QPointF(x2, y2)));
}

bool QtPage::NewPage() {
  new_page_pending_ = true;
  return true;
}

void QtPage::StartPending() {
  if (new_page_pending_) printer_.newPage();
  new_page_pending_ = false;
}

// ---- QtPrinter ----

// The printer's or the file's page; after each of its pages the user is asked whether to go on.
class QtPrinter::WatchedPage final : public Page {
 public:
  WatchedPage(Page& inner, QtPrinter& owner) : inner_(&inner), owner_(owner) {}

  // The same paper, fresh.
  void TakeNew(Page& inner) { inner_ = &inner; }

  int Width() override { return inner_->Width(); }
  int Height() override { return inner_->Height(); }
  TextSize Measure(const TextStyle& style, std::string_view text) override {
    return inner_->Measure(style, text);
  }
  void Text(int x, int y, const TextStyle& style, std::string_view text) override {
    inner_->Text(x, y, style, text);
  }
  void Line(int x1, int y1, int x2, int y2, int width) override { inner_->Line(x1, y1, x2, y2, width); }
  void Box(int x1, int y1, int x2, int y2, int width) override { inner_->Box(x1, y1, x2, y2, width); }
  [[nodiscard]] bool NewPage() override { return inner_->NewPage() && owner_.PageDone(); }

 private:
  Page* inner_;
  QtPrinter& owner_;
};

QtPrinter::QtPrinter(Mirror& mirror, Dispatcher& dispatcher, Files& files, Asker& asker, Settings& settings)
    : mirror_(mirror), dispatcher_(dispatcher), files_(files), asker_(asker), settings_(settings) {
}

QtPrinter::~QtPrinter() = default;

Page* QtPrinter::SetUp() {
  page_.reset();
  printer_page_.reset();
  pdf_page_.reset();
  const PrintQueue queue = FindPrintQueue();
  queue_ = queue.name;
  if (!queue.name.isEmpty()) {
    if (!queue.ready) return nullptr;
    printer_page_ = std::make_unique<QtPage>(queue.name);
    if (!printer_page_->Usable()) return nullptr;
    page_ = std::make_unique<WatchedPage>(*printer_page_, *this);
  } else {
    pdf_page_ = MakeFilePage();
    if (!pdf_page_) return nullptr;
    page_ = std::make_unique<WatchedPage>(*pdf_page_, *this);
  }
  return page_.get();
}

// Where the last file went, else among the user's documents, else in the home folder.
QString QtPrinter::Folder() {
  for (const QString& folder : {ToQString(settings_.Read(kSection, kFolderKey, "")),
                                QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)}) {
    if (!folder.isEmpty() && QFileInfo(folder).isDir()) return folder;
  }
  return QDir::homePath();
}

std::optional<QString> QtPrinter::AskForFile(const QString& title) {
  QFileDialog dialog(mirror_.TopWindow(), QLatin1String(texts::kSavePdf), Folder(),
                     QLatin1String(texts::kPdfFiles));
  dialog.setObjectName(QStringLiteral("FileBox"));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(QStringLiteral("pdf"));
  dialog.selectFile(title + QStringLiteral(".pdf"));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  return dialog.selectedFiles().constFirst();
}

bool QtPrinter::BeginDocument(std::string_view title) {
  if (dispatcher_.Ended() || !page_) return false;
  stopped_ = false;
  pages_ = 0;
  outcome_.clear();
  if (printer_page_) {
    if (!BeginOnQueue(ToQString(title))) return false;
  } else {
    auto fresh = MakeFilePage();
    page_->TakeNew(*fresh);
    pdf_page_ = std::move(fresh);
    const std::optional<QString> file = AskForFile(ToQString(title));
    if (!file || dispatcher_.Ended()) return false;
    file_ = *file;
  }
  progress_ =
      std::make_unique<QProgressDialog>(QLatin1String(texts::kPrinting), QLatin1String(texts::kStop), 0,
                                        mirror_.Controls().print.PageSlider.value, mirror_.TopWindow());
  progress_->setWindowTitle(ToQString(texts::kProductName));
  progress_->setWindowModality(Qt::ApplicationModal);
  progress_->setMinimumDuration(kProgressAfter);
  progress_->setAutoClose(false);
  progress_->setValue(0);
  return true;
}

// The queue may have stopped taking jobs since the dialog was opened; the service would refuse the job without
// a word to the painter.
bool QtPrinter::BeginOnQueue(const QString& title) {
  if (FindPrintQueue().ready && printer_page_->Begin(title)) return true;
  // Whatever the answer, nothing is printed.
  (void)asker_.Message({std::string(texts::kPrinterErrorTitle), std::string(texts::kPrinterError),
                        MessageIcon::Exclamation, MessageButtons::Ok});
  return false;
}

bool QtPrinter::PageDone() {
  ++pages_;
  if (progress_) {
    progress_->setValue(progress_->value() + 1);
    QCoreApplication::processEvents();
    stopped_ = stopped_ || progress_->wasCanceled();
  }
  stopped_ = stopped_ || dispatcher_.Ended();
  return !stopped_;
}

void QtPrinter::EndDocument() {
  progress_.reset();
  if (printer_page_) printer_page_->End(!stopped_);
  if (stopped_) {
    outcome_ = texts::kStopped;
  } else if (printer_page_) {
    outcome_ = std::to_string(pages_) + (pages_ == 1 ? texts::kPageSentTo : texts::kPagesSentTo) +
               queue_.toStdString();
  } else if (WritePdf()) {
    outcome_ = texts::kSavedIn + QDir::toNativeSeparators(file_).toStdString();
  }
}

bool QtPrinter::WritePdf() {
  const Bytes bytes = pdf_page_->Finish(texts::kProductName).front();
  const FileResult result = files_.Replace(file_.toStdString(), bytes);
  if (result) {
    (void)settings_.Write(kSection, kFolderKey, QFileInfo(file_).absolutePath().toStdString());
    return true;
  }
  // Whatever the answer, there is nothing left to do.
  (void)asker_.Message({texts::kNotSaved, texts::kNotSavedWhy + file_.toStdString() + "\n" + result.Reason(),
                        MessageIcon::Exclamation, MessageButtons::Ok});
  return false;
}

}  // namespace kestrel
