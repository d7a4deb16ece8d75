// SPDX-License-Identifier: MIT
#include "ui/qt/qt_printer.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontMetricsF>
#include <QPageLayout>
#include <QPrinterInfo>
#include <QStandardPaths>
#include <cmath>

#include "forms/texts.h"
#include "ui/qt/fonts.h"
#include "ui/qt/palette.h"
#include "ui/qt/text_conversion.h"
#include "ui/qt/texts.h"

namespace kestrel {

namespace {

constexpr int kMediumQuality = 600;  // dots per inch, where the printer offers several
constexpr double kPointsPerInch = 72;
constexpr double kMillimetresPerInch = 25.4;
constexpr int kProgressAfter = 400;  // milliseconds

// The resolution nearest to medium quality of those that the printer has.
int MediumResolution(const QPrinter& printer) {
  int best = printer.resolution();
  for (const int each : printer.supportedResolutions()) {
    if (std::abs(each - kMediumQuality) < std::abs(best - kMediumQuality)) best = each;
  }
  return best;
}

}  // namespace

// ---- QtPage ----

QtPage::QtPage(const QString& printer_name) : printer_(QPrinter::HighResolution) {
  printer_.setPrinterName(printer_name);
  printer_.setFullPage(true);
  if (printer_.pageLayout().pageSize().id() != QPageSize::A4) printer_.setPageSize(QPageSize(QPageSize::A4));
  if (printer_.pageLayout().orientation() != QPageLayout::Portrait) {
    printer_.setPageOrientation(QPageLayout::Portrait);
  }
  printer_.setResolution(MediumResolution(printer_));
  printer_.setDocName(ToQString(texts::kProductName));
}

bool QtPage::Usable() {
  return printer_.isValid() && printer_.pageLayout().pageSize().id() == QPageSize::A4 && Width() > 0;
}

bool QtPage::Begin() {
  new_page_pending_ = false;
  return painter_.begin(&printer_);
}

void QtPage::End(bool keep) {
  if (!keep) printer_.abort();
  painter_.end();
}

int QtPage::Width() {
  return static_cast<int>(printer_.paperRect(QPrinter::DevicePixel).width());
}

int QtPage::Height() {
  return static_cast<int>(printer_.paperRect(QPrinter::DevicePixel).height());
}

QFont QtPage::FontOf(const Font& font) const {
  QFont result = ToQFont(font, 1);
  result.setPixelSize(static_cast<int>(std::lround(font.size * printer_.resolution() / kPointsPerInch)));
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
  painter_.setPen(ToQColor(style.colour, colours::kText));
  painter_.drawText(QPointF(x, y + QFontMetricsF(font, &printer_).ascent()), ToQString(text));
}

void QtPage::SetPen(int width) {
  StartPending();
  const double millimetres = width * kLineWidthStep / 100.0;
  QPen pen(Qt::black, millimetres * printer_.resolution() / kMillimetresPerInch);
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

QtPrinter::QtPrinter(Mirror& mirror, Dispatcher& dispatcher, Files& files, Asker& asker)
    : mirror_(mirror), dispatcher_(dispatcher), files_(files), asker_(asker) {
}

QtPrinter::~QtPrinter() = default;

Page* QtPrinter::SetUp() {
  page_.reset();
  printer_page_.reset();
  pdf_page_.reset();
  const QString standard = QPrinterInfo::defaultPrinterName();
  if (!standard.isEmpty()) {
    printer_page_ = std::make_unique<QtPage>(standard);
    if (!printer_page_->Usable()) printer_page_.reset();
  }
  if (printer_page_) {
    page_ = std::make_unique<WatchedPage>(*printer_page_, *this);
  } else {
    pdf_page_ = MakeFilePage();
    if (!pdf_page_) return nullptr;
    page_ = std::make_unique<WatchedPage>(*pdf_page_, *this);
  }
  return page_.get();
}

std::optional<QString> QtPrinter::AskForFile() {
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  QFileDialog dialog(mirror_.TopWindow(), QLatin1String(texts::kSavePdf), folder,
                     QLatin1String(texts::kPdfFiles));
  dialog.setObjectName(QStringLiteral("FileBox"));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(QStringLiteral("pdf"));
  dialog.selectFile(QLatin1String(texts::kPdfName));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  return dialog.selectedFiles().constFirst();
}

bool QtPrinter::BeginDocument() {
  if (dispatcher_.Ended() || !page_) return false;
  stopped_ = false;
  if (printer_page_) {
    if (!printer_page_->Begin()) return false;
  } else {
    auto fresh = MakeFilePage();
    page_->TakeNew(*fresh);
    pdf_page_ = std::move(fresh);
    const std::optional<QString> file = AskForFile();
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

bool QtPrinter::PageDone() {
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
  if (printer_page_) {
    printer_page_->End(!stopped_);
  } else if (!stopped_) {
    WritePdf();
  }
}

void QtPrinter::WritePdf() {
  const Bytes bytes = pdf_page_->Finish(texts::kProductName).front();
  const FileResult result = files_.Replace(file_.toStdString(), bytes);
  if (result) return;
  // Whatever the answer, there is nothing left to do.
  (void)asker_.Message({texts::kNotSaved, texts::kNotSavedWhy + file_.toStdString() + "\n" + result.Reason(),
                        MessageIcon::Exclamation, MessageButtons::Ok});
}

}  // namespace kestrel
