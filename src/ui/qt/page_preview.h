// SPDX-License-Identifier: MIT
// A sheet of paper on the screen, drawn as it is going to be printed. Used by the print dialog.
#pragma once

#include <QPixmap>
#include <QWidget>
#include <memory>

#include "forms/page_view.h"

namespace kestrel {

class PagePreview final : public QWidget {
 public:
  explicit PagePreview(QWidget* parent) : QWidget(parent) {}
  void Show(std::shared_ptr<const DrawnPage> page);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::shared_ptr<const DrawnPage> page_;
  QPixmap
      sheet_;  // the page at the size of the screen; drawn once, small digits by the thousand take a while
};

}  // namespace kestrel
