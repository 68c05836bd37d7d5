// Which words are checked, the walk over a document with scripted decisions, Hunspell
// itself, and `tessarine-site spell`.
#include <gtest/gtest.h>

#include <deque>

#include "platform/BufferEdit.h"
#include "platform/SpellEngine.h"
#include "sitetools/HunspellEngine.h"
#include "sitetools/PageToolRun.h"
#include "sitetools/SpellCheck.h"
#include "sitetools/SpellText.h"

namespace tessarine {
namespace {

using pagetooltest::RunTool;
using pagetooltest::TempFolder;

std::vector<std::string> Words(std::string_view text) {
  std::vector<std::string> words;
  WordWalker walker(text);
  WordSpan span;
  while (walker.Next(span)) words.emplace_back(text.substr(span.start, span.length));
  return words;
}

TEST(SpellText, OnlyTheTextBetweenTagsIsChecked) {
  const std::pair<std::string, std::vector<std::string>> cases[] = {
      {"<P CLASS=\"intro\">Hello world</P>", {"Hello", "world"}},
      {"<IMG ALT=\"a > b\" SRC=x.gif>after", {"after"}},
      {"one<!-- hidden words -->two", {"one", "two"}},
      {"<SCRIPT>var tok = 1;</SCRIPT>text<style>p{colr:red}</STYLE>end", {"text", "end"}},
      {"caf&eacute; &amp; A&B", {"caf", "A", "B"}},
      {"don't 'quoted' 2026 3rd", {"don't", "quoted", "3rd"}},
      {"well-known caf\xC3\xA9", {"well", "known", "caf\xC3\xA9"}},
      {"unclosed <B tag", {"unclosed"}},
  };
  for (const auto& [text, words] : cases) EXPECT_EQ(Words(text), words) << text;
}

class ScriptedPrompter : public SpellPrompter {
 public:
  explicit ScriptedPrompter(EditControl& edit) : edit_(edit) {}
  void Queue(SpellAction action, std::string replacement = {}) {
    decisions_.push_back({action, std::move(replacement)});
  }
  SpellDecision Decide(const std::string& word,
                       const std::vector<std::string>& suggestions) override {
    asked.push_back(word);
    selected.push_back(edit_.SelText());
    lastSuggestions = suggestions;
    if (decisions_.empty()) return {SpellAction::Cancel, {}};
    SpellDecision d = decisions_.front();
    decisions_.pop_front();
    return d;
  }
  std::vector<std::string> asked, selected, lastSuggestions;

