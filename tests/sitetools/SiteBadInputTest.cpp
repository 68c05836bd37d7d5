// Sites that would keep a naive crawl busy for ever: every run here must end, with the
// results the rules give.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <vector>

#include "sitetools/SiteFiles.h"
#include "sitetools/SiteTestSupport.h"

namespace tessarine {
namespace {

using sitetest::TempSite;
namespace fs = std::filesystem;

std::vector<std::string> Parsed(const SiteAnalyser& analyser) {
  return {analyser.ParsedFilesList().begin(), analyser.ParsedFilesList().end()};
}

TEST(SiteBadInput, SymlinkLoopsAndDotChainsCountEachFileOnce) {
  TempSite site;
  // a/ is the site folder itself, b/ the folder above it: two loops.
  site.Write("start.html", "<A HREF=\"a/other.html\"> <A HREF=\"b/site/start.html\">");
  site.Write("other.html", "<A HREF=\"a/a/start.html\"> <A HREF=\"./other.html\">");
  site.Write("dots.html", "<A HREF=\"./dots.html\">");
  fs::create_directory_symlink(".", site.Root() + "a");
  fs::create_directory_symlink("..", site.Root() + "b");

  RecordingSiteView view;
  SiteAnalyser analyser(view);
  analyser.AnalyseSite(site.Root(), "start.html");
  EXPECT_EQ(Parsed(analyser),
            (std::vector<std::string>{site.Root() + "start.html", site.Root() + "a/other.html"}));
  EXPECT_EQ(view.Label(SiteLabel::PageCountOrWeight), "Number of page in site:  2");

  analyser.AnalyseSite(site.Root(), "dots.html");
  EXPECT_EQ(Parsed(analyser), std::vector<std::string>{site.Root() + "dots.html"});
}

TEST(SiteBadInput, LinkClimbingAboveTheRootLandsOnTheFilesystemRoot) {
  TempSite site;
  std::string climb;
  for (int i = 0; i < 40; ++i) climb += "../";
  site.Write("start.html", "<A HREF=\"" + climb + site.Base().substr(1) + "outside.html\">");
  site.Write("../outside.html", "<A HREF=\"x.html\">");
  RecordingSiteView view;
  SiteAnalyser analyser(view);
  analyser.AnalyseSite(site.Root(), "start.html");
  const std::string outside = site.Base() + "outside.html";
  EXPECT_EQ(Parsed(analyser), (std::vector<std::string>{site.Root() + "start.html", outside}));
  EXPECT_EQ(view.rows, (std::vector<SiteRow>{{"x.html", {"Broken Link", outside}, 2}}));
}

TEST(SiteBadInput, GigabyteFileIsTestedWithoutReadingAndParsedOnlyUpToTheCap) {
  TempSite site;
  const std::int64_t gigabyte = std::int64_t{1} << 30;
  for (const char* name : {"big.zip", "big.gif", "big.bin"}) {
    site.Write(name, "<A HREF=\"found.html\">");
    std::fstream out(site.Root() + name, std::ios::in | std::ios::out | std::ios::binary);
    // Far behind the cap: never seen.
    out.seekp(kMaxPageTextBytes + 4096);
    out << "<A HREF=\"late.html\"> <A NAME=late>";
    out.close();
    fs::resize_file(site.Root() + name, static_cast<std::uintmax_t>(gigabyte));
  }
  site.Write("found.html", "");
  site.Write("late.html", "");
  site.Write("start.html",
             "<A HREF=\"big.zip\"> <A HREF=\"big.bin#late\"> <A HREF=\"big.bin\">"
             " <IMG SRC=\"big.gif\">");
  EXPECT_EQ(FileLength(site.Root() + "big.bin"), gigabyte);
  EXPECT_TRUE(FileExistsForRead(site.Root() + "big.zip"));

  RecordingSiteView view;
  SiteAnalyser analyser(view);
  analyser.AnalyseSite(site.Root(), "start.html");
  EXPECT_EQ(Parsed(analyser),
            (std::vector<std::string>{site.Root() + "start.html", site.Root() + "big.bin",
                                      site.Root() + "found.html"}));
  EXPECT_EQ(
      view.rows,
      (std::vector<SiteRow>{{"big.bin#late", {"Broken Anchor", site.Root() + "start.html"}, 2}}));
}

TEST(SiteBadInput, BinaryPageIsParsedAsText) {
  TempSite site;
  std::string binary("\x89PNG\r\n\x1a\n\0\0\0\rIHDR\xff\xfe", 18);
  binary += "<A HREF=\"after-nul.html\">";
  binary += std::string("\0<!--\0", 6);  // an unclosed comment hides the rest
  binary += "<A HREF=\"hidden.html\">";
  site.Write("picture.png", binary);
  site.Write("after-nul.html", "");
  site.Write("start.html", "<IMG SRC=\"picture.png\"> <A HREF=\"picture.png\">");
  RecordingSiteView view;
  SiteAnalyser analyser(view);
  analyser.AnalyseSite(site.Root(), "start.html");
  EXPECT_EQ(Parsed(analyser),
            (std::vector<std::string>{site.Root() + "start.html", site.Root() + "picture.png",
                                      site.Root() + "after-nul.html"}));
  EXPECT_TRUE(view.rows.empty());
}

TEST(SiteBadInput, FoldersPipesAndDevicesCountAsMissing) {
  TempSite site;
  site.Mkdir("folder.html");
  ASSERT_EQ(::mkfifo((site.Root() + "pipe.html").c_str(), 0644), 0);
  std::string climb;
  for (int i = 0; i < 40; ++i) climb += "../";
  site.Write("start.html", "<A HREF=\"folder.html\"> <A HREF=\"pipe.html\"> <A HREF=\"" + climb +
                               "dev/zero\"> <A HREF=\"pipe.html#x\">");
  EXPECT_FALSE(FileExistsForRead(site.Root() + "folder.html"));
  EXPECT_EQ(FileLength(site.Root() + "folder.html"), -1);
  EXPECT_EQ(FileLength(site.Root() + "nothing.html"), -1);

  RecordingSiteView view;
  SiteAnalyser analyser(view);
  analyser.AnalyseSite(site.Root(), "start.html");
  const std::string start = site.Root() + "start.html";
  EXPECT_EQ(view.rows, (std::vector<SiteRow>{{"folder.html", {"Broken Link", start}, 2},
                                             {"pipe.html", {"Broken Link", start}, 2},
                                             {climb + "dev/zero", {"Broken Link", start}, 2},
                                             {"pipe.html#x", {"Broken Anchor", start}, 2}}));
  EXPECT_EQ(Parsed(analyser).size(), 1u);
}

TEST(SiteBadInput, UnreadableFileIsABrokenLink) {
  if (::geteuid() == 0) GTEST_SKIP() << "permissions do not bind the superuser";
  TempSite site;
  site.Write("secret.html", "<A HREF=\"x.html\">");
  fs::permissions(site.Root() + "secret.html", fs::perms::none);
  site.Write("start.html", "<A HREF=\"secret.html\">");
  RecordingSiteView view;
  SiteAnalyser analyser(view);
  analyser.AnalyseSite(site.Root(), "start.html");
  EXPECT_EQ(
      view.rows,
      (std::vector<SiteRow>{{"secret.html", {"Broken Link", site.Root() + "start.html"}, 2}}));
}

}  // namespace
}  // namespace tessarine
