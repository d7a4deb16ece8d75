// SPDX-License-Identifier: MIT
#include "ui/qt/number_box.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "core/level_names.h"
#include "forms/texts.h"
#include "ui/qt/records_map.h"
#include "ui/qt/scaled.h"
#include "ui/qt/text_conversion.h"
#include "ui/qt/texts.h"

namespace kestrel {

namespace {

constexpr int kFieldWidth = 340;  // pixels of 96 dpi; room for the title
constexpr int kBesideMap = 220;

}  // namespace

NumberBox::NumberBox(const InputBox& box, QWidget* parent) : QDialog(parent), field_(new QLineEdit(this)) {
  setObjectName(QStringLiteral("InputBox"));
  setWindowTitle(ToQString(box.title));
  auto* prompt = new QLabel(ToQString(box.prompt), this);
  prompt->setBuddy(field_);
  prompt->setWordWrap(true);
  field_->setText(ToQString(box.proposal));
  field_->setMinimumWidth(Scaled(box.level == 0 ? kFieldWidth : kBesideMap));
  field_->selectAll();
  field_->setAccessibleName(ToQString(box.prompt));
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  buttons->button(QDialogButtonBox::Ok)->setText(QStringLiteral("&OK"));
  buttons->button(QDialogButtonBox::Cancel)->setText(QStringLiteral("&Cancel"));
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* grid = new QGridLayout(this);
  grid->setSizeConstraint(QLayout::SetFixedSize);
  grid->addWidget(prompt, 0, 0);
  grid->addWidget(field_, 1, 0);
  grid->setRowStretch(2, 1);
  grid->addWidget(buttons, 3, 0);
  field_->setFocus();
}

void NumberBox::ShowMap(const LevelRecords& records, int level) {
  auto* title = new QLabel(
      ToQString(LevelName(level)) + QStringLiteral(": ") + QLatin1String(texts::kMapOfNumbers), this);
  auto* map = new RecordsMap(this);
  auto* pointed = new QLabel(QLatin1String(texts::kRecordsHelp), this);
  map->Show(records);
  map->on_choose = [this](int number) {
    field_->setText(QString::number(number));
    field_->setFocus();
    field_->selectAll();
  };
  map->on_point = [pointed, records](int number) {
    pointed->setText(number == 0 ? QLatin1String(texts::kRecordsHelp)
                                 : ToQString(texts::PuzzleRecordText(records, number)));
  };
  auto* grid = static_cast<QGridLayout*>(layout());
  grid->setHorizontalSpacing(Scaled(16));
  grid->addWidget(title, 0, 1);
  grid->addWidget(map, 1, 1, 3, 1);
  grid->addWidget(pointed, 4, 1);
}

}  // namespace kestrel
