// SPDX-License-Identifier: MIT
// What the windows look like: contrast, texts that fit, marks that no line cuts.
#include <gtest/gtest.h>

#include <QApplication>
#include <QFontMetrics>
#include <QImage>

#include "qt/qt_game.h"
#include "ui/qt/board_painter.h"
#include "ui/qt/fonts.h"
#include "ui/qt/palette.h"
#include "ui/qt/text_conversion.h"

namespace kestrel::testing {
namespace {

constexpr double kScales[] = {1, 1.25, 1.5, 2};

TEST(Look, AllTextsCanBeRead) {
  // The measure itself: black on white, and a pair known to miss the mark.
  EXPECT_NEAR(ContrastRatio(Qt::black, Qt::white), 21, 0.01);
  EXPECT_NEAR(ContrastRatio(QColor(0x77, 0x77, 0x77), Qt::white), 4.48, 0.01);
  using namespace colours;
  for (const auto& [text, ground] : {std::pair{kMark, kPaper},
                                     {kMark, kHover},
                                     {kMark, kPressed},
                                     {kDeafMark, kPaper},
                                     {kText, kTrack},
                                     {kDisabledText, kDisabledButton},
                                     {kAccentText, kWarning},
                                     {kAccentText, kTargetCell}}) {
    EXPECT_GE(ContrastRatio(text, ground), 4.5);
  }
  for (const QColor& face :
       {QColor(colours::kButton), QColor(colours::kWindow), ToQColor(kLightGreen, colours::kButton),
        ToQColor(kLightRed, colours::kButton)}) {
    EXPECT_GE(ContrastRatio(colours::kBorder, face), 3);
  }
}

// Every text and ground that the palette of the widgets combines.
TEST(Look, PaletteIsLightInAllStates) {
  const QPalette palette = QApplication::palette();
  for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
    for (const auto& [text, ground] : {std::pair{QPalette::WindowText, QPalette::Window},
                                       {QPalette::Text, QPalette::Base},
                                       {QPalette::ButtonText, QPalette::Button},
                                       {QPalette::ToolTipText, QPalette::ToolTipBase},
                                       {QPalette::HighlightedText, QPalette::Highlight}}) {
      EXPECT_GE(ContrastRatio(palette.color(group, text), palette.color(group, ground)), 4.5)
          << group << " " << text;
    }
  }
}

// The fonts that stand in have the widths of those that are named.
TEST(Look, FontsHaveTheWidthsOfThoseThatAreNamed) {
  const std::pair<std::string_view, int> kWidths[] = {
      {"Arial", 172}, {"Courier New", 180}, {"Times New Roman", 168}};  // of "0Wi" at 100 pixels
  for (const auto& [family, width] : kWidths) {
    EXPECT_NEAR(QFontMetrics(ToQFont(Font{family, 75, false}, 1)).horizontalAdvance("0Wi"), width, 2)
        << family;
  }
}

// The text that a control may have to show, and the pixels it needs beside it.
template <class C>
std::pair<std::string, int> Wanted(const C& control) {
  if constexpr (std::is_same_v<C, StatusPanel>) return {control.caption, 9};
  if constexpr (std::is_same_v<C, OptionButton> || std::is_same_v<C, CheckBox>) return {control.caption, 19};
  if constexpr (std::is_same_v<C, Button>) return {control.caption, 4};
  if constexpr (std::is_same_v<C, Label>) return {control.caption, control.link ? 4 : 0};
  return {};
}

TEST(Look, TextsFitAtEveryScale) {
  Forms forms;
  forms.main.StatusBar(1).caption = "Level: Very Hard";
  forms.main.StatusBar(2).caption = "Number: 100";
  forms.main.StatusBar(3).caption = "Best Time: 59:59 by WWWWWWWWWWWWWWWW";
  forms.main.StatusBar(4).caption = "Level Best Time: 59:59";
  forms.main.StatusBar(5).caption = "Level Average Time: 59:59";
  forms.main.LabelStap.caption = "9999";  // longer ones shrink
  forms.main.LabelCount(17).caption = "Unique Rectangle";
  forms.print.LabelTo.caption = "to 100";
  for (const double scale : kScales) {
    EachControl(forms, [&](FormId, ControlId id, auto& control) {
      const auto [text, padding] = Wanted(control);
      if (text.empty() || id.name == "LabelInstruction" || id.name == "LabelTyping" || id.name == "LabelHint")
        return;
      const QFontMetrics metrics(ToQFont(control.font, scale));
      const double room = (control.width / 15.0 - padding) * scale;
      EXPECT_LE(metrics.horizontalAdvance(WithoutMnemonic(text)), room) << FullName(id) << " at " << scale;
      EXPECT_LE(CapHeight(ToQFont(control.font, scale)), control.height / 15.0 * scale) << FullName(id);
    });
  }
}

void HideMarks(MainWindow& main) {
  for (MarkArray& marks : main.Mark.items) {
    for (Label& mark : marks.items) mark.visible = false;
  }
}

QImage Paint(const MainWindow& main, double scale) {
  QImage image(QSize(587, 591) * scale, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  BoardPainter(main, scale).Paint(painter, QRegion(image.rect()), {}, false);
  return image;
}

// Paints the board with and without marks: where a line is, nothing may differ, and every mark shows.
TEST(Look, NoLineCutsAMark) {
  for (const double scale : kScales) {
    MainWindow main = MakeMainWindow();
    const QImage full = Paint(main, scale);
    HideMarks(main);
    const QImage empty = Paint(main, scale);
    const BoardPainter places(main, scale);
    int on_lines = 0;
    for (int y = 0; y < full.height(); ++y) {
      for (int x = 0; x < full.width(); ++x) {
        const bool line = empty.pixel(x, y) == colours::kThinLine || empty.pixel(x, y) == colours::kThickLine;
        if (line && full.pixel(x, y) != empty.pixel(x, y)) ++on_lines;
      }
    }
    EXPECT_EQ(on_lines, 0) << scale;
    for (int digit = 1; digit <= 9; ++digit) {
      const QRect place = places.MarkRect(digit, 40);
      EXPECT_NE(full.copy(place), empty.copy(place)) << digit << " at " << scale;
    }
  }
}

// A digit stands in the middle of its cell, by its ink; all digits on the same height.
TEST(Look, DigitsStandInTheMiddle) {
  for (const double scale : kScales) {
    MainWindow main = MakeMainWindow();
    HideMarks(main);
    main.Grid(40).caption = "8";
    const QImage image = Paint(main, scale);
    const QRect cell = PixelGrid(scale).Place(main.Grid(40));
    QRect ink;
    for (int y = cell.top() + 2; y < cell.bottom() - 2; ++y) {
      for (int x = cell.left() + 2; x < cell.right() - 2; ++x) {
        if (qGray(image.pixel(x, y)) < 100) ink |= QRect(x, y, 1, 1);
      }
    }
    EXPECT_NEAR(ink.center().x(), cell.center().x(), 1.5 * scale) << scale;
    EXPECT_NEAR(ink.center().y(), cell.center().y(), 1.5 * scale) << scale;
  }
}

}  // namespace
}  // namespace kestrel::testing
