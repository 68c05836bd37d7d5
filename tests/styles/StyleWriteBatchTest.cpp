// The one-pass writer against rules written one after another: the same bytes, on pages
// built from fragments that provoke the odd matches.

#include <gtest/gtest.h>

#include <random>

#include "styles/CSSFunctions.h"
#include "styles/StyleSheetWriter.h"

namespace tessarine {
namespace {

std::string OneByOne(std::string text, const std::vector<StyleWrite>& writes) {
  for (const StyleWrite& w : writes)
    ApplyTextEdits(
        text, StyleWriteEdits(text, w.selector, DeclarationsAsWritten(w), w.embedded, w.remove));
  return text;
}

std::string Describe(const std::string& text, const std::vector<StyleWrite>& writes) {
  std::string d = "text: [" + text + "]\n";
  for (const StyleWrite& w : writes)
    d += "write [" + std::string(w.selector) + "] [" + std::string(w.declarations) + "] embedded " +
         std::to_string(w.embedded) + " remove " + std::to_string(w.remove) + " one line " +
         std::to_string(w.oneLine) + "\n";
  return d;
}

TEST(StyleWriteBatch, MatchesWritingOneRuleAfterAnother) {
  const std::vector<std::string> fragments = {"<html>",
                                              "<head>",
                                              "</head>",
                                              "<style>",
                                              "</style>",
                                              "<STYLE type=\"text/css\">",
                                              "H1",
                                              "h1",
                                              "#td",
                                              "td",
                                              "TD",
                                              "P",
                                              ".note",
                                              "{",
                                              "}",
                                              " ",
                                              "\r\n",
                                              "\n",
                                              "\r",
                                              "\t",
                                              ";",
                                              "color:red",
                                              "/* } */",
                                              "X",
                                              ">",
                                              "<",
                                              "A:hover",
                                              "\"",
                                              std::string(1, '\0'),
                                              "\xff\xfe",
                                              "<p>P is here</p>",
                                              "body"};
  const std::vector<std::string> selectors = {"td",      "TD",    "#td",  "h1",     "P", ".note",
                                              "A:HOVER", "P X",   ".new", "x ",     "",  "{td",
                                              "td}",     "\r\nP", "BODY", "<STYLE", ">"};
  const std::vector<std::string> bodies = {"\ta:b;", "", "{", "}", "c:d;\r\n\te:f;", "td {x}"};
  std::mt19937 random(20261123);
  auto pick = [&random](const auto& v) -> const auto& {
    return v[random() % v.size()];
  };
  for (int round = 0; round < 4000; ++round) {
    std::string text;
    const int length = static_cast<int>(random() % 40);
    for (int i = 0; i < length; ++i) text += pick(fragments);
    std::vector<StyleWrite> writes;
    const int count = 1 + static_cast<int>(random() % 6);
    for (int i = 0; i < count; ++i)
      writes.push_back(
          {pick(selectors), pick(bodies), random() % 4 != 0, random() % 3 == 0, random() % 2 == 0});
    const std::string expected = OneByOne(text, writes);
    const std::string actual = WriteStyleDefinitions(text, writes);
    ASSERT_EQ(actual, expected) << Describe(text, writes);
  }
}

TEST(StyleWriteBatch, RewritesEveryRuleOfALargeSheetInPlace) {
  std::string sheet = "<html><head><style>\r\n";
  std::vector<std::string> names;
  for (int i = 0; i < 300; ++i) names.push_back((i % 3 ? ".c" : "#i") + std::to_string(i));
  std::vector<StyleWrite> writes;
  for (int i = 0; i < 300; ++i) {
    sheet += names[i] + " {color:red}\r\n";
    writes.push_back({names[i], "color:blue; z:1;", true, i % 7 == 0, true});
  }
  sheet += "</style></head><body>.c1 {</body></html>";
  writes.push_back({".added", "\tz:1;", true, false});
  EXPECT_EQ(WriteStyleDefinitions(sheet, writes), OneByOne(sheet, writes));
}

}  // namespace
}  // namespace tessarine
