#include <gtest/gtest.h>

#include <random>

#include "sitetools/RecordingSiteView.h"
#include "sitetools/SiteAnalyser.h"
#include "sitetools/SiteText.h"

namespace tessarine {
namespace {

TEST(SiteScan, NormalizeLinkPathResolvesAgainstBaseAndRoot) {
  struct Case {
    const char* link;
    const char* base;
    const char* wantLink;
    const char* wantBase;
  };
  const Case cases[] = {
      {"page.html", "/w/site/a/", "page.html", "/w/site/a/"},
      {"sub\\deep/page.html", "/w/site/", "sub/deep/page.html", "/w/site/"},
      {"/top.html", "/w/site/a/b/", "top.html", "/w/site/"},
      {"\\top.html", "/w/site/a/", "top.html", "/w/site/"},
      {"/", "/w/site/a/", "/", "/w/site"},
      {"../x.html", "/w/site/a/b/", "x.html", "/w/site/a/"},
      {"../../x.html", "/w/site/a/b/", "x.html", "/w/site/"},
      // From two levels down the drive level; three and more above give the root.
      {"../../x.html", "/w/s/", "x.html", "/"},
      {"../../../../x.html", "/w/s/", "x.html", "/"},
      {"..\\..\\x.html", "/w/site/a/b/", "x.html", "/w/site/"},
      // Three characters go per "..", wherever the ".." stood.
      {"a/../b.html", "/w/site/a/", "./b.html", "/w/site/"},
      {"x...y.html", "/w/site/a/b/", "html", "/w/site/"},
      {"/../x.html", "/w/site/a/", "x.html", "/w/"},
  };
  RecordingSiteView view;
  SiteAnalyser analyser(view);
  for (const Case& c : cases) {
    analyser.SiteRoot = "/w/site/";
    analyser.BasePath = c.base;
    analyser.LinkTarget = c.link;
    analyser.NormalizeLinkPath();
    EXPECT_EQ(analyser.LinkTarget, c.wantLink) << c.link << " from " << c.base;
    EXPECT_EQ(analyser.BasePath, c.wantBase) << c.link << " from " << c.base;
  }
}

TEST(SiteScan, SplitDownloadTimeRoundsHalfSecondsToEven) {
  struct Case {
    std::int64_t units, minutes, seconds;
  };
  const Case cases[] = {
      {0, 0, 0},   {1, 0, 0},   {3, 0, 2},     {5, 0, 2},         {119, 1, 0}, {121, 1, 0},
      {123, 1, 2}, {240, 2, 0}, {7199, 60, 0}, {100000, 833, 20},  // a 16-bit integer would have
                                                                   // overflowed here
  };
  RecordingSiteView view;
  SiteAnalyser analyser(view);
  for (const Case& c : cases) {
    analyser.SplitDownloadTime(c.units);
    EXPECT_EQ(analyser.DownloadMinutes, c.minutes) << c.units;
    EXPECT_EQ(analyser.DownloadSeconds, c.seconds) << c.units;
  }
}

TEST(SiteScan, StripCommentsKeepsTheTextOutsideComments) {
  struct Case {
    const char* text;
    const char* want;
  };
  const Case cases[] = {
      {"no comment", "no comment"},
      {"a<!--x-->b", "ab"},
      {"<!--x-->", ""},
      {"a<!--x-->b<!--y-->c", "abc"},
      // The search goes on one character after the first one behind "-->".
      {"a<!--x--><!--y-->c", "a<!--y-->c"},
      {"a<!--x-->b<!--y--><!--z-->c", "ab<!--z-->c"},
      {"A<!-- x <!-- y -->B", "AB"},
      // Never closed: what stood before it is kept, and the loop stops.
      {"a<!--x-->b<!--never closed", "ab"},
      {"<!--never closed", ""},
      {"a<!-- -->", "a"},
  };
  RecordingSiteView view;
  SiteAnalyser analyser(view);
  for (const Case& c : cases) {
    analyser.SetPageText(c.text);
    analyser.Cursor = 0;
    analyser.ScanFresh = true;
    analyser.StripComments();
    EXPECT_EQ(analyser.PageText(), c.want) << c.text;
    EXPECT_EQ(analyser.ScanPos, 0);
    EXPECT_TRUE(analyser.ScanFresh);
  }
}

// The index must answer exactly as the plain search of the content would.
TEST(SiteScan, AnchorIndexAgreesWithThePlainSearch) {
  std::mt19937 random(7);
  const std::string pieces[] = {"NAME=", "NAME=\"", "\"", "A", "B", "AB", " ", "NAME", "="};
  for (int round = 0; round < 300; ++round) {
    std::string text;
    for (int i = 0; i < 12; ++i) text += pieces[random() % std::size(pieces)];
    AnchorIndex index(text);
    for (const char* anchor : {"", "A", "B", "AB", "ABA", "\"", "A\"", "X"}) {
      EXPECT_EQ(index.HoldsAnchor(anchor), TextHoldsAnchor(text, anchor))
          << text << " / " << anchor;
    }
  }
  // Anchors longer than the index keys: candidates that share the keys' length of text are
  // told apart by the text itself.
  const std::string head(AnchorIndex::kKeyLength, 'Q');
  const std::string text = "<A NAME=\"" + head + "1\"> <A NAME=" + head + "22> <A NAME=\"" + head +
                           "333\">";
  const AnchorIndex index(text);
  for (const std::string& anchor :
       {head + "1", head + "2", head + "22", head + "333", head + "33", head + "3333", head + "4",
        head + "1\"", std::string(300, 'Q')}) {
    ASSERT_TRUE(AnchorIndex::NeedsText(anchor));
    EXPECT_EQ(index.HoldsAnchor(anchor, text), TextHoldsAnchor(text, anchor)) << anchor.substr(128);
  }
}

}  // namespace
}  // namespace tessarine
