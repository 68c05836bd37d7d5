// The stripper's tag, entity and line rules, and `tessarine-site strip`.
#include <gtest/gtest.h>

#include "sitetools/HtmlStripper.h"
#include "sitetools/PageToolRun.h"

namespace tessarine {
namespace {

using pagetooltest::RunTool;
using pagetooltest::TempFolder;

const std::string kRule = "\r\n" + std::string(93, '-') + "\r\n";

struct StripCase {
  const char* name;
  std::string page;
  std::string expected;
};

TEST(HtmlStripper, TagsEntitiesAndLineEnds) {
  const StripCase cases[] = {
      {"plain text is one line", "Hello", "Hello\r\n"},
      {"empty page still writes its last line", "", "\r\n"},
      {"heading end breaks the line", "<H1>Title</H1>", "Title\r\n\r\n"},
      {"tags fold case", "a<br>b<li>c</center>d", "a\r\nb\r\nc\r\nd\r\n"},
      {"other tags vanish", "<B CLASS=x>bold</B>", "bold\r\n"},
      {"image leaves a mark", "a<IMG SRC=\"x.gif\">b", "a [IMAGE] b\r\n"},
      {"rule", "a<HR SIZE=2>b", "a" + kRule + "b\r\n"},
      {"line break inside a tag goes with it", "a<B\r\nCLASS=x>b", "ab\r\n"},
      {"an unclosed tag swallows the rest", "abc<def ghi", "abc\r\n"},
      {"CR LF is a blank, a lone LF stays", "a\r\nb\nc", "a b\nc\r\n"},
      {"named entities", "&quot;&lt;b&gt; &AMP;&nbsp;x&ouml;", "\"<b> & xo\r\n"},
      {"single letters leave the rest", "&eacute; &copy; &aelig; &Uuml;",
       "eacute; copy; aelig; uuml;\r\n"},
      {"unknown entity drops its ampersand", "&zeta; a & b", "zeta; a  b\r\n"},
      {"latin n tilde", "ma&ntilde;ana",
       "ma\xF1"
       "ana\r\n"},
  };
  for (const auto& c : cases) EXPECT_EQ(StripHtml(c.page, false), c.expected) << c.name;
  EXPECT_EQ(StripHtml("ma&ntilde;ana", true),
            "ma\xC3\xB1"
            "ana\r\n");
}

TEST(HtmlStripper, EightyCharacterRuleIsOneEqualityTest) {
  const std::string a80(80, 'a'), a79(79, 'a');
  // Exactly 80 give a line and an empty last line.
  EXPECT_EQ(StripHtml(a80, false), a80 + "\r\n\r\n");
  EXPECT_EQ(StripHtml(a80 + a80 + "b", false), a80 + "\r\n" + a80 + "\r\nb\r\n");
  // A break from a tag stays in the buffer and counts two.
  EXPECT_EQ(StripHtml(std::string(77, 'a') + "<BR>b" + a80, false),
            std::string(77, 'a') + "\r\nb\r\n" + a80 + "\r\n\r\n");
  // A jump past 80 misses the mark: the line runs on to the end.
  const std::string after(200, 'b');
  EXPECT_EQ(StripHtml("x<HR>" + after, false), "x" + kRule + after + "\r\n");
  EXPECT_EQ(StripHtml(a79 + "<BR>" + after, false), a79 + "\r\n" + after + "\r\n");
  // A UTF-8 page counts characters, a single-byte page bytes.
  const std::string accented = a79 + "\xC3\xA9" + "z";
  EXPECT_EQ(StripHtml(accented, true), a79 + "\xC3\xA9\r\nz\r\n");
  EXPECT_EQ(StripHtml(accented, false), a79 + "\xC3\r\n\xA9z\r\n");
}

TEST(HtmlStripper, Utf8Validity) {
  EXPECT_TRUE(IsValidUtf8("plain \xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80"));
  EXPECT_FALSE(IsValidUtf8("caf\xE9"));       // Windows-1252
  EXPECT_FALSE(IsValidUtf8("\xC0\xAF"));      // overlong
  EXPECT_FALSE(IsValidUtf8("\xED\xA0\x80"));  // surrogate
  EXPECT_FALSE(IsValidUtf8("\xE2\x82"));      // cut short
}

TEST(StripCli, WritesToStandardOutputOrToAFile) {
  TempFolder folder;
  folder.Write("page.html", "<P>Hello&nbsp;<B>world</B></P>");
  auto run = RunTool(folder, "strip page.html");
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.out, "Hello world\r\n");
  run = RunTool(folder, "strip page.html -o out.txt");
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.out, "");
  EXPECT_EQ(folder.Read("out.txt"), "Hello world\r\n");
}

TEST(StripCli, HelpUsageAndUnreadableInput) {
  TempFolder folder;
  auto run = RunTool(folder, "strip --help");
  EXPECT_EQ(run.status, 0);
  EXPECT_NE(run.out.find("usage: tessarine-site strip PAGE"), std::string::npos);
  EXPECT_EQ(RunTool(folder, "strip").status, 2);
  EXPECT_EQ(RunTool(folder, "strip a.html b.html").status, 2);
  run = RunTool(folder, "strip missing.html -o out.txt");
  EXPECT_EQ(run.status, 2);
  EXPECT_NE(run.err.find("missing.html"), std::string::npos);
  EXPECT_FALSE(folder.Exists("out.txt"));
}

}  // namespace
}  // namespace tessarine
