// SPDX-License-Identifier: MIT
#include "ui/qt/records_window.h"

#include <QApplication>
#include <QGridLayout>
#include <QKeyEvent>
#include <QScreen>
#include <algorithm>

#include "forms/texts.h"
#include "ui/qt/scaled.h"
#include "ui/qt/text_conversion.h"
#include "ui/qt/texts.h"

namespace kestrel {

namespace {

constexpr int kPlotWidth = 380;  // pixels of 96 dpi
constexpr int kHoldersHeight = 110;
constexpr int kAir = 12;

}  // namespace

RecordsWindow::RecordsWindow(const Session& session) : session_(session) {
  setObjectName(QStringLiteral("Records"));
  setAttribute(Qt::WA_StyledBackground);  // the line round it
  setWindowTitle(QLatin1String(texts::kRecordsTitle));
  for (const std::string_view name : texts::kLevelNames) levels_.addTab(ToQString(name));
  levels_.setAccessibleName(QLatin1String(texts::kRecordsLevels));
  holders_.setAccessibleName(QLatin1String(texts::kRecordsHolders));
  holders_title_.setText(QLatin1String(texts::kRecordsHolders));
  auto* grid = new QGridLayout(this);
  grid->setSizeConstraint(QLayout::SetFixedSize);
  grid->addWidget(&levels_, 0, 0, 1, 2);
  grid->addWidget(&map_, 1, 0, 3, 1);
  grid->addWidget(&holders_title_, 1, 1);
  grid->addWidget(&holders_, 2, 1);
  grid->addWidget(&plot_, 3, 1);
  grid->addWidget(&pointed_, 4, 0, 1, 2);
  grid->setRowStretch(3, 1);
  connect(&levels_, &QTabBar::currentChanged, this, [this] { Sync(); });
  map_.on_point = [this](int number) { Point(number); };
  ApplyLook();
}

void RecordsWindow::ApplyLook() {
  map_.Resize();
  holders_.setFixedSize(Scaled(kPlotWidth), Scaled(kHoldersHeight));
  holders_.setIconSize(QSize(Scaled(kHolderSign), Scaled(kHolderSign)));
  plot_.setFixedWidth(Scaled(kPlotWidth));
  plot_.setMinimumHeight(Scaled(kHoldersHeight));
  layout()->setContentsMargins(Scaled(kAir), Scaled(kAir), Scaled(kAir), Scaled(kAir));
  layout()->setSpacing(Scaled(kAir / 2));
  ShowHolders(shown_);
  update();
}

// Over the middle of the game, and whole on its screen.
void RecordsWindow::PlaceOver(const QWidget& game) {
  adjustSize();
  const QRect screen = game.screen()->availableGeometry();
  QRect place(QPoint(), size());
  place.moveCenter(game.frameGeometry().center());
  move(std::max(screen.left(), std::min(place.left(), screen.right() - place.width())),
       std::max(screen.top(), std::min(place.top(), screen.bottom() - place.height())));
}

void RecordsWindow::Open(int level, const QWidget& game) {
  levels_.setCurrentIndex(level - 1);
  const bool was_open = isVisible();
  if (!was_open) PlaceOver(game);
  show();
  Sync();
  map_.setFocus();
  if (!map_.currentIndex().isValid()) map_.setCurrentIndex(map_.model()->index(0, 0));
  if (!was_open) return;
  setWindowState(windowState() & ~Qt::WindowMinimized);
  raise();
  activateWindow();
}

void RecordsWindow::Sync() {
  if (!isVisible()) return;
  LevelRecords now = RecordsOf(*session_.stockroom.stock, session_.players, levels_.currentIndex() + 1);
  if (now == shown_) return;
  if (now.holders != shown_.holders || holders_.count() == 0) ShowHolders(now);
  shown_ = std::move(now);
  map_.Show(shown_);
  plot_.Show(shown_);
  Point(map_.currentIndex().isValid() ? RecordsModel::NumberOf(map_.currentIndex()) : 0);
}

// The window itself hears of a new palette later.
void RecordsWindow::ShowHolders(const LevelRecords& records) {
  holders_.clear();
  int place = 0;
  for (const Holder& each : records.holders) {
    holders_.addItem(new QListWidgetItem(HolderSign(QApplication::palette(), place++),
                                         ToQString(each.name) + QStringLiteral(": %1").arg(each.count)));
  }
  if (records.holders.empty()) holders_.addItem(QLatin1String(texts::kNoRecords));
}

void RecordsWindow::Point(int number) {
  QString text = QLatin1String(texts::kRecordsHelp);
  if (number > 0) {
    text = ToQString(texts::PuzzleRecordText(shown_, number)) +
           QStringLiteral(", %1 %2").arg(QLatin1String(texts::kScore)).arg(shown_.Of(number).score);
  }
  pointed_.setText(text);
}

void RecordsWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    close();
    return;
  }
  QWidget::keyPressEvent(event);
}

}  // namespace kestrel
