// The stripper and spell check as editor commands, on the headless platform.
#include <gtest/gtest.h>

#include "core/TestApp.h"
#include "sitetools/PageToolCommands.h"
#include "sitetools/PageToolRun.h"
#include "sitetools/SpellCheck.h"

namespace tessarine {
namespace {

using pagetooltest::TempFolder;
using testing::TestApp;

TEST(HtmlStripCommand, WritesTheFileAndOpensItOnYes) {
  TestApp t;
  TempFolder folder;
  t.NewWindow("<H1>Title</H1>body &amp; more");
  t.dialogs.Queue(folder.Path("page.txt"), 2);
  t.messages.Queue(MsgAnswer::OK);
  t.messages.Queue(MsgAnswer::Yes);
  HtmlStripCommand(t.app);
  EXPECT_EQ(folder.Read("page.txt"), "Title\r\nbody & more\r\n");
  ASSERT_EQ(t.dialogs.requests().size(), 1u);
  EXPECT_EQ(t.dialogs.requests()[0].title, "Save Stripped File As...");
  EXPECT_EQ(t.dialogs.requests()[0].filterIndex, 2);
  ASSERT_EQ(t.messages.shown().size(), 2u);
  EXPECT_EQ(t.messages.shown()[1].title, "HTML Stripper");
  // Yes opened the stripped file as a second document.
  EXPECT_EQ(t.app.ActiveDocument()->Caption(), folder.Path("page.txt"));
}

TEST(HtmlStripCommand, CancelEndsAtOnceAndNoLeavesOneDocument) {
  TestApp t;
  TempFolder folder;
  DocumentWindow& page = t.NewWindow("<B>x</B>");
  HtmlStripCommand(t.app);  // the dialog answers Cancel
  EXPECT_EQ(t.messages.shown().size(), 1u);
  t.dialogs.Queue(folder.Path("x.txt"));
  t.messages.Queue(MsgAnswer::OK);
  t.messages.Queue(MsgAnswer::No);
  HtmlStripCommand(t.app);
  EXPECT_EQ(folder.Read("x.txt"), "x\r\n");
  EXPECT_EQ(t.app.ActiveDocument(), &page);
}

class CancellingPrompter : public SpellPrompter {
 public:
  SpellDecision Decide(const std::string& word, const std::vector<std::string>&) override {
    asked.push_back(word);
    return {SpellAction::Change, "page"};
  }
  std::vector<std::string> asked;
};

TEST(SpellCheckCommand, ReportsAndColours) {
  TestApp t;
  auto& window = t.NewWindow("<P>A pgae</P>");
  CancellingPrompter prompter;
  SpellCheckCommand(t.app, prompter);
  if (!t.messages.shown().empty() &&
      t.messages.shown()[0].text.find("not installed") != std::string::npos)
    GTEST_SKIP() << "no en_US dictionary";
  EXPECT_EQ(prompter.asked, std::vector<std::string>{"pgae"});
  EXPECT_EQ(window.Buffer().Text(), "<P>A page</P>");
  ASSERT_EQ(t.messages.shown().size(), 1u);
  EXPECT_EQ(t.messages.shown()[0].text, "Spellcheck complete!\n2 Words Checked\n1 Words Replaced");
  // The replaced text is coloured again: the tag no longer has the plain style.
  EXPECT_NE(window.Buffer().StyleAt(1), window.Buffer().StyleAt(5));
}

}  // namespace
}  // namespace tessarine
