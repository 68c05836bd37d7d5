#include <gtest/gtest.h>

#include <filesystem>
#include <vector>

#include "sitetools/SiteTestSupport.h"

namespace tessarine {
namespace {

using sitetest::CompletionMessage;
using sitetest::CrLfLines;
using sitetest::OnePageCrawl;
using sitetest::ReadAll;
using sitetest::TempSite;

// A small site with one error of every kind; both report files byte for byte.
TEST(SiteCrawl, ReportsEveryKindOfErrorInBothFiles) {
  TempSite site;
  site.Write("index.html",
             "<HTML><HEAD><TITLE>Home</TITLE></HEAD>\r\n"
             "<BODY BACKGROUND=\"img/bg.gif\">\r\n"
             "<!-- <A HREF=\"hidden.html\">old</A> -->\r\n"
             "<A NAME=\"top\"></A>\r\n"
             "<A HREF=\"sub/\">Sub</A>\r\n"
             "<A HREF=\"about.html#team\">Team</A>\r\n"
             "<A HREF=\"#top\">Top</A>\r\n"
             "<A HREF=\"#bottom\">Bottom</A>\r\n"
             "<A HREF=\"missing.html\">Missing</A>\r\n"
             "<A HREF=\"http://example.com/x.html\">Remote</A>\r\n"
             "<A HREF=\"mailto:me@example.com\">Mail</A>\r\n"
             "<A HREF=\"cgi-bin/form.cgi?x=1\">Form</A>\r\n"
             "<A HREF=\"docs/manual.pdf\">Manual</A>\r\n"
             "<IMG SRC=\"img/logo.gif\"><IMG SRC=\"img/none.jpg\">\r\n"
             "<img alt=\"x\" src=\"img/unseen.gif\">\r\n"
             "</BODY></HTML>\r\n");
  site.Write("img/bg.gif", "GIF89a");
  site.Write("img/logo.gif", "GIF89a");
  site.Write("sub/index.html",
             "<title></title>\r\n"
             "<a href=\"../about.html\">About</a>\r\n"
             "<a href=\"../../outside.html\">Out</a>\r\n"
             "<a href=\"script.pl\">Script</a>\r\n"
             "<img src=\"../img/logo.GIF\">\r\n");
  site.Write("about.html",
             "<TITLE>Document Title Should Be Typed Here</TITLE>\r\n"
             "<a name=team></a>\r\n"
             "<FRAMESET><FRAME SRC=\"frame.html\"></FRAMESET>\r\n"
             "<A HREF=\"index.html\">Home</A> <A HREF=\"/sub/\">Sub</A>\r\n");

  RecordingSiteView view;
  SiteAnalyser analyser(view);
  analyser.AnalyseSite(site.Root().substr(0, site.Root().size() - 1), "index.html");

  const std::string root = site.Root();
  EXPECT_EQ(ReadAll(root + "LinkReport.txt"),
            CrLfLines({root + "index.html",
                       "          Home",
                       "          sub/",
                       "          about.html#team",
                       "          #top",
                       "          #bottom",
                       "          missing.html",
                       "          http://example.com/x.html",
                       "          mailto:me@example.com",
                       "          cgi-bin/form.cgi?x=1",
                       "          docs/manual.pdf",
                       "          img/bg.gif",
                       "          img/logo.gif",
                       "          img/none.jpg",
                       "",
                       "",
                       root + "sub/index.html",
                       "          ",
                       "   Frame Source Links:",
                       "",
                       "   Links:",
                       "          ../about.html",
                       "          ../../outside.html",
                       "          script.pl",
                       "",
                       "   Background Image:",
                       "",
                       "   Images:",
                       "          ../img/logo.GIF",
                       "",
                       "",
                       root + "about.html",
                       "          Document Title Should Be Typed Here",
                       "   Frame Source Links:",
                       "          frame.html",
                       "",
                       "   Links:",
                       "          index.html",
                       "          /sub/",
                       "",
                       "   Background Image:",
                       "",
                       "   Images:"}));
  EXPECT_EQ(
      ReadAll(root + "BrokenLinks.txt"),
      CrLfLines({root + "index.html", "          #bottom", "          missing.html",
                 "          cgi-bin/form.cgi?x=1", "          docs/manual.pdf",
                 "          img/none.jpg", "", "", root + "sub/index.html",
                 "          ../../outside.html", "          script.pl", "          ../img/logo.GIF",
                 "", "", root + "about.html", "          frame.html"}));

  const std::string start = root + "index.html";
  const std::string sub = root + "sub/index.html";
  const std::string about = root + "about.html";
  const std::vector<SiteRow> expectedRows = {
      {"#bottom", {"Broken Anchor", start}, 2},
      {"missing.html", {"Broken Link", start}, 2},
      {"cgi-bin/form.cgi?x=1", {"Broken CGI link", start}, 7},
      {"docs/manual.pdf", {"Broken Link", start}, 4},
      {"img/none.jpg", {"Missing Image", start}, 4},
      {"Missing Title", {"Web page is missing title", sub}, 7},
      {"../../outside.html", {"Broken Link", sub}, 2},
      {"script.pl", {"Broken CGI link", sub}, 7},
      {"../img/logo.GIF", {"Missing Image", sub}, 4},
      {"Missing Title", {"Web page is missing title", about}, 7},
      {"frame.html", {"Broken Link", about}, 2},
  };
  EXPECT_EQ(view.rows, expectedRows);
  EXPECT_EQ(analyser.ErrorCount, 11);
  EXPECT_EQ(std::vector<std::string>(analyser.ParsedFilesList().begin(),
                                     analyser.ParsedFilesList().end()),
            (std::vector<std::string>{start, sub, about}));

  EXPECT_EQ(view.Label(SiteLabel::ErrorCountOrTitle), " 11 Errors in Site");
  EXPECT_EQ(view.Label(SiteLabel::PageCountOrWeight), "Number of page in site:  3");
  EXPECT_EQ(view.Label(SiteLabel::ResultsHeading), "Results:");
  EXPECT_EQ(view.Label(SiteLabel::CurrentPage), "");
  EXPECT_EQ(view.mode, "Site");
  EXPECT_EQ(view.caption, "Site Tolmer - ");
  EXPECT_EQ(view.columnHeading, "Web page containing the error");
  EXPECT_EQ(view.status, "Done!");
  EXPECT_FALSE(view.animating);
  EXPECT_EQ(analyser.PageTitle, "Document Title Should Be Typed Here");
  ASSERT_EQ(view.messages.size(), 1u);
  EXPECT_EQ(view.messages[0], CompletionMessage(root));

  // A second run starts afresh: the reports are rewritten, the caption shows the last
  // title, the counts start again.
  analyser.AnalyseSite(root, "index.html");
  EXPECT_EQ(view.caption, "Site Tolmer - Document Title Should Be Typed Here");
  EXPECT_EQ(view.rows, expectedRows);
  EXPECT_EQ(ReadAll(root + "BrokenLinks.txt").substr(0, start.size() + 2), start + "\r\n");
  EXPECT_EQ(view.Label(SiteLabel::ErrorCountOrTitle), " 11 Errors in Site");
}

TEST(SiteCrawl, PageWithoutLinksGivesOneLineReports) {
  OnePageCrawl crawl("<P>Nothing to follow here.</P>");
  const std::string start = crawl.site.Root() + "start.html";
  EXPECT_EQ(crawl.brokenLinks, start + "\r\n");
  EXPECT_EQ(crawl.linkReport, start + "\r\n");
  EXPECT_EQ(crawl.view.Label(SiteLabel::ErrorCountOrTitle), " 0 Errors in Site");
  EXPECT_EQ(crawl.view.Label(SiteLabel::PageCountOrWeight), "Number of page in site:  1");
}

TEST(SiteCrawl, SelectedImageStartsNothing) {
  TempSite site;
  site.Write("photo.JPG", "\xFF\xD8");
  site.Write("anim.jpeg", "x");
  RecordingSiteView view;
  SiteAnalyser analyser(view);
  analyser.AnalyseSite(site.Root(), "photo.JPG");
  analyser.AnalyseSite(site.Root(), "anim.jpeg");
  EXPECT_FALSE(std::filesystem::exists(site.Root() + "LinkReport.txt"));
  EXPECT_FALSE(std::filesystem::exists(site.Root() + "BrokenLinks.txt"));
  EXPECT_TRUE(view.mode.empty());
  EXPECT_TRUE(view.messages.empty());
  EXPECT_TRUE(view.labels.empty());
}

TEST(SiteCrawl, OnlyTheExactTokenFormIsALink) {
  OnePageCrawl crawl(
      "<img alt=\"x\" src=\"a.gif\">\r\n"      // SRC after another attribute
      "<img src=\"b.gif\">\r\n"                // any case of the token
      "<IMG SRC=c.gif> <A HREF='d.html'>\r\n"  // no quotes, single quotes
      "<A HREF = \"e.html\">\r\n"              // blanks around "="
      "<AREA HREF=\"f.html\"><LINK HREF=\"g.css\">\r\n");
  EXPECT_EQ(crawl.linkReport, CrLfLines({crawl.site.Root() + "start.html", "          f.html",
                                         "          g.css", "          b.gif"}));
}

TEST(SiteCrawl, TokenWithinTwoCharactersOfAClosingQuoteGoesUnseen) {
  OnePageCrawl crawl(
      "<A HREF=\"a.html\"HREF=\"b.html\">\r\n"
      "<A HREF=\"c.html\" HREF=\"d.html\">\r\n"
      "<A HREF=\"e.html\"  HREF=\"f.html\">\r\n"
      "<IMG SRC=\"g.gif\"><IMG SRC=\"h.gif\">");
  EXPECT_EQ(crawl.linkReport, CrLfLines({crawl.site.Root() + "start.html", "          a.html",
                                         "          c.html", "          e.html", "          f.html",
                                         "          g.gif", "          h.gif"}));
}

TEST(SiteCrawl, CommentsHideLinksExceptOneTouchingTheLast) {
  OnePageCrawl crawl(
      "<!-- <A HREF=\"one.html\"> --><!-- <A HREF=\"two.html\"> -->\r\n"
      "<A HREF=\"three.html\">\r\n"
      "<!-- <A HREF=\"four.html\"> --> <!-- <A HREF=\"five.html\"> -->\r\n"
      "<A HREF=\"six.html\">\r\n"
      "<!-- never closed <A HREF=\"seven.html\">\r\n"
      "<A HREF=\"eight.html\">\r\n");
  EXPECT_EQ(crawl.linkReport, CrLfLines({crawl.site.Root() + "start.html", "          two.html",
                                         "          three.html", "          six.html"}));
  EXPECT_EQ(crawl.analyser.PageText(),
            "<!-- <A HREF=\"two.html\"> -->\r\n<A HREF=\"three.html\">\r\n \r\n"
            "<A HREF=\"six.html\">\r\n");
}

TEST(SiteCrawl, AnchorIsFoundOnlyAfterNameEquals) {
  struct Case {
    const char* target;
    bool broken;
  };
  for (const Case& c : {Case{"<A NAME=top>", false}, Case{"<a name=\"top\">", false},
                        Case{"<A NAME=\"TOP\">", false}, Case{"<A NAME=topic>", false},
                        Case{"<A NAME = \"top\">", true}, Case{"<A ID=\"top\">", true},
                        Case{"<!-- <A NAME=top> -->", true}}) {
    OnePageCrawl crawl(std::string(c.target) + "\r\n<A HREF=\"#top\">up</A>");
    EXPECT_EQ(crawl.view.rows.size(), c.broken ? 1u : 0u) << c.target;
    if (c.broken && !crawl.view.rows.empty()) {
      EXPECT_EQ(crawl.view.rows[0],
                (SiteRow{"#top", {"Broken Anchor", crawl.site.Root() + "start.html"}, 2}));
    }
  }
}

TEST(SiteCrawl, AnchorInAnotherPageIsLookedForInItsWholeText) {
  TempSite site;
  site.Write("start.html",
             "<A HREF=\"other.html#a\"> <A HREF=\"other.html#b\"> <A HREF=\"other.html#c\">\r\n"
             "<A HREF=\"none.html#a\"> <A HREF=\"http://host/page.html#x\">");
  // That file's comments are not stripped.
  site.Write("other.html", "<A NAME=a> <!-- <A NAME=b> --> <A NAME=\"C\">");
  RecordingSiteView view;
  SiteAnalyser analyser(view);
  analyser.AnalyseSite(site.Root(), "start.html");
  const std::string start = site.Root() + "start.html";
  EXPECT_EQ(view.rows,
            (std::vector<SiteRow>{{"none.html#a", {"Broken Anchor", start}, 2},
                                  {"http://host/page.html#x", {"Broken Anchor", start}, 2}}));
  // An anchor link does not queue its page.
  EXPECT_EQ(analyser.ParsedFilesList().size(), 1u);
}

TEST(SiteCrawl, TitlesAreCheckedAndAHashInOneMakesItAnAnchor) {
  OnePageCrawl hashed("<TITLE>Page #1</TITLE>");
  const std::string start = hashed.site.Root() + "start.html";
  EXPECT_EQ(hashed.view.rows, (std::vector<SiteRow>{{"Page #1", {"Broken Anchor", start}, 2}}));
  EXPECT_EQ(hashed.brokenLinks, CrLfLines({start, "          Page #1"}));

  OnePageCrawl empty("<TITLE>  </TITLE>");
  EXPECT_EQ(
      empty.view.rows,
      (std::vector<SiteRow>{
          {"Missing Title", {"Web page is missing title", empty.site.Root() + "start.html"}, 7}}));
  EXPECT_EQ(empty.analyser.PageTitle, "None");
  EXPECT_EQ(empty.brokenLinks, empty.site.Root() + "start.html\r\n");
  EXPECT_EQ(empty.view.Label(SiteLabel::ErrorCountOrTitle), " 1 Errors in Site");

  OnePageCrawl lower("<title>My Page</title>");
  EXPECT_TRUE(lower.view.rows.empty());
  EXPECT_EQ(lower.analyser.PageTitle, "My Page");
}

// Index.html is another name of index.html here, as on a file system that ignores case.
TEST(SiteCrawl, QueueTakesEachFileOnceWhateverItsSpelling) {
  TempSite site;
  site.Write("start.html",
             "<A HREF=\"index.html\"> <A HREF=\"Index.html\"> <A HREF=\"dir/\">"
             " <A HREF=\"dir\\index.html\"> <A HREF=\"./index.html\">");
  site.Write("index.html", "x");
  std::filesystem::create_symlink("index.html", site.Root() + "Index.html");
  site.Write("dir/index.html", "y");
  RecordingSiteView view;
  SiteAnalyser analyser(view);
  analyser.AnalyseSite(site.Root(), "start.html");
  const std::string root = site.Root();
  EXPECT_EQ(std::vector<std::string>(analyser.ParsedFilesList().begin(),
                                     analyser.ParsedFilesList().end()),
            (std::vector<std::string>{root + "start.html", root + "index.html",
                                      root + "dir/index.html"}));
  EXPECT_TRUE(view.rows.empty());
}

TEST(SiteCrawl, StartPageKeepsTheBaseThatALinkChanged) {
  TempSite site;
  // On the start page "../" and "/" move the base of all the links after them.
  site.Write("start.html",
             "<A HREF=\"../up.html\"> <A HREF=\"page.html\"> <A HREF=\"/\"> <A HREF=\"x.html\">");
  site.Write("page.html", "<A HREF=\"../up.html\"> <A HREF=\"page.html\">");
  site.Write("x.html", "");
  site.Write("../up.html", "<A HREF=\"site/page.html\">");
  RecordingSiteView view;
  SiteAnalyser analyser(view);
  analyser.AnalyseSite(site.Root(), "start.html");
  const std::string start = site.Root() + "start.html";
  // "/" is the site root's index.html, absent here; "x.html" lands beside the root folder.
  EXPECT_EQ(view.rows, (std::vector<SiteRow>{{"page.html", {"Broken Link", start}, 2},
                                             {"/", {"Broken Link", start}, 2},
                                             {"x.html", {"Broken Link", start}, 2}}));
  // Further pages take their own folder before every link.
  EXPECT_EQ(std::vector<std::string>(analyser.ParsedFilesList().begin(),
                                     analyser.ParsedFilesList().end()),
            (std::vector<std::string>{start, site.Base() + "up.html", site.Root() + "page.html"}));
}

TEST(SiteCrawl, TokenWithoutClosingQuoteHandlesThePreviousLinkAgainAndEnds) {
  OnePageCrawl crawl("<A HREF=\"gone.html\"> <IMG SRC=\"never closed");
  const std::string start = crawl.site.Root() + "start.html";
  EXPECT_EQ(crawl.linkReport, CrLfLines({start, "          gone.html", "          gone.html"}));
  EXPECT_EQ(crawl.view.rows, (std::vector<SiteRow>{{"gone.html", {"Broken Link", start}, 2},
                                                   {"gone.html", {"Broken Link", start}, 2}}));
}

// A page that disappears before its turn: its message, then the page before it is
// parsed again in its place, and the crawl goes on.
TEST(SiteCrawl, PageThatCannotBeOpenedGivesItsMessageAndTheRunGoesOn) {
  class DeletingView : public RecordingSiteView {
   public:
    std::string victim;
    void SetLabel(SiteLabel label, const std::string& text) override {
      if (label == SiteLabel::CurrentPage && text == victim) std::filesystem::remove(victim);
      RecordingSiteView::SetLabel(label, text);
    }
  };
  TempSite site;
  site.Write("start.html", "<A HREF=\"a.html\"> <A HREF=\"sub/gone.html\">");
  site.Write("a.html", "<A HREF=\"b.html\">");
  site.Write("b.html", "");
  site.Write("sub/gone.html", "<A HREF=\"c.html\">");
  site.Write("sub/b.html", "");
  DeletingView view;
  view.victim = site.Root() + "sub/gone.html";
  SiteAnalyser analyser(view);
  analyser.AnalyseSite(site.Root(), "start.html");
  ASSERT_EQ(view.messages.size(), 2u);
  EXPECT_EQ(view.messages[0], "Can't open file: " + view.victim);
  // a.html's text again, its link now taken from sub/.
  EXPECT_EQ(
      std::vector<std::string>(analyser.ParsedFilesList().begin(),
                               analyser.ParsedFilesList().end()),
      (std::vector<std::string>{site.Root() + "start.html", site.Root() + "a.html", view.victim,
                                site.Root() + "b.html", site.Root() + "sub/b.html"}));
  EXPECT_EQ(view.Label(SiteLabel::PageCountOrWeight), "Number of page in site:  5");
}

}  // namespace
}  // namespace tessarine
