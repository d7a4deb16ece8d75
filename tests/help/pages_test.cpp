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

#include "explain/palette.h"
#include "help/site_files.h"

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
    EXPECT_TRUE(FileText(kHelp / name) == content) << name << " is old: run make-help";
  }
  for (const auto& entry : fs::recursive_directory_iterator(kHelp)) {
    const std::string name = fs::relative(entry.path(), kHelp).generic_string();
    if (entry.is_directory()) continue;
    EXPECT_EQ(site.files.count(name), 1U) << name << " belongs to nothing";
  }
}

// Links lead to pages, and to places in them, that are there; every page and picture can be reached, pages not only by
// leafing from one to the next.
TEST(Pages, EveryLinkAndPictureLeadsSomewhere) {
  std::set<std::string> reached{"index.html"};
  for (const std::string& name : PageNames()) {
    const std::string html = FileText(kHelp / name);
    const std::string told = std::regex_replace(html, std::regex("<p class=\"navigation\">[^\n]*"), "");
    for (const char* attribute : {"href", "src"}) {
      for (const std::string& target : Values(told, attribute)) {
        if (!target.starts_with(name)) reached.insert(target.substr(0, target.find('#')));
      }
      for (const std::string& target : Values(html, attribute)) {
        const std::size_t hash = target.find('#');
        const std::string file = hash == 0 ? name : target.substr(0, hash);
        ASSERT_TRUE(fs::exists(kHelp / file)) << name << " -> " << target;
        if (hash == std::string::npos) continue;
        EXPECT_NE(FileText(kHelp / file).find(" id=\"" + target.substr(hash + 1) + '"'), std::string::npos)
            << name << " -> " << target;
      }
    }
  }
  for (const auto& entry : fs::recursive_directory_iterator(kHelp)) {
    const std::string name = fs::relative(entry.path(), kHelp).generic_string();
    EXPECT_TRUE(entry.is_directory() || reached.contains(name)) << name << " is linked or shown by no page";
  }
}

// The help window knows few tags. That they are balanced is for tidy to check.
TEST(Pages, HaveOnlyTagsThatTheHelpWindowKnows) {
  static const std::regex kTag("<(/?[a-z0-9]+|!)");
  static const std::regex kKnown(
      "<(!|/?(meta|link|img|html|head|title|body|h[1-3]|p|a|b|em|ul|li|table|tr|th|td))");
  for (const std::string& name : PageNames()) {
    const std::string html = FileText(kHelp / name);
    for (std::sregex_iterator tag(html.begin(), html.end(), kTag), end; tag != end; ++tag) {
      EXPECT_TRUE(std::regex_match(tag->str(), kKnown)) << name << ": " << tag->str();
    }
  }
}

// What each sign is drawn with, in the order of the signs.
const std::regex kShapes[] = {
    std::regex(R"re(<circle [^>]*r="9" fill)re"),
    std::regex(R"re(width="16" height="16" rx="2")re"),
    std::regex(R"re(r="8" fill="#ffffff" stroke)re"),
    std::regex("l11 11l-11 11"),
    std::regex(R"re(width="51" height="51" rx="8")re"),
    std::regex(R"re(r="22")re"),
    std::regex(R"re(r="10" [^>]*>\s*<circle [^>]*r="7")re"),
    std::regex(R"re(width="14" height="11")re"),
    std::regex("l16 -16"),
    std::regex(kLightPalette.unit_wash),
    std::regex(kLightPalette.lose_wash),
    std::regex("stroke-dasharray"),
    std::regex("stroke-opacity"),
};

// Picture by picture: every sign in it is in the legend beside it, and the legend has no other.
TEST(Pages, LegendsNameTheSignsOfTheirPicture) {
  int pictures = 0;
  for (const std::string& name : PageNames()) {
    const std::string html = FileText(kHelp / name);
    for (std::size_t at = 0; (at = html.find("<table class=\"example\">", at)) != std::string::npos; ++at) {
      const std::string part =
          html.substr(at, html.find("</table>", html.find("class=\"picture\"", at)) - at);
      const std::string picture = Values(part, "src").back();
      const std::string svg = FileText(kHelp / picture);
      for (std::size_t sign = 0; sign < std::size(kShapes); ++sign) {
        const bool named =
            part.find("pictures/sign-" + std::to_string(sign + 1) + ".svg") != std::string::npos;
        EXPECT_EQ(std::regex_search(svg, kShapes[sign]), named)
            << name << ' ' << picture << " sign " << sign + 1;
      }
      ++pictures;
    }
  }
  EXPECT_GT(pictures, 500);
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
  for (const char* line : {"\n@exmaple x_wing-rows | Rows\n", "\n@example x_wing-rows\n", "\n@practice 12\n",
                           "\n@walk back\n", "\n@example swordfish-rows | Rows\n"}) {
    EXPECT_NE(error_after([&](SiteInput& input) { input.texts["x_wing.html"] += line; }), "") << line;
  }
  EXPECT_NE(error_after([](SiteInput& input) { input.styles["help.css"].clear(); }), "");
  // An example that no page shows would ship a picture for nobody.
  EXPECT_NE(error_after([](SiteInput& input) {
              std::string& text = input.texts["x_wing.html"];
              text.erase(text.find("@example x_wing-columns"), 10);
            }),
            "");
}

}  // namespace
}  // namespace kestrel::help
