// The do-it-yourself frame wizard: boundaries to sizes, cells to FRAME lines, and the
// composed FRAMESET block.

#include <gtest/gtest.h>

#include "core/TestApp.h"
#include "framesforms/FrameWizard.h"

namespace tessarine {
namespace {

using testing::TestApp;

FrameLayout Columns(int h1, int h2) {
  FrameLayout l;
  l.columnBoundary1 = h1;
  l.columnBoundary2 = h2;
  return l;
}

// Enters `count` cells, each named after its number, and returns the composed block.
std::string Fill(FrameWizard& w, const FrameLayout& layout) {
  for (int cell = 1; cell <= w.FrameCount(); ++cell) {
    FrameCellProperties p;
    p.name = "f" + std::to_string(cell);
    if (w.EnterCell(p, layout)) break;
  }
  return w.Composed();
}

std::string FirstLine(const std::string& text) {
  return text.substr(0, text.find("\r\n"));
}

TEST(FrameWizardTest, BoundariesGiveTheLayoutAttributeAndCellCount) {
  struct Case {
    int h1, h2, v1, v2;
    const char* firstLine;
    int cells;
  } cases[] = {
      {30, 70, 0, 0, "<FRAMESET COLS=\"30%,40%,*\" FRAMEBORDER=\"0\">", 3},
      {70, 30, 0, 0, "<FRAMESET COLS=\"30%,40%,*\" FRAMEBORDER=\"0\">", 3},
      {0, 40, 0, 0, "<FRAMESET COLS=\"40%,*\" FRAMEBORDER=\"0\">", 2},
      {100, 0, 0, 0, "<FRAMESET COLS=\"100%,*\" FRAMEBORDER=\"0\">", 2},
      {0, 100, 0, 0, "<FRAMESET COLS=\"100%,*\" FRAMEBORDER=\"0\">", 2},
      {0, 0, 20, 50, "<FRAMESET ROWS=\"20%,30%,*\" FRAMEBORDER=\"0\">", 3},
      {0, 0, 0, 25, "<FRAMESET ROWS=\"25%,*\" FRAMEBORDER=\"0\">", 2},
      {40, 0, 60, 0, "<FRAMESET ROWS=\"60%,*\" FRAMEBORDER=\"0\">", 4},
      {30, 60, 50, 0, "<FRAMESET ROWS=\"50%,*\" FRAMEBORDER=\"0\">", 6},
      {30, 0, 20, 50, "<FRAMESET ROWS=\"20%,30%,*\" FRAMEBORDER=\"0\">", 6},
      {30, 60, 20, 50, "<FRAMESET ROWS=\"20%,30%,*\" FRAMEBORDER=\"0\">", 9},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::to_string(c.h1) + "," + std::to_string(c.h2) + " / " + std::to_string(c.v1) +
                 "," + std::to_string(c.v2));
    FrameLayout layout = Columns(c.h1, c.h2);
    layout.rowBoundary1 = c.v1;
    layout.rowBoundary2 = c.v2;
    FrameWizard w;
    ASSERT_FALSE(w.Next(layout));
    EXPECT_EQ(w.FrameCount(), c.cells);
    EXPECT_EQ(FirstLine(Fill(w, layout)), c.firstLine);
  }
}

TEST(FrameWizardTest, NoBoundaryOrEqualBoundariesOnFirstUseMakeNoFrames) {
  for (const FrameLayout& layout : {Columns(0, 0), Columns(50, 50), Columns(100, 100)}) {
    FrameWizard w;
    const CheckResult failed = w.Next(layout);
    ASSERT_TRUE(failed);
    EXPECT_EQ(failed->message,
              "No Frames have been created.  Use the Scrollbars to create frame boundaries.");
    EXPECT_EQ(w.FrameCount(), 0);
    EXPECT_FALSE(w.EnterCell({}, layout));
    EXPECT_EQ(w.Composed(), "");
  }
}

TEST(FrameWizardTest, EqualBoundariesKeepTheSizesOfTheLastPress) {
  FrameWizard w;
  ASSERT_FALSE(w.Next(Columns(30, 70)));
  ASSERT_FALSE(w.Next(Columns(50, 50)));
  EXPECT_EQ(w.ColSize1(), 30);
  EXPECT_EQ(w.ColSize2(), 40);
  EXPECT_EQ(w.FrameCount(), 3);
}

TEST(FrameWizardTest, ColumnsOnlyWriteOneLinePerCell) {
  FrameLayout layout = Columns(25, 0);
  layout.frameBorder = true;
  layout.frameSpacing = "4";
  FrameWizard w;
  ASSERT_FALSE(w.Next(layout));
  EXPECT_EQ(w.CellCaption(), "Frame 1");
  FrameCellProperties left;
  left.url = "nav.htm";
  left.name = "nav";
  left.scrolling = "No";
  left.resizeable = false;
  left.marginWidth = "2";
  left.marginHeight = "3";
  EXPECT_FALSE(w.EnterCell(left, layout));
  EXPECT_EQ(w.CellCaption(), "Frame 2");
  EXPECT_TRUE(w.EnterCell({}, layout));
  EXPECT_EQ(w.Composed(),
            "<FRAMESET COLS=\"25%,*\" FRAMEBORDER=\"1\" FRAMESPACING=\"4\" BORDER=\"4\">\r\n"
            "     <FRAME SRC=\"nav.htm\" NAME=\"nav\" SCROLLING=\"No\" NORESIZE "
            "MARGINHEIGHT=\"3\" MARGINWIDTH=\"2\">\r\n"
            "     <FRAME>\r\n"
            "\r\n<NOFRAMES>\r\n<BODY>\r\n"
            "Enter HTML code and text here to be read by browsers that can't display frames\r\n"
            "</BODY>\r\n</NOFRAMES>\r\n\r\n</FRAMESET>");
  // A further press after the last cell changes nothing.
  EXPECT_FALSE(w.EnterCell(left, layout));
}

TEST(FrameWizardTest, GridsNestOneFramesetPerRow) {
  FrameLayout layout = Columns(40, 0);
  layout.rowBoundary1 = 60;
  FrameWizard w;
  ASSERT_FALSE(w.Next(layout));
  EXPECT_EQ(Fill(w, layout),
            "<FRAMESET ROWS=\"60%,*\" FRAMEBORDER=\"0\">\r\n"
            "     <FRAMESET COLS=\"40%,*\">\r\n"
            "          <FRAME NAME=\"f1\">\r\n"
            "          <FRAME NAME=\"f2\">\r\n"
            "     </FRAMESET>\r\n"
            "     <FRAMESET COLS=\"40%,*\">\r\n"
            "          <FRAME NAME=\"f3\">\r\n"
            "          <FRAME NAME=\"f4\">\r\n"
            "     </FRAMESET>\r\n"
            "\r\n<NOFRAMES>\r\n<BODY>\r\n"
            "Enter HTML code and text here to be read by browsers that can't display frames\r\n"
            "</BODY>\r\n</NOFRAMES>\r\n\r\n</FRAMESET>");
}

TEST(FrameWizardTest, OnlyTheThirdRowOfANineCellGridCarriesBlanks) {
  FrameLayout layout = Columns(30, 60);
  layout.rowBoundary1 = 20;
  layout.rowBoundary2 = 50;
  FrameWizard w;
  ASSERT_FALSE(w.Next(layout));
  const std::string text = Fill(w, layout);
  const std::string plain = "     <FRAMESET COLS=\"30%,30%,*\">\r\n";
  const std::size_t first = text.find(plain);
  ASSERT_NE(first, std::string::npos);
  const std::size_t second = text.find(plain, first + 1);
  ASSERT_NE(second, std::string::npos);
  const std::size_t third = text.find("     <FRAMESET COLS=\" 30%, 30%,*\">\r\n");
  ASSERT_NE(third, std::string::npos);
  EXPECT_LT(second, third);
  EXPECT_EQ(text.find(plain, second + 1), std::string::npos);
  // Cells run left to right, then top to bottom: the third row holds 7, 8, 9.
  EXPECT_LT(third, text.find("<FRAME NAME=\"f7\">"));
  EXPECT_GT(third, text.find("<FRAME NAME=\"f6\">"));

  // A three by three grid of other sizes keeps the quirk; a three by two grid has none.
  FrameLayout sixCells = layout;
  sixCells.columnBoundary2 = 0;
  FrameWizard six;
  ASSERT_FALSE(six.Next(sixCells));
  EXPECT_EQ(Fill(six, sixCells).find("\" 30%"), std::string::npos);
}

TEST(FrameWizardTest, FrameMarkupIgnoresTheTagCase) {
  for (const bool upper : {true, false}) {
    TestApp t;
    t.app.settings.TagCaseUpper = upper;
    BufferEdit& edit = t.NewWindow("<body>X</body>").Buffer();
    edit.Select(6, 1);
    FrameLayout layout = Columns(50, 0);
    FrameWizard w;
    ASSERT_FALSE(w.Next(layout));
    FrameWizard_Insert(t.app, Fill(w, layout));
    EXPECT_EQ(edit.Text().rfind("<body><FRAMESET COLS=\"50%,*\" FRAMEBORDER=\"0\">\r\n", 0), 0u);
    EXPECT_NE(edit.Text().find("<FRAME NAME=\"f2\">\r\n"), std::string::npos);
    EXPECT_EQ(edit.Text().substr(edit.Text().size() - 18), "</FRAMESET></body>");
  }
}

TEST(FrameWizardTest, FramesetPageHasAHeadAndNoBody) {
  for (const bool upper : {true, false}) {
    TestApp t;
    t.app.settings.TagCaseUpper = upper;
    t.app.settings.Flags.ColorTags = false;
    ASSERT_TRUE(NewFramesetDocument(t.app));
    EditControl* edit = t.app.ActiveEdit();
    ASSERT_NE(edit, nullptr);
    const std::string text = edit->Text();
    EXPECT_EQ(FirstLine(text),
              "<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.0 Frameset//EN\" "
              "\"http://www.w3.org/TR/REC-html40/frameset.dtd\">");
    EXPECT_NE(text.find(upper ? "<TITLE>Document Title should be typed here</TITLE>"
                              : "<title>Document Title should be typed here</title>"),
              std::string::npos);
    EXPECT_NE(text.find("<!-- Created on "), std::string::npos);
    EXPECT_EQ(text.find(upper ? "<BODY" : "<body"), std::string::npos);
    // The caret waits for the frameset before the closing tag.
    EXPECT_EQ(text.substr(static_cast<std::size_t>(edit->SelStart())),
              upper ? "\r\n\r\n</HTML>" : "\r\n\r\n</html>");
    EXPECT_FALSE(t.Changed(*t.app.ActiveDocument()));
  }
}

}  // namespace
}  // namespace tessarine
