// The link check of one document and the Quick View's positions.
#include <gtest/gtest.h>

#include "sitetools/LinkCheck.h"
#include "sitetools/QuickView.h"
#include "sitetools/SiteTestSupport.h"

namespace tessarine {
namespace {

TEST(LinkCheck, WhichPagesAreVerified) {
  struct Case {
    bool fromDocument;
    std::string captionOrName;
    bool ok;
    std::string folder, fileName;
  };
  const Case cases[] = {
      {true, "Untitled:1", false, "", ""},
      {true, "untitled:3", false, "", ""},
      {true, "/site/index.shtml", true, "/site/", "index.shtml"},  // a document passes
      {false, "index.shtml", false, "", ""},                       // the list refuses it
      {false, "PAGE.HTM", false, "", ""},                          // exact case
      {false, "page.asp", false, "", ""},
      {false, "page.htm", true, "/site/", "page.htm"},
      {false, "page.html", true, "/site/", "page.html"},
  };
  for (const Case& c : cases) {
    const PageToVerify page = c.fromDocument ? VerifyActiveDocument(c.captionOrName)
                                             : VerifySelectedFile("/site", c.captionOrName);
    EXPECT_EQ(page.ok, c.ok) << c.captionOrName;
    EXPECT_EQ(page.folder, c.folder) << c.captionOrName;
    EXPECT_EQ(page.fileName, c.fileName) << c.captionOrName;
    if (!c.ok) {
      EXPECT_EQ(page.message, c.fromDocument ? "File must be saved before verifying links."
                                             : "Tessarine can't verify this type of file.");
    }
  }
}

TEST(QuickView, PositionsCountTheCommentsBackIn) {
  const std::string page = "ab<!--x-->cd<!--yy-->ef<!-- open";
  struct Case {
    std::int64_t stripped, original;
  };
  // Stripped text: "abcdef<!-- open".
  for (const Case& c : {Case{0, 0}, Case{2, 10}, Case{3, 11}, Case{4, 21}, Case{5, 22}, Case{-4, 0},
                        Case{1000, static_cast<std::int64_t>(page.size())}}) {
    EXPECT_EQ(OriginalPosition(page, c.stripped), c.original) << c.stripped;
  }
  EXPECT_EQ(JumpPosition(" 25", "two.html"), 16);
  EXPECT_EQ(JumpPosition("", "two.html"), 0);
}

TEST(QuickView, SavingAddsOneLineBreakAndKeepsAFailedFileWhole) {
  sitetest::TempSite site;
  site.Write("page.html", "old");
  EXPECT_EQ(SaveQuickView(site.Root() + "page.html", "new"), "");
  EXPECT_EQ(sitetest::ReadAll(site.Root() + "page.html"), "new\r\n");
  EXPECT_EQ(SaveQuickView(site.Root() + "no/such/page.html", "x"), "Error# 53: File not found");
}

}  // namespace
}  // namespace tessarine
