// The document's key rules on the headless control: block indent, Ctrl+Space, the "<" key
// rows, auto-tab, and the find box's silencing of them all.

#include <gtest/gtest.h>

#include "core/Editing.h"
#include "core/Styles.h"
#include "core/TestApp.h"

namespace tessarine {
namespace {

using testing::TestApp;

class EditKeysTest : public ::testing::Test {
 protected:
  BufferEdit& Open(const std::string& text) {
    window = &t.NewWindow(text);
    return window->Buffer();
  }
  bool Down(int key, bool shift = false, bool ctrl = false) {
    return EditKeyDown(t.app, *window, key, shift, ctrl);
  }
  void Up(int key, bool shift = false) { EditKeyUp(t.app, *window, key, shift); }

  TestApp t;
  HeadlessDocumentWindow* window = nullptr;
};

TEST_F(EditKeysTest, TabIndentsEveryLineOfTheBlockAndKeepsTheStoredEnd) {
  BufferEdit& e = Open("one\r\ntwo\r\nthree");
  e.Select(5, 8);  // "two\r\nthr"
  EXPECT_TRUE(Down(kKeyTab));
  EXPECT_EQ(e.Text(), "one\r\n\ttwo\r\n\tthree");
  // The tab written inside the block isn't counted: the selection ends one short.
  EXPECT_EQ(e.SelStart(), 5);
  EXPECT_EQ(e.SelText(), "\ttwo\r\n\tth");

  EXPECT_TRUE(Down(kKeyTab, /*shift=*/true));
  EXPECT_EQ(e.Text(), "one\r\ntwo\r\nthree");
  EXPECT_EQ(e.SelText(), "two\r\nthr");
  EXPECT_TRUE(t.Changed(*window));
}

TEST_F(EditKeysTest, TabOnAWholeLineWithItsLineEndIsABlock) {
  BufferEdit& e = Open("one\r\ntwo");
  e.Select(0, 5);
  EXPECT_TRUE(Down(kKeyTab));
  // The selection's own CR LF gets its tab too, so the next line moves with it.
  EXPECT_EQ(e.Text(), "\tone\r\n\ttwo");
  EXPECT_EQ(e.SelStart(), 0);
  EXPECT_EQ(e.SelLength(), 6);
}

TEST_F(EditKeysTest, TabWithoutALineEndInTheSelectionGoesToTheControl) {
  BufferEdit& e = Open("one\r\ntwo");
  e.Select(1, 2);
  EXPECT_FALSE(Down(kKeyTab));
  e.Select(3, 1);  // a lone CR is no line end here
  EXPECT_FALSE(Down(kKeyTab));
  EXPECT_EQ(e.Text(), "one\r\ntwo");
  EXPECT_FALSE(t.Changed(*window));
}

TEST_F(EditKeysTest, CtrlSpaceWritesANonBreakingSpaceOverTheSelection) {
  BufferEdit& e = Open("a word here");
  e.Select(2, 4);
  EXPECT_TRUE(Down(kKeySpace, false, true));
  EXPECT_EQ(e.Text(), "a &nbsp; here");
  EXPECT_FALSE(Down(kKeySpace));
}

TEST_F(EditKeysTest, LessThanKeyRows) {
  BufferEdit& e = Open("x = 1");
  const Style tag = MakeStyle(StyleKind::Tag);
  e.FillStyle(0, 5, tag);
  e.Select(4, 1);
  EXPECT_TRUE(Down(kKeyLessComma, false, true));
  EXPECT_EQ(e.Text(), "x = <%1%>");
  EXPECT_EQ(e.SelText(), "1");
  // The tags take the cleared insertion colour, not the tag colour before them.
  EXPECT_EQ(KindOf(e.StyleAt(4)), StyleKind::Plain);

  EXPECT_TRUE(Down(kKeyLessComma, true, true));
  EXPECT_EQ(e.Text(), "x = <%<%=1%>%>");

  e.SetSelStart(1);
  EXPECT_FALSE(Down(kKeyLessComma, true));  // the control types "<" ...
  e.Type("<");
  EXPECT_EQ(KindOf(e.StyleAt(1)), StyleKind::Plain);  // ... in black
  EXPECT_FALSE(Down(kKeyLessComma));                  // a comma is just a comma
}

TEST_F(EditKeysTest, EnterAddsAsManyTabsAsThePositionOfTheLastTab) {
  BufferEdit& e = Open("first\r\n\t\ttext");
  e.SetSelStart(e.Length());
  e.Type("\r\n");
  Up(kKeyEnter);
  EXPECT_EQ(e.Text(), "first\r\n\t\ttext\r\n\t\t");

  Open("text\tmore");
  window->Buffer().SetSelStart(9);
  window->Buffer().Type("\r\n");
  Up(kKeyEnter);
  EXPECT_EQ(window->Buffer().Text(), "text\tmore\r\n\t\t\t\t\t");

  // The first line has no CR before it; a line without tabs gets none.
  BufferEdit& plain = Open("\tx\r\nno tabs");
  plain.SetSelStart(2);
  plain.Type("\r\n");
  Up(kKeyEnter);
  EXPECT_EQ(plain.Text(), "\tx\r\n\t\r\nno tabs");
  plain.SetSelStart(plain.Length());
  plain.Type("\r\n");
  Up(kKeyEnter);
  EXPECT_EQ(plain.Text(), "\tx\r\n\t\r\nno tabs\r\n");

  t.app.settings.EnableAutotab = false;
  plain.SetSelStart(2);
  plain.Type("\r\n");
  Up(kKeyEnter);
  EXPECT_EQ(plain.Text(), "\tx\r\n\r\n\t\r\nno tabs\r\n");
}

TEST_F(EditKeysTest, KeyUpWritesTheLinePanelAndEndsTagColour) {
  BufferEdit& e = Open("a\r\nb\nc\rd");
  e.SetSelStart(8);
  Up('D');
  EXPECT_EQ(t.frame.linePanel, 4);
  e.SetInsertionStyle(MakeStyle(StyleKind::Tag));
  Up(kKeyGreaterPeriod, true);
  EXPECT_EQ(KindOf(e.InsertionStyle()), StyleKind::Plain);
}

TEST_F(EditKeysTest, FindBoxFocusSilencesTheHandlers) {
  BufferEdit& e = Open("\tone\r\ntwo");
  t.app.editing.SuppressEditKeys = true;
  e.Select(0, 7);
  EXPECT_FALSE(Down(kKeyTab));
  EXPECT_FALSE(Down(kKeySpace, false, true));
  e.SetSelStart(4);
  e.Type("\r\n");
  t.frame.linePanel = 0;
  Up(kKeyEnter);
  EXPECT_EQ(e.Text(), "\tone\r\n\r\ntwo");
  EXPECT_EQ(t.frame.linePanel, 0);
}

}  // namespace
}  // namespace tessarine
