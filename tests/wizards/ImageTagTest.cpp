// The image dialog's text: the order of its parts, its quirky alignment rows, the link and
// roll-over, and the size read-out.

#include <gtest/gtest.h>

#include "core/TestApp.h"
#include "platform/Desktop.h"
#include "wizards/ImageTag.h"

namespace tessarine {
namespace {

using testing::At;
using testing::TempDir;
using testing::TestApp;
using testing::WriteAll;

TEST(ImageTag, SmallestImageInBothCases) {
  ImageTag i;
  i.source = "a.gif";
  EXPECT_EQ(i.Build(true, "img1234"),
            "<IMG SRC=\"a.gif\" NAME=\"img1234\"  ID=\"img1234\" ALT=\"\" BORDER=\"0\">");
  EXPECT_EQ(i.Build(false, "img1234"),
            "<img src=\"a.gif\" name=\"img1234\"  id=\"img1234\" alt=\"\" border=\"0\">");
  EXPECT_EQ(i.Validate(), std::nullopt);
  i.source.clear();
  ASSERT_TRUE(i.Validate());
  EXPECT_EQ(i.Validate()->message, "Please enter image filename in the box below.");
}

TEST(ImageTag, EveryPartInOrder) {
  ImageTag i;
  i.source = "Pics/A.GIF";
  i.lowResSource = "low.gif";
  i.videoFile = " clip.AVI ";
  i.videoLoop = "Infinite";
  i.videoStart = "MouseOver";
  i.videoControls = true;
  i.altText = "Alt Text";
  i.alignment = "Left";
  i.width = "10";
  i.height = "20";
  i.border = "2";
  i.verticalSpace = "3";
  i.horizontalSpace = "4";
  i.serverMap = true;
  i.useClientMap = true;
  i.mapName = "Nav";
  EXPECT_EQ(i.Build(true, "img0001"),
            "<IMG SRC=\"Pics/A.GIF\" NAME=\"img0001\"  ID=\"img0001\" LOWSRC=\"low.gif\""
            " DYNSRC=\"clip.AVI\" LOOP=\"Infinite\" START=\"MouseOver\" CONTROLLER=\"TRUE\""
            " ALT=\"Alt Text\" ALIGN=\"Left\" WIDTH=\"10\" HEIGHT=\"20\" BORDER=\"2\" VSPACE=\"3\""
            " HSPACE=\"4\" ISMAP USEMAP=\"#Nav\">");
  // Lower case folds the video's values and the alignment whole; typed values elsewhere stay.
  EXPECT_EQ(i.Build(false, "img0001"),
            "<img src=\"Pics/A.GIF\" name=\"img0001\"  id=\"img0001\" lowsrc=\"low.gif\""
            " dynsrc=\"clip.AVI\" loop=\"infinite\" start=\"mouseover\" controller=\"true\""
            " alt=\"Alt Text\" align=\"left\" width=\"10\" height=\"20\" border=\"2\" vspace=\"3\""
            " hspace=\"4\" ismap usemap=\"#Nav\">");
  ImageTag video;
  video.source = "v.gif";
  video.videoFile = "v.avi";
  EXPECT_NE(video.Build(true, "n").find(" LOOP=\"1\" START=\"FALSE\" CONTROLLER=\"FALSE\""),
            std::string::npos);
}

TEST(ImageTag, AlignmentRowsIncludingTheBottomQuirk) {
  ASSERT_EQ(ImageAlignments().size(), 10u);
  EXPECT_STREQ(ImageAlignments()[3].item, "Bottom(Default)");
  EXPECT_EQ(ImageAlignAttribute("None"), "");
  EXPECT_EQ(ImageAlignAttribute("Absmiddle"), " ALIGN=\"Absmiddle\"");
  ImageTag i;
  i.source = "a.gif";
  i.alignment = "Bottom(Default)";
  EXPECT_NE(i.Build(true, "n").find("ALT=\"\"False BORDER"), std::string::npos);
  EXPECT_NE(i.Build(false, "n").find("alt=\"\"false border"), std::string::npos);
}

TEST(ImageTag, LinkAndRollover) {
  ImageTag i;
  i.source = "off.gif";
  i.mouseOverImage = "on.gif";
  // The roll-over needs a link: "#" stands in for an empty one.
  EXPECT_EQ(i.Build(false, "img9"),
            "<a href=\"#\" onMouseover=\"img9.src='on.gif'\" onMouseout=\"img9.src='off.gif'\">"
            "<img src=\"off.gif\" name=\"img9\"  id=\"img9\" alt=\"\" border=\"0\"></a>");
  i.mouseOverImage.clear();
  i.linkUrl = "http://";
  EXPECT_EQ(i.Build(true, "img9").substr(0, 29), "<A HREF=\"http://\"><IMG SRC=\"o");
  EXPECT_EQ(i.Build(true, "img9").substr(i.Build(true, "img9").size() - 5), "></A>");
}

TEST(ImageTag, NameComesFromTheDayNumber) {
  // 1 January 2026 12:00 is day 46023.5: the four characters from five before the end.
  EXPECT_EQ(ImageName(At(2026, 1, 1, 12, 0)), "img6023");
  // 06:00 gives 46023.25 and 07:30 gives 46023.3125.
  EXPECT_EQ(ImageName(At(2026, 1, 1, 6, 0)), "img023.");
  EXPECT_EQ(ImageName(At(2026, 1, 1, 7, 30)), "img3.31");
}

TEST(ImageTag, OkRemembersTheLinkAndGoesIntoTheBody) {
  TestApp t;
  t.app.settings.TagCaseUpper = false;
  t.platform.clock.Set(At(2026, 1, 1, 12, 0));
  BufferEdit& edit = t.NewWindow("<html><body>\r\n</body></html>").Buffer();
  edit.SetSelStart(2);  // in the HTML tag, outside the body
  ImageTag i;
  i.linkUrl = "http://pics.example/";
  EXPECT_TRUE(ImageTag_OK(t.app, i));
  EXPECT_EQ(edit.Text(), "<html><body>\r\n</body></html>");
  i.source = "a.gif";
  EXPECT_FALSE(ImageTag_OK(t.app, i));
  EXPECT_EQ(t.store.GetSetting("Favorite URLs", "URL1", ""), "http://pics.example/");
  EXPECT_EQ(
      edit.Text(),
      "<html><body>\r\n\r\n<a href=\"http://pics.example/\"><img src=\"a.gif\" name=\"img6023\"  "
      "id=\"img6023\" alt=\"\" border=\"0\"></a>\r\n</body></html>");
}

TEST(ImageTag, SizeReadoutAndTheListsExtensionTest) {
  TempDir dir;
  const std::string gif = dir / "a.gif";
  WriteAll(gif, std::string("GIF89a\x40\x01\xC8\x00", 10) + std::string(20, '\0'));
  HeaderImageInfo images;
  const ImageSizeReadout r = ReadImageSize(images, gif);
  ASSERT_TRUE(r.known);
  EXPECT_EQ(r.width, "320");
  EXPECT_EQ(r.height, "200");
  EXPECT_EQ(r.widthLabel, "Image width (pixels):  320");
  EXPECT_EQ(r.heightLabel, "Image height (pixels):  200");

  const ImageSizeReadout missing = ReadImageSize(images, dir / "none.gif");
  EXPECT_FALSE(missing.known);
  EXPECT_NE(missing.problem.find("can't be opened"), std::string::npos);
  WriteAll(dir / "text.jpg", "just some words");
  EXPECT_NE(ReadImageSize(images, dir / "text.jpg").problem.find("not a GIF"), std::string::npos);

  EXPECT_TRUE(SizeReadFromList("X.GIF"));
  EXPECT_TRUE(SizeReadFromList("photo.Jpg"));
  EXPECT_FALSE(SizeReadFromList("photo.jpeg"));
  EXPECT_FALSE(SizeReadFromList("logo.png"));
  EXPECT_FALSE(SizeReadFromList("if"));
}

TEST(ImageTag, FileListPatterns) {
  for (bool changed : {false, true}) {
    const std::string pattern = ImageListPattern(changed);
    EXPECT_TRUE(MatchesPattern("a.gif", pattern)) << pattern;
    EXPECT_TRUE(MatchesPattern("Photo.JPG", pattern)) << pattern;
    EXPECT_FALSE(MatchesPattern("a.png", pattern)) << pattern;
    EXPECT_FALSE(MatchesPattern("a.gif.bak", pattern)) << pattern;
  }
  EXPECT_EQ(ImageListPattern(false), "*.jpg;*.gif ");
  EXPECT_TRUE(MatchesPattern("img01.gif", "img??.gif"));
  EXPECT_FALSE(MatchesPattern("img1.gif", "img??.gif"));
  EXPECT_TRUE(MatchesPattern("a.b.c", "*.*"));
  EXPECT_FALSE(MatchesPattern("x", ";;"));
}

}  // namespace
}  // namespace tessarine
