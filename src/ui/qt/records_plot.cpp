// SPDX-License-Identifier: MIT
#include "ui/qt/records_plot.h"

#include <QPainter>
#include <QPixmap>
#include <algorithm>
#include <array>
#include <cmath>

#include "ui/qt/look.h"
#include "ui/qt/scaled.h"
#include "ui/qt/text_conversion.h"
#include "ui/qt/texts.h"

namespace kestrel {

namespace {

constexpr int kAxisSize = 10;  // pixels of 96 dpi, as all lengths here
constexpr int kLeft = 44;
constexpr int kRight = 10;
constexpr int kUpper = 26;
constexpr int kLower = 32;
constexpr int kSign = 7;
constexpr int kShapes = 4;

// Hues apart from each other, also for eyes that tell red and green badly; lightened on a dark ground.
constexpr std::array<QRgb, 5> kHues = {0xFF2B62B8, 0xFFB45309, 0xFF0F766E, 0xFF9D174D, 0xFF555B63};

QColor HolderColour(const QPalette& palette, int place) {
  QColor colour(kHues[static_cast<std::size_t>(place) % kHues.size()]);
  const QColor ground = palette.color(QPalette::Base);
  for (int i = 0; i < 8 && ContrastRatio(colour, ground) < 3; ++i) {
    colour = ground.lightness() < 128 ? colour.lighter(125) : colour.darker(115);
  }
  return colour;
}

void PaintSign(QPainter& painter, QPointF middle, double size, int shape) {
  const double half = size / 2;
  switch (shape % kShapes) {
    case 0:
      return painter.drawEllipse(middle, half, half);
    case 1:
      return painter.drawRect(QRectF(middle.x() - half, middle.y() - half, size, size));
    case 2:
      return painter.drawPolygon(QPolygonF(
          {middle + QPointF(0, -half), middle + QPointF(half, half), middle + QPointF(-half, half)}));
    default:
      return painter.drawPolygon(QPolygonF({middle + QPointF(0, -half), middle + QPointF(half, 0),
                                            middle + QPointF(0, half), middle + QPointF(-half, 0)}));
  }
}

// A step of 1, 2 or 5 times a power of ten that parts a range into five at most.
int StepFor(int range) {
  for (int power = 1;; power *= 10) {
    for (const int lead : {1, 2, 5}) {
      if (range / (lead * power) <= 5) return lead * power;
    }
  }
}

// Whole minutes from one minute on, so that the times on the axis are round.
int TimeStepFor(int seconds) {
  for (const int step : {10, 30, 60, 120, 300, 600, 1200, 1800, 3600}) {
    if (seconds / step <= 5) return step;
  }
  return 3600 * StepFor(seconds / 3600);
}

struct Axis {
  int low = 0;
  int high = 1;
  int step = 1;
  [[nodiscard]] double Part(int value) const { return 1.0 * (value - low) / (high - low); }
};

Axis ScoreAxis(const LevelRecords& records) {
  // In ascending order of score, but for a level that is being renewed.
  const auto [low, high] = std::minmax_element(
      records.puzzles.begin(), records.puzzles.end(),
      [](const PuzzleRecord& one, const PuzzleRecord& other) { return one.score < other.score; });
  Axis axis{low->score, std::max(high->score, low->score + 1), 1};
  axis.step = StepFor(axis.high - axis.low);
  return axis;
}

Axis TimeAxis(const LevelRecords& records) {
  int longest = 0;
  for (const PuzzleRecord& each : records.puzzles)
    longest = std::max(longest, static_cast<int>(each.seconds));
  const int step = TimeStepFor(longest);
  return {0, std::max(1, (longest + step - 1) / step) * step, step};
}

}  // namespace

QIcon HolderSign(const QPalette& palette, int place) {
  const int size = Scaled(kHolderSign);
  QPixmap pixmap(2 * size, 2 * size);
  pixmap.setDevicePixelRatio(2);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(HolderColour(palette, place));
  PaintSign(painter, QPointF(size / 2.0, size / 2.0), Scaled(10), place);
  return QIcon(pixmap);
}

RecordsPlot::RecordsPlot(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("RecordsPlot"));
  setAccessibleName(QLatin1String(texts::kRecordsPlot));
}

void RecordsPlot::Show(const LevelRecords& records) {
  if (records == records_) return;
  records_ = records;
  update();
}

void RecordsPlot::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  QFont font = painter.font();
  font.setPixelSize(Scaled(kAxisSize));
  painter.setFont(font);
  painter.fillRect(rect(), palette().color(QPalette::Base));
  const QRectF field =
      QRectF(rect()).adjusted(Scaled(kLeft), Scaled(kUpper), -Scaled(kRight), -Scaled(kLower));
  const Axis across = ScoreAxis(records_);
  const Axis up = TimeAxis(records_);
  const auto x = [&](int score) { return field.left() + field.width() * across.Part(score); };
  const auto y = [&](int seconds) { return field.bottom() - field.height() * up.Part(seconds); };
  const auto stroke = [&](QPointF from, QPointF to) {
    painter.setPen(QColor(TheColours().thin_line));
    painter.drawLine(from, to);
    painter.setPen(palette().color(QPalette::Text));
  };
  const double height = painter.fontMetrics().height();
  for (int time = 0; time <= up.high; time += up.step) {
    stroke(QPointF(field.left(), y(time)), QPointF(field.right(), y(time)));
    painter.drawText(QRectF(0, y(time) - height / 2, field.left() - Scaled(4), height),
                     Qt::AlignRight | Qt::AlignVCenter, ToQString(texts::RecordTime(time)));
  }
  const int first = (across.low + across.step - 1) / across.step * across.step;
  for (int score = first; score <= across.high; score += across.step) {
    stroke(QPointF(x(score), field.bottom()), QPointF(x(score), field.bottom() + Scaled(3)));
    const QString text = QString::number(score);
    const double half = painter.fontMetrics().horizontalAdvance(text) / 2.0;
    const double middle = std::min(x(score), width() - half - 1);  // whole at the edge, too
    painter.drawText(QRectF(middle - Scaled(30), field.bottom() + Scaled(3), Scaled(60), height),
                     Qt::AlignHCenter, text);
  }
  painter.drawText(QRectF(Scaled(4), Scaled(2), width(), height), Qt::AlignLeft,
                   QLatin1String(texts::kTimeAxis));
  painter.drawText(QRectF(0, this->height() - height - 1, width() - Scaled(kRight), height), Qt::AlignRight,
                   QLatin1String(texts::kScoreAxis));
  painter.setPen(Qt::NoPen);
  for (const PuzzleRecord& each : records_.puzzles) {
    if (each.seconds == 0) continue;
    const int place = records_.PlaceOf(each.player);
    painter.setBrush(HolderColour(palette(), place));
    PaintSign(painter, QPointF(x(each.score), y(each.seconds)), Scaled(kSign), place);
  }
}

}  // namespace kestrel
