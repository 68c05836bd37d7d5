// Reading a document's style sheet into styles and writing rules back into its text.

#include <gtest/gtest.h>

#include <random>

#include "core/TestApp.h"
#include "styles/CSSFunctions.h"
#include "styles/StyleState.h"

namespace tessarine {
namespace {

TEST(StyleSheetText, SheetIsTheStyleBlockTheWholeStyleSheetOrNothing) {
  const std::string page =
      "<html><head><style type=\"text/css\">\r\nH1 {color:red}\r\n</Style></head></html>";
  EXPECT_EQ(DocumentStyleSheet(page, "/w/page.htm"), "\r\nH1 {color:red}\r\n");
  // A caption holding ".css" anywhere, in lower case, makes the whole text the sheet.
  EXPECT_EQ(DocumentStyleSheet(page, "/w/x.css.bak"), page);
  EXPECT_EQ(DocumentStyleSheet(page, "/w/X.CSS"), "\r\nH1 {color:red}\r\n");
  EXPECT_EQ(DocumentStyleSheet("<LINK REL=STYLESHEET HREF=\"a.css\">", "/w/p.htm"), "");
  EXPECT_EQ(DocumentStyleSheet("<style>H1 {color:red}", "/w/p.htm"), "");
  EXPECT_EQ(DocumentStyleSheet("<style", "p.htm"), "");
}

TEST(StyleSheetText, RuleScanKeepsGroupsWholeAndStopsAtAnUnclosedRule) {
  const auto rules = ScanStyleRules(
      "/* top */\r\nH1,\tH2 {color:red}\r\n.note\r\n{\r\n\tfont-size:9pt;\r\n}\r\n"
      "P { a:b } X {never closed");
  ASSERT_EQ(rules.size(), 3u);
  EXPECT_EQ(rules[0].selector, "/* top */H1,H2");  // a comment joins the selector
  EXPECT_EQ(rules[0].declarations, "color:red");
  EXPECT_EQ(rules[1].selector, ".note");
  EXPECT_EQ(rules[1].declarations, "\r\n\tfont-size:9pt;\r\n");
  EXPECT_EQ(rules[2].selector, "P");
  EXPECT_EQ(rules[2].declarations, " a:b ");

  // A "}" inside a comment ends the rule there; the rest reads as the next selector.
  const auto cut = ScanStyleRules("A {x:1 /* } */ y:2} B{z:3}");
  ASSERT_EQ(cut.size(), 2u);
  EXPECT_EQ(cut[0].declarations, "x:1 /* ");
  EXPECT_EQ(cut[1].selector, "*/ y:2} B");
}

TEST(StyleSheetText, LoadingKeepsTheFirstOfADuplicatedSelector) {
  StyleState state;
  const auto listed = LoadStyleRules(state, "H1 {color:red}\r\nh1 {color:blue}\r\nP{}");
  EXPECT_EQ(listed, (std::vector<std::string>{"H1", "h1", "P"}));
  ASSERT_EQ(state.Styles.Count(), 2u);
  EXPECT_EQ(state.Styles.Item("h1")->Color, "red");
  // The later duplicate was filled but belongs to no collection.
  EXPECT_EQ(state.CurrentStyle, state.Styles.Item("P"));
}

TEST(StyleSheetText, FindTakesTheFirstMatchFollowedOnlyByBlanks) {
  const std::string sheet =
      "XH1 {color:red}\r\nA:hover in text {x}\r\nA:HOVER\r\n\t{ color : blue ;\r\n}\r\nH1{x:y}";
  EXPECT_EQ(FindStyleDefinition("a:hover", sheet), " color : blue ;");
  // A match whose "{" is not adjacent hides any later match before that "{".
  EXPECT_EQ(FindStyleDefinition("P", "P X P {a:1}"), "");
  // A plain substring: the tail of "XH1" is a match for "H1".
  EXPECT_EQ(FindStyleDefinition("h1", sheet), "color:red");
  EXPECT_EQ(FindStyleDefinition("A:link", sheet), "");
  EXPECT_EQ(FindStyleDefinition("P", "P\n{a:b}"), "");  // a lone LF is no blank
  EXPECT_EQ(FindStyleDefinition("P", "P {a:b"), "");
  EXPECT_EQ(FindStyleDefinition("P", ""), "");
}

TEST(StyleSheetText, SplitValueAndUnitKeepsItsAsymmetry) {
  const struct {
    const char* value;
    const char* number;
    const char* unit;
  } cases[] = {
      {"12pt", "12", "pt"}, {" 12 pt ", "12", "pt"}, {"1.5em", "1", ".5em"}, {".5em", "5e", ".5"},
      {"-1px", "1p", "-1"}, {"700", "700", ""},      {"bold", "", "bold"},   {"", "", ""},
      {"x9", "", "x9"},     {"100%", "100", "%"},
  };
  for (const auto& c : cases) {
    std::string unit = "stale", number = "stale";
    SplitValueAndUnit(c.value, unit, number);
    EXPECT_EQ(number, c.number) << c.value;
    EXPECT_EQ(unit, c.unit) << c.value;
  }
}

TEST(StyleSheetText, ParseFillsFieldsAndKeepsUnknownPropertiesInOrder) {
  StyleState state;
  ParseStyleDefinition(state, ".x",
                       "FONT-SIZE : 12 pt;font-weight:700;color:Red;a:b;c;background:url(a.gif) "
                       "#fff;background-image:url(b.gif);Cursor: url(http://h/c.cur);"
                       "color:Blue;width:50%;z-index:2;:orphan;empty:");
  ASSERT_NE(state.CurrentStyle, nullptr);
  const CSSstyle& s = *state.CurrentStyle;
  EXPECT_EQ(state.Styles.Item(".x"), state.CurrentStyle);
  EXPECT_EQ(s.StyleName, ".x");
  EXPECT_EQ(s.Status, kStyleAsRead);
  EXPECT_EQ(s.FontSize, "12");
  EXPECT_EQ(s.FontSizeUnit, "pt");
  EXPECT_EQ(s.FontWeight, "");  // a number weight is lost
  EXPECT_EQ(s.Color, "Blue");   // the later one wins
  EXPECT_EQ(s.BackgroundImage, "url(a.gif) #fff");
  EXPECT_EQ(s.StyleWidth, "50");
  EXPECT_EQ(s.StyleWidthUnit, "%");
  EXPECT_EQ(s.ZIndex, "2");
  EXPECT_EQ(s.ExtraAttributes,
            "a:b;\r\nbackground-image:url(b.gif);\r\nCursor:url(http://h/c.cur);\r\n");

  ParseStyleDefinition(state, "P", "font-weight:normal;font-style:oblique;text-decoration:none");
  EXPECT_EQ(state.CurrentStyle->FontWeight, "normal");
  state.CurrentStyle->GetStyleDefinition();
  EXPECT_EQ(state.CurrentStyle->Definition,
            "font-weight:bold;font-style:italic;text-decoration:none;");
}

TEST(StyleSheetText, FormatLaysDeclarationsOutByMode) {
  std::string d = "a:b;\r\n\tc:d;  e:f;";
  FormatStyleDefinition(d, kStyleOneLine);
  EXPECT_EQ(d, "a:b;c:d; e:f;");  // one blank after a ";" goes, not two

  d = "a:b; c:d;";
  FormatStyleDefinition(d, kStyleForDisplay);
  EXPECT_EQ(d, "\r\n    a:b;\r\n    c:d;\r\n    ");

  d = "a:b;c:d;\r\n";
  FormatStyleDefinition(d, kStyleForDocument);
  EXPECT_EQ(d, "\ta:b;\r\n\tc:d;");
  d = "";
  FormatStyleDefinition(d, kStyleForDocument);
  EXPECT_EQ(d, "\t");
}

// The layouts spelled out step by step: line breaks and tabs out, then each "; " closed up
// (left to right, one blank each), then the semicolons spread by mode.
std::string ReplaceEach(const std::string& s, const std::string& from, const std::string& to) {
  std::string out;
  std::size_t at = 0;
  for (std::size_t hit; (hit = s.find(from, at)) != std::string::npos; at = hit + from.size())
    out += s.substr(at, hit - at) + to;
  return out + s.substr(at);
}

std::string LaidOutStepByStep(const std::string& text, int mode) {
  std::string d;
  for (char c : text)
    if (c != '\t' && c != '\r' && c != '\n') d += c;
  d = ReplaceEach(d, "; ", ";");
  if (mode == kStyleForDisplay) return "\r\n" + ReplaceEach("    " + d, ";", ";\r\n    ");
  if (mode == kStyleForDocument) {
    d = ReplaceEach("\t" + d, ";", ";\r\n\t");
    if (d.size() >= 3) d.resize(d.size() - 3);
  }
  return d;
}

TEST(StyleSheetText, LayoutsMatchTheStepByStepDefinitionOnAnyText) {
  const char alphabet[] = {';', ' ', '\t', '\r', '\n', 'a', ':', '\0', '\xff', '{'};
  std::mt19937 random(7);
  for (int round = 0; round < 20000; ++round) {
    std::string text;
    const auto length = random() % 40;
    for (unsigned i = 0; i < length; ++i) text += alphabet[random() % sizeof alphabet];
    for (int mode : {kStyleOneLine, kStyleForDisplay, kStyleForDocument}) {
      std::string d = text;
      FormatStyleDefinition(d, mode);
      ASSERT_EQ(d, LaidOutStepByStep(text, mode)) << "mode " << mode << " text [" << text << "]";
    }
  }
}

std::string Written(std::string text, const std::string& selector, const std::string& decl,
                    bool embedded, bool remove) {
  ApplyTextEdits(text, StyleWriteEdits(text, selector, decl, embedded, remove));
  return text;
}

TEST(StyleSheetText, WritingReplacesTheBodyAndKeepsTheSelectorAsItStood) {
  const std::string page = "<STYLE>\r\nh1 {color:red}\r\np{}\r\n</STYLE>";
  EXPECT_EQ(Written(page, "H1", "\tcolor:blue;", true, false),
            "<STYLE>\r\nh1 {\r\n\tcolor:blue;\r\n}\r\np{}\r\n</STYLE>");
  EXPECT_EQ(Written(page, "H1", "", true, true), "<STYLE>\r\n\r\np{}\r\n</STYLE>");
  // Not there: the rule goes first in the block; a removal of it writes it too.
  const std::string added =
      "<STYLE>\r\n.n\r\n{\r\n\tx:y;\r\n}\r\n\r\nh1 {color:red}\r\np{}\r\n</STYLE>";
  EXPECT_EQ(Written(page, ".n", "\tx:y;", true, false), added);
  EXPECT_EQ(Written(page, ".n", "\tx:y;", true, true), added);
}

TEST(StyleSheetText, WritingFindsOddMatchesAsTheSearchOrderGives) {
  // "td" is found as the tail of "#td", so the wrong rule is replaced.
  EXPECT_EQ(Written("<style>#td {a:1}\r\ntd {b:2}</style>", "td", "c:3", true, false),
            "<style>#td {\r\nc:3\r\n}\r\ntd {b:2}</style>");
  // The selector in the page's text is skipped when its next "{" is not adjacent...
  EXPECT_EQ(Written("<p>.note</p><style>.a {}\r\n.NOTE{a:1}</style>", ".note", "b", true, false),
            "<p>.note</p><style>.a {}\r\n.NOTE{\r\nb\r\n}</style>");
  // ...and a match skipped that way hides a later one before the same "{".
  EXPECT_EQ(Written("<style>P X P {a:1}</style>", "p", "b", true, false),
            "<style>\r\np\r\n{\r\nb\r\n}\r\nP X P {a:1}</style>");
  // Two rules of one selector: the first in the text is written.
  EXPECT_EQ(Written("<style>H1{a}h1{b}</style>", "h1", "c", true, false),
            "<style>H1{\r\nc\r\n}h1{b}</style>");
  // The closing "}" is searched in the whole text, beyond the block.
  EXPECT_EQ(Written("<style>P {a</style><p>}", "P", "b", true, false), "<style>P {\r\nb\r\n}");
}

TEST(StyleSheetText, WritingCreatesTheBlockWhereThePageHasNone) {
  EXPECT_EQ(Written("<HTML>\r\n<HEAD>\r\n</HEAD>\r\n</HTML>", "P", "a", true, false),
            "<HTML>\r\n<HEAD>\r\n\r\n<STYLE type=\"text/css\">\r\nP\r\n{\r\na\r\n}\r\n"
            "\r\n\r\n</STYLE>\r\n\r\n</HEAD>\r\n</HTML>");
  // Without a head the block goes one character past "<HTML>", between its CR and LF.
  EXPECT_EQ(Written("<html>\r\n<body></body></html>", "P", "a", true, false),
            "<html>\r\r\n<HEAD>\r\n<STYLE type='text/css'>\r\nP\r\n{\r\na\r\n}\r\n\r\n"
            "\r\n</STYLE>\r\n\r\n</HEAD>\n<body></body></html>");
  // Neither tag: offset 6 of whatever stands there; a shorter text gets it at its end.
  EXPECT_EQ(Written("abcdefgh", "P", "a", true, false).substr(0, 16), "abcdef\r\n<HEAD>\r\n");
  EXPECT_EQ(Written("ab", "P", "a", true, false).substr(0, 10), "ab\r\n<HEAD>");
  // "</HEAD>" at the very start does not count.
  EXPECT_EQ(Written("</HEAD>x", "P", "a", true, false).substr(0, 14), "</HEAD\r\n<HEAD>");
}

TEST(StyleSheetText, AStyleSheetGetsNewRulesAtItsEnd) {
  EXPECT_EQ(Written("P {a}", ".n", "\tb;", false, false), "P {a}\r\n.n\r\n{\r\n\tb;\r\n}\r\n");
  EXPECT_EQ(Written("P {a}\r\nQ {b}", "q", "", false, true), "P {a}\r\n");
}

TEST(StyleSheetText, WriteEditsTheActiveDocumentThroughItsSelection) {
  testing::TestApp t;
  auto& w = t.NewWindow("<html><head><style>\r\nH1 {color:red}\r\n</style></head></html>");
  WriteStyleDefinition(t.app, "h1", "\tcolor:blue;", true, false);
  EXPECT_EQ(w.Buffer().Text(),
            "<html><head><style>\r\nH1 {\r\n\tcolor:blue;\r\n}\r\n</style></head></html>");
  EXPECT_TRUE(t.Changed(w));
  WriteStyleDefinition(t.app, "h1", "", true, true);
  EXPECT_EQ(w.Buffer().Text(), "<html><head><style>\r\n\r\n</style></head></html>");
}

}  // namespace
}  // namespace tessarine
