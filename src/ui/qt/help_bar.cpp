// SPDX-License-Identifier: MIT
#include "ui/qt/help_bar.h"

#include <QApplication>
#include <QFontMetrics>
#include <QPushButton>
#include <algorithm>
#include <string>

#include "explain/walkthrough_page.h"
#include "media/help.h"
#include "ui/qt/help_view.h"
#include "ui/qt/scaled.h"
#include "ui/qt/text_conversion.h"
#include "ui/qt/texts.h"

namespace kestrel {

namespace {

// Pixels of 96 dpi.
constexpr int kGap = 6;
constexpr int kLeastGap = 3;
constexpr int kTop = 3;
constexpr int kHeight = 25;
constexpr int kLeastWidth = 84;
constexpr int kPadding = 28;  // beside a button's text
constexpr int kLeastPadding = 8;

}  // namespace

HelpBar::HelpBar(QWidget& window, HelpView& view)
    : QWidget(&window),
      view_(view),
      buttons_{Add("HelpBack", texts::kBack), Add("HelpForward", texts::kForward),
               Add("HelpContents", texts::kContents), Add("HelpSolved", texts::kSolved)} {
  const auto& [back, forward, contents, solved] = buttons_;
  for (QPushButton* button : {back, forward}) button->setEnabled(false);
  solved->hide();
  connect(back, &QPushButton::clicked, &view, &HelpView::backward);
  connect(forward, &QPushButton::clicked, &view, &HelpView::forward);
  const auto leads_to = [&view](const QPushButton* button, std::string_view page) {
    connect(button, &QPushButton::clicked, &view,
            [&view, page] { view.Navigate(std::string(kHelpFolder).append(page)); });
  };
  leads_to(contents, kHelpIndex);
  leads_to(solved, kSolvedPage);
  connect(&view, &HelpView::backwardAvailable, back, &QPushButton::setEnabled);
  connect(&view, &HelpView::forwardAvailable, forward, &QPushButton::setEnabled);
  Fit();
}

QPushButton* HelpBar::Add(const char* name, const char* caption) {
  auto* button = new QPushButton(QLatin1String(caption), this);
  button->setObjectName(QLatin1String(name));
  button->setAutoDefault(false);
  return button;
}

void HelpBar::Offer(bool solving) {
  buttons_.back()->setVisible(solving);
  Fit();
}

void HelpBar::Fit() {
  setGeometry(view_.x(), 0, view_.width(), view_.y());
  const QFontMetrics metrics(QApplication::font());  // the buttons hear of another size only later
  constexpr int kButtons = std::tuple_size_v<decltype(buttons_)>;
  std::array<int, kButtons> texts{};
  int wide = 0;
  int text = 0;
  // Only the last one comes and goes.
  const int shown = buttons_.back()->isHidden() ? kButtons - 1 : kButtons;
  const auto width = [](int of_text) { return std::max(Scaled(kLeastWidth), of_text + Scaled(kPadding)); };
  for (int i = 0; i < shown; ++i) {
    const QPushButton& button = *buttons_[i];
    texts[i] = metrics.horizontalAdvance(WithoutMnemonic(button.text().toStdString()));
    wide += width(texts[i]) + Scaled(kGap);
    text += texts[i];
  }
  const bool narrow = wide - Scaled(kGap) > this->width();
  const int gap = Scaled(narrow ? kLeastGap : kGap);
  const int spare = (this->width() - text - (shown - 1) * gap) / shown;
  int left = 0;
  for (int i = 0; i < shown; ++i) {
    const int own = narrow ? texts[i] + std::max(spare, Scaled(kLeastPadding)) : width(texts[i]);
    buttons_[i]->setGeometry(left, Scaled(kTop), own, Scaled(kHeight));
    left += own + gap;
  }
}

}  // namespace kestrel
