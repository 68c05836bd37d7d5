// Web page properties over real page texts: what opening reads, what OK writes back in
// place, colours from another page, and the page's weight report.

#include <gtest/gtest.h>

#include <string>

#include "conventions/TagConventions.h"
#include "core/TestApp.h"
#include "platform/EditControl.h"
#include "wizards/EditTag.h"
#include "wizards/PageProperties.h"

namespace tessarine {
namespace {

using testing::TempDir;
using testing::TestApp;
using testing::WriteAll;

const std::string kPage =
    "<HTML>\r\n<HEAD>\r\n\t<TITLE>Our Club</TITLE>\r\n</HEAD>\r\n"
    "<BODY BGCOLOR=\"#FFFFCC\" VLINK=\"#800080\" LINK=\"red\" TEXT=\"RED\" ALINK=\"\" "
    "LEFTMARGIN=\"4\" BACKGROUND=\"paper.gif\" BGPROPERTIES=fixed>\r\n"
    "<P>Welcome</P>\r\n</BODY>\r\n</HTML>";

struct PagePropertiesTest : ::testing::Test {
  TestApp t;
  BufferEdit* edit = nullptr;
  void Open(const std::string& text, bool upper = true) {
    t.app.settings.TagCaseUpper = upper;
    edit = &t.NewWindow(text).Buffer();
  }
  std::string BodyOf(const std::string& text) {
    const std::size_t b =
        text.find("<BODY") != std::string::npos ? text.find("<BODY") : text.find("<body");
    return text.substr(b, text.find('>', b) - b + 1);
  }
};

TEST_F(PagePropertiesTest, OpeningReadsTitleAndBodyTagAndSelectsTheTag) {
  Open(kPage);
  const PageOpening o = PageProperties_Open(t.app);
  EXPECT_EQ(t.app.wizards.TagEditActive, 1);
  EXPECT_EQ(o.form.title, "Our Club");
  EXPECT_FALSE(o.selectTitle);
  EXPECT_EQ(edit->SelText(), BodyOf(kPage));
  // Typed digits write "#"; a listed name its digits; a name in capitals is no name.
  EXPECT_EQ(o.form.backgroundColor.text, "FFFFCC");
  EXPECT_EQ(o.form.backgroundColor.value, "#FFFFCC");
  EXPECT_EQ(o.form.colors[LinkColor].text, "red") << "LINK is not read inside VLINK";
  EXPECT_EQ(o.form.colors[LinkColor].value, "FF0000");
  EXPECT_EQ(o.form.colors[TextColor].value, "#RED");
  EXPECT_EQ(o.form.colors[VisitedLinkColor].value, "#800080");
  EXPECT_EQ(o.form.colors[ActiveLinkColor].value, "");
  EXPECT_EQ(o.form.leftMargin, "4");
  EXPECT_EQ(o.form.topMargin, "");
  EXPECT_EQ(o.form.backgroundImage, "paper.gif");
  EXPECT_TRUE(o.form.fixedBackground);

  // Edit Tag's own read of the same tag takes VLINK's value for the link.
  PageProperties viaEditTag = o.form;
  BodyTagFields fields;
  FillBody(BodyOf(kPage).substr(1), fields);
  ApplyBodyFields(t.app, fields, viaEditTag);
  EXPECT_EQ(viaEditTag.colors[LinkColor].value, "#800080");
}

TEST_F(PagePropertiesTest, ColourEntryRuleAndPreviewDigits) {
  const ColorEntry named = EnterColor(t.app, "navy");
  EXPECT_EQ(named.value, "000080");
  EXPECT_EQ(t.app.wizards.ColorBlue, "128");
  const ColorEntry capitals = EnterColor(t.app, "NAVY");
  EXPECT_EQ(capitals.value, "#NAVY");
  // Only the "A" reads as a digit: all but black.
  EXPECT_EQ(t.app.wizards.ColorRed + "," + t.app.wizards.ColorGreen + "," + t.app.wizards.ColorBlue,
            "10,0,0");
  EXPECT_EQ(EnterColor(t.app, "").value, "");
  t.platform.colorDialog.Queue(0x00FF8000);  // blue FF, green 80, red 00
  PickColor(t.app);
  ASSERT_FALSE(t.app.wizards.ColorCancelled);
  const ColorEntry picked = PickedColorEntry(t.app);
  EXPECT_EQ(picked.text, "0080FF");
  EXPECT_EQ(picked.value, "#0080FF");
}

TEST_F(PagePropertiesTest, OkRewritesTitleAndBodyTagInPlaceAsOneUndoStep) {
  Open(kPage);
  PageOpening o = PageProperties_Open(t.app);
  o.form.title = "Chess Club";
  o.form.backgroundColor = EnterColor(t.app, "white");
  o.form.colors[TextColor] = EnterColor(t.app, "000000");
  o.form.topMargin = "10";
  o.form.dontShowForNewPages = true;
  ASSERT_FALSE(PageProperties_OK(t.app, o.form));
  const std::string expectedBody =
      "<BODY BACKGROUND=\"paper.gif\" BGCOLOR=\"FFFFFF\" TEXT=\"#000000\" LINK=\"FF0000\" "
      "VLINK=\"#800080\" LEFTMARGIN=\"4\" MARGINWIDTH=\"4\" TOPMARGIN=\"10\" "
      "MARGINHEIGHT=\"10\" BGPROPERTIES=\"FIXED\">";
  std::string expected = kPage;
  expected.replace(expected.find("Our Club"), 8, "Chess Club");
  expected.replace(expected.find("<BODY"), BodyOf(kPage).size(), expectedBody);
  EXPECT_EQ(edit->Text(), expected);
  EXPECT_EQ(t.app.files.BodyTag, expectedBody);
  EXPECT_EQ(t.app.files.DocumentTitle, "Chess Club");
  EXPECT_EQ(t.store.GetSetting("Miscellaneous", "ShowPageProps", ""), "0");
  EXPECT_FALSE(t.app.settings.ShowPageProps);
  edit->Undo();
  EXPECT_EQ(edit->Text(), kPage);
}

TEST_F(PagePropertiesTest, LowerCaseFoldsNamesButNotValuesExceptTheFixedOne) {
  Open("<html><head><title>x</title></head><body></body></html>", false);
  PageOpening o = PageProperties_Open(t.app);
  o.form.backgroundImage = "Paper.GIF";
  o.form.fixedBackground = true;
  o.form.leftMargin = "0";
  ASSERT_FALSE(PageProperties_OK(t.app, o.form));
  EXPECT_EQ(edit->Text(),
            "<html><head><title>x</title></head><body background=\"Paper.GIF\" leftmargin=\"0\" "
            "marginwidth=\"0\" bgproperties=\"fixed\"></body></html>");
}

TEST_F(PagePropertiesTest, TitleRules) {
  // An empty title field leaves the TITLE element as it was.
  Open(kPage);
  PageOpening o = PageProperties_Open(t.app);
  o.form.title.clear();
  ASSERT_FALSE(PageProperties_OK(t.app, o.form));
  EXPECT_NE(edit->Text().find("<TITLE>Our Club</TITLE>"), std::string::npos);
  EXPECT_EQ(t.app.files.DocumentTitle, kDefaultDocumentTitle);

  // The default left standing is written again.
  const std::string fresh =
      "<HTML><HEAD><TITLE>Document Title should be typed here</TITLE>"
      "</HEAD><BODY></BODY></HTML>";
  Open(fresh);
  o = PageProperties_Open(t.app);
  EXPECT_TRUE(o.selectTitle);
  ASSERT_FALSE(PageProperties_OK(t.app, o.form));
  EXPECT_EQ(edit->Text(), fresh);

  // No TITLE: one is put into the head, in lower case whatever the tag case.
  Open("<HTML>\r\n<HEAD>\r\n</HEAD>\r\n<BODY>\r\n</BODY>\r\n</HTML>");
  o = PageProperties_Open(t.app);
  o.form.title = "New";
  ASSERT_FALSE(PageProperties_OK(t.app, o.form));
  EXPECT_EQ(edit->Text(),
            "<HTML>\r\n<HEAD>\r\n\r\n<title>New</title>\r\n</HEAD>\r\n<BODY>\r\n</BODY>\r\n"
            "</HTML>");
}

TEST_F(PagePropertiesTest, FixedWatermarkNeedsAFileAndNothingIsWrittenUntilThen) {
  Open(kPage);
  PageOpening o = PageProperties_Open(t.app);
  o.form.backgroundImage.clear();
  o.form.title = "Changed";
  const CheckResult failed = PageProperties_OK(t.app, o.form);
  ASSERT_TRUE(failed);
  EXPECT_EQ(failed->field, "backgroundImage");
  ASSERT_EQ(t.messages.shown().size(), 1u);
  EXPECT_EQ(t.messages.shown()[0].text,
            "You have specified that the background image is fixed.  Please enter a filename "
            "for the background image.");
  EXPECT_EQ(edit->Text(), kPage);
}

TEST_F(PagePropertiesTest, EmptyDocumentGetsTheSkeletonAndMetaLinesGoBehindTheHead) {
  t.platform.clock.Set(testing::At(2002, 1, 5, 15, 7));
  Open("", false);
  PageOpening o = PageProperties_Open(t.app);
  const std::string skeleton =
      "<!doctype html public \"-//w3c//dtd html 4.0 transitional//en\" "
      "\"http://www.w3.org/tr/rec-html40/loose.dtd\">\r\n\r\n<html>\r\n\r\n<head>\r\n\t"
      "<title>document title should be typed here</title>\r\n</head>\r\n\r\n"
      "<!-- created on january 05, 2002  at 03:07 pm -->\r\n\r\n<body>\r\n\r\n\r\n\r\n"
      "</body>\r\n</html>";
  EXPECT_EQ(edit->Text(), skeleton);
  EXPECT_EQ(edit->SelText(), "<body>");
  EXPECT_EQ(o.form.title, "document title should be typed here");

  t.app.wizards.MetaDescription = "<meta name=\"description\" Content=\"d\">\r\n";
  t.app.wizards.MetaEffects = "<meta http-equiv=\"Refresh\" Content=\"5;URL=b.htm\">\r\n";
  o.form.title = "Home";
  o.form.backgroundColor = EnterColor(t.app, "silver");
  ASSERT_FALSE(PageProperties_OK(t.app, o.form));
  std::string expected = skeleton;
  expected.replace(expected.find("document title"), 35, "Home");
  expected.replace(expected.find("<body>"), 6, "<body bgcolor=\"C0C0C0\">");
  expected.insert(expected.find("<head>") + 6,
                  "\r\n<meta name=\"description\" Content=\"d\">\r\n"
                  "<meta http-equiv=\"Refresh\" Content=\"5;URL=b.htm\">\r\n");
  EXPECT_EQ(edit->Text(), expected);
  EXPECT_TRUE(t.app.wizards.MetaDescription.empty() && t.app.wizards.MetaEffects.empty());
}

TEST_F(PagePropertiesTest, PageWithoutBodyOrHeadGetsTheTagsWithoutLosingText) {
  Open("Just some words.");
  edit->SetSelStart(5);
  PageOpening o = PageProperties_Open(t.app);
  EXPECT_EQ(o.form.title, "");
  EXPECT_EQ(edit->SelLength(), 0);
  o.form.backgroundColor = EnterColor(t.app, "FF0000");
  o.form.title = "T";
  t.app.wizards.MetaKeywords = "<META Name=\"keywords\" Content=\"k\">\r\n";
  ASSERT_FALSE(PageProperties_OK(t.app, o.form));
  // The head goes where a page's "<HTML>" would end, the body tag behind it: no text lost.
  EXPECT_EQ(edit->Text(),
            "Just s\r\n\r\n<HEAD>\r\n<META Name=\"keywords\" Content=\"k\">\r\n\r\n"
            "<title>T</title>\r\n\r\n</HEAD><BODY BGCOLOR=\"#FF0000\">ome words.");

  // A "<BODY" that never closes: the new tag goes in at the caret, nothing is cut.
  Open("<BODY BGCOLOR=red");
  o = PageProperties_Open(t.app);
  ASSERT_FALSE(PageProperties_OK(t.app, o.form));
  EXPECT_EQ(edit->Text(), "<BODY><BODY BGCOLOR=red");
}

TEST_F(PagePropertiesTest, CancelCollapsesTheSelectionAndDropsMetaTags) {
  Open(kPage);
  PageProperties_Open(t.app);
  t.app.wizards.MetaKeywords = "<META>\r\n";
  PageProperties_Cancel(t.app);
  EXPECT_EQ(edit->SelLength(), 0);
  EXPECT_EQ(edit->Text(), kPage);
  EXPECT_TRUE(t.app.wizards.MetaKeywords.empty());
}

TEST_F(PagePropertiesTest, ColoursFromAnotherPage) {
  TempDir dir;
  Open(kPage);
  PageOpening o = PageProperties_Open(t.app);
  t.dialogs.Queue(dir / "missing.htm");
  EXPECT_FALSE(PageProperties_ColorsFromPage(t.app, o.form));
  WriteAll(dir / "plain.htm", "<HTML>no body here</HTML>");
  t.dialogs.Queue(dir / "plain.htm");
  EXPECT_FALSE(PageProperties_ColorsFromPage(t.app, o.form));
  ASSERT_EQ(t.messages.shown().size(), 2u);
  EXPECT_EQ(t.messages.shown()[0].text, "Can't open file: " + dir / "missing.htm");
  EXPECT_EQ(t.messages.shown()[1].text, "No colors in this HTML document.");
  EXPECT_EQ(o.form.colors[LinkColor].text, "red");

  WriteAll(dir / "other.htm", "<html><body text=\"#333333\" link=blue leftmargin=9>x</body>");
  t.dialogs.Queue(dir / "other.htm");
  EXPECT_TRUE(PageProperties_ColorsFromPage(t.app, o.form));
  EXPECT_EQ(o.form.colors[TextColor].value, "#333333");
  EXPECT_EQ(o.form.colors[LinkColor].value, "0000FF");
  EXPECT_EQ(o.form.backgroundColor.value, "") << "all five colours are taken";
  EXPECT_EQ(o.form.leftMargin, "4") << "only colours";
}

TEST_F(PagePropertiesTest, ReportCountsEachImageAndAMissingOneAsMinusOne) {
  TempDir dir;
  WriteAll(dir / "bg.gif", std::string(100, 'b'));
  WriteAll(dir / "a.gif", std::string(1000, 'a'));
  const std::string page =
      "<HTML><HEAD><TITLE>Gallery</TITLE></HEAD><BODY BACKGROUND=\"bg.gif\">\r\n"
      "<IMG SRC=\"a.gif\"><img src=\" a.gif \"><IMG SRC=\"gone.gif\"><IMG SRC=a.gif>\r\n"
      "<!-- <IMG SRC=\"a.gif\"> --></BODY></HTML>";
  WriteAll(dir / "gallery.html", page);
  const PageReport report = BuildPageReport(dir / "gallery.html");
  const std::int64_t total = static_cast<std::int64_t>(page.size()) + 100 + 2 * 1000 - 1;
  ASSERT_EQ(report.lines.size(), 7u);
  EXPECT_EQ(report.lines[0], "File Type:     HTML Document");
  EXPECT_EQ(report.lines[1], "File name:     " + dir / "gallery.html");
  EXPECT_EQ(report.lines[2], "Web Page Title:     Gallery");
  EXPECT_EQ(report.lines[3], "File Size:    " + std::to_string(page.size()) + " bytes");
  EXPECT_EQ(report.lines[4].rfind("Last Modified:     ", 0), 0u);
  EXPECT_GT(report.lines[4].size(), std::string("Last Modified:     ").size());
  EXPECT_EQ(report.lines[5], "File size including all images contained within it:    " +
                                 std::to_string(total) + " bytes");
  EXPECT_EQ(report.lines[6], "Time to download using a 28.8 modem:   0m0s");

  EXPECT_EQ(BuildPageReport("Untitled:3").lines,
            (std::vector<std::string>{"File Type:     HTML Document", "File name:     Untitled"}));
  const PageReport image = BuildPageReport(dir / "a.gif");
  ASSERT_EQ(image.lines.size(), 5u);
  EXPECT_EQ(image.lines[0], "File Type:     GIF Image");
  EXPECT_EQ(image.lines[2], "File Size:    1000 bytes");
  EXPECT_EQ(BuildPageReport(dir / "notes.txt").lines[0], "File Type:     Unknown");
  const PageReport lost = BuildPageReport(dir / "lost.asp");
  EXPECT_EQ(lost.unreadable, dir / "lost.asp");
  EXPECT_EQ(lost.lines[0], "File Type:     ASP Document");
}

TEST_F(PagePropertiesTest, CommentsAndScanOnAwkwardText) {
  EXPECT_EQ(RemoveComments("a<!--x-->b<!---->c<!-- open"), "abc");
  EXPECT_EQ(RemoveComments("<!-- a --> <!-- b -->"), " ");
  const PageScan scan = ScanPage("<TITLE>t<IMG SRC=\"x.gif\" BACKGROUND=\"y.gif\"><IMG SRC=\"z");
  EXPECT_EQ(scan.title, "");
  EXPECT_EQ(scan.images, (std::vector<std::string>{"y.gif", "x.gif", "z"}));
}

TEST_F(PagePropertiesTest, DownloadTimeAtThirtySixHundredBytesASecond) {
  struct Case {
    std::int64_t bytes, minutes, seconds;
  } cases[] = {
      {0, 0, 0},
      {1799, 0, 0},
      {3600, 0, 1},
      {3600 * 61, 1, 1},
      {1800 * 3, 0, 2},                      // half of 3 goes to the even 2
      {1800 * 5, 0, 2},                      // and half of 5 too
      {std::int64_t{1} << 40, 5090331, 36},  // positions past 4 GiB
      {-5, 0, 0},
  };
  for (const Case& c : cases) {
    const DownloadTime d = DownloadTimeOf(c.bytes);
    EXPECT_EQ(d.minutes, c.minutes) << c.bytes;
    EXPECT_EQ(d.seconds, c.seconds) << c.bytes;
  }
}

}  // namespace
}  // namespace tessarine
