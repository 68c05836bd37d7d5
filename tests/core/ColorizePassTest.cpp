// The pure colouring passes on awkward input, and how often they yield.

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "core/Colorize.h"
#include "core/Styles.h"

namespace tessarine {
namespace {

using namespace std::string_literals;

struct PassRun {
  PassResult result;
  std::vector<Style> styles;
  // One letter per character: . plain, t tag, b table, q quote, c comment, s server, g grey.
  std::string Letters() const {
    std::string out;
    for (Style s : styles) out += ".tbqcsgf"[static_cast<int>(KindOf(s))];
    return out;
  }
};

PassRun Tags(const std::string& text, const PassYield& yield = {}) {
  PassRun r;
  r.styles.resize(text.size());
  r.result = ColorizeTags(text, ColorizeOptions{}, r.styles.data(), yield);
  return r;
}

PassRun Script(const std::string& text, const PassYield& yield = {}) {
  PassRun r;
  r.styles.resize(text.size());
  r.result = ColorizeScriptComments(text, false, r.styles.data(), yield);
  return r;
}

TEST(ColorizePass, NulBytesAndInvalidUtf8AreOrdinaryCharacters) {
  const std::string text = "a\0b<B\0 x=\"\0\xff\">c\xc3(\0<!--\0\xfe-->"s;
  const PassRun r = Tags(text);
  EXPECT_EQ(r.result.end, PassEnd::Finished);
  EXPECT_EQ(r.Letters(), "...ttttttqqqqt....ccccccccc");

  const PassRun s = Script("\xff# \0\xc3\n#!\0\n\0"s);
  EXPECT_EQ(s.result.end, PassEnd::Finished);
  EXPECT_EQ(s.Letters(), ".ggggg.....");
  EXPECT_TRUE(IsBold(s.styles[7]));
}

TEST(ColorizePass, UnterminatedMarkupAtTheEndStopsThePass) {
  struct Case {
    std::string text;
    PassEnd end;
    const char* letters;
  };
  const Case cases[] = {
      {"<B>x</B", PassEnd::Abandoned, "ttt...."},
      {"<A HREF=\"x", PassEnd::Abandoned, "ttttttttqq"},
      {"<A HREF=\"", PassEnd::Abandoned, "ttttttttq"},
      {"<% a \"b", PassEnd::Abandoned, "sssssqq"},
      {"<%", PassEnd::Abandoned, ".."},
      {"<", PassEnd::Abandoned, "."},
      {"<TABLE", PassEnd::Abandoned, "......"},
      {"x <!-- open", PassEnd::Finished, "..........."},
      {"<!-- a --><B", PassEnd::Abandoned, "cccccccccc.."},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.text);
    const PassRun r = Tags(c.text);
    EXPECT_EQ(r.result.end, c.end);
    EXPECT_EQ(r.Letters(), c.letters);
  }
  // The abandoned walk reports where it stood and the last selection it made.
  const PassRun r = Tags("<B>x</B");
  EXPECT_EQ(r.result.position, 6);
  EXPECT_EQ(r.result.lastSelStart, 0);
  EXPECT_EQ(r.result.lastSelLength, 3);

  EXPECT_EQ(Script("a\n# last").result.end, PassEnd::Abandoned);
  EXPECT_EQ(Script("a\n# last").Letters(), "........");
  EXPECT_EQ(Script("#!/bin/sh").result.end, PassEnd::Finished);
}

TEST(ColorizePass, ASingleTenMegabyteLineEndsSensibly) {
  const std::string filler(10 * 1024 * 1024, 'a');

  const PassRun plain = Tags(filler);
  EXPECT_EQ(plain.result.end, PassEnd::Finished);
  EXPECT_EQ(plain.styles.back(), MakeStyle(StyleKind::Plain));

  const PassRun tag = Tags("<B " + filler + ">x");
  EXPECT_EQ(tag.result.end, PassEnd::Finished);
  EXPECT_EQ(tag.styles[tag.styles.size() - 2], MakeStyle(StyleKind::Tag));
  EXPECT_EQ(tag.styles.back(), MakeStyle(StyleKind::Plain));

  const PassRun quote = Tags("<A HREF=\"" + filler);
  EXPECT_EQ(quote.result.end, PassEnd::Abandoned);
  EXPECT_EQ(quote.styles.back(), MakeStyle(StyleKind::Quote));

  const PassRun comment = Tags("<!--" + filler);
  EXPECT_EQ(comment.result.end, PassEnd::Finished);
  EXPECT_EQ(comment.styles[0], MakeStyle(StyleKind::Plain));

  const PassRun script = Script("# " + filler);
  EXPECT_EQ(script.result.end, PassEnd::Abandoned);
}

// Counts the yields and checks that the walk only moves forward.
struct YieldLog {
  std::vector<Pos> positions;
  size_t cancelAt = 0;  // the call (1-based) that answers Esc; 0 for never
  PassYield Fn() {
    return [this](Pos p) {
      positions.push_back(p);
      return positions.size() == cancelAt;
    };
  }
};

TEST(ColorizePass, YieldsAboutOncePerChunkWhateverTheText) {
  std::string dense;
  while (dense.size() < 1024 * 1024) dense += "<B>x</B>\n";
  const std::string sparse = std::string(1024 * 1024, 'x') + "<P>";
  std::string script;
  while (script.size() < 1024 * 1024) script += "# note\nx\n";
  const std::string sparseScript = std::string(1024 * 1024, 'x') + "\n# z\n";

  using Sample = std::pair<const std::string*, bool>;
  for (const auto& [text, isScript] : {Sample{&dense, false}, Sample{&sparse, false},
                                       Sample{&script, true}, Sample{&sparseScript, true}}) {
    YieldLog log;
    const PassRun r = isScript ? Script(*text, log.Fn()) : Tags(*text, log.Fn());
    EXPECT_EQ(r.result.end, PassEnd::Finished);
    const auto chunks = text->size() / static_cast<size_t>(kPassChunk);
    EXPECT_GE(log.positions.size(), chunks);
    EXPECT_LE(log.positions.size(), chunks + 2);
    EXPECT_TRUE(std::is_sorted(log.positions.begin(), log.positions.end()));
  }
}

TEST(ColorizePass, EscAtAYieldCancelsAndKeepsWhatWasLaid) {
  std::string text;
  while (text.size() < 512 * 1024) text += "<B>x</B>\n";
  YieldLog log;
  log.cancelAt = 3;
  const PassRun r = Tags(text, log.Fn());
  ASSERT_EQ(r.result.end, PassEnd::Cancelled);
  EXPECT_EQ(log.positions.size(), 3u);
  EXPECT_GE(r.result.position, 2 * kPassChunk);
  EXPECT_LT(r.result.position, 3 * kPassChunk);
  const auto cut = static_cast<size_t>(r.result.position);
  EXPECT_EQ(r.styles[cut - 1], MakeStyle(StyleKind::Tag));  // the tag just before the stop
  for (size_t i = cut; i < r.styles.size(); ++i)
    ASSERT_EQ(r.styles[i], MakeStyle(StyleKind::Plain)) << i;

  // An Esc seen at the very last yield still cancels rather than being lost.
  const std::string tail = "<B>" + std::string(2 * kPassChunk - 3, 'x');
  YieldLog last;
  last.cancelAt = 3;
  EXPECT_EQ(Tags(tail, last.Fn()).result.end, PassEnd::Cancelled);
  EXPECT_EQ(last.positions.back(), static_cast<Pos>(tail.size()));
}

}  // namespace
}  // namespace tessarine
