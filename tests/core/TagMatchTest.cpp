#include "core/TagMatch.h"

#include <gtest/gtest.h>

#include <string>

namespace tessarine {
namespace {

// "|" marks the caret, "[" "]" the expected tag and pair ranges in either order.
struct Case {
  const char* marked;
  bool found;
};

TEST(TagMatch, PairsFoundFromEitherEndAcrossNestingAndCase) {
  const Case cases[] = {
      {"[<p]|>text[</p]>", true},
      {"[<p]>text[</P]|>", true},                // caret in the closing tag, other case
      {"[<div]| class=\"a>b\">[</div]>", true},  // ">" inside a value is no end
      {"[<ul]|><ul><li>x</ul>[</ul]>", true},
      {"<ul>[<ul]|><li>x[</ul]></ul>", true},
      {"[<p]>a<!-- </p> -->b[</p]|>", true},  // comments are skipped both ways
      {"[<p]|>a<!-- </p> -->b[</p]>", true},
      {"<br|>text</br>", false},  // void elements pair with nothing
      {"<img src=x/|>", false},
      {"<p|>unclosed", false},
      {"text | <p>x</p>", false},  // caret outside any tag
      {"[<p]>x[</p]>|", true},     // just behind a tag counts
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.marked);
    std::string text;
    Pos caret = -1;
    std::vector<Pos> marks;
    for (const char* p = c.marked; *p; ++p) {
      if (*p == '|')
        caret = static_cast<Pos>(text.size());
      else if (*p == '[' || *p == ']')
        marks.push_back(static_cast<Pos>(text.size()));
      else
        text += *p;
    }
    const TagMatch m = FindMatchingTag(text, 0, caret);
    ASSERT_EQ(m.found, c.found);
    if (!c.found) continue;
    ASSERT_EQ(marks.size(), 4u);
    const Pos a = std::min(m.tagStart, m.matchStart), b = std::max(m.tagStart, m.matchStart);
    EXPECT_EQ(a, marks[0]);
    EXPECT_EQ(b, marks[2]);
    const Pos la = m.tagStart < m.matchStart ? m.tagLength : m.matchLength;
    const Pos lb = m.tagStart < m.matchStart ? m.matchLength : m.tagLength;
    EXPECT_EQ(la, marks[1] - marks[0]);
    EXPECT_EQ(lb, marks[3] - marks[2]);
  }
}

TEST(TagMatch, WindowOffsetsAndReachAreHonoured) {
  const std::string text = "<b>" + std::string(5000, 'x') + "</b>";
  const TagMatch near = FindMatchingTag(text, 100, 101);
  ASSERT_TRUE(near.found);
  EXPECT_EQ(near.tagStart, 100);
  EXPECT_EQ(near.matchStart, 100 + 5003);
  EXPECT_FALSE(FindMatchingTag(text, 100, 101, 1000).found) << "the pair lies beyond the reach";
  EXPECT_FALSE(FindMatchingTag(text, 100, 50).found) << "caret before the window";
  EXPECT_FALSE(FindMatchingTag("", 0, 0).found);
  EXPECT_FALSE(FindMatchingTag("<", 0, 1).found);
}

}  // namespace
}  // namespace tessarine
