// SPDX-License-Identifier: MIT
#include "ui/qt/view_menu.h"

#include <QActionGroup>
#include <QShortcut>

#include "ui/qt/form_window.h"
#include "ui/qt/scaled.h"
#include "ui/qt/texts.h"

namespace kestrel {

namespace {

// Between the levels and the technique list, in pixels of 96 dpi.
constexpr QRect kPlace(704, 159, 56, 20);

struct NamedColours {
  ColourChoice choice;
  const char* name;
};
constexpr NamedColours kColourNames[] = {{ColourChoice::Desktop, texts::kViewDesktop},
                                         {ColourChoice::Light, texts::kViewLight},
                                         {ColourChoice::Dark, texts::kViewDark},
                                         {ColourChoice::HighContrast, texts::kViewHighContrast}};

}  // namespace

ViewMenu::ViewMenu(ViewChoices& choices, QWidget* parent)
    : QPushButton(QLatin1String(texts::kView), parent), choices_(choices), menu_(this) {
  setObjectName(QStringLiteral("ViewMenu"));
  setToolTip(QLatin1String(texts::kViewTip));
  setAccessibleDescription(toolTip());
  setAutoDefault(false);
  setFocusPolicy(Qt::TabFocus);
  PlaceButton();
  AddShortcuts();
  menu_.setObjectName(QStringLiteral("ViewMenuItems"));
  connect(this, &QPushButton::clicked, this, [this] {
    if (BehindDialog(*this)) return;
    FillMenu();
    menu_.popup(mapToGlobal(QPoint(0, height())));
  });
}

void ViewMenu::PlaceButton() {
  const QPoint corner(Scaled(kPlace.left()), Scaled(kPlace.top()));
  const QPoint end(Scaled(kPlace.left() + kPlace.width()), Scaled(kPlace.top() + kPlace.height()));
  setGeometry(QRect(corner, end - QPoint(1, 1)));
}

// They work in every window of the game, but not behind a dialog.
void ViewMenu::AddShortcuts() {
  const auto add = [this](const QList<QKeySequence>& keys, const std::function<void()>& act) {
    for (const QKeySequence& each : keys) {
      auto* shortcut = new QShortcut(each, this);
      shortcut->setContext(Qt::ApplicationShortcut);
      connect(shortcut, &QShortcut::activated, this, act);
    }
  };
  add({QKeySequence(Qt::CTRL | Qt::Key_Plus), QKeySequence(Qt::CTRL | Qt::Key_Equal)}, [this] { Step(1); });
  add({QKeySequence(Qt::CTRL | Qt::Key_Minus)}, [this] { Step(-1); });
  add({QKeySequence(Qt::CTRL | Qt::Key_0)}, [this] { choices_.SetSize(kDesignSize); });
}

void ViewMenu::Step(int direction) {
  choices_.SetSize(NextWindowSize(ViewChoices::Size(), direction));
}

QAction* ViewMenu::AddChoice(const QString& text, bool chosen, bool possible,
                             const std::function<void()>& choose) {
  QAction* action = menu_.addAction(text);
  action->setCheckable(true);
  action->setChecked(chosen);
  action->setEnabled(possible);
  connect(action, &QAction::triggered, this, choose);
  return action;
}

// Anew each time it opens: what fits depends on the screen.
void ViewMenu::FillMenu() {
  menu_.clear();
  AddSizes();
  menu_.addSeparator();
  AddColours();
  menu_.addSeparator();
  const bool lens = choices_.Now().digit_lens;
  AddChoice(QLatin1String(texts::kViewLens), lens, true, [this, lens] { choices_.SetDigitLens(!lens); });
  if (!on_records) return;
  menu_.addSeparator();
  connect(menu_.addAction(QLatin1String(texts::kViewRecords)), &QAction::triggered, this,
          [this] { on_records(); });
}

void ViewMenu::AddSizes() {
  const int now = ViewChoices::Size();
  // At either end there is no next one.
  const int larger = NextWindowSize(now, 1) == now ? kNoSize : NextWindowSize(now, 1);
  const int smaller = NextWindowSize(now, -1) == now ? kNoSize : NextWindowSize(now, -1);
  auto* group = new QActionGroup(&menu_);
  for (const int size : kWindowSizes) {
    QStringList keys;
    if (size == kDesignSize) keys << QStringLiteral("Ctrl+0");
    if (size == larger) keys << QStringLiteral("Ctrl++");
    if (size == smaller) keys << QStringLiteral("Ctrl+-");
    const QString text = QStringLiteral("%1 %\t").arg(size) + keys.join(QStringLiteral(", "));
    group->addAction(
        AddChoice(text, size == now, ViewChoices::Fits(size), [this, size] { choices_.SetSize(size); }));
  }
}

void ViewMenu::AddColours() {
  auto* group = new QActionGroup(&menu_);
  for (const NamedColours& each : kColourNames) {
    group->addAction(AddChoice(QLatin1String(each.name), each.choice == choices_.Now().colours, true,
                               [this, choice = each.choice] { choices_.SetColours(choice); }));
  }
}

}  // namespace kestrel
