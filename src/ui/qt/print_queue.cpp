// SPDX-License-Identifier: MIT
#include "ui/qt/print_queue.h"

#include <cups/cups.h>

#include <QPrinterInfo>
#include <QStringList>
#include <memory>

namespace kestrel {

namespace {

// What an administrator has closed for jobs is no error to Qt. A queue that the service does not know by its
// name says nothing against itself.
bool TakesJobs(const QString& name) {
  const QByteArray queue = name.section(QLatin1Char('/'), 0, 0).toUtf8();
  const auto free_destination = [](cups_dest_t* destination) { cupsFreeDests(1, destination); };
  const std::unique_ptr<cups_dest_t, decltype(free_destination)> destination(
      cupsGetNamedDest(CUPS_HTTP_DEFAULT, queue.constData(), nullptr), free_destination);
  if (destination == nullptr) return true;
  const char* accepting =
      cupsGetOption("printer-is-accepting-jobs", destination->num_options, destination->options);
  return accepting == nullptr || QByteArray(accepting) != "false";
}

}  // namespace

PrintQueue FindPrintQueue() {
  PrintQueue queue{QPrinterInfo::defaultPrinterName()};
  if (queue.name.isEmpty()) {
    const QStringList all = QPrinterInfo::availablePrinterNames();
    if (all.isEmpty()) return queue;
    queue.name = all.constFirst();
  }
  queue.ready = QPrinterInfo::printerInfo(queue.name).state() != QPrinter::Error && TakesJobs(queue.name);
  return queue;
}

}  // namespace kestrel
