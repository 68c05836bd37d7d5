// The conventions every wizard builds its markup with.

#include <gtest/gtest.h>

#include "conventions/CFile.h"
#include "conventions/TagConventions.h"
#include "core/TestApp.h"

namespace tessarine {
namespace {

using testing::TestApp;

TEST(RelativePath, FromADocumentToFoldersAroundIt) {
  const std::string doc = "/site/docs/a.htm";
  EXPECT_EQ(RelativePath(doc, "/site/docs/"), "");
  EXPECT_EQ(RelativePath(doc, "/SITE/DOCS"), "");  // case ignored, separator added
  EXPECT_EQ(RelativePath(doc, "/site/docs/img/pics"), "img/pics/");
  EXPECT_EQ(RelativePath(doc, "/site/"), "../");
  EXPECT_EQ(RelativePath(doc, "/site/other/"), "../other/");
  EXPECT_EQ(RelativePath(doc, "/"), "../../");
  EXPECT_EQ(RelativePath(doc, "/site/Docs/Img"), "Img/");  // the target's spelling is kept
}

TEST(RelativePath, AMatchInsideAFolderNameWalksBackToItsStart) {
  EXPECT_EQ(RelativePath("/a/b/page.htm", "/a/bc/"), "../bc/");
  EXPECT_EQ(RelativePath("/a/b/c/page.htm", "/a/bx/y"), "../../bx/y/");
}

TEST(RelativePath, UntitledAndUnwalkableTargetsGiveTheBareName) {
  EXPECT_EQ(RelativePath("Untitled:1", "/site/img"), "");
  EXPECT_EQ(RelativePath("untitled:3", "/site/img"), "");
  // A target that is no absolute folder: the walk finds no separator and fails quietly.
  EXPECT_EQ(RelativePath("/site/docs/a.htm", "images"), "");
}

TEST(ResolveRelativeLink, ParentsRootsAndPlainLinks) {
  struct Case {
    const char* link;
    const char* dir;
    const char* wantLink;
    const char* wantDir;
  };
  const Case cases[] = {
      {"../img/a.gif", "/site/docs/", "img/a.gif", "/site/"},
      {"../../x.htm", "/site/docs/deep/", "x.htm", "/site/"},
      {"/img/b.gif", "/site/docs/", "img/b.gif", "/site/"},
      {"/", "/site/", "/", "/site"},
      {"page.htm", "/site/docs/", "page.htm", "/site/docs/"},
      // Climbing above the top keeps the root.
      {"../../../x.htm", "/site/", "x.htm", "/"},
  };
  for (const Case& c : cases) {
    std::string link = c.link, dir = c.dir;
    ResolveRelativeLink(link, dir, "/site/");
    EXPECT_EQ(link, c.wantLink) << c.link << " from " << c.dir;
    EXPECT_EQ(dir, c.wantDir) << c.link << " from " << c.dir;
  }
}

TEST(Colors, ColorToHexSwapsRedAndBlueWithItsZeroFill) {
  EXPECT_EQ(ColorToHex(0), "000000");
  EXPECT_EQ(ColorToHex(255), "FF0000");
  EXPECT_EQ(ColorToHex(16711680), "0000FF");
  EXPECT_EQ(ColorToHex(0x0080FF), "FF8000");
  EXPECT_EQ(ColorToHex(291), "120000");      // three digits lose their last one
  EXPECT_EQ(ColorToHex(0x12345), "341200");  // and so do five
}

TEST(Colors, HexToRgbReadsPairsInEitherCase) {
  Rgb rgb = HexToRgbText("ff8000");
  EXPECT_EQ(rgb.red, "255");
  EXPECT_EQ(rgb.green, "128");
  EXPECT_EQ(rgb.blue, "0");
  rgb = HexToRgbText("");
  EXPECT_EQ(rgb.red + rgb.green + rgb.blue, "192192192");
  rgb = HexToRgbText("#FF00");  // "#" isn't skipped: it counts as 0
  EXPECT_EQ(rgb.red, "15");
  EXPECT_EQ(rgb.green, "240");
  EXPECT_EQ(rgb.blue, "0");

  TestApp t;
  HexToRgb(t.app, "0A0B0C");
  EXPECT_EQ(t.app.wizards.ColorRed, "10");
  EXPECT_EQ(t.app.wizards.ColorGreen, "11");
  EXPECT_EQ(t.app.wizards.ColorBlue, "12");
}

TEST(Colors, PickColorGivesTheHexOrTheCancel) {
  TestApp t;
  t.platform.colorDialog.Queue(255);
  PickColor(t.app);
  EXPECT_FALSE(t.app.wizards.ColorCancelled);
  EXPECT_EQ(t.app.wizards.PickedColor, 255);
  EXPECT_EQ(t.app.wizards.PickedColorHex, "FF0000");

  t.platform.colorDialog.QueueCancel();
  PickColor(t.app);
  EXPECT_TRUE(t.app.wizards.ColorCancelled);
  EXPECT_FALSE(t.app.wizards.PickedColor.has_value());
  EXPECT_EQ(t.app.wizards.PickedColorHex, "");
}

TEST(Colors, NamesMatchOnlyInLowerCase) {
  TestApp t;
  EXPECT_TRUE(t.app.wizards.ColorTable[0][0].empty());
  EXPECT_EQ(ColorValueOf(t.app, "fuschia"), "FF00FF");
  EXPECT_EQ(t.app.wizards.ColorTable[0][0], "aqua");
  EXPECT_EQ(t.app.wizards.ColorTable[1][15], "FFFF00");
  EXPECT_EQ(ColorValueOf(t.app, "Red"), "Red");
  EXPECT_EQ(ColorValueOf(t.app, "fuchsia"), "fuchsia");
}

TEST(FormatAttribute, FoldsTheHeadButNeverTheValue) {
  EXPECT_EQ(FormatAttribute(true, " target=", "_Top"), " TARGET=\"_Top\"");
  EXPECT_EQ(FormatAttribute(false, " TARGET=", "_Top"), " target=\"_Top\"");
  EXPECT_EQ(FormatAttribute(false, " title=", ""), " title=\"\"");
  EXPECT_EQ(FormatAttribute(true, " alt=", "say \"hi\""), " ALT=\"say \"hi\"\"");
}

TEST(WizardClosing, HandOverReplacesTheSelectionWithAnEmptyUndoHistory) {
  TestApp t;
  t.app.settings.TagCaseUpper = false;
  BufferEdit& e = t.NewWindow("old <TAG> text").Buffer();
  e.Select(4, 5);
  e.ReplaceSel("<X>");
  ASSERT_TRUE(e.CanUndo());
  e.Select(4, 3);
  HandOverText(t.app, "<A HREF=\"Page.htm\">", true);
  EXPECT_EQ(e.Text(), "old <A HREF=\"Page.htm\"> text");
  // Undo can't step back across the insertion, nor undo the insertion itself.
  EXPECT_FALSE(e.CanUndo());
  e.Undo();
  EXPECT_EQ(e.Text(), "old <A HREF=\"Page.htm\"> text");
  t.app.wizards.TagEditActive = 1;
  CloseWizard(t.app);
  EXPECT_EQ(t.app.wizards.TagEditActive, 0);
}

TEST(CFileTest, SplitsTheChosenPathAndForgetsItOnCancel) {
  TestApp t;
  CFile file(t.app.fileDialogs);
  EXPECT_EQ(file.Filter,
            "All Files (*.*)|*.*|HTML files (*.html, *.htm)|*.html;*.htm|ASP Files (*.asp)|*.asp");
  file.InitDir = "/home/u/site";
  file.DialogTitle = "Pick";
  t.dialogs.Queue("/home/u/site/img/logo.gif", 1);
  EXPECT_EQ(file.BrowseForFile(), "/home/u/site/img/logo.gif");
  EXPECT_EQ(file.GetPath(), "/home/u/site/img/");
  EXPECT_EQ(file.GetFileName(), "logo.gif");
  ASSERT_EQ(t.dialogs.requests().size(), 1u);
  EXPECT_EQ(t.dialogs.requests()[0].initialFolder, "/home/u/site");
  EXPECT_EQ(t.dialogs.requests()[0].title, "Pick");
  EXPECT_FALSE(t.dialogs.requests()[0].save);

  EXPECT_EQ(file.BrowseForFile(), "");  // the script is dry: Cancel
  EXPECT_EQ(file.Path, "");
  EXPECT_EQ(file.Filename, "");
  EXPECT_EQ(file.PathAndFilename, "");
}

}  // namespace
}  // namespace tessarine