 private:
  EditControl& edit_;
  std::deque<SpellDecision> decisions_;
};

WordListSpellEngine Engine() {
  return WordListSpellEngine({"the", "cat", "sat", "on", "mat", "a", "hat"});
}

TEST(SpellWalk, NoMisspellingReportsTheCount) {
  BufferEdit edit;
  edit.SetText("<P>the cat sat</P>");
  auto engine = Engine();
  ScriptedPrompter prompter(edit);
  const SpellReport report = RunSpellCheck(edit, engine, prompter);
  EXPECT_TRUE(prompter.asked.empty());
  EXPECT_EQ(SpellReportMessage(report), "Spellcheck complete!\n3 Words Checked\n0 Words Replaced");
}

TEST(SpellWalk, DecisionsEditTheDocument) {
  BufferEdit edit;
  edit.SetText("teh cat zat on teh mat, teh hatt zat");
  auto engine = Engine();
  ScriptedPrompter prompter(edit);
  prompter.Queue(SpellAction::ChangeAll, "the");  // teh, and each later teh silently
  prompter.Queue(SpellAction::Change, "sat");     // the first zat only
  prompter.Queue(SpellAction::IgnoreAll);         // hatt
  prompter.Queue(SpellAction::Ignore);            // the second zat
  const SpellReport report = RunSpellCheck(edit, engine, prompter);
  EXPECT_EQ(edit.Text(), "the cat sat on the mat, the hatt zat");
  EXPECT_EQ(prompter.asked, (std::vector<std::string>{"teh", "zat", "hatt", "zat"}));
  // Each word is selected in the document when asked about.
  EXPECT_EQ(prompter.selected, prompter.asked);
  EXPECT_EQ(report.wordsChecked, 9);
  EXPECT_EQ(report.wordsReplaced, 4);
  EXPECT_FALSE(report.cancelled);
  EXPECT_EQ(edit.SelLength(), 0);
}

TEST(SpellWalk, SelectionIsCheckedAloneAndCancelKeepsCorrections) {
  BufferEdit edit;
  edit.SetText("xx teh zat qq yy");
  edit.SetSelStart(3);
  edit.SetSelLength(7);  // "teh zat"
  auto engine = Engine();
  ScriptedPrompter prompter(edit);
  prompter.Queue(SpellAction::Change, "the");
  prompter.Queue(SpellAction::Cancel);
  const SpellReport report = RunSpellCheck(edit, engine, prompter);
  EXPECT_EQ(edit.Text(), "xx the zat qq yy");
  EXPECT_EQ(prompter.asked, (std::vector<std::string>{"teh", "zat"}));
  EXPECT_TRUE(report.cancelled);
  EXPECT_EQ(SpellReportMessage(report), "Spellcheck Cancelled");
}

TEST(SpellWalk, FromTheCaretAndAddToDictionary) {
  BufferEdit edit;
  edit.SetText("zat cat zat dog");
  edit.SetSelStart(4);
  auto engine = Engine();
  ScriptedPrompter prompter(edit);
  prompter.Queue(SpellAction::Add);
  prompter.Queue(SpellAction::Ignore);
  RunSpellCheck(edit, engine, prompter);
  // The first zat is before the caret; the second is added, so only dog is left.
  EXPECT_EQ(prompter.asked, (std::vector<std::string>{"zat", "dog"}));
  EXPECT_TRUE(engine.Check("zat"));
  EXPECT_EQ(prompter.lastSuggestions, std::vector<std::string>{});
}

TEST(SpellWalk, SuggestionList) {
  const SuggestionList none = MakeSuggestionList({});
  EXPECT_EQ(none.entries, std::vector<std::string>{"[No suggestions]"});
  EXPECT_FALSE(none.enabled);
  EXPECT_EQ(none.replaceWith, "");
  const SuggestionList some = MakeSuggestionList({"the", "then"});
  EXPECT_TRUE(some.enabled);
  EXPECT_EQ(some.replaceWith, "the");
}

class HunspellTest : public ::testing::Test {
 protected:
  void SetUp() override {
    std::string error;
    engine_ =
        HunspellSpellEngine::Open("en_US", DictionaryFolders(), folder_.Path("custom.dic"), error);
    if (!engine_) GTEST_SKIP() << error;
  }
  TempFolder folder_;
  std::unique_ptr<HunspellSpellEngine> engine_;
};

TEST_F(HunspellTest, ChecksSuggestsAndKeepsTheUsersWords) {
  EXPECT_TRUE(engine_->Check("house"));
  EXPECT_FALSE(engine_->Check("hosue"));
  const auto suggestions = engine_->Suggest("hosue");
  EXPECT_NE(std::find(suggestions.begin(), suggestions.end(), "house"), suggestions.end());
  EXPECT_FALSE(engine_->Check("Tessarine"));
  engine_->AddWord("Tessarine");
  EXPECT_TRUE(engine_->Check("Tessarine"));
  EXPECT_EQ(folder_.Read("custom.dic"), "Tessarine\n");
  // A new engine reads the list back.
  std::string error;
  auto again =
      HunspellSpellEngine::Open("en_US", DictionaryFolders(), folder_.Path("custom.dic"), error);
  ASSERT_TRUE(again);
  EXPECT_TRUE(again->Check("Tessarine"));
}

TEST_F(HunspellTest, SingleByteWordsAreCheckedAsTheirLetters) {
  EXPECT_FALSE(engine_->Check("caf\xE9"));
  engine_->AddWord("caf\xC3\xA9");         // UTF-8
  EXPECT_TRUE(engine_->Check("caf\xE9"));  // the same word in Windows-1252
  EXPECT_FALSE(engine_->Check("caf\xE8"));
}

TEST_F(HunspellTest, WalkOverAPage) {
  BufferEdit edit;
  edit.SetText("<P CLASS=\"txet\">A smal page</P>");
  ScriptedPrompter prompter(edit);
  prompter.Queue(SpellAction::Change, "small");
  const SpellReport report = RunSpellCheck(edit, *engine_, prompter);
  EXPECT_EQ(prompter.asked, std::vector<std::string>{"smal"});
  EXPECT_EQ(edit.Text(), "<P CLASS=\"txet\">A small page</P>");
  EXPECT_EQ(report.wordsReplaced, 1);
}

TEST(SpellDictionaries, MissingDictionaryIsAMessage) {
  std::string error;
  EXPECT_EQ(
      HunspellSpellEngine::Open("xx_NONE", DictionaryFolders(), "/nonexistent/custom.dic", error),
      nullptr);
  EXPECT_NE(error.find("\"xx_NONE\" is not installed"), std::string::npos);
  EXPECT_EQ(ChooseDictionary({"de_DE", "en_US"}, "fr_FR"), "en_US");
  EXPECT_EQ(ChooseDictionary({"de_DE", "en_US"}, "de_DE"), "de_DE");
  EXPECT_EQ(ChooseDictionary({"de_DE"}, ""), "de_DE");
  EXPECT_EQ(ChooseDictionary({}, "en_US"), "");
}

TEST(SpellCli, PrintsLineColumnAndWord) {
  TempFolder folder;
  folder.Write("page.html",
               "<TITLE>Speling</TITLE>\r\n<P CLASS=\"x\">caf\xC3\xA9 is a "
               "mispeled word</P>\r\n\r\nTessarine\n");
  const std::string home = "TESSARINE_HOME='" + folder.Path("home") + "'";
  auto run = RunTool(folder, "spell page.html", home);
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.out, "1:8\tSpeling\n2:14\tcaf\xC3\xA9\n2:24\tmispeled\n4:1\tTessarine\n");
  folder.Write("clean.html", "<P>All good here</P>");
  run = RunTool(folder, "spell --dict en_US clean.html", home);
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.out, "");
}

TEST(SpellCli, HelpUsageAndErrors) {
  TempFolder folder;
  folder.Write("page.html", "text");
  auto run = RunTool(folder, "spell --help");
  EXPECT_EQ(run.status, 0);
  EXPECT_NE(run.out.find("usage: tessarine-site spell [--dict LANG] PAGE"), std::string::npos);
  EXPECT_EQ(RunTool(folder, "spell").status, 2);
  EXPECT_EQ(RunTool(folder, "spell missing.html").status, 2);
  run = RunTool(folder, "spell --dict xx_NONE page.html");
  EXPECT_EQ(run.status, 2);
  EXPECT_NE(run.err.find("not installed"), std::string::npos);
}

}  // namespace
}  // namespace tessarine
