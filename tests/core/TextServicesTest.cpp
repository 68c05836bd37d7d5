// The text services every command and wizard writes through.

#include <gtest/gtest.h>

#include "core/Styles.h"
#include "core/TestApp.h"
#include "core/TextServices.h"

namespace tessarine {
namespace {

using testing::TestApp;

struct TextServices : ::testing::Test {
  TestApp t;
  BufferEdit* edit = nullptr;
  void Open(const std::string& text, bool upper) {
    t.app.settings.TagCaseUpper = upper;
    edit = &t.NewWindow(text).Buffer();
  }
};

TEST_F(TextServices, WrapSelectionInLowerCaseKeepsTheWordSelected) {
  Open("say HeLLo now", false);
  edit->Select(4, 5);
  WrapSelection(t.app, "<B>", "</B>", false);
  EXPECT_EQ(edit->Text(), "say <b>HeLLo</b> now");
  EXPECT_EQ(edit->SelStart(), 7);
  EXPECT_EQ(edit->SelText(), "HeLLo");
  EXPECT_EQ(t.app.textServices.LastStartTag, "<B>");
  EXPECT_EQ(t.app.textServices.LastEndTag, "</B>");
}

TEST_F(TextServices, WrapSelectionWithoutSelectionLeavesTheCaretBetweenTheTags) {
  Open("ab", true);
  edit->SetSelStart(1);
  WrapSelection(t.app, "<B>", "</B>", false);
  EXPECT_EQ(edit->Text(), "a<B></B>b");
  EXPECT_EQ(edit->SelStart(), 4);
  EXPECT_EQ(edit->SelLength(), 0);

  t.app.settings.TagCaseUpper = false;
  WrapSelection(t.app, "<FONT SIZE=\"+1\">", "</FONT>", false);
  EXPECT_EQ(edit->Text(), "a<B><font size=\"+1\"></font></B>b");
  EXPECT_EQ(edit->SelStart(), 20);
  WrapSelection(t.app, "<I>", "</I>", true);  // keepCase wins over the setting
  EXPECT_EQ(edit->TextRange(20, 7), "<I></I>");
}

TEST_F(TextServices, WrappingTwiceNestsAroundTheSameText) {
  Open("text", true);
  edit->Select(0, 4);
  WrapSelection(t.app, "<B>", "</B>", false);
  WrapSelection(t.app, "<B>", "</B>", false);
  EXPECT_EQ(edit->Text(), "<B><B>text</B></B>");
  EXPECT_EQ(edit->SelStart(), 6);
  EXPECT_EQ(edit->SelLength(), 4);
}

TEST_F(TextServices, ReplaceSelectionOnceWritesOnlyTheStartTagOnce) {
  Open("<A HREF=\"old\">link</A>", false);
  edit->Select(0, 14);
  t.app.textServices.ReplaceSelectionOnce = true;
  WrapSelection(t.app, "<A HREF=\"New.html\">", "</A>", false);
  EXPECT_EQ(edit->Text(), "<a href=\"new.html\">link</A>");
  EXPECT_FALSE(t.app.textServices.ReplaceSelectionOnce);
  EXPECT_EQ(t.app.textServices.LastStartTag, "<A HREF=\"New.html\">");
  EXPECT_EQ(t.app.textServices.LastEndTag, "</A>");

  // The flag is spent: the next command wraps as usual.
  edit->Select(19, 4);
  WrapSelection(t.app, "<B>", "</B>", false);
  EXPECT_EQ(edit->Text(), "<a href=\"new.html\"><b>link</b></A>");

  // With nothing selected the flag plays no part, and is cleared all the same.
  t.app.textServices.ReplaceSelectionOnce = true;
  edit->SetSelStart(0);
  WrapSelection(t.app, "<P>", "</P>", false);
  EXPECT_EQ(edit->TextRange(0, 7), "<p></p>");
  EXPECT_FALSE(t.app.textServices.ReplaceSelectionOnce);
}

TEST_F(TextServices, InsertAtCaretLowerCasesTheWholeStringUnlessKeepCase) {
  Open("[]", false);
  edit->SetSelStart(1);
  t.app.textServices.ReplaceSelectionOnce = true;
  InsertAtCaret(t.app, "<IMG SRC=\"Photo.GIF\">", false);
  EXPECT_EQ(edit->Text(), "[<img src=\"photo.gif\">]");
  EXPECT_EQ(edit->SelStart(), 22);
  EXPECT_FALSE(t.app.textServices.ReplaceSelectionOnce);

  edit->Select(1, 21);  // the selection is replaced
  InsertAtCaret(t.app, "Mixed <BR>", true);
  EXPECT_EQ(edit->Text(), "[Mixed <BR>]");
  t.app.settings.TagCaseUpper = true;
  InsertAtCaret(t.app, "<HR>Ab", false);
  EXPECT_EQ(edit->Text(), "[Mixed <BR><HR>Ab]");
}

TEST_F(TextServices, NeitherAnInsertionNorTypingBeforeItCanBeUndone) {
  Open("", true);
  edit->Type("abc");
  InsertAtCaret(t.app, "<BR>", false);
  EXPECT_FALSE(edit->CanUndo());
  edit->Undo();
  EXPECT_EQ(edit->Text(), "abc<BR>");

  edit->Type("d");
  edit->Select(0, 4);
  WrapSelection(t.app, "<B>", "</B>", false);
  edit->Undo();
  EXPECT_EQ(edit->Text(), "<B>abc<</B>BR>d");

  edit->SetSelStart(edit->Length());
  edit->Type("e");
  std::string head = "<BASE>", body;
  InsertInHeadAndBody(t.app, head, body);
  EXPECT_FALSE(edit->CanUndo());
  EXPECT_NE(edit->Text().find("BR>de"), std::string::npos);
}

const std::string kPage =
    "<HTML>\r\n<HEAD>\r\n<TITLE>t</TITLE>\r\n</HEAD>\r\n<BODY BGCOLOR=\"#FFFFFF\">\r\n"
    "abc\r\n</BODY>\r\n</HTML>";

TEST_F(TextServices, HeadAndBodyWithTheCaretInTheBody) {
  Open(kPage, true);
  edit->Select(static_cast<Pos>(kPage.find("abc")) + 1, 1);
  std::string head = "<META NAME=\"x\">", body = "<HR>";
  InsertInHeadAndBody(t.app, head, body);
  EXPECT_EQ(edit->Text(),
            "<HTML>\r\n<HEAD>\r\n<TITLE>t</TITLE>\r\n\r\n<META NAME=\"x\"></HEAD>\r\n"
            "<BODY BGCOLOR=\"#FFFFFF\">\r\na<HR>c\r\n</BODY>\r\n</HTML>");
  EXPECT_EQ(head, "\r\n<META NAME=\"x\">");
  EXPECT_EQ(body, "<HR>");
}

TEST_F(TextServices, HeadAndBodyWithTheCaretOutsideTheBody) {
  // The caret inside the body tag itself is not in the body.
  for (const Pos caret :
       {Pos{0}, static_cast<Pos>(kPage.find("BGCOLOR")), static_cast<Pos>(kPage.find("</HTML>"))}) {
    SCOPED_TRACE(caret);
    TestApp fresh;
    BufferEdit& e = fresh.NewWindow(kPage).Buffer();
    e.SetSelStart(caret);
    std::string head, body = "<HR>";
    InsertInHeadAndBody(fresh.app, head, body);
    EXPECT_EQ(e.Text(),
              "<HTML>\r\n<HEAD>\r\n<TITLE>t</TITLE>\r\n</HEAD>\r\n<BODY BGCOLOR=\"#FFFFFF\">"
              "\r\n\r\n<HR>\r\nabc\r\n</BODY>\r\n</HTML>");
    EXPECT_EQ(body, "\r\n\r\n<HR>");
    EXPECT_EQ(head, "");
  }
}

TEST_F(TextServices, HeadTextWithoutAHeadGoesSixPastTheHtmlTag) {
  Open("<html>\r\n<BODY>x</BODY>", true);
  std::string head = "<STYLE></STYLE>", body;
  InsertInHeadAndBody(t.app, head, body);
  // One-based position plus six: one character past the end of the tag.
  EXPECT_EQ(edit->Text(), "<html>\r\r\n\r\n<HEAD>\r\n<STYLE></STYLE>\r\n</HEAD>\n<BODY>x</BODY>");
  EXPECT_EQ(head, "\r\n\r\n<HEAD>\r\n<STYLE></STYLE>\r\n</HEAD>");
}

TEST_F(TextServices, HeadTextWithoutHtmlTagGoesAtPositionSix) {
  Open("0123456789", true);
  std::string head = "H", body;
  InsertInHeadAndBody(t.app, head, body);
  EXPECT_EQ(edit->Text(), "012345\r\n\r\n<HEAD>\r\nH\r\n</HEAD>6789");
}

TEST_F(TextServices, HeadTextTakesThePlainColour) {
  Open("<html><head></head></html>", true);
  const Style tag = MakeStyle(StyleKind::Tag);
  edit->FillStyle(0, edit->Length(), tag);
  std::string head = "<BASE>", body;
  InsertInHeadAndBody(t.app, head, body);
  ASSERT_EQ(edit->Text(), "<html><head>\r\n<BASE></head></html>");
  for (Pos p = 12; p < 20; ++p) EXPECT_EQ(edit->StyleAt(p), MakeStyle(StyleKind::Plain)) << p;
  EXPECT_EQ(edit->StyleAt(20), tag);
}

}  // namespace
}  // namespace tessarine
