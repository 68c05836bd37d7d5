// The six small dialogs: the exact text each writes.

#include <gtest/gtest.h>

#include "core/TagCommands.h"
#include "core/TestApp.h"
#include "wizards/DateTime.h"
#include "wizards/FormatChar.h"
#include "wizards/HorizontalLine.h"
#include "wizards/Metatags.h"
#include "wizards/ScriptTags.h"
#include "wizards/Vowels.h"

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
  f.colorHex = "FF0000";
  f.bold = true;
  f.position = "Subscript";
  FormatChar_OK(t.app, f);
  EXPECT_EQ(edit->Text(), "a <FONT COLOR=\"#FF0000\"><B><SUB>word</SUB></B></FONT> here");
  EXPECT_EQ(edit->SelText(), "word");

  FormatChar all;
  all.fontFace = "Arial";
  all.colorHex = "00FF00";
  all.sizeRow = "7 - large";
  all.bold = all.italic = all.underline = all.strikeThrough = all.teletype = true;
  all.code = all.emphasis = all.keyboard = all.sample = all.strong = all.variable = true;
  all.position = "Superscript";
  const FormatChar::Tags tags = all.Build();
  EXPECT_EQ(tags.start,
            "<FONT FACE=\"Arial\" COLOR=\"#00FF00\" SIZE=\"7\"><B><I><U><S><TT><CODE><EM><KBD>"
            "<SAMP><STRONG><VAR><SUP>");
  EXPECT_EQ(tags.end, "</SUP></VAR></STRONG></SAMP></KBD></EM></CODE></TT></S></U></I></B></FONT>");
  FormatChar sized;
  sized.sizeRow = "1 - small";
  EXPECT_EQ(sized.Build().start, "<FONT SIZE=\"1\">");
  sized.sizeRow = "4";
  EXPECT_EQ(sized.Build().start, "<FONT SIZE=\"4\">");
}

TEST_F(SmallInserts, FormatCharInLowerCaseFoldsTheFontAndRemembersIt) {
  Open("x", false);
  edit->Select(0, 1);
  FormatChar f;
  f.fontFace = "Times New Roman";
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
  HorizontalLine h;
  h.lineWidth = "50%";
  h.noShading = true;
  h.cmbAlign = "Center ";
  EXPECT_EQ(h.Build(true), "<hr size=\"1\" width=\"50%\" noshade align=\"center\">");
  h = HorizontalLine{};
  h.thickness = "";
  EXPECT_EQ(h.Build(true), "<hr>");

  // Through the menu in upper case, inside the body.
  Open("<HTML><BODY>\r\nab\r\n</BODY></HTML>", true);
  edit->SetSelStart(15);
  ASSERT_EQ(mnuHR(t.app), "HorizontalLine");
  HorizontalLine form;
  form.lineWidth = "80";
  HorizontalLine_OK(t.app, form);
  mnuHR_Finish(t.app);
  EXPECT_EQ(edit->Text(), "<HTML><BODY>\r\na<hr size=\"1\" width=\"80\">b\r\n</BODY></HTML>");
}

TEST_F(SmallInserts, MetatagsWriteOnlyWhatWasFilled) {
  Open("", true);
  Metatags m;
  m.keywords = "html, Editor";
  EXPECT_FALSE(Metatags_OK(t.app, m));
  EXPECT_EQ(t.app.wizards.MetaDescription, "");
  EXPECT_EQ(t.app.wizards.MetaKeywords, "<META Name=\"keywords\" Content=\"html, Editor\">\r\n");

  m.description = "My page";
  m.splashScreen = true;
  m.refreshSeconds = " 5 ";
  m.nextPageUrl = "next.htm";
  t.app.settings.TagCaseUpper = false;
  EXPECT_FALSE(Metatags_OK(t.app, m));
  EXPECT_EQ(t.app.wizards.MetaDescription, "<meta name=\"description\" Content=\"My page\">\r\n");
  EXPECT_EQ(t.app.wizards.MetaEffects,
            "<meta http-equiv=\"Refresh\" Content=\"5;URL=next.htm\">\r\n");
}

TEST_F(SmallInserts, MetatagsSplashNeedsSecondsAndUrl) {
  Open("", true);
  Metatags m;
  m.splashScreen = true;
  m.refreshSeconds = "5";
  const CheckResult failed = Metatags_OK(t.app, m);
  ASSERT_TRUE(failed);
  EXPECT_EQ(failed->field, "nextPageUrl");
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
    d.formatRow = DateTimeRows()[i];
    EXPECT_EQ(d.Build(now), "This page last updated " + expected[i]) << d.formatRow;
  }
  d.formatRow = "something else";
  EXPECT_EQ(d.Build(now), "");

  Open("x", false);
  t.platform.clock.Set(now);
  d.formatRow = "5/28/02";  // ends in "02", not "PM": the date alone
  d.leadingText = "Updated";
  EXPECT_FALSE(DateTime_OK(t.app, d));
  EXPECT_EQ(edit->Text(), "Updated 3/07/26x");
  d.formatRow = "";
  ASSERT_TRUE(DateTime_OK(t.app, d));
  EXPECT_EQ(t.messages.shown().back().text, "Select a Date/Time format.");
  EXPECT_EQ(edit->Text(), "Updated 3/07/26x");
}

TEST_F(SmallInserts, ScriptTagsTypeRunAtAndSource) {
  EXPECT_EQ(ScriptType("JavaScript1.2"), "text/JavaScript");
  EXPECT_EQ(ScriptType("JScript"), "text/VBScript");
  EXPECT_EQ(ScriptType("Jscript"), "text/JScript");
  EXPECT_EQ(ScriptType("VBScript"), "text/VBScript");

  ScriptTags s;
  s.cmbLanguage = "JScript";
  s.chkRunAtServer = true;
  s.txtSrc = " lib.js ";
  const ScriptTags::Tags tags = s.Build(true);
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
  ScriptTags s;
  s.chkInsertIntoHead = true;
  EXPECT_FALSE(ScriptTags_OK(t.app, s));
  EXPECT_EQ(edit->Text(),
            "<html><head><title>t</title>\r\n\r\n<script type=\"text/javascript\" "
            "language=\"javascript\">\r\n<!--\r\n\r\n\r\n//-->\r\n</script>\r\n\r\n</head><body>x"
            "</body></html>");
  s.cmbLanguage = "";
  ASSERT_TRUE(ScriptTags_OK(t.app, s));
  EXPECT_EQ(t.messages.shown().back().text, "Please select a language.");
}

}  // namespace
}  // namespace tessarine
