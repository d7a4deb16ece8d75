// SPDX-License-Identifier: MIT
// The help pages as they are shipped: up to date, complete, with links that lead somewhere and tags that
// every viewer understands.
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include "explain/board_picture.h"
#include "help/site_files.h"
#include "help/stock_use.h"
#include "solver/technique_table.h"

namespace kestrel::help {
namespace {

namespace fs = std::filesystem;

const fs::path kProject = KESTREL_SOURCE_DIR;
const fs::path kHelp = kProject / "data/help";

std::vector<std::string> PageNames() {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(kHelp)) {
    if (entry.path().extension() == ".html") names.push_back(entry.path().filename().string());
  }
  return names;
}

// The values of an attribute, in order.
std::vector<std::string> Values(const std::string& html, const std::string& attribute) {
  std::vector<std::string> values;
  const std::string start = ' ' + attribute + "=\"";
  for (std::size_t at = html.find(start); at != std::string::npos; at = html.find(start, at + 1)) {
    const std::size_t from = at + start.size();
    values.push_back(html.substr(from, html.find('"', from) - from));
  }
  return values;
}

// What is shipped is what the program makes now, so that a change of a text, of the examples or of the stock
// without a new make is noticed.
TEST(Pages, AreMadeFromTheirSources) {
  SiteSources sources = ReadSiteInput(kProject);
  const Site site = BuildSite(sources.Input());
  ASSERT_EQ(site.error, "");
  for (const auto& [name, content] : site.files) {
    EXPECT_TRUE(FileText(kHelp / name) == content) << name << " is old: run tools/make_help.sh";
  }
  for (const auto& entry : fs::recursive_directory_iterator(kHelp)) {
    const std::string name = fs::relative(entry.path(), kHelp).generic_string();
    if (entry.is_directory() || entry.path().extension() == ".png") continue;
    EXPECT_EQ(site.files.count(name), 1U) << name << " belongs to nothing";
  }
}

TEST(Pages, EveryLinkAndPictureLeadsSomewhere) {
  std::set<std::string> linked{"index.html"};
  std::set<std::string> shown;
  for (const std::string& name : PageNames()) {
    const std::string html = FileText(kHelp / name);
    for (std::string target : Values(html, "href")) {
      EXPECT_TRUE(fs::exists(kHelp / target)) << name << " -> " << target;
      if (target != name) linked.insert(target);
    }
    for (const char* attribute : {"src", "srcset"}) {
      for (const std::string& target : Values(html, attribute)) {
        const std::string file = target.substr(0, target.find(' '));
        EXPECT_TRUE(fs::exists(kHelp / file)) << name << " -> " << file;
        shown.insert(file);
      }
    }
  }
  for (const std::string& name : PageNames()) EXPECT_EQ(linked.count(name), 1U) << name << " is never linked";
  for (const auto& entry : fs::directory_iterator(kHelp / "pictures")) {
    EXPECT_EQ(shown.count("pictures/" + entry.path().filename().string()), 1U)
        << entry.path() << " is never shown";
  }
}

TEST(Pages, EveryTechniqueHasItsPageWithExamplesAndReasons) {
  std::set<std::string> pages;
  for (const TechniqueRow& row : kTechniqueTable) pages.insert(std::string(row.help_page));
  EXPECT_EQ(pages.size(), 18U);
  for (const std::string& page : pages) {
    const std::string html = FileText(kHelp / page);
    for (const char* part : {"<h2>What to look for</h2>", "<h2>Why it works</h2>", "<h2>Worked example",
                             "<h2>Look closer</h2>", "<p class=\"board\">"}) {
      EXPECT_NE(html.find(part), std::string::npos) << page << " lacks " << part;
    }
    EXPECT_EQ(html.find("<h2>How often</h2>") != std::string::npos,
              fs::exists(kProject / "data/sudstock.kpz"))
        << page;
  }
  for (const char* page : {"playing.html", "hints.html", "players.html", "printing.html", "renewal.html"}) {
    EXPECT_TRUE(fs::exists(kHelp / page)) << page;
  }
}

// The help window knows few tags. That they are balanced is for tidy to check.
TEST(Pages, HaveOnlyTagsThatTheHelpWindowKnows) {
  static const std::regex kTag("<(/?[a-z0-9]+|!)");
  static const std::regex kKnown(
      "<(!|/?(meta|link|source|img|html|head|title|body|h[1-3]|p|a|b|em|ul|li|table|tr|th|td|picture))");
  for (const std::string& name : PageNames()) {
    const std::string html = FileText(kHelp / name);
    for (std::sregex_iterator tag(html.begin(), html.end(), kTag), end; tag != end; ++tag) {
      EXPECT_TRUE(std::regex_match(tag->str(), kKnown)) << name << ": " << tag->str();
    }
  }
}

// Size of a PNG picture from its header; 0 when it is none.
std::pair<unsigned, unsigned> PngSize(const std::string& bytes) {
  if (bytes.size() < 24 || bytes.substr(1, 3) != "PNG") return {0, 0};
  const auto number = [&](std::size_t at) {
    unsigned value = 0;
    for (std::size_t i = at; i < at + 4; ++i) value = 256 * value + static_cast<unsigned char>(bytes[i]);
    return value;
  };
  return {number(16), number(20)};
}

TEST(Pages, PicturesComeInTwoResolutionsAndStaySmall) {
  std::uintmax_t all = 0;
  for (const auto& entry : fs::directory_iterator(kHelp / "pictures")) {
    all += entry.file_size();
    const std::string name = entry.path().filename().string();
    if (entry.path().extension() != ".png") continue;
    const unsigned zoom = name.find("@2x") != std::string::npos ? 2 : 1;
    EXPECT_EQ(PngSize(FileText(entry.path())), std::pair(zoom * kPictureWidth, zoom * kPictureHeight))
        << name;
  }
  EXPECT_LT(all, 6U << 20U);
}

TEST(Pages, MistakesInTheTextsAreReported) {
  SiteSources sources = ReadSiteInput(kProject);
  const SiteInput good = sources.Input();
  const auto error_after = [&](const std::function<void(SiteInput&)>& change) {
    SiteInput input = good;
    change(input);
    return BuildSite(input).error;
  };
  EXPECT_EQ(error_after([](SiteInput&) {}), "");
  EXPECT_NE(error_after([](SiteInput& input) { input.texts.erase("x_wing.html"); }), "");
  EXPECT_NE(error_after([](SiteInput& input) { input.texts["y_wing.html"] = "title Y\n"; }), "");
  for (const char* line : {"\n@exmaple x_wing-rows | Rows\n", "\n@example x_wing-rows\n",
                           "\n@occurrence 12\n", "\n@example swordfish-rows | Rows\n"}) {
    EXPECT_NE(error_after([&](SiteInput& input) { input.texts["x_wing.html"] += line; }), "") << line;
  }
  EXPECT_NE(error_after([](SiteInput& input) { input.texts["x_wing.html"].erase(0, 6); }), "");
  // An example that no page shows would ship a picture for nobody.
  EXPECT_NE(error_after([](SiteInput& input) {
              std::string& text = input.texts["x_wing.html"];
              text.erase(text.find("@example x_wing-columns"), 10);
            }),
            "");
}

TEST(Stock, NumbersAreListedShortly) {
  EXPECT_EQ(NumberList({3}), "3");
  EXPECT_EQ(NumberList({3, 4, 7, 8, 9, 10, 100}), "3, 4, 7 to 10 and 100");
  std::vector<int> all(100);
  for (int i = 0; i < 100; ++i) all[static_cast<std::size_t>(i)] = i + 1;
  EXPECT_EQ(NumberList(all), "all");
  all.erase(all.begin() + 4);
  all.erase(all.begin() + 49);
  EXPECT_EQ(NumberList(all), "all but 5 and 51");
  all.resize(79);  // too many exceptions: the puzzles themselves
  EXPECT_EQ(NumberList(all), "1 to 4, 6 to 50 and 52 to 81");
  EXPECT_FALSE(StockOfBytes(std::vector<std::uint8_t>(kStockBytes - 1)));
  std::vector<std::uint8_t> bytes(kStockBytes);
  // Very Hard 100 is the last record; its slot 21, the Jellyfish, stands six bytes before its end.
  bytes[kStockBytes - 6] = 3;
  const TechniqueUse use = UseOf(*StockOfBytes(bytes), Technique::Jellyfish);
  EXPECT_EQ(use.puzzles[4], std::vector<int>{100});
  EXPECT_EQ(use.times[4], 3);
  EXPECT_TRUE(use.puzzles[3].empty());
}

}  // namespace
}  // namespace kestrel::help
