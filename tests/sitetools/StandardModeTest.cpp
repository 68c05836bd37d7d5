// The analyser's standard mode: links resolved as a browser resolves them.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <set>
#include <sstream>

#include "sitetools/LinkResolution.h"
#include "sitetools/SiteTestSupport.h"

namespace tessarine {
namespace {

using sitetest::ReadAll;
using sitetest::TempSite;
using Kind = ResolvedLink::Kind;

TEST(LinkResolution, ReferencesResolveAgainstThePagesFolder) {
  struct Case {
    const char* link;
    Kind kind;
    const char* path;
    const char* fragment;
  };
  const Case cases[] = {
      {"b.html", Kind::Local, "/s/d/b.html", ""},
      {"../up.html", Kind::Local, "/s/up.html", ""},
      {"../../../../top.html", Kind::Local, "/top.html", ""},
      {"./x/../y.html", Kind::Local, "/s/d/y.html", ""},
      {"/abs/a.html", Kind::Local, "/abs/a.html", ""},
      {"my%20page.html?x=1#Part%202", Kind::Local, "/s/d/my page.html", "Part 2"},
      {"sub/", Kind::Local, "/s/d/sub/index.html", ""},
      {"  spaced.html ", Kind::Local, "/s/d/spaced.html", ""},
      {"file:///etc/hosts", Kind::Local, "/etc/hosts", ""},
      {"file://localhost/tmp/a.html", Kind::Local, "/tmp/a.html", ""},
      {"#top", Kind::SamePage, "", "top"},
      {"?q=1", Kind::SamePage, "", ""},
      {"http://host/a.html#x", Kind::Remote, "", "x"},
      {"HTTPS://host/", Kind::Remote, "", ""},
      {"mailto:me@example.org", Kind::Remote, "", ""},
      {"javascript:void(0)", Kind::Remote, "", ""},
      {"//cdn.example.org/x.js", Kind::Remote, "", ""},
      {"file://other/share/a.html", Kind::Remote, "", ""},
      {"100%.html", Kind::Local, "/s/d/100%.html", ""},
  };
  for (const Case& c : cases) {
    const ResolvedLink r = ResolveLink("/s/d/", c.link);
    EXPECT_EQ(r.kind, c.kind) << c.link;
    EXPECT_EQ(r.path, c.path) << c.link;
    EXPECT_EQ(r.fragment, c.fragment) << c.link;
  }
}

TEST(LinkResolution, AnchorsAreIdsOrNamesInAnyQuoting) {
  const struct {
    const char* page;
    bool found;
  } cases[] = {
      {"<a name=top>", true},        {"<A NAME=\"top\">", true},   {"<h2 id='top'>", true},
      {"<div id = \"top\" >", true}, {"<p valid=\"top\">", false}, {"<a name=\"topper\">", false},
      {"<a href=\"#top\">", false},  {"<a name=top/>", true},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(HoldsIdOrName(UpperAscii(c.page), "TOP"), c.found) << c.page;
  }
}

// A small site with every kind of link, and the files it misses.
struct MixedSite {
  TempSite site;
  MixedSite() {
    const std::string root = site.Root();
    site.Write("index.html",
               "<TITLE>Home</TITLE>\r\n"
               "<a name=\"top\"></a><h2 id=\"news\">News</h2>\r\n"
               "<a href=\"#top\">top</a> <a href=\"#news\">news</a> <a href=\"#nowhere\">x</a>\r\n"
               "<a href=\"docs/guide.html#install\">guide</a>\r\n"
               "<a href=\"docs/\">docs</a>\r\n"
               "<a href=\"my%20page.html?lang=en\">spaced</a>\r\n"
               "<a href=\"" +
                   root +
                   "abs.html\">absolute</a>\r\n"
                   "<a href=\"file://" +
                   root +
                   "missing-file-url.html\">file url</a>\r\n"
                   "<a href=\"gone.html\">gone</a>\r\n"
                   "<a href=\"http://example.invalid/\">remote</a> "
                   "<a href=\"mailto:me@example.invalid\">mail</a>\r\n"
                   "<img src=\"pic.gif\"><img alt=\"x\" src=\"nopic.gif\">\r\n"
                   "<frameset><frame src=\"frame.html\"></frameset>\r\n");
    site.Write("docs/index.html",
               "<TITLE>Docs</TITLE><a href=\"../index.html\">up</a> "
               "<a href=\"guide.html\">guide</a> <a href=\"./missing.html\">m</a>");
    site.Write("docs/guide.html",
               "<TITLE>Guide</TITLE><h2 id=\"install\">Install</h2>"
               "<a href=\"../../outside-missing.html\">out</a> <img src=\"../img/logo.gif\">");
    site.Write("my page.html", "<TITLE>Spaced</TITLE><a href=\"docs/missing2.html\">m</a>");
    site.Write("abs.html", "<TITLE>Abs</TITLE>");
    site.Write("frame.html", "<TITLE>Frame</TITLE><a href=\"index.html#top\">home</a>");
    site.Write("pic.gif", "GIF89a");
    site.Mkdir("img");
  }
};

TEST(StandardMode, ACrawlReportsWhatABrowserWouldMiss) {
  MixedSite m;
  RecordingSiteView view;
  SiteAnalyser analyser(view);
  analyser.standardResolution = true;
  analyser.AnalyseSite(m.site.Root(), "index.html");
  std::set<std::string> found;
  for (const SiteRow& row : view.rows) found.insert(row.text + " | " + row.subItems.at(0));
  const std::set<std::string> expected = {
      "#nowhere | Broken Anchor",
      "file://" + m.site.Root() + "missing-file-url.html | Broken Link",
      "gone.html | Broken Link",
      "./missing.html | Broken Link",
      "../../outside-missing.html | Broken Link",
      "../img/logo.gif | Missing Image",
      "docs/missing2.html | Broken Link",
  };
  EXPECT_EQ(found, expected);
  // Every page reached once: home, docs, guide, my page, abs, frame.
  EXPECT_EQ(analyser.ParsedFilesList().size(), 6u);
  EXPECT_EQ(view.Label(SiteLabel::ErrorCountOrTitle), " 7 Errors in Site");
  // The same report files as the default mode writes.
  EXPECT_EQ(ReadAll(m.site.Root() + "BrokenLinks.txt").rfind(m.site.Root() + "index.html\r\n", 0),
            0u);
}

// The set of missing local files agrees with linkchecker's on the same site.
TEST(StandardMode, MissingFilesAgreeWithLinkchecker) {
  if (std::system("command -v linkchecker >/dev/null 2>&1") != 0) {
    GTEST_SKIP() << "linkchecker is not installed";
  }
  MixedSite m;
  RecordingSiteView view;
  SiteAnalyser analyser(view);
  analyser.standardResolution = true;
  analyser.AnalyseSite(m.site.Root(), "index.html");
  std::set<std::string> ours;
  for (const SiteRow& row : view.rows) {
    if (row.subItems.at(0) == "Broken Anchor") continue;
    const std::string folder = row.subItems.at(1).substr(0, row.subItems.at(1).rfind('/') + 1);
    ours.insert(ResolveLink(folder, row.text).path);
  }

  // linkchecker, started as root, reads as the user nobody.
  const std::string csv = m.site.Base() + "linkchecker.csv";
  ASSERT_EQ(std::system(("chmod -R a+rX '" + m.site.Base() + "'").c_str()), 0);
  const std::string command =
      "linkchecker --check-extern --no-status --no-warnings -o csv 'file://" + m.site.Root() +
      "index.html' >'" + csv + "' 2>/dev/null";
  std::system(command.c_str());
  std::set<std::string> theirs;
  std::istringstream lines(ReadAll(csv));
  for (std::string line; std::getline(lines, line);) {
    // urlname;parentname;base;result;warningstring;infostring;valid;url;...
    std::vector<std::string> fields;
    std::stringstream fieldStream(line);
    for (std::string field; std::getline(fieldStream, field, ';');) fields.push_back(field);
    if (fields.size() < 8 || fields[6] != "False" || !fields[7].starts_with("file://")) continue;
    theirs.insert(PercentDecode(fields[7].substr(7)));
  }
  ASSERT_FALSE(theirs.empty()) << ReadAll(csv);
  // Links are still found by their tokens in this mode: an IMG whose SRC follows another
  // attribute is not seen. That is the one file only linkchecker misses.
  ours.insert(m.site.Root() + "nopic.gif");
  EXPECT_EQ(ours, theirs);
}

}  // namespace
}  // namespace tessarine
