#include <gtest/gtest.h>

#include <cstdio>
#include <vector>

#include "sitetools/SiteTestSupport.h"

namespace tessarine {
namespace {

using sitetest::TempSite;

// One-based position of the closing quote of `attribute` (written with both quotes).
std::string QuotePosition(const std::string& text, const std::string& attribute) {
  const std::size_t at = text.find(attribute);
  EXPECT_NE(at, std::string::npos) << attribute;
  return " " + std::to_string(at + attribute.size());
}

TEST(SitePage, ClassifiesEveryLinkAndWeighsThePage) {
  const std::string page =
      "<HTML><HEAD><TITLE> My Page </TITLE></HEAD>\r\n"
      "<BODY BACKGROUND=\"img/bg.gif\">\r\n"
      "<A NAME=\"top\"></A>\r\n"
      "<A HREF=\"other.html\">Other</A>\r\n"
      "<A HREF=\"nothere.html\">No</A>\r\n"
      "<A HREF=\"/other.html\">Root</A>\r\n"
      "<A HREF=\"#top\">Top</A>\r\n"
      "<A HREF=\"#gone\">Gone</A>\r\n"
      "<A HREF=\"other.html#sec\">Sec</A>\r\n"
      "<A HREF=\"http://example.com/\">Remote</A>\r\n"
      "<A HREF=\"mailto:me@example.com\">Mail</A>\r\n"
      "<A HREF=\"cgi-bin/run.cgi?a=1\">Run</A>\r\n"
      "<A HREF=\"cgi-bin/none.cgi\">None</A>\r\n"
      "<A HREF=\"img/bg.gif\">Picture</A>\r\n"
      "<A HREF=\"sub\\deep.htm\">Deep</A>\r\n"
      "<IMG SRC=\"img/a.gif\"><IMG SRC=\"img/missing.jpg\">\r\n"
      "</BODY></HTML>\r\n";
  TempSite site;
  site.Write("page.html", page);
  site.Write("other.html", "<title>  Other Title </title><a name=sec>");
  site.Write("sub/deep.htm", "<TITLE>Deep</TITLE>");
  site.Write("cgi-bin/run.cgi", "#!/bin/sh");
  site.Write("img/bg.gif", std::string(100, 'b'));
  // Page and images weigh 1,000,000 bytes: 555 units, 277.5 seconds, rounded to 278.
  site.Write("img/a.gif", std::string(1'000'000 - 100 - page.size(), 'a'));

  RecordingSiteView view;
  SiteAnalyser analyser(view);
  analyser.ErrorCount = 4;
  analyser.AnalysePage(site.Root(), "page.html");

  const std::vector<SiteRow> expected = {
      {"other.html", {"OK", "Other Title", QuotePosition(page, "HREF=\"other.html\"")}, 1},
      {"nothere.html", {"Broken Link"}, 2},
      {"/other.html", {"OK", "Other Title", QuotePosition(page, "HREF=\"/other.html\"")}, 1},
      {"#top", {"OK"}, 1},
      {"#gone", {"Broken Anchor"}, 2},
      {"other.html#sec", {"OK"}, 1},
      {"http://example.com/index.html", {"Unverified remote link"}, 5},
      {"mailto:me@example.com", {"Unverified remote link"}, 5},
      {"cgi-bin/run.cgi?a=1", {"Unverified CGI script"}, 5},
      {"cgi-bin/none.cgi", {"Broken CGI link"}, 7},
      {"img/bg.gif", {"OK", "Image", QuotePosition(page, "HREF=\"img/bg.gif\"")}, 3},
      {"sub\\deep.htm", {"OK", "Deep", QuotePosition(page, "HREF=\"sub\\deep.htm\"")}, 1},
      {"img/bg.gif", {"OK", "Image", QuotePosition(page, "BACKGROUND=\"img/bg.gif\"")}, 3},
      {"img/a.gif", {"OK", "Image", QuotePosition(page, "SRC=\"img/a.gif\"")}, 3},
      {"img/missing.jpg", {"Missing Image"}, 4},
  };
  EXPECT_EQ(view.rows, expected);
  EXPECT_EQ(analyser.PageTitle, "My Page");
  EXPECT_EQ(analyser.DocumentWeight, 1'000'000 - static_cast<std::int64_t>(page.size()));
  EXPECT_EQ(analyser.ErrorCount, 4);

  EXPECT_EQ(view.mode, "Page");
  EXPECT_EQ(view.columnHeading, "Title");
  EXPECT_EQ(view.Label(SiteLabel::ResultsHeading), "File Title:");
  EXPECT_EQ(view.Label(SiteLabel::ErrorCountOrTitle), "My Page");
  EXPECT_EQ(view.Label(SiteLabel::PageCountOrWeight),
            "Document weight (file size including images, etc.):  1000000 bytes");
  EXPECT_EQ(view.Label(SiteLabel::PageSize), " " + std::to_string(page.size()) + " bytes");
  EXPECT_EQ(view.Label(SiteLabel::DownloadTime), " 4 minutes  38 seconds");
  // The file's date and time, as "m/d/yyyy h:mm:ss AM".
  int month = 0, day = 0, year = 0, hour = 0, minute = 0, second = 0, used = 0;
  char half[3] = {};
  const std::string date = view.Label(SiteLabel::FileDate);
  ASSERT_EQ(std::sscanf(date.c_str(), "%d/%d/%d %d:%2d:%2d %2[AP]M%n", &month, &day, &year, &hour,
                        &minute, &second, half, &used),
            7)
      << date;
  EXPECT_EQ(static_cast<std::size_t>(used), date.size()) << date;
  EXPECT_TRUE(month >= 1 && month <= 12 && day >= 1 && day <= 31 && year >= 2000) << date;
  EXPECT_TRUE(hour >= 1 && hour <= 12 && minute < 60 && second < 60) << date;
  EXPECT_EQ(view.statusHistory,
            (std::vector<std::string>{"Opening File for analysis...", "Verifying Web page title...",
                                      "Verifying Links...", "Verifying Images...", "Done!"}));
  EXPECT_FALSE(view.animating);
  EXPECT_TRUE(view.messages.empty());
}

TEST(SitePage, MissingTitleIsARowAndTheLabelSaysNone) {
  TempSite site;
  site.Write("page.html", "<TITLE></TITLE><IMG SRC=\"photo.JPG\">");
  site.Write("photo.JPG", "12345");
  RecordingSiteView view;
  SiteAnalyser analyser(view);
  analyser.AnalysePage(site.Root(), "page.html");
  EXPECT_EQ(view.rows, (std::vector<SiteRow>{{"Missing Title", {"Web page is missing title"}, 7},
                                             {"photo.JPG", {"OK", "Image", " 35"}, 3}}));
  EXPECT_EQ(view.Label(SiteLabel::ErrorCountOrTitle), "None");
  EXPECT_EQ(view.Label(SiteLabel::PageCountOrWeight),
            "Document weight (file size including images, etc.):  41 bytes");
  EXPECT_EQ(view.Label(SiteLabel::DownloadTime), " 0 minutes  0 seconds");
}

TEST(SitePage, PageThatCannotBeOpenedKeepsTheOldText) {
  TempSite site;
  site.Write("page.html", "<A HREF=\"gone.html\">");
  RecordingSiteView view;
  SiteAnalyser analyser(view);
  analyser.AnalysePage(site.Root(), "page.html");
  analyser.AnalysePage(site.Root(), "absent.html");
  EXPECT_EQ(view.messages,
            (std::vector<std::string>{"Can't open file: " + site.Root() + "absent.html"}));
  EXPECT_EQ(view.rows, (std::vector<SiteRow>{{"gone.html", {"Broken Link"}, 2}}));
  EXPECT_EQ(view.Label(SiteLabel::PageSize), "-1 bytes");
}

}  // namespace
}  // namespace tessarine
