// SPDX-License-Identifier: MIT
// What the windows look like, whatever they show: contrast, and texts that fit.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QFontMetrics>
#include <QTextBlock>
#include <QTextTable>

#include "qt/qt_game.h"
#include "ui/qt/desktop_colours.h"
#include "ui/qt/fonts.h"
#include "ui/qt/help_view.h"
#include "ui/qt/look.h"
#include "ui/qt/palette.h"
#include "ui/qt/text_conversion.h"

namespace kestrel::testing {
namespace {

// A variable of the environment for as long as this lives; none of them is set while the tests run.
struct EnvironmentValue {
  EnvironmentValue(const char* variable, const char* value) : name(variable) { qputenv(variable, value); }
  ~EnvironmentValue() { qunsetenv(name); }
  const char* name;
};

constexpr double kScales[] = {0.75, 1, 1.25, 1.5, 2};
constexpr Scheme kSchemes[] = {Scheme::Light, Scheme::Dark, Scheme::HighContrast};

// Colours that meet on the screen: an ink and the grounds that it is painted on.
using Meetings = std::vector<std::pair<QColor, std::vector<QColor>>>;

Meetings TextsOf(const Colours& c) {
  Meetings texts = {
      {c.text, {c.window, c.paper, c.lines, c.lens, c.hover, c.pressed, c.tooltip, c.note, c.button}},
      {c.text, {c.white, c.light_yellow, c.light_green, c.light_cyan, c.light_blue, c.light_red}},
      {c.disabled_text, {c.window, c.disabled_button}},
      {c.given, {c.given_cell, c.given_lines, c.lens}},
      {c.mark, {c.paper, c.lines, c.lens}},
      {c.filled_in, {c.paper, c.lines, c.lens}},
      {c.black, {c.window, c.hover}},
      {c.selected_header, {c.selected_ground}},
      {c.link, {c.window}},
      {c.accent_text, {c.accent, c.warning, c.target}}};
  for (const QColor face : {QColor(c.light_green), QColor(c.light_red)}) {
    texts.push_back({c.text, {HoverFace(face), PressedFace(face)}});
    texts.push_back({c.disabled_text, {DisabledFace(c, face)}});
  }
  return texts;
}

Meetings LinesOf(const Colours& c) {
  Meetings lines = {{c.border, {c.button, c.window, c.paper, c.light_green, c.light_red}},
                    {c.solved, {c.light_green, c.window}},
                    {c.accent, {c.window, c.paper, c.track}}};
  for (const QColor line : {c.thin_line, c.thick_line, c.solved, c.target}) {
    lines.push_back({line, {c.paper, c.given_cell, c.lines, c.lens}});
  }
  return lines;
}

void ExpectContrast(const Meetings& meetings, double least) {
  for (const auto& [ink, grounds] : meetings) {
    for (const QColor& ground : grounds) {
      EXPECT_GE(ContrastRatio(ink, ground), least) << qPrintable(ink.name() + " on " + ground.name());
    }
  }
}

TEST(Look, EverythingCanBeSeenInEveryPalette) {
  // The measure itself: black on white, and a pair known to miss the mark.
  EXPECT_NEAR(ContrastRatio(Qt::black, Qt::white), 21, 0.01);
  EXPECT_NEAR(ContrastRatio(QColor(0x77, 0x77, 0x77), Qt::white), 4.48, 0.01);
  for (const Scheme scheme : kSchemes) {
    const Colours& colours = ColoursOf(scheme);
    const double least = scheme == Scheme::HighContrast ? 7 : 4.5;
    ExpectContrast(TextsOf(colours), least);
    ExpectContrast(LinesOf(colours), 3);
    // Every text and ground that the palette of the widgets combines.
    const QPalette palette = ToQPalette(colours);
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
      for (const auto& [text, ground] : {std::pair{QPalette::WindowText, QPalette::Window},
                                         {QPalette::Text, QPalette::Base},
                                         {QPalette::ButtonText, QPalette::Button},
                                         {QPalette::ToolTipText, QPalette::ToolTipBase},
                                         {QPalette::HighlightedText, QPalette::Highlight}}) {
        EXPECT_GE(ContrastRatio(palette.color(group, text), palette.color(group, ground)), least) << text;
      }
    }
  }
}

// What the desktop's own files say, where no portal is asked: each case alone in a settings folder.
TEST(Look, FollowsTheFilesOfDesktops) {
  struct Case {
    const char* desktop;
    const char* file;
    const char* text;
    DesktopLook look;
  };
  const Case kCases[] = {
      {"KDE", "kdeglobals", "[Colors:Window]\nBackgroundNormal=35,38,41\n", {true, false}},
      {"KDE", "kdeglobals", "[Colors:Window]\nBackgroundNormal=239,240,241\n", {false, false}},
      {"LXQt", "lxqt/lxqt.conf", "[Palette]\nwindow_color=#31363b\n", {true, false}},
      {"XFCE",
       "xfce4/xfconf/xfce-perchannel-xml/xsettings.xml",
       R"(<channel><property name="Net"><property name="ThemeName" value="Adwaita-dark"/></property></channel>)",
       {true, false}},
      {"", "gtk-3.0/settings.ini", "[Settings]\ngtk-theme-name=HighContrastInverse\n", {true, true}},
      {"", "gtk-3.0/settings.ini", "[Settings]\ngtk-application-prefer-dark-theme=1\n", {true, false}},
  };
  for (const Case& each : kCases) {
    const TempFolder folder;
    std::filesystem::create_directories(std::filesystem::path(folder.Path(each.file)).parent_path());
    folder.Put(each.file, each.text);
    const EnvironmentValue config("XDG_CONFIG_HOME", folder.Path().c_str());
    const EnvironmentValue desktop("XDG_CURRENT_DESKTOP", each.desktop);
    EXPECT_EQ(DesktopLookAtStart(), each.look) << each.desktop << ' ' << each.text;
    const EnvironmentValue theme("GTK_THEME", "HighContrast");
    EXPECT_EQ(DesktopLookAtStart(), (DesktopLook{false, true}));
  }
}

// What the portal tells while the game runs.
TEST(Look, FollowsThePortal) {
  DesktopColours colours({true, false});
  int changes = 0;
  colours.on_change = [&] { ++changes; };
  const auto told = [&](const char* group, const char* key, unsigned value) {
    QDBusMessage signal = QDBusMessage::createSignal("/a", "org.a", "SettingChanged");
    signal << group << key << QVariant::fromValue(QDBusVariant(value));
    EXPECT_TRUE(QMetaObject::invokeMethod(&colours, "OnSettingChanged", Q_ARG(QDBusMessage, signal)));
    return colours.SchemeFor(ColourChoice::Desktop);
  };
  const char* group = "org.freedesktop.appearance";
  EXPECT_EQ(told(group, "color-scheme", 2), Scheme::Light);
  EXPECT_EQ(told(group, "color-scheme", 1), Scheme::Dark);
  EXPECT_EQ(told(group, "color-scheme", 2), Scheme::Light);
  EXPECT_EQ(told(group, "color-scheme", 0), Scheme::Dark);  // none, as at the start
  EXPECT_EQ(told(group, "contrast", 1), Scheme::HighContrast);
  EXPECT_EQ(told(group, "contrast", 0), Scheme::Dark);
  EXPECT_EQ(changes, 6);
  EXPECT_EQ(told("org.a", "color-scheme", 2), Scheme::Dark);
  EXPECT_EQ(changes, 6);
}

// What stands on a help page, as the view laid it out: every text against the ground of its cell, or the page's.
// The page's ground is that of its pictures.
void ExpectReadable(const QTextDocument& page, const QColor& pictures, double least) {
  const auto ground_of = [](const QTextFormat& format, const QColor& around) {
    return format.hasProperty(QTextFormat::BackgroundBrush) ? format.background().color() : around;
  };
  const QColor paper = ground_of(page.rootFrame()->frameFormat(), TheColours().paper);
  EXPECT_EQ(paper, pictures);
  for (QTextBlock block = page.begin(); block.isValid(); block = block.next()) {
    const QTextTable* table = QTextCursor(block).currentTable();
    const QColor cell = table == nullptr ? paper : ground_of(table->cellAt(block.position()).format(), paper);
    for (auto at = block.begin(); !at.atEnd(); ++at) {
      const QTextCharFormat format = at.fragment().charFormat();
      const QColor ink =
          format.hasProperty(QTextFormat::ForegroundBrush) ? format.foreground().color() : TheColours().text;
      EXPECT_GE(ContrastRatio(ink, ground_of(format, cell)), least) << qPrintable(at.fragment().text());
    }
  }
}

TEST(Look, HelpPagesCanBeReadInEveryPalette) {
  for (const Scheme scheme : kSchemes) {
    SetUpLook({scheme, 1});
    const double least = scheme == Scheme::HighContrast ? 7 : 4.5;
    const Palette& p = HelpView::PictureColours(scheme);
    HelpView view(nullptr);
    view.SetFolder(QStringLiteral(KESTREL_SOURCE_DIR "/data/help"));
    for (const char* name : {"index.html", "words.html", "x_wing.html", "practice.html"}) {
      view.Navigate(std::string(kHelpFolder) + name);
      EXPECT_GT(view.document()->blockCount(), 10) << name;
      ExpectReadable(*view.document(), p.paper, least);
    }
    Meetings signs = {{p.on_cause, {p.cause}}, {p.cause, {p.paper}}, {p.ink, {p.gone_ground, p.paper}}};
    for (const char* ink : {p.mark, p.given, p.digit})
      signs.push_back({ink, {p.paper, p.unit_wash, p.lose_wash}});
    ExpectContrast(signs, least);
    const std::vector<QColor> grounds = {p.paper, p.unit_wash, p.lose_wash};
    ExpectContrast({{p.cause, grounds}, {p.gone, grounds}}, 3);
  }
  SetUpLook({});
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

}  // namespace
}  // namespace kestrel::testing
