// The ten preset frame layouts: their text, their URL check, names and pictures.

#include <gtest/gtest.h>

#include <algorithm>

#include "framesforms/CustomFrames.h"

namespace tessarine {
namespace {

const char* const kNoFrames =
    "<NOFRAMES>\r\n<BODY>\r\n        Enter HTML code and text here to be read by browsers that "
    "can't display frames\r\n</BODY>\r\n</NOFRAMES>\r\n</FRAMESET>";

CustomFramesInputs WithUrls(int layout) {
  CustomFramesInputs in;
  in.layout = layout;
  in.urls = {"t.htm", "m.htm", "b.htm", "s.htm"};
  return in;
}

TEST(CustomFramesTest, TopFrameOnlyWithDefaultNames) {
  CustomFramesInputs in;
  in.urls[0] = "a";
  in.urls[1] = "b";
  EXPECT_EQ(BuildCustomFrames(in), std::string("<FRAMESET ROWS=\"20%,*\">\r\n"
                                               "        <FRAME SRC=\"a\" NAME=\"top\">\r\n"
                                               "        <FRAME SRC=\"b\" NAME=\"main\">\r\n"
                                               "\r\n") +
                                       kNoFrames);
}

TEST(CustomFramesTest, NestedFramesetsStandInTheirPlace) {
  EXPECT_EQ(BuildCustomFrames(WithUrls(7)),
            std::string("<FRAMESET ROWS=\"80%,*\">\r\n"
                        "        <FRAMESET COLS=\"20%,*\">\r\n"
                        "                <FRAME SRC=\"s.htm\" NAME=\"side\">\r\n"
                        "                <FRAME SRC=\"m.htm\" NAME=\"main\">\r\n"
                        "        </FRAMESET>\r\n"
                        "        <FRAME SRC=\"b.htm\" NAME=\"bottom\">\r\n"
                        "\r\n") +
                kNoFrames);
}

TEST(CustomFramesTest, EveryLayoutHasItsOuterTagFramesAndPicture) {
  const char* outer[kCustomFrameLayoutCount] = {
      "ROWS=\"20%,*\"", "ROWS=\"80%,*\"",    "ROWS=\"20%,60%,*\"", "COLS=\"20%,*\"",
      "COLS=\"20%,*\"", "ROWS=\"20%,*\"",    "COLS=\"20%,*\"",     "ROWS=\"80%,*\"",
      "COLS=\"20%,*\"", "ROWS=\"20%,60%,*\""};
  const std::size_t frames[kCustomFrameLayoutCount] = {2, 2, 3, 2, 3, 3, 3, 3, 4, 4};
  for (int i = 0; i < kCustomFrameLayoutCount; ++i) {
    SCOPED_TRACE(kCustomFrameLayoutNames[i]);
    const std::string text = BuildCustomFrames(WithUrls(i));
    EXPECT_EQ(text.rfind(std::string("<FRAMESET ") + outer[i] + ">\r\n", 0), 0u);
    const std::vector<FramePlace> used = FramesUsedBy(i);
    EXPECT_EQ(used.size(), frames[i]);
    std::size_t lines = 0;
    for (std::size_t at = text.find("<FRAME SRC="); at != std::string::npos;
         at = text.find("<FRAME SRC=", at + 1))
      ++lines;
    EXPECT_EQ(lines, frames[i]);
    // Nested layouts open and close a second frameset.
    const bool nested = i >= 4;
    EXPECT_EQ(text.find("</FRAMESET>\r\n") != std::string::npos, nested);

    // The picture covers the page exactly once, one rectangle per frame.
    const std::vector<FrameRect> rects = CustomFramePreview(i);
    ASSERT_EQ(rects.size(), used.size());
    double area = 0;
    for (const FrameRect& r : rects) {
      EXPECT_GT(r.width, 0);
      EXPECT_GT(r.height, 0);
      EXPECT_LE(r.left + r.width, 100.0 + 1e-9);
      EXPECT_LE(r.top + r.height, 100.0 + 1e-9);
      EXPECT_NE(std::find(used.begin(), used.end(), r.place), used.end());
      area += r.width * r.height;
    }
    EXPECT_NEAR(area, 10000.0, 1e-6);
  }
  // The side frame of the full-top layout sits below the top frame.
  const std::vector<FrameRect> fullTop = CustomFramePreview(5);
  EXPECT_EQ(fullTop[1].place, FramePlace::Side);
  EXPECT_DOUBLE_EQ(fullTop[1].top, 20.0);
  EXPECT_DOUBLE_EQ(fullTop[1].width, 20.0);
}

TEST(CustomFramesTest, EveryShownFrameNeedsAUrl) {
  CustomFramesInputs in;
  in.layout = 3;  // side and main
  in.urls[3] = "s.htm";
  CheckResult failed = ValidateCustomFrameUrls(in);
  ASSERT_TRUE(failed);
  EXPECT_EQ(failed->message, "Please enter a URL for each frame.");
  EXPECT_EQ(failed->field, "frameUrl1");
  in.urls[1] = "m.htm";
  // Top and bottom are hidden in this layout and stay empty.
  EXPECT_FALSE(ValidateCustomFrameUrls(in));
  in.layout = 9;
  ASSERT_TRUE(ValidateCustomFrameUrls(in));
  EXPECT_EQ(ValidateCustomFrameUrls(in)->field, "frameUrl0");
}

TEST(CustomFramesTest, NamesAreTrimmedButBlanksDoNotBringBackTheDefault) {
  CustomFramesInputs in = WithUrls(0);
  in.names[0] = "   ";
  in.names[1] = "  content ";
  const std::string text = BuildCustomFrames(in);
  EXPECT_NE(text.find("<FRAME SRC=\"t.htm\" NAME=\"\">"), std::string::npos);
  EXPECT_NE(text.find("<FRAME SRC=\"m.htm\" NAME=\"content\">"), std::string::npos);
}

}  // namespace
}  // namespace tessarine
