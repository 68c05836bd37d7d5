// Malformed and huge sheets: reading ends, and writing changes nothing outside the rule it
// writes.

#include <gtest/gtest.h>

#include "styles/CSSFunctions.h"
#include "styles/StyleManager.h"
#include "styles/StyleSheetWriter.h"
#include "styles/StyleState.h"

namespace tessarine {
namespace {

TEST(StyleBadInput, UnclosedCommentsStringsAndBracesEndTheReading) {
  const struct {
    const char* sheet;
    std::size_t rules;
  } cases[] = {
      {"/* H1 {color:red}", 1},  // the comment joins the selector
      {"H1 {font-family:\"Arial; color:red}", 1},
      {"H1 {color:red", 0},
      {"H1 {a:b} P {", 1},
      {"}}}{", 0},
      {"{}{}{}", 2},  // the character behind a "}" is never looked at for the next "{"
      {"", 0},
  };
  for (const auto& c : cases) {
    StyleState state;
    EXPECT_EQ(LoadStyleRules(state, c.sheet).size(), c.rules) << c.sheet;
  }
}

TEST(StyleBadInput, AnUnclosedRuleKeepsItsTextWhenWritten) {
  std::string text = "<style>H1 {color:red</style>";
  ApplyTextEdits(text, StyleWriteEdits(text, "H1", "a:b;", true, false));
  EXPECT_EQ(text, "<style>H1 {\r\na:b;\r\n}{color:red</style>");
  std::string kept = "<style>H1 {color:red</style>";
  ApplyTextEdits(kept, StyleWriteEdits(kept, "H1", "", true, true));
  EXPECT_EQ(kept, "<style>H1 {color:red</style>");
}

TEST(StyleBadInput, NulBytesAndInvalidUtf8SurviveAroundTheRuleWritten) {
  const std::string before = std::string("<style>\0\xff\xfe", 10) + "\r\n";
  const std::string after = std::string("\r\n\xc3(\0Q {z}</style>\x80", 19);
  const std::string text = before + std::string("P\xe9 {x\0y}", 8) + after;
  std::string written = text;
  ApplyTextEdits(written, StyleWriteEdits(written, "p\xe9", "\tc:d;", true, false));
  EXPECT_EQ(written, before + "P\xe9 {\r\n\tc:d;\r\n}" + after);

  StyleState state;
  const auto listed = LoadStyleRules(state, DocumentStyleSheet(text, "/w/p.htm"));
  ASSERT_EQ(listed.size(), 2u);
  EXPECT_EQ(listed[0], std::string("\0\xff\xfeP\xe9", 5));
  EXPECT_EQ(state.Styles.Item(std::size_t{1})->Definition, std::string("x\0y", 3));
}

TEST(StyleBadInput, TenMegabytesOnOneLineAreReadAndWrittenBack) {
  std::string sheet;
  const std::string body(1000, 'a');
  for (int i = 0; sheet.size() < 10'000'000; ++i)
    sheet += ".r" + std::to_string(i) + " {color:red; " + body + ":b}";
  StyleState state;
  const auto listed = LoadStyleRules(state, sheet);
  ASSERT_GT(listed.size(), 9000u);
  EXPECT_EQ(state.Styles.Count(), listed.size());
  EXPECT_EQ(state.Styles.Item(".r7")->Color, "red");

  // Unchanged: byte-identical; the last rule changed: only its body differs.
  EXPECT_EQ(WriteStyleDefinitions(sheet, SaveStylesWrites(state.Styles, "big.css")), sheet);
  auto last = state.Styles.Item(listed.size());
  last->Status = kStyleChanged;
  last->Color = "blue";
  last->GetStyleDefinition();
  const std::string written =
      WriteStyleDefinitions(sheet, SaveStylesWrites(state.Styles, "big.css"));
  const std::size_t open = sheet.rfind('{');
  EXPECT_EQ(written.substr(0, open), sheet.substr(0, open));
  EXPECT_EQ(written.substr(open), "{\r\n\tcolor:blue;\r\n\t" + body + ":b;\r\n}");

  // One rule that never closes, and no braces at all.
  StyleState none;
  EXPECT_TRUE(LoadStyleRules(none, "x {" + std::string(10'000'000, 'y')).empty());
  EXPECT_TRUE(LoadStyleRules(none, std::string(10'000'000, ';')).empty());
  EXPECT_TRUE(LoadStyleRules(none, std::string_view()).empty());  // a page without a sheet
}

}  // namespace
}  // namespace tessarine
