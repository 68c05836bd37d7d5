// The MARQUEE and IFRAME elements in both tag cases, and the picker's hand-over.

#include <gtest/gtest.h>

#include "core/TestApp.h"
#include "effects/EffectPicker.h"
#include "effects/InlineFrame.h"
#include "effects/Marquee.h"

namespace tessarine {
namespace {

TEST(MarqueeText, DefaultsAndIgnoredListsInLowerCase) {
  Marquee m;
  m.text = "T";
  EXPECT_EQ(m.Build(false), "<marquee direction=\"right\">T</marquee>");
  // Behaviour, loop and alignment never reach the tag.
  m.behavior = "Alternate";
  m.loop = "5";
  m.alignment = "Top";
  EXPECT_EQ(m.Build(false), "<marquee direction=\"right\">T</marquee>");
  EXPECT_EQ(m.Build(true), "<MARQUEE DIRECTION=\"Right\">T</MARQUEE>");
}

TEST(MarqueeText, AttributesInOrderAndFoldedWithValues) {
  Marquee m;
  m.text = "News Flash";
  m.direction = "Right to Left";
  m.width = "300";
  m.height = "20";
  m.vspace = "2";
  m.hspace = "3";
  m.scrollAmount = "6";
  m.scrollDelay = "85";
  m.backgroundColor = "FFCC00";
  EXPECT_EQ(m.Build(true),
            "<MARQUEE DIRECTION=\"Left\" WIDTH=\"300\" HEIGHT=\"20\" VSPACE=\"2\" HSPACE=\"3\" "
            "SCROLLAMOUNT=\"6\" SCROLLDELAY=\"85\" BGCOLOR=\"#FFCC00\">News Flash</MARQUEE>");
  EXPECT_EQ(m.Build(false),
            "<marquee direction=\"left\" width=\"300\" height=\"20\" vspace=\"2\" hspace=\"3\" "
            "scrollamount=\"6\" scrolldelay=\"85\" bgcolor=\"#ffcc00\">News Flash</marquee>");
}

TEST(MarqueeText, TextIsRequired) {
  Marquee m;
  ASSERT_TRUE(m.Validate());
  EXPECT_EQ(m.Validate()->message, "Please enter text to be marqueed in the box below.");
  m.text = " ";
  EXPECT_FALSE(m.Validate());
}

TEST(InlineFrameText, ClearBoxesStillWriteNoAndZero) {
  InlineFrame f;
  f.url = "News.html";
  f.width = "100%";
  f.height = "200";
  EXPECT_EQ(f.Build(true),
            "<IFRAME SRC=\"News.html\" HEIGHT=\"200\" WIDTH=\"100%\" FRAMEBORDER=\"0\" "
            "SCROLLING=\"NO\"></IFRAME>");
  EXPECT_EQ(f.Build(false),
            "<iframe src=\"News.html\" height=\"200\" width=\"100%\" frameborder=\"0\" "
            "scrolling=\"no\"></iframe>");
}

TEST(InlineFrameText, AllAttributesInOrder) {
  InlineFrame f;
  f.url = "Side.HTM";
  f.width = "50%";
  f.height = "300";
  f.vspace = "4";
  f.hspace = "5";
  f.scrollBars = true;
  f.frameBorder = true;
  f.alignment = "Right";
  f.alternativeText = "Your Browser lacks frames";
  EXPECT_EQ(f.Build(true),
            "<IFRAME SRC=\"Side.HTM\" HEIGHT=\"300\" WIDTH=\"50%\" VSPACE=\"4\" HSPACE=\"5\" "
            "FRAMEBORDER=\"1\" SCROLLING=\"YES\" ALIGN=\"Right\">Your Browser lacks "
            "frames</IFRAME>");
  // The URL and the alternative text keep their case.
  EXPECT_EQ(f.Build(false),
            "<iframe src=\"Side.HTM\" height=\"300\" width=\"50%\" vspace=\"4\" hspace=\"5\" "
            "frameborder=\"1\" scrolling=\"yes\" align=\"right\">Your Browser lacks "
            "frames</iframe>");
}

TEST(InlineFrameText, ChecksInOrder) {
  InlineFrame f;
  f.width = "10";
  EXPECT_EQ(f.Validate()->message, "Please enter Source URL in the box below.");
  f.url = "a.html";
  ASSERT_TRUE(f.Validate());
  EXPECT_EQ(f.Validate()->message,
            "Please enter Frame width and height in the appropriate box below.");
  EXPECT_EQ(f.Validate()->field, "frameHeight");
  f.height = "10";
  EXPECT_FALSE(f.Validate());
}

struct PickerHandOver : ::testing::Test {
  testing::TestApp t;
  BufferEdit* edit = nullptr;
  void SetUp() override {
    edit =
        &t.NewWindow("<HTML>\r\n<HEAD>\r\n</HEAD>\r\n<BODY>\r\nX\r\n</BODY>\r\n</HTML>").Buffer();
    edit->Select(static_cast<Pos>(edit->Text().find("X")), 0);
  }
};

TEST_F(PickerHandOver, ScriptsAndFramesLandWholeAtTheCaret) {
  for (SpecialEffect e : {SpecialEffect::DigitalClock, SpecialEffect::JumpMenu}) {
    SetUp();
    t.app.wizards.HeadInsert = "<SCRIPT>s</SCRIPT>";
    t.app.wizards.BodyInsert = "<FORM>f</FORM>";
    InsertSpecialEffect(t.app, e);
    EXPECT_EQ(edit->Text(),
              "<HTML>\r\n<HEAD>\r\n</HEAD>\r\n<BODY>\r\n<SCRIPT>s</SCRIPT>\r\n<FORM>f</FORM>X\r\n"
              "</BODY>\r\n</HTML>");
  }
}

TEST_F(PickerHandOver, MarqueeSplitsHeadAndBodyAndCancelWritesNothing) {
  t.app.wizards.HeadInsert = "";
  t.app.wizards.BodyInsert = "<MARQUEE>m</MARQUEE>";
  InsertSpecialEffect(t.app, SpecialEffect::Marquee);
  EXPECT_EQ(edit->Text(),
            "<HTML>\r\n<HEAD>\r\n</HEAD>\r\n<BODY>\r\n<MARQUEE>m</MARQUEE>X\r\n</BODY>\r\n</HTML>");

  const std::string before = edit->Text();
  t.app.wizards.HeadInsert.clear();
  t.app.wizards.BodyInsert.clear();
  for (SpecialEffect e : {SpecialEffect::DigitalClock, SpecialEffect::InlineFrame,
                          SpecialEffect::Marquee, SpecialEffect::JumpMenu})
    InsertSpecialEffect(t.app, e);
  EXPECT_EQ(edit->Text(), before);
}

TEST(Picker, ListAndNothingSelected) {
  EXPECT_EQ(SpecialEffectNames(),
            (std::vector<std::string>{"Background Sound", "Digital Clock", "Dropdown/Jumpto Menu",
                                      "Inline Frame", "Scrolling Marquee", "Personal Greeting"}));
  EXPECT_EQ(CheckSpecialEffect(-1)->message, "Please select a special effect from the list below.");
  EXPECT_FALSE(CheckSpecialEffect(5));
  EXPECT_EQ(SpecialEffectAt(4), SpecialEffect::Marquee);
}

}  // namespace
}  // namespace tessarine
