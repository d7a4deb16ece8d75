// SPDX-License-Identifier: MIT
#include "ui/qt/print_queue.h"

#include <cups/cups.h>

#include <QLibrary>
#include <QPrinterInfo>
#include <QStringList>

namespace kestrel {

namespace {

// The print service's library, loaded with the first print: it brings many others, which would take a part of
// the program's start. Without it nothing can be said against a queue.
struct Cups {
  QLibrary library{QStringLiteral("cups"), 2};
  decltype(&cupsGetNamedDest) get_destination = Find<decltype(&cupsGetNamedDest)>("cupsGetNamedDest");
  decltype(&cupsGetOption) get_option = Find<decltype(&cupsGetOption)>("cupsGetOption");
  decltype(&cupsFreeDests) free = Find<decltype(&cupsFreeDests)>("cupsFreeDests");

  [[nodiscard]] bool Complete() const { return get_destination && get_option && free; }

 private:
  template <class Function>
  Function Find(const char* name) {
    return reinterpret_cast<Function>(library.resolve(name));
  }
};

// What an administrator has closed for jobs is no error to Qt. A queue that the service does not know by its
// name says nothing against itself.
bool TakesJobs(const QString& name) {
  Cups cups;
  if (!cups.Complete()) return true;
  const QByteArray queue = name.section(QLatin1Char('/'), 0, 0).toUtf8();
  cups_dest_t* destination = cups.get_destination(CUPS_HTTP_DEFAULT, queue.constData(), nullptr);
  if (destination == nullptr) return true;
  const QByteArray accepting =
      cups.get_option("printer-is-accepting-jobs", destination->num_options, destination->options);
  cups.free(1, destination);
  return accepting != "false";
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
