// Every tag command of the menus, toolbars and shortcut bar on a headless document, in both
// tag cases.

#include <gtest/gtest.h>

#include "core/TagCommands.h"
#include "core/TestApp.h"
#include "core/TextServices.h"

namespace tessarine {
namespace {

using testing::TestApp;

struct Row {
  const char* array;
  int index;
  const char* expected;  // upper case, run on "[Sel]" with "Sel" selected
};

const Row kRows[] = {
    {"mnuPhysicalStyles", 0, "[<B>Sel</B>]"},
    {"mnuPhysicalStyles", 1, "[<I>Sel</I>]"},
    {"mnuPhysicalStyles", 2, "[<S>Sel</S>]"},
    {"mnuPhysicalStyles", 3, "[<SUB>Sel</SUB>]"},
    {"mnuPhysicalStyles", 4, "[<SUP>Sel</SUP>]"},
    {"mnuPhysicalStyles", 5, "[<TT>Sel</TT>]"},
    {"mnuPhysicalStyles", 6, "[<U>Sel</U>]"},
    {"mnuLogicalStyles", 0, "[<ABBREV>Sel</ABBREV>]"},
    {"mnuLogicalStyles", 1, "[<ACRONYM>Sel</ACRONYM>]"},
    {"mnuLogicalStyles", 2, "[<ARG>Sel</ARG>]"},
    {"mnuLogicalStyles", 3, "[<AU>Sel</AU>]"},
    {"mnuLogicalStyles", 4, "[<CITE>Sel</CITE>]"},
    {"mnuLogicalStyles", 5, "[<CODE>Sel</CODE>]"},
    {"mnuLogicalStyles", 6, "[<CREDIT>Sel</CREDIT>]"},
    {"mnuLogicalStyles", 7, "[<DFN>Sel</DFN>]"},
    {"mnuLogicalStyles", 8, "[<DEL>Sel</DEL>]"},
    {"mnuLogicalStyles", 9, "[<EM>Sel</EM>]"},
    {"mnuLogicalStyles", 10, "[<FN>Sel</FN>]"},
    {"mnuLogicalStyles", 11, "[<Q>Sel</Q>]"},
    {"mnuLogicalStyles", 12, "[<INS>Sel</INS>]"},
    {"mnuLogicalStyles", 13, "[<KBD>Sel</KBD>]"},
    {"mnuLogicalStyles", 14, "[<PERSON>Sel</PERSON>]"},
    {"mnuLogicalStyles", 15, "[<SAMP>Sel</SAMP>]"},
    {"mnuLogicalStyles", 16, "[<STRONG>Sel</STRONG>]"},
    {"mnuLogicalStyles", 17, "[<VAR>Sel</VAR>]"},
    {"mnuHeadingsSub", 1, "[<H1>Sel</H1>]"},
    {"mnuHeadingsSub", 2, "[<H2>Sel</H2>]"},
    {"mnuHeadingsSub", 3, "[<H3>Sel</H3>]"},
    {"mnuHeadingsSub", 4, "[<H4>Sel</H4>]"},
    {"mnuHeadingsSub", 5, "[<H5>Sel</H5>]"},
    {"mnuHeadingsSub", 6, "[<H6>Sel</H6>]"},
    {"mnuParagraphSub", 1, "[<ADDRESS>Sel</ADDRESS>]"},
    {"mnuParagraphSub", 2, "[<BYLINE>Sel</BYLINE>]"},
    {"mnuParagraphSub", 3, "[<!--Sel-->]"},
    {"mnuParagraphSub", 4, "[<DIV>Sel</DIV>]"},
    {"mnuParagraphSub", 5, "[<LISTING>Sel</LISTING>]"},
    {"mnuParagraphSub", 6, "[<LIT>Sel</LIT>]"},
    {"mnuParagraphSub", 7, "[<P>Sel</P>]"},
    {"mnuParagraphSub", 8, "[<PRE>Sel</PRE>]"},
    {"mnuParagraphSub", 9, "[<SPAN>Sel</SPAN>]"},
    {"mnuPAlignSub", 0, "[<P ALIGN=\"Left\">Sel</P>]"},
    {"mnuPAlignSub", 1, "[<P ALIGN=\"Center\">Sel</P>]"},
    {"mnuPAlignSub", 2, "[<P ALIGN=\"Right\">Sel</P>]"},
    {"mnuPAlignSub", 3, "[<P ALIGN=\"Justify\">Sel</P>]"},
    {"mnuPAlignSub", 5, "[<BLOCKQUOTE>Sel</BLOCKQUOTE>]"},
    {"mnuOtherHTMLSub", 1, "[<BR>]"},
    {"mnuOtherHTMLSub", 2, "[<NOBR>Sel</NOBR>]"},
    {"mnuOtherHTMLSub", 3, "[<WBR>]"},
    {"mnuStructureTagsSub", 0, "[<BANNER>Sel</BANNER>]"},
    {"mnuStructureTagsSub", 1, "[<BASE>]"},
    {"mnuStructureTagsSub", 2, "[<BODY>Sel</BODY>]"},
    {"mnuStructureTagsSub", 3, "[<HEAD>Sel</HEAD>]"},
    {"mnuStructureTagsSub", 4, "[<HTML>Sel</HTML>]"},
    {"mnuStructureTagsSub", 5, "[<ISINDEX>]"},
    {"mnuStructureTagsSub", 6, "[<LINK HREF=\"\" REL=\"\">]"},
    {"mnuStructureTagsSub", 7, "[<NEXTID>]"},
    {"mnuStructureTagsSub", 8, "[<TITLE>Sel</TITLE>]"},
};

// The lower-case form: everything but the selected word.
std::string Lower(const std::string& upper) {
  std::string out = LCase(upper);
  const std::size_t at = out.find("sel");
  if (at != std::string::npos) out.replace(at, 3, "Sel");
  return out;
}

struct TagCommands : ::testing::Test {
  TestApp t;
  BufferEdit* edit = nullptr;
  void Open(const std::string& text, bool upper) {
    t.app.settings.TagCaseUpper = upper;
    edit = &t.NewWindow(text).Buffer();
  }
  std::string OnSel(bool upper, const std::function<void()>& command) {
    Open("[Sel]", upper);
    edit->Select(1, 3);
    command();
    return edit->Text();
  }
};

TEST_F(TagCommands, EveryMenuArrayEntryInBothCases) {
  for (const Row& r : kRows) {
    for (bool upper : {true, false}) {
      const std::string text = OnSel(upper, [&] { RunTagMenu(t.app, r.array, r.index); });
      EXPECT_EQ(text, upper ? std::string(r.expected) : Lower(r.expected))
          << r.array << " " << r.index << (upper ? " upper" : " lower");
    }
  }
}

TEST_F(TagCommands, MenuArraysHaveTheirCaptionsAndEveryEntryDoesSomething) {
  std::size_t entries = 0;
  for (const TagMenuArray& a : TagMenuArrays()) {
    for (std::size_t i = 0; i < a.captions.size(); ++i) {
      if (a.captions[i].empty()) continue;  // separator
      ++entries;
      const std::string text =
          OnSel(true, [&] { RunTagMenu(t.app, a.name, a.firstIndex + static_cast<int>(i)); });
      EXPECT_NE(text, "[Sel]") << a.name << " " << i;
    }
  }
  EXPECT_EQ(entries, 7u + 18 + 6 + 9 + 5 + 4 + 9);
  EXPECT_EQ(TagMenuArrays()[0].captions[2], "Stri&kethrough - <S>");
  EXPECT_EQ(TagMenuArrays()[5].captions[3], "Non-breaking &space - &&nbsp;");
}

TEST_F(TagCommands, BoldTwiceNestsAroundTheSameText) {
  Open("text", true);
  edit->Select(0, 4);
  RunTagMenu(t.app, "mnuPhysicalStyles", 0);
  RunTagMenu(t.app, "mnuPhysicalStyles", 0);
  EXPECT_EQ(edit->Text(), "<B><B>text</B></B>");
}

TEST_F(TagCommands, AlignTakesDivWhenAskedAndLowerCaseAsAWhole) {
  EXPECT_EQ(OnSel(false, [&] { RunTagMenu(t.app, "mnuPAlignSub", 1); }),
            "[<p align=\"center\">Sel</p>]");
  t.app.settings.useDIVtag = true;
  EXPECT_EQ(OnSel(true, [&] { RunTagMenu(t.app, "mnuPAlignSub", 2); }),
            "[<DIV ALIGN=\"Right\">Sel</DIV>]");
  EXPECT_EQ(OnSel(true, [&] { tbrFormatClick(t.app, "align center"); }),
            "[<DIV ALIGN=\"Center\">Sel</DIV>]");
}

TEST_F(TagCommands, ParagraphWithoutEndingTagPutsTheMarkBeforeTheSelection) {
  t.app.settings.EndingPtag = false;
  Open("one two", false);
  edit->Select(4, 3);
  edit->ReplaceSel("TWO");
  edit->Select(4, 3);
  RunTagMenu(t.app, "mnuParagraphSub", 7);
  EXPECT_EQ(edit->Text(), "one <p>TWO");
  EXPECT_TRUE(edit->CanUndo());  // no service: the history stays
  t.app.settings.TagCaseUpper = true;
  edit->SetSelStart(0);
  RunTagMenu(t.app, "mnuParagraphSub", 7);
  EXPECT_EQ(edit->Text(), "<P>one <p>TWO");
}

TEST_F(TagCommands, LineBreaksNbspAndTheCarriageReturnSetting) {
  EXPECT_EQ(OnSel(false, [&] { RunTagMenu(t.app, "mnuOtherHTMLSub", 4); }), "[&nbsp;]");
  t.app.settings.BRcarriageReturn = true;
  EXPECT_EQ(OnSel(true, [&] { RunTagMenu(t.app, "mnuOtherHTMLSub", 1); }), "[<BR>\r\n]");
  EXPECT_EQ(OnSel(false, [&] { tbrBRMenuClick(t.app, "BRClearAll"); }), "[<br clear=\"all\">\r\n]");
  t.app.settings.BRcarriageReturn = false;
  EXPECT_EQ(OnSel(true, [&] { tbrBRMenuClick(t.app, "BRClearLeft"); }), "[<BR CLEAR=\"Left\">]");
  EXPECT_EQ(OnSel(true, [&] { tbrBRMenuClick(t.app, "BRClearRight"); }), "[<BR CLEAR=\"Right\">]");
  EXPECT_EQ(OnSel(true, [&] { tbrFormatClick(t.app, "BR"); }), "[<BR>]");
}

TEST_F(TagCommands, InsertMenuSingles) {
  const std::pair<const char*, const char*> singles[] = {{"mnuTableTable", "[<TABLE>Sel</TABLE>]"},
                                                         {"mnuTableData", "[<TD>Sel</TD>]"},
                                                         {"mnuTableHeader", "[<TH>Sel</TH>]"},
                                                         {"mnuTableRow", "[<TR>Sel</TR>]"},
                                                         {"mnuListItem", "[<LI>]"}};
  for (const auto& [name, expected] : singles)
    for (bool upper : {true, false})
      EXPECT_EQ(OnSel(upper, [&] { RunInsertCommand(t.app, name); }),
                upper ? std::string(expected) : Lower(expected))
          << name;
  t.app.settings.HRPropsBox = false;
  EXPECT_EQ(OnSel(false, [&] { EXPECT_EQ(mnuHR(t.app), ""); }), "[<hr>]");
  t.app.settings.HRPropsBox = true;
  // The dialog cancelled: both texts empty, nothing written.
  EXPECT_EQ(OnSel(true,
                  [&] {
                    ASSERT_EQ(mnuHR(t.app), "HorizontalLine");
                    mnuHR_Finish(t.app);
                  }),
            "[Sel]");
}

TEST_F(TagCommands, RepeatWrapsWithTheLastPairOnly) {
  Open("one two", true);
  mnuRepeat(t.app);  // nothing wrapped yet: nothing written
  EXPECT_EQ(edit->Text(), "one two");
  edit->Select(0, 3);
  RunTagMenu(t.app, "mnuHeadingsSub", 2);
  RunTagMenu(t.app, "mnuOtherHTMLSub", 1);  // inserts: the pair stays
  edit->Select(edit->Text().find("two"), 3);
  mnuRepeat(t.app);
  EXPECT_EQ(edit->Text(), "<H2><BR></H2> <H2>two</H2>");
}

TEST_F(TagCommands, FormatToolbarByKeyIgnoringCase) {
  const std::pair<const char*, const char*> buttons[] = {
      {"Bold", "[<B>Sel</B>]"},
      {"italic", "[<I>Sel</I>]"},
      {"UNDERLINE", "[<U>Sel</U>]"},
      {"Align Left", "[<P ALIGN=\"Left\">Sel</P>]"},
      {"Justify", "[<P ALIGN=\"Justify\">Sel</P>]"},
      {"Indent", "[<BLOCKQUOTE>Sel</BLOCKQUOTE>]"},
      {"Comment", "[<!--Sel-->]"}};
  for (const auto& [key, expected] : buttons)
    for (bool upper : {true, false})
      EXPECT_EQ(OnSel(upper, [&] { EXPECT_EQ(tbrFormatClick(t.app, key), ""); }),
                upper ? std::string(expected) : Lower(expected))
          << key;
  EXPECT_EQ(tbrFormatClick(t.app, "Format"), "FormatChar");
  EXPECT_EQ(tbrFormatClick(t.app, "HR"), "HorizontalLine");
}

TEST_F(TagCommands, ColorPickerWritesTheHexUnlessCancelled) {
  Open("ab", false);
  edit->SetSelStart(1);
  t.platform.colorDialog.Queue(0x00C0FF);
  ColorPickerClick(t.app);
  EXPECT_EQ(edit->Text(), "a#FFC000b");
  t.platform.colorDialog.QueueCancel();
  ColorPickerClick(t.app);
  EXPECT_EQ(edit->Text(), "a#FFC000b");
}

TEST_F(TagCommands, ShortcutBarTagsAndSnippets) {
  const std::pair<const char*, const char*> keys[] = {
      {"TD", "[<TD>Sel</TD>]"},
      {"TABLE", "[<TABLE>Sel</TABLE>]"},
      {"ASP%", "[<%Sel%>]"},
      {"ASP%=", "[<%=Sel%>]"},
      {"IncludeFile", "[<!--#include file=\"Sel\" -->]"},
      {"JSFunction", "[function functionName()\r\n{\r\n\tSel\r\n}]"},
      {"JSIfElse", "[if (condition)\r\n{\r\n\tSel\r\n} else if {\r\n\r\n} else {\r\n\r\n}]"},
      {"JSForNext", "[for (var i = startvalue; i <= maxvalue; i++)\r\n{\r\n\tSel\r\n}]"},
      {"JSDoWhile", "[do {\r\n\tSel\r\n} while(condition)]"},
  };
  for (const auto& [key, expected] : keys)
    EXPECT_EQ(OnSel(true, [&] { EXPECT_EQ(ShortcutBarClick(t.app, key), ""); }), expected) << key;
  EXPECT_EQ(OnSel(false, [&] { ShortcutBarClick(t.app, "JSFunction"); }),
            "[function functionname()\r\n{\r\n\tSel\r\n}]");
  EXPECT_EQ(OnSel(false, [&] { ShortcutBarClick(t.app, "IncludeFile"); }),
            "[<!--#include file=\"Sel\" -->]");
  EXPECT_EQ(OnSel(true, [&] { ShortcutBarClick(t.app, "JSswitch"); }),
            "[switch(expression)\r\n{\r\n\tcase label1:\r\n\t\t\r\n\t\tbreak;\r\n\r\n\tcase "
            "label2:\r\n\t\t\r\n\t\tbreak;\r\n\r\n\tdefault:\r\n\t\t\r\n}Sel]");
  EXPECT_EQ(ShortcutBarClick(t.app, "Script tags"), "ScriptTags");
  EXPECT_EQ(ShortcutBarClick(t.app, "Checkbox"), "FormElement:4");
  EXPECT_EQ(ShortcutBarClick(t.app, "JavaScript button"), "FormElement:10");
}

TEST_F(TagCommands, ShortcutBarWithoutADocumentOnlyHelps) {
  EXPECT_EQ(ShortcutBarClick(t.app, "TD"), "");
  EXPECT_EQ(ShortcutBarClick(t.app, "Script tags"), "");
  EXPECT_EQ(ShortcutBarClick(t.app, "Add custom button"), "Preferences:Custom buttons");
  // No help folder in this application folder: the missing page is told, not opened.
  ShortcutBarClick(t.app, "HowToUpload");
  ShortcutBarClick(t.app, "HelpfulWebSites");
  ASSERT_EQ(t.platform.shell.opened.size(), 1u);
  EXPECT_EQ(t.platform.shell.opened[0], "/opt/tessarine/helpfulsites.html");
  ASSERT_EQ(t.messages.shown().size(), 1u);
  EXPECT_NE(t.messages.shown()[0].text.find(HelpPagePath(t.app, 42)), std::string::npos);
}

TEST_F(TagCommands, CustomButtonsKeepTheirCase) {
  SettingsStore& s = t.store;
  s.SaveSetting("CustomButtons", "ButtonName2", "Big");
  s.SaveSetting("CustomButtons", "ButtonStartTag2", "<Big Class=\"X\">");
  s.SaveSetting("CustomButtons", "ButtonEndTag2", "</Big>");
  s.SaveSetting("CustomButtons", "ButtonName12", "Sig");
  s.SaveSetting("CustomButtons", "ButtonStartTag12", "-- Me");
  s.SaveSetting("CustomButtons", "ButtonStartTag5", "no name, no button");
  const std::vector<ShortcutItem> items = LoadCustomButtons(s);
  ASSERT_EQ(items.size(), 3u);
  EXPECT_EQ(items[0].key, "Add custom button");
  EXPECT_EQ(items[0].text, " Add custom button...");
  EXPECT_EQ(items[0].icon, "customAdd");
  EXPECT_EQ(items[1].key, "CustomButton2");
  EXPECT_EQ(items[2].key, "CustomButton12");
  EXPECT_EQ(items[2].icon, "button");
  EXPECT_EQ(ShortcutBarGroups(s)[4].items.size(), 3u);

  EXPECT_EQ(OnSel(false, [&] { ShortcutBarClick(t.app, "CustomButton2"); }),
            "[<Big Class=\"X\">Sel</Big>]");
  EXPECT_EQ(OnSel(false, [&] { ShortcutBarClick(t.app, "CustomButton12"); }), "[-- Me]");
}

}  // namespace
}  // namespace tessarine
