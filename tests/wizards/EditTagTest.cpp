// Edit Tag: the tag before the caret, the wizard its name picks, and the attribute reads
// with their substring quirks, over real page texts.

#include <gtest/gtest.h>

#include <string>

#include "core/TestApp.h"
#include "framesforms/Applet.h"
#include "framesforms/AppletParameter.h"
#include "platform/EditControl.h"
#include "wizards/EditTag.h"
#include "wizards/FormatChar.h"
#include "wizards/HorizontalLine.h"
#include "wizards/Hyperlink.h"
#include "wizards/ImageTag.h"

namespace tessarine {
namespace {

const std::string kPage =
    "<HTML>\r\n<BODY BGCOLOR=\"#FFFFFF\" VLINK=\"#800080\" LINK=\"#0000FF\">\r\n"
    "<P>See <A HREF=\"news.html#top\" TARGET=\"main\">the news</A> today.</P>\r\n"
    "<IMG DYNSRC=\"clip.avi\" SRC=\"pic.gif\" WIDTH=40 ALT=\"a b\">\r\n"
    "</BODY>\r\n</HTML>\r\n";

std::size_t After(const std::string& text, const std::string& marker) {
  return text.find(marker) + marker.size();
}

TEST(EditTagParse, ValueForms) {
  struct Case {
    const char* tag;
    const char* key;
    const char* value;
  } cases[] = {
      {"IMG SRC=\"a b.gif\" ALT=x>", "SRC=", "a b.gif"},  // quoted keeps blanks
      {"IMG ALT=\"1 > 0\">", "ALT=", "1 > 0"},            // and ">"
      {"IMG SRC=pic.gif>", "SRC=", "pic.gif"},            // unquoted at the end stops before ">"
      {"IMG SRC=pic.gif WIDTH=3>", "SRC=", "pic.gif"},    // or at a blank
      {"img src=Pic.GIF>", "SRC=", "Pic.GIF"},            // key in any case, value kept
      {"IMG ALT='two words'>", "ALT=", "'two"},           // single quotes mean nothing
      {"IMG ALT=\"open ended>", "ALT=", "open ended"},    // no closing quote: to the end
      {"IMG DYNSRC=clip.avi SRC=pic.gif>", "SRC=", "clip.avi"},  // found inside a longer name
      {"IMG LOWSRC=lo.gif SRC=hi.gif>", "SRC=", "lo.gif"},
      {"IMG SRC=>", "SRC=", ""},
      {"IMG WIDTH=3>", "ALT=", ""},
      {"IMG ALT=\"", "ALT=", ""},  // malformed tails read as empty, never past the text
      {"ALT=", "ALT=", ""},
  };
  for (const Case& c : cases) EXPECT_EQ(ParseTag(c.tag, c.key), c.value) << c.tag;
}

TEST(EditTagTable, PrefixesInOrder) {
  struct Case {
    const char* tag;
    TagWizard wizard;
  } cases[] = {
      {"IMG SRC=a>", TagWizard::Image},
      {"img src=a>", TagWizard::Image},
      {"IMGX>", TagWizard::Image},
      {"APPLET CODE=a>", TagWizard::Applet},
      {"PARAM NAME=a>", TagWizard::Parameter},
      {"A HREF=x>t</A>", TagWizard::Hyperlink},
      {"a href=x>", TagWizard::Hyperlink},
      {"A  HREF=x>", TagWizard::None},  // two blanks
      {"A TARGET=f HREF=x>", TagWizard::None},
      {"A NAME=x>", TagWizard::None},
      {"BODY>", TagWizard::PageProperties},
      {"BODYX>", TagWizard::PageProperties},
      {"FONT SIZE=2>", TagWizard::FormatChar},
      {"HR>", TagWizard::HorizontalLine},
      {"HREF>", TagWizard::HorizontalLine},
      {"/A>", TagWizard::None},
      {"P>", TagWizard::None},
      {"", TagWizard::None},
  };
  for (const Case& c : cases) EXPECT_EQ(WizardForTag(c.tag), c.wizard) << c.tag;
}

TEST(EditTagFind, LinkFromItsTextIsTakenWhole) {
  EditTagState state;
  const std::size_t caret = After(kPage, "the ne");
  const TagAtCaret found = FindTagAtCaret(kPage, caret, state);
  ASSERT_TRUE(found.selectTag);
  EXPECT_EQ(found.wizard, TagWizard::Hyperlink);
  const std::string element = "<A HREF=\"news.html#top\" TARGET=\"main\">the news</A>";
  EXPECT_EQ(found.selStart, kPage.find(element));
  EXPECT_EQ(found.selLength, element.size());
  EXPECT_EQ(state.currentTag, element.substr(1));
  EXPECT_EQ(found.linkText, "the news");

  Hyperlink link;
  link.linkToAnchor = true;
  link.anchorName = "old";
  FillHyperlink(state.currentTag, found.linkText, link);
  EXPECT_EQ(link.url, "news.html#top");
  EXPECT_EQ(link.targetFrame, "main");
  EXPECT_EQ(link.linkText, "the news");
  EXPECT_FALSE(link.linkToAnchor);
  EXPECT_EQ(link.anchorName, "");
}

TEST(EditTagFind, CaretBehindAClosedLinkFindsTheClosingTag) {
  EditTagState state;
  const TagAtCaret found = FindTagAtCaret(kPage, After(kPage, "</A> to"), state);
  EXPECT_TRUE(found.selectTag);
  EXPECT_EQ(state.currentTag, "/A>");
  EXPECT_EQ(found.wizard, TagWizard::None);
  EXPECT_EQ(found.selStart, kPage.find("</A>"));
  EXPECT_EQ(found.selLength, 4u);
}

TEST(EditTagFind, CaretPlacesThatFindNothing) {
  EditTagState state;
  state.currentTag = "IMG SRC=old.gif>";
  EXPECT_FALSE(FindTagAtCaret(kPage, 0, state).searched);
  EXPECT_FALSE(FindTagAtCaret("", 0, state).searched);
  EXPECT_FALSE(FindTagAtCaret("plain text", 5, state).searched);
  // A "<" directly after the caret is not seen.
  EXPECT_FALSE(FindTagAtCaret("ab<IMG SRC=x>", 2, state).searched);
  EXPECT_EQ(state.currentTag, "IMG SRC=old.gif>");
}

TEST(EditTagFind, UnterminatedTagKeepsTheLastOne) {
  EditTagState state;
  const std::string text = "<IMG SRC=a.gif> and <IMG SRC=b.gif";
  TagAtCaret first = FindTagAtCaret(text, 3, state);
  ASSERT_TRUE(first.selectTag);
  EXPECT_EQ(state.currentTag, "IMG SRC=a.gif>");
  const TagAtCaret second = FindTagAtCaret(text, text.size(), state);
  EXPECT_TRUE(second.searched);
  EXPECT_FALSE(second.selectTag);
  EXPECT_EQ(second.wizard, TagWizard::Image);
  EXPECT_EQ(state.currentTag, "IMG SRC=a.gif>");

  // A fresh window has no last tag: nothing opens.
  EditTagState fresh;
  EXPECT_EQ(FindTagAtCaret(text, text.size(), fresh).wizard, TagWizard::None);
}

TEST(EditTagFind, LinkWithoutClosingTagKeepsTheOpeningTag) {
  EditTagState state;
  const std::string text = "<a href=x.html>dangling text";
  const TagAtCaret found = FindTagAtCaret(text, text.size(), state);
  EXPECT_EQ(found.wizard, TagWizard::Hyperlink);
  EXPECT_EQ(found.selStart, 0u);
  EXPECT_EQ(found.selLength, std::string("<a href=x.html>").size());
  EXPECT_EQ(found.linkText, "");
  Hyperlink link;
  link.linkText = "selection";
  FillHyperlink(state.currentTag, found.linkText, link);
  EXPECT_EQ(link.url, "x.html");
  EXPECT_EQ(link.linkText, "");
}

TEST(EditTagFind, TagEndsAtTheFirstGreaterThanEvenInQuotes) {
  EditTagState state;
  const std::string text = "<IMG ALT=\"a > b\" SRC=x.gif>";
  const TagAtCaret found = FindTagAtCaret(text, 4, state);
  EXPECT_EQ(found.selLength, std::string("<IMG ALT=\"a >").size());
  ImageTag image;
  FillImage(state.currentTag, image);
  EXPECT_EQ(image.altText, "a ");
  EXPECT_EQ(image.source, "");
}

TEST(EditTagFind, LinkTextCanFeedTheSearch) {
  EditTagState state;
  const std::string text = "<A HREF=a.html>go TARGET=top now</a>";
  const TagAtCaret found = FindTagAtCaret(text, 20, state);
  Hyperlink link;
  FillHyperlink(state.currentTag, found.linkText, link);
  EXPECT_EQ(link.targetFrame, "top");
  EXPECT_EQ(found.selLength, text.size());
}

TEST(EditTagFill, ImageFieldsWithTheirQuirks) {
  EditTagState state;
  const TagAtCaret found = FindTagAtCaret(kPage, After(kPage, "<IMG DYN"), state);
  ASSERT_EQ(found.wizard, TagWizard::Image);
  ImageTag image;
  image.linkUrl = "kept.html";
  FillImage(state.currentTag, image);
  EXPECT_EQ(image.source, "clip.avi");  // SRC= is first found inside DYNSRC=
  EXPECT_EQ(image.videoFile, "clip.avi");
  EXPECT_EQ(image.width, "40");
  EXPECT_EQ(image.altText, "a b");
  EXPECT_EQ(image.linkUrl, "kept.html");

  ImageTag more;
  FillImage(
      "img src=\"p.gif\" usemap=\"#nav\" ismap align=middle controls=1 loop=2 "
      "start=fileopen border=0 vspace=3 hspace=4 lowsrc=l.gif height=9>",
      more);
  EXPECT_TRUE(more.useClientMap);
  EXPECT_EQ(more.mapName, "nav");
  EXPECT_TRUE(more.serverMap);
  EXPECT_EQ(more.alignment, "Middle");
  EXPECT_TRUE(more.videoControls);
  EXPECT_EQ(more.videoLoop, "2");
  EXPECT_EQ(more.videoStart, "fileopen");
  EXPECT_EQ(more.border, "0");
  EXPECT_EQ(more.verticalSpace, "3");
  EXPECT_EQ(more.horizontalSpace, "4");
  EXPECT_EQ(more.height, "9");
  EXPECT_EQ(more.source, "p.gif");
  EXPECT_EQ(more.lowResSource, "l.gif");

  ImageTag bare;
  bare.alignment = "Left";
  FillImage("IMG SRC=a.gif CONTROLS align=bottom>", bare);
  EXPECT_FALSE(bare.videoControls);  // the bare word has no "="
  EXPECT_EQ(bare.alignment, "Bottom(Default)");
  EXPECT_FALSE(bare.useClientMap);
}

TEST(EditTagFill, BodyColoursAndTheLinkQuirk) {
  EditTagState state;
  const TagAtCaret found = FindTagAtCaret(kPage, After(kPage, "<BODY"), state);
  ASSERT_EQ(found.wizard, TagWizard::PageProperties);
  BodyTagFields body;
  FillBody(state.currentTag, body);
  EXPECT_EQ(body.backgroundColor, "FFFFFF");
  EXPECT_EQ(body.linkColor, "800080");  // LINK= is first found inside VLINK=
  EXPECT_EQ(body.visitedLinkColor, "800080");

  FillBody(
      "BODY TEXT=#000000 ALINK=red leftmargin=5 TOPMARGIN=\"6\" BACKGROUND=bg.gif "
      "BGPROPERTIES=fixed>",
      body);
  EXPECT_EQ(body.textColor, "000000");
  EXPECT_EQ(body.activeLinkColor, "red");
  EXPECT_EQ(body.linkColor, "red");  // inside ALINK= this time
  EXPECT_EQ(body.backgroundColor, "");
  EXPECT_EQ(body.leftMargin, "5");
  EXPECT_EQ(body.topMargin, "6");
  EXPECT_EQ(body.backgroundImage, "bg.gif");
  EXPECT_TRUE(body.fixedBackground);
}

TEST(EditTagFill, FontAndRule) {
  FormatChar font;
  FillFormatChar("FONT FACE=\"Arial, Helvetica\" SIZE=7 COLOR=#FF0000>", font);
  EXPECT_EQ(font.fontFace, "Arial, Helvetica");
  EXPECT_EQ(font.sizeRow, "7 - large");
  EXPECT_EQ(font.colorHex, "FF0000");

  HorizontalLine rule;
  FillHorizontalLine("hr width=\"50%\" size=3 noshade align=center>", rule);
  EXPECT_EQ(rule.lineWidth, "50%");
  EXPECT_EQ(rule.thickness, "3");
  EXPECT_TRUE(rule.noShading);
  EXPECT_EQ(rule.cmbAlign, "Center");
}

TEST(EditTagFind, LargePageCaretNearTheEnd) {
  std::string page = "<HTML><BODY>\r\n";
  const std::string line = "<P>Some text of a long page, line after line.</P>\r\n";
  while (page.size() < 10u * 1024 * 1024) page += line;
  page += "<A HREF=\"end.html\">last</A>\r\n";
  const std::string big(1024 * 1024, 'x');
  page += "<IMG ALT=\"" + big + "\" SRC=big.gif>";

  EditTagState state;
  const TagAtCaret link = FindTagAtCaret(page, page.find("last") + 2, state);
  EXPECT_EQ(link.wizard, TagWizard::Hyperlink);
  EXPECT_EQ(link.linkText, "last");

  const TagAtCaret image = FindTagAtCaret(page, page.size() - 3, state);
  ASSERT_EQ(image.wizard, TagWizard::Image);
  EXPECT_EQ(image.selLength, big.size() + std::string("<IMG ALT=\"\" SRC=big.gif>").size());
  ImageTag form;
  FillImage(state.currentTag, form);
  EXPECT_EQ(form.altText.size(), big.size());
  EXPECT_EQ(form.source, "big.gif");
}

TEST(EditTagCommand, ReopenedTagsAreReplacedInPlace) {
  testing::TestApp t;
  auto& window = t.NewWindow(kPage);
  EditControl& edit = window.Edit();

  edit.Select(static_cast<Pos>(After(kPage, "<IMG")), 0);
  EditTagRequest request = EditTag_Begin(t.app, window);
  ASSERT_EQ(request.wizard, TagWizard::Image);
  EXPECT_EQ(t.app.wizards.TagEditActive, 1);
  EXPECT_EQ(edit.SelText().rfind("<IMG DYNSRC=", 0), 0u);
  ImageTag image;
  FillImage(request.currentTag, image);
  image.source = "new.gif";
  image.videoFile.clear();
  EXPECT_FALSE(ImageTag_OK(t.app, image));
  std::string text = edit.Text();
  EXPECT_EQ(text.find("DYNSRC"), std::string::npos);
  const std::size_t img = text.find("<IMG SRC=\"new.gif\"");
  ASSERT_NE(img, std::string::npos);
  EXPECT_EQ(text.substr(0, img), kPage.substr(0, kPage.find("<IMG")));
  EXPECT_EQ(text.substr(text.find('>', img) + 1), "\r\n</BODY>\r\n</HTML>\r\n");

  edit.Select(static_cast<Pos>(text.find("the news") + 3), 0);
  request = EditTag_Begin(t.app, window);
  ASSERT_EQ(request.wizard, TagWizard::Hyperlink);
  Hyperlink link;
  FillHyperlink(request.currentTag, request.linkText, link);
  link.linkText = "old news";
  EXPECT_FALSE(Hyperlink_OK(t.app, link));
  const std::string after = edit.Text();
  EXPECT_NE(after.find(">old news</A> today."), std::string::npos);
  EXPECT_EQ(after.find("the news"), std::string::npos);
  EXPECT_NE(after.find("<P>See <A HREF=\"news.html#top\" TARGET=\"main\">"), std::string::npos);
}

TEST(EditTagCommand, UnknownTagClearsTheMarkAndKeepsTheSelection) {
  testing::TestApp t;
  auto& window = t.NewWindow(kPage);
  EditControl& edit = window.Edit();
  edit.Select(static_cast<Pos>(After(kPage, "<P")), 0);
  EXPECT_EQ(EditTag_Begin(t.app, window).wizard, TagWizard::None);
  EXPECT_EQ(t.app.wizards.TagEditActive, 0);
  EXPECT_EQ(edit.SelText(), "<P>");
  EXPECT_EQ(edit.Text(), kPage);

  edit.Select(0, 0);
  EXPECT_EQ(EditTag_Begin(t.app, window).wizard, TagWizard::None);
  EXPECT_EQ(t.app.wizards.TagEditActive, 1);  // stays up until a wizard closes
}

TEST(EditTagFill, AppletAndParameterTagsReopenAsTheirDialogsWriteThem) {
  AppletInputs applet;
  FillApplet(
      "APPLET CODEBASE=\"classes\" CODE=\"Clock.class\" WIDTH=120 HEIGHT=\"40\" "
      "ALIGN=bottom ALT=\"A clock\" VSPACE=2>",
      applet);
  EXPECT_EQ(applet.appletFile, "Clock.class");
  EXPECT_EQ(applet.codebase, "classes");
  EXPECT_EQ(applet.width, "120");
  EXPECT_EQ(applet.height, "40");
  EXPECT_EQ(applet.align, "Bottom(Default)");
  EXPECT_EQ(applet.altText, "A clock");
  EXPECT_EQ(applet.verticalSpace, "2");
  EXPECT_EQ(applet.horizontalSpace, "");
  EXPECT_TRUE(applet.changingExistingTag);
  // Written back, the opening tag alone: its parameter lines and end tag stay in the page.
  EXPECT_EQ(BuildApplet(true, applet),
            "<APPLET CODE=\"Clock.class\" CODEBASE=\"classes\" ALT=\"A clock\" "
            "ALIGN=\"Bottom\" WIDTH=\"120\" HEIGHT=\"40\" VSPACE=\"2\">\r\n");

  AppletInputs unaligned;
  unaligned.align = "Left";
  FillApplet("applet code=a.class align=sideways>", unaligned);
  EXPECT_EQ(unaligned.align, "Left") << "a value the list lacks leaves the choice";

  AppletParameter p;
  FillAppletParameter("param name=\"speed\" value=\"fast and slow\">", p);
  EXPECT_EQ(p.name, "speed");
  EXPECT_EQ(p.value, "fast and slow");
}

}  // namespace
}  // namespace tessarine
