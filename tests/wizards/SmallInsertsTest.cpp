// The six small dialogs: the exact text each writes.

#include <gtest/gtest.h>

#include "core/TagCommands.h"
#include "core/TestApp.h"
#include "wizards/DateTime.h"
#include "wizards/FormatChar.h"
#include "wizards/Metatags.h"
#include "wizards/Vowels.h"
#include "wizards/frmHorizLine.h"
#include "wizards/frmScriptTags.h"

namespace tessarine {
namespace {

using testing::TestApp;

struct SmallInserts : ::testing::Test {
  TestApp t;
  BufferEdit* edit = nullptr;
  void Open(const std::string& text, bool upper) {
    t.app.settings.TagCaseUpper = upper;
    edit = &t.NewWindow(text).Buffer();
  }
};

TEST_F(SmallInserts, FormatCharNestsFontStylesAndPosition) {
  Open("a word here", true);
  edit->Select(2, 4);
  FormatChar f;
  f.Text1 = "FF0000";
  f.Check1 = true;
  f.Combo2 = "Subscript";
  FormatChar_OK(t.app, f);
  EXPECT_EQ(edit->Text(), "a <FONT COLOR=\"#FF0000\"><B><SUB>word</SUB></B></FONT> here");
  EXPECT_EQ(edit->SelText(), "word");

  FormatChar all;
  all.Combo3 = "Arial";
  all.Text1 = "00FF00";
  all.Combo1 = "7 - large";
  all.Check1 = all.Check2 = all.Check3 = all.Check4 = all.Check5 = true;
  all.Check7 = all.Check9 = all.Check10 = all.Check12 = all.Check13 = all.Check14 = true;
  all.Combo2 = "Superscript";
  const FormatChar::Tags tags = all.Build();
  EXPECT_EQ(tags.start,
            "<FONT FACE=\"Arial\" COLOR=\"#00FF00\" SIZE=\"7\"><B><I><U><S><TT><CODE><EM><KBD>"
            "<SAMP><STRONG><VAR><SUP>");
  EXPECT_EQ(tags.end, "</SUP></VAR></STRONG></SAMP></KBD></EM></CODE></TT></S></U></I></B></FONT>");
  FormatChar sized;
  sized.Combo1 = "1 - small";
  EXPECT_EQ(sized.Build().start, "<FONT SIZE=\"1\">");
  sized.Combo1 = "4";
  EXPECT_EQ(sized.Build().start, "<FONT SIZE=\"4\">");
}

TEST_F(SmallInserts, FormatCharInLowerCaseFoldsTheFontAndRemembersIt) {
  Open("x", false);
  edit->Select(0, 1);
  FormatChar f;
  f.Combo3 = "Times New Roman";
  FormatChar_OK(t.app, f);
  EXPECT_EQ(edit->Text(), "<font face=\"times new roman\">x</font>");
  EXPECT_EQ(RecentFontName(t.app), "Times New Roman");
  EXPECT_EQ(FormatCharFonts("Times New Roman").front(), "Times New Roman");
  EXPECT_EQ(FormatCharFonts("").front(), "Terminal");
  EXPECT_EQ(FormatCharFonts("").size(), 11u);

  // Nothing chosen: nothing written.
  FormatChar_OK(t.app, FormatChar{});
  EXPECT_EQ(edit->Text(), "<font face=\"times new roman\">x</font>");
}

TEST_F(SmallInserts, FormatCharSampleSizes) {
  EXPECT_EQ(FormatCharPointSize("1 - small"), 7);
  EXPECT_EQ(FormatCharPointSize("5"), 17);
  EXPECT_EQ(FormatCharPointSize("7 - large"), 34);
  EXPECT_EQ(FormatCharPointSize("Default"), 0);
}

TEST_F(SmallInserts, VowelsInsertAsTheyStandAndEmptyTheUndoHistory) {
  Open("ab", false);
  edit->SetSelStart(1);
  edit->ReplaceSel("x");
  Vowels_Insert(t.app, VowelsPage(1)[6]);
  EXPECT_EQ(edit->Text(), "ax&Aelig;b");
  edit->Undo();
  EXPECT_EQ(edit->Text(), "axb");
  EXPECT_FALSE(edit->CanUndo());
  edit->SetSelStart(2);
  Vowels_Insert(t.app, VowelsPage(1)[6]);
  Vowels_Insert(t.app, VowelsPage(3)[0]);
  EXPECT_EQ(edit->Text(), "ax&Aelig;<FONT FACE=\"Symbol\">A</FONT>b");
  EXPECT_EQ(VowelsPage(1).size(), 51u);
  EXPECT_EQ(VowelsPage(2).size(), 41u);
  EXPECT_EQ(VowelsPage(3).size(), 60u);
  EXPECT_EQ(VowelsPage(3)[26], "<FONT FACE=\"Symbol\">a</FONT>");
  EXPECT_EQ(VowelsPage(3).back(), "&inf;");
  EXPECT_TRUE(VowelsPage(4).empty());
}

TEST_F(SmallInserts, HorizontalLineIsAlwaysLowerCase) {
  frmHorizLine h;
  h.Text2 = "50%";
  h.Check1 = true;
  h.cmbAlign = "Center ";
  EXPECT_EQ(h.Build(true), "<hr size=\"1\" width=\"50%\" noshade align=\"center\">");
  h = frmHorizLine{};
  h.Text1 = "";
  EXPECT_EQ(h.Build(true), "<hr>");

  // Through the menu in upper case, inside the body.
  Open("<HTML><BODY>\r\nab\r\n</BODY></HTML>", true);
  edit->SetSelStart(15);
  ASSERT_EQ(mnuHR(t.app), "frmHorizLine");
  frmHorizLine form;
  form.Text2 = "80";
  frmHorizLine_OK(t.app, form);
  mnuHR_Finish(t.app);
  EXPECT_EQ(edit->Text(), "<HTML><BODY>\r\na<hr size=\"1\" width=\"80\">b\r\n</BODY></HTML>");
}

TEST_F(SmallInserts, MetatagsWriteOnlyWhatWasFilled) {
  Open("", true);
  Metatags m;
  m.Text2 = "html, Editor";
  EXPECT_FALSE(Metatags_OK(t.app, m));
  EXPECT_EQ(t.app.wizards.MetaDescription, "");
  EXPECT_EQ(t.app.wizards.MetaKeywords, "<META Name=\"keywords\" Content=\"html, Editor\">\r\n");

  m.Text1 = "My page";
  m.Check1 = true;
  m.Text3 = " 5 ";
  m.Text4 = "next.htm";
  t.app.settings.TagCaseUpper = false;
  EXPECT_FALSE(Metatags_OK(t.app, m));
  EXPECT_EQ(t.app.wizards.MetaDescription, "<meta name=\"description\" Content=\"My page\">\r\n");
  EXPECT_EQ(t.app.wizards.MetaEffects,
            "<meta http-equiv=\"Refresh\" Content=\"5;URL=next.htm\">\r\n");
}

TEST_F(SmallInserts, MetatagsSplashNeedsSecondsAndUrl) {
  Open("", true);
  Metatags m;
  m.Check1 = true;
  m.Text3 = "5";
  const CheckResult failed = Metatags_OK(t.app, m);
  ASSERT_TRUE(failed);
  EXPECT_EQ(failed->field, "Text4");
  ASSERT_EQ(t.messages.shown().size(), 1u);
  EXPECT_EQ(t.messages.shown()[0].text,
            "Please enter the number of seconds and the Web page URL for the splash screen.");
  EXPECT_EQ(t.app.wizards.MetaEffects, "");
}

TEST_F(SmallInserts, DateTimeRowsInTheirOrder) {
  std::tm now{};
  now.tm_year = 2026 - 1900;
  now.tm_mon = 2;
  now.tm_mday = 7;
  now.tm_wday = 6;
  now.tm_hour = 21;
  now.tm_min = 5;
  DateTime d;
  const std::string expected[8] = {"Saturday, March 07, 2026",
                                   "3/07/26",
                                   "07/3/26",
                                   "March 07, 2026",
                                   "07 March 2026",
                                   "March 2026",
                                   "9:05 PM",
                                   "3/07/26  9:05 PM"};
  for (std::size_t i = 0; i < 8; ++i) {
    d.Combo1 = DateTimeRows()[i];
    EXPECT_EQ(d.Build(now), "This page last updated " + expected[i]) << d.Combo1;
  }
  d.Combo1 = "something else";
  EXPECT_EQ(d.Build(now), "");

  Open("x", false);
  t.platform.clock.Set(now);
  d.Combo1 = "5/28/02";  // ends in "02", not "PM": the date alone
  d.Text1 = "Updated";
  EXPECT_FALSE(DateTime_OK(t.app, d));
  EXPECT_EQ(edit->Text(), "Updated 3/07/26x");
  d.Combo1 = "";
  ASSERT_TRUE(DateTime_OK(t.app, d));
  EXPECT_EQ(t.messages.shown().back().text, "Select a Date/Time format.");
  EXPECT_EQ(edit->Text(), "Updated 3/07/26x");
}

TEST_F(SmallInserts, ScriptTagsTypeRunAtAndSource) {
  EXPECT_EQ(ScriptType("JavaScript1.2"), "text/JavaScript");
  EXPECT_EQ(ScriptType("JScript"), "text/VBScript");
  EXPECT_EQ(ScriptType("Jscript"), "text/JScript");
  EXPECT_EQ(ScriptType("VBScript"), "text/VBScript");

  frmScriptTags s;
  s.cmbLanguage = "JScript";
  s.chkRunAtServer = true;
  s.txtSrc = " lib.js ";
  const frmScriptTags::Tags tags = s.Build(true);
  EXPECT_EQ(tags.start,
            "\r\n\r\n<SCRIPT TYPE=\"text/VBScript\" LANGUAGE=\"JScript\" RUNAT=\"Server\" "
            "SRC=\"lib.js\">\r\n<!--\r\n");
  EXPECT_EQ(tags.end, "\r\n\r\n//-->\r\n</SCRIPT>\r\n\r\n");
  s.cmbLanguage = "JavaScript";  // the one language that never runs at the server
  EXPECT_EQ(s.Build(true).start.find("RUNAT"), std::string::npos);
  s.cmbLanguage = "JavaScript1.1";
  EXPECT_NE(s.Build(true).start.find("RUNAT=\"Server\""), std::string::npos);
}

TEST_F(SmallInserts, ScriptTagsGoIntoTheHeadWhenAsked) {
  Open("<html><head><title>t</title></head><body>x</body></html>", false);
  edit->SetSelStart(46);
  frmScriptTags s;
  s.chkInsertIntoHead = true;
  EXPECT_FALSE(frmScriptTags_OK(t.app, s));
  EXPECT_EQ(edit->Text(),
            "<html><head><title>t</title>\r\n\r\n<script type=\"text/javascript\" "
            "language=\"javascript\">\r\n<!--\r\n\r\n\r\n//-->\r\n</script>\r\n\r\n</head><body>x"
            "</body></html>");
  s.cmbLanguage = "";
  ASSERT_TRUE(frmScriptTags_OK(t.app, s));
  EXPECT_EQ(t.messages.shown().back().text, "Please select a language.");
}

}  // namespace
}  // namespace tessarine
