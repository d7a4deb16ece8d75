// SPDX-License-Identifier: MIT
// The standard printer, or a PDF file where the machine has none. Built by the front end.
#pragma once

#include <QPainter>
#include <QPrinter>
#include <QProgressDialog>
#include <memory>
#include <optional>
#include <string>

#include "core/files.h"
#include "core/settings.h"
#include "forms/asker.h"
#include "forms/page.h"
#include "print/file_page.h"
#include "ui/qt/dispatcher.h"
#include "ui/qt/mirror.h"

namespace kestrel {

// A sheet of a printer that Qt drives. One unit is a hundredth of a millimetre, as on the PDF page: a dot would be
// too coarse a measure for the heights of many lines, one below the other.
class QtPage final : public Page {
 public:
  explicit QtPage(const QString& printer_name);
  // A PDF file instead of a printer: what is drawn, for a look at it without paper.
  struct IntoFile {
    QString name;
  };
  explicit QtPage(const IntoFile& file);

  // True when the printer takes A4 upright.
  [[nodiscard]] bool Usable();
  [[nodiscard]] bool Begin(const QString& title);
  // Sends what was printed, or throws it away.
  void End(bool keep);

  int Width() override;
  int Height() override;
  TextSize Measure(const TextStyle& style, std::string_view text) override;
  void Text(int x, int y, const TextStyle& style, std::string_view text) override;
  void Line(int x1, int y1, int x2, int y2, int width) override;
  void Box(int x1, int y1, int x2, int y2, int width) override;
  [[nodiscard]] bool NewPage() override;

 private:
  void SetUpPaper();
  [[nodiscard]] static QFont FontOf(const Font& font);
  void SetPen(int width);
  void StartPending();

  QPrinter printer_;
  QPainter painter_;
  bool new_page_pending_ = false;  // begun only when something is drawn on it, so that none stays empty
};

class QtPrinter final : public Printer {
 public:
  // All must outlive this object. `files` takes paths as the host spells them.
  QtPrinter(Mirror& mirror, Dispatcher& dispatcher, Files& files, Asker& asker, Settings& settings);
  ~QtPrinter() override;

  Page* SetUp() override;
  [[nodiscard]] bool BeginDocument(std::string_view title) override;
  void EndDocument() override;
  [[nodiscard]] std::string Outcome() const override { return outcome_; }

 private:
  class WatchedPage;

  [[nodiscard]] QString Folder();
  [[nodiscard]] std::optional<QString> AskForFile(const QString& title);
  [[nodiscard]] bool WritePdf();
  [[nodiscard]] bool PageDone();
  [[nodiscard]] bool BeginOnQueue(const QString& title);

  Mirror& mirror_;
  Dispatcher& dispatcher_;
  Files& files_;
  Asker& asker_;
  Settings& settings_;

  std::unique_ptr<QtPage> printer_page_;  // null: the standard printer is a PDF file
  std::unique_ptr<FilePage> pdf_page_;
  std::unique_ptr<WatchedPage> page_;  // one of the two, with progress
  std::unique_ptr<QProgressDialog> progress_;
  QString queue_;
  QString file_;
  std::string outcome_;
  int pages_ = 0;
  bool stopped_ = false;
};

}  // namespace kestrel
