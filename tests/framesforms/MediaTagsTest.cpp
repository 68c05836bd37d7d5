// Applets with their parameters, background sound and embedded media.

#include <gtest/gtest.h>

#include "core/TestApp.h"
#include "framesforms/Applet.h"
#include "framesforms/AppletParameter.h"
#include "framesforms/BackgroundSound.h"
#include "framesforms/EmbeddedMedia.h"

namespace tessarine {
namespace {

using testing::TestApp;

const char* const kPage = "<HTML><HEAD></HEAD><BODY>ab</BODY></HTML>";

TEST(MediaTagsTest, AppletWithTwoParametersInBothCases) {
  AppletInputs in;
  in.appletFile = "Clock.class";
  in.codebase = "classes";
  in.width = "200";
  in.height = "80";
  in.align = "Bottom(Default)";
  in.parameters = {BuildAppletParameter(true, {"speed", "Fast"}),
                   BuildAppletParameter(true, {"color", "#FF0000"})};
  EXPECT_EQ(BuildApplet(true, in),
            "<APPLET CODE=\"Clock.class\" CODEBASE=\"classes\" ALIGN=\"Bottom\" WIDTH=\"200\" "
            "HEIGHT=\"80\">\r\n"
            "\t<PARAM NAME=\"speed\" VALUE=\"Fast\">\r\n"
            "\t<PARAM NAME=\"color\" VALUE=\"#FF0000\">\r\n"
            "</APPLET>");
  in.parameters = {BuildAppletParameter(false, {"speed", "Fast"})};
  in.altText = "No Java";
  in.verticalSpace = "5";
  in.horizontalSpace = "6";
  in.align = "Texttop";
  EXPECT_EQ(BuildApplet(false, in),
            "<applet code=\"Clock.class\" codebase=\"classes\" alt=\"No Java\" align=\"texttop\" "
            "width=\"200\" height=\"80\" vspace=\"5\" hspace=\"6\">\r\n"
            "\t<param name=\"speed\" value=\"Fast\">\r\n"
            "</applet>");
  // Changing a tag already in the page writes the opening tag alone.
  in.changingExistingTag = true;
  EXPECT_EQ(BuildApplet(false, in).find("</applet>"), std::string::npos);
  EXPECT_EQ(BuildApplet(false, in).find("<param"), std::string::npos);
}

TEST(MediaTagsTest, AppletAlignment) {
  EXPECT_EQ(AppletAlignAttribute(true, "None"), "");
  EXPECT_EQ(AppletAlignAttribute(true, ""), "");
  EXPECT_EQ(AppletAlignAttribute(true, "Absmiddle"), " ALIGN=\"Absmiddle\"");
  EXPECT_EQ(AppletAlignAttribute(false, "Bottom(Default)"), " align=\"bottom\"");
  for (const char* item : kAppletAligns)
    EXPECT_EQ(AppletAlignDescription(item).empty(), std::string(item) == "None") << item;
  EXPECT_EQ(AppletAlignDescription("Baseline"),
            "Aligns the bottom of the applet with the baseline of the text.");
}

TEST(MediaTagsTest, AppletGoesIntoTheBodyAndNeedsItsFile) {
  TestApp t;
  BufferEdit& edit = t.NewWindow(kPage).Buffer();
  edit.SetSelStart(26);  // between a and b
  AppletInputs in;
  in.appletFile = "  ";
  const CheckResult failed = Applet_OK(t.app, in);
  ASSERT_TRUE(failed);
  EXPECT_EQ(failed->message, "Please enter Applet name in the box below.");
  EXPECT_EQ(failed->field, "appletFile");
  EXPECT_EQ(edit.Text(), kPage);

  in.appletFile = "A.class";
  ASSERT_FALSE(Applet_OK(t.app, in));
  EXPECT_EQ(edit.Text(),
            "<HTML><HEAD></HEAD><BODY>a<APPLET CODE=\"A.class\">\r\n</APPLET>b</BODY></HTML>");
}

TEST(MediaTagsTest, ParameterLines) {
  EXPECT_EQ(BuildAppletParameter(false, {"a", "b c"}), "<param name=\"a\" value=\"b c\">");
  for (const AppletParameter& bad :
       {AppletParameter{"", "v"}, AppletParameter{"n", ""}, AppletParameter{"  ", "v"}}) {
    const CheckResult failed = ValidateAppletParameter(bad);
    ASSERT_TRUE(failed);
    EXPECT_EQ(failed->message, "Enter a parameter name and value.");
  }
  // A line read back for editing gives the same two texts in either case.
  for (const bool upper : {true, false}) {
    AppletParameter read;
    ASSERT_TRUE(ParseAppletParameter(BuildAppletParameter(upper, {"Name", "x y"}), read));
    EXPECT_EQ(read.name, "Name");
    EXPECT_EQ(read.value, "x y");
  }
  AppletParameter untouched{"keep", "this"};
  EXPECT_FALSE(ParseAppletParameter("<param name=broken>", untouched));
  EXPECT_EQ(untouched.name, "keep");
}

TEST(MediaTagsTest, BackgroundSoundLoops) {
  BackgroundSoundInputs in;
  in.soundFile = "tune.wav";
  EXPECT_EQ(BuildBackgroundSound(true, in), "<BGSOUND SRC=\"tune.wav\" LOOP=\"1\">");
  in.loop = "Infinite";
  EXPECT_EQ(BuildBackgroundSound(false, in), "<bgsound src=\"tune.wav\" loop=\"Infinite\">");
  in.loop = "7";
  EXPECT_EQ(BuildBackgroundSound(false, in), "<bgsound src=\"tune.wav\" loop=\"7\">");

  TestApp t;
  t.app.settings.TagCaseUpper = false;
  BufferEdit& edit = t.NewWindow(kPage).Buffer();
  edit.SetSelStart(0);  // outside the body: the tag goes behind BODY
  BackgroundSoundInputs none;
  const CheckResult failed = BackgroundSound_OK(t.app, none);
  ASSERT_TRUE(failed);
  EXPECT_EQ(failed->message, "Please enter sound filename in the box below.");
  ASSERT_FALSE(BackgroundSound_OK(t.app, in));
  EXPECT_EQ(
      edit.Text(),
      "<HTML><HEAD></HEAD><BODY>\r\n\r\n<bgsound src=\"tune.wav\" loop=\"7\">ab</BODY></HTML>");
  EXPECT_EQ(t.app.wizards.BodyInsert, "");
}

TEST(MediaTagsTest, EmbedPlacesAltByTagCase) {
  EmbeddedMediaInputs in;
  in.mediaFile = "Song.MID";
  in.width = "100";
  in.height = "40";
  in.altText = "A Song";
  in.align = "Middle";
  in.controls = "Normal";
  in.autostart = true;
  in.loop = true;
  EXPECT_EQ(BuildEmbeddedMedia(true, in),
            "<EMBED SRC=\"Song.MID\" WIDTH=\"100\" HEIGHT=\"40\" ALIGN=\"Middle\" "
            "CONTROLS=\"CONSOLE\" AUTOSTART=\"TRUE\" LOOP=\"TRUE\" ALT=\"A Song\">");
  EXPECT_EQ(BuildEmbeddedMedia(false, in),
            "<embed src=\"Song.MID\" alt=\"A Song\" width=\"100\" height=\"40\" align=\"middle\" "
            "controls=\"console\" autostart=\"true\" loop=\"true\">");
  EmbeddedMediaInputs bare;
  bare.mediaFile = "x.avi";
  bare.controls = "Hidden";
  EXPECT_EQ(BuildEmbeddedMedia(true, bare), "<EMBED SRC=\"x.avi\" HIDDEN=\"TRUE\">");
  bare.controls = "Small";
  EXPECT_EQ(BuildEmbeddedMedia(false, bare), "<embed src=\"x.avi\" controls=\"smallconsole\">");
  bare.controls.clear();
  EXPECT_EQ(BuildEmbeddedMedia(false, bare), "<embed src=\"x.avi\">");
}

TEST(MediaTagsTest, EmbedChecksBeforeTouchingTheDocument) {
  TestApp t;
  BufferEdit& edit = t.NewWindow(kPage).Buffer();
  edit.SetSelStart(26);
  EmbeddedMediaInputs in;
  const CheckResult failed = EmbeddedMedia_OK(t.app, in);
  ASSERT_TRUE(failed);
  EXPECT_EQ(failed->message, "Please enter object to be embedded in the box below.");
  EXPECT_EQ(failed->field, "mediaFile");
  EXPECT_EQ(edit.Text(), kPage);
  in.mediaFile = "a.wav";
  ASSERT_FALSE(EmbeddedMedia_OK(t.app, in));
  EXPECT_EQ(edit.Text(), "<HTML><HEAD></HEAD><BODY>a<EMBED SRC=\"a.wav\">b</BODY></HTML>");
}

}  // namespace
}  // namespace tessarine
