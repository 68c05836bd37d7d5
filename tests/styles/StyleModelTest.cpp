// The style model: the declarations a style writes, and the keyed collection.

#include <gtest/gtest.h>

#include "styles/CSSStyleCollection.h"
#include "styles/CSSstyle.h"

namespace tessarine {
namespace {

TEST(StyleModel, DefinitionFollowsTheFixedOrderHeightBeforeWidth) {
  CSSstyle s;
  s.ZIndex = "3";
  s.Visibility = "hidden";
  s.Position = "absolute";
  s.StyleTop = "1";
  s.StyleTopUnit = "px";
  s.StyleLeft = "2";
  s.StyleLeftUnit = "em";
  s.StyleWidth = "30";
  s.StyleWidthUnit = "%";
  s.StyleHeight = "40";  // no unit: the number stands alone
  s.BackgroundRepeat = "repeat-x";
  s.BackgroundImage = "url(a.gif)";
  s.BackgroundColor = "#fff";
  s.LineHeight = "12";
  s.LineHeightUnit = "pt";
  s.LetterSpacing = "-1";
  s.LetterSpacingUnit = "px";
  s.TextIndent = "5";
  s.TextIndentUnit = "mm";
  s.TextAlign = "center";
  s.VerticalAlign = "subscript";
  s.TextDecoration = "underline";
  s.FontVariant = "small caps";
  s.FontStyle = "oblique";
  s.FontWeight = "normal";
  s.TextTransform = "uppercase";
  s.Color = "red";
  s.FontSize = "12";
  s.FontSizeUnit = "pt";
  s.FontFamily = "Arial";
  s.GetStyleDefinition();
  EXPECT_EQ(s.Definition,
            "font-family:Arial;font-size:12pt;color:red;text-transform:uppercase;"
            "font-weight:bold;font-style:italic;font-variant:small-caps;"
            "text-decoration:underline ;vertical-align:subscript;text-align:center;"
            "text-indent:5mm;letter-spacing:-1px;line-height:12pt;background-color:#fff;"
            "background-image:url(a.gif);background-repeat:repeat-x;height:40;width:30%;"
            "left:2em;top:1px;position:absolute;visibility:hidden;z-index:3;");
}

TEST(StyleModel, DefinitionLeavesOutEmptyFieldsAndEndsWithTheExtras) {
  CSSstyle s;
  s.Definition = "old";
  s.GetStyleDefinition();
  EXPECT_EQ(s.Definition, "");

  s.FontSizeUnit = "pt";  // a unit without its number writes nothing
  s.ExtraAttributes = "border:1px solid;\r\ncursor:hand;\r\n";
  s.Color = "blue";
  s.GetStyleDefinition();
  EXPECT_EQ(s.Definition, "color:blue;border:1px solid;\r\ncursor:hand;\r\n");
}

TEST(StyleModel, DecorationTestsHeedCaseExceptForNone) {
  const struct {
    const char* field;
    const char* written;
  } cases[] = {
      {"underline", "underline "},
      {"UNDERLINE", ""},
      {"NONE", "none"},
      {"none", "none"},
      {"underline none", "underline "},
      {"underline overline line-through", "underline overline line-through"},
      {"line-through overline", "overline line-through"},
      {"blink", ""},
  };
  for (const auto& c : cases) {
    CSSstyle s;
    s.TextDecoration = c.field;
    s.GetStyleDefinition();
    const std::string expected =
        *c.written ? std::string("text-decoration:") + c.written + ";" : std::string();
    EXPECT_EQ(s.Definition, expected) << c.field;
  }
}

CSSstyle Named(const std::string& name) {
  CSSstyle s;
  s.StyleName = name;
  return s;
}

TEST(StyleModel, CollectionKeysIgnoreCaseAndTheFirstStays) {
  CSSStyleCollection styles;
  ASSERT_NE(styles.Add(Named("H1"), "H1"), nullptr);
  EXPECT_EQ(styles.Add(Named("h1"), "h1"), nullptr);
  EXPECT_EQ(styles.Count(), 1u);
  ASSERT_NE(styles.Item("h1"), nullptr);
  EXPECT_EQ(styles.Item("h1")->StyleName, "H1");
  EXPECT_EQ(styles.Item("P"), nullptr);
  EXPECT_EQ(styles.Item(std::size_t{0}), nullptr);
  EXPECT_EQ(styles.Item(std::size_t{2}), nullptr);
}

TEST(StyleModel, KeylessStylesAreReachedByIndexAndEnumerationInOrder) {
  CSSStyleCollection styles;
  styles.Add(Named(".a"), ".a");
  styles.Add(Named("loose"), "");
  styles.Add(Named("loose too"), "");
  styles.Add(Named("#b"), "#b");
  EXPECT_EQ(styles.Item("loose"), nullptr);
  ASSERT_NE(styles.Item(std::size_t{2}), nullptr);
  EXPECT_EQ(styles.Item(std::size_t{2})->StyleName, "loose");
  std::string order;
  for (const CSSstyle& s : styles) order += s.StyleName + "|";
  EXPECT_EQ(order, ".a|loose|loose too|#b|");

  EXPECT_TRUE(styles.Remove(".A"));
  EXPECT_FALSE(styles.Remove(".a"));
  EXPECT_TRUE(styles.Remove(std::size_t{1}));  // "loose"
  EXPECT_EQ(styles.Count(), 2u);
  EXPECT_EQ(styles.Item(std::size_t{1})->StyleName, "loose too");
  // The key is free again once its style is gone.
  EXPECT_NE(styles.Add(Named(".a"), ".a"), nullptr);
}

TEST(StyleModel, AStyleOutlivesTheCollectionWhileHeld) {
  CSSStyleCollection::StylePtr held;
  {
    CSSStyleCollection styles;
    held = styles.Add(Named("P"), "P");
    styles.Clear();
    EXPECT_EQ(styles.Count(), 0u);
    EXPECT_EQ(styles.Item("P"), nullptr);
  }
  EXPECT_EQ(held->StyleName, "P");
}

}  // namespace
}  // namespace tessarine
