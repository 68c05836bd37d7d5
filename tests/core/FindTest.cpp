// FindText and its globals, the Find/Replace dialog's commands, Find Next and the find
// box's history, on the headless control.

#include <gtest/gtest.h>

#include <random>

#include "core/Find.h"
#include "core/TestApp.h"

namespace tessarine {
namespace {

using testing::TestApp;

// The plain definition the searches must agree with.
Pos NaiveDown(const std::string& text, Pos from, const std::string& needle, bool matchCase) {
  auto up = [&](std::string s) {
    if (!matchCase)
      for (char& c : s) c = static_cast<char>(c >= 'a' && c <= 'z' ? c - 32 : c);
    return s;
  };
  const auto p = up(text).find(up(needle), static_cast<size_t>(from));
  return p == std::string::npos ? -1 : static_cast<Pos>(p);
}

TEST(SearchTest, AgreesWithThePlainDefinition) {
  std::mt19937 rng(7);
  const char alphabet[] = "aAbB\r\n<>\xE9";
  for (int round = 0; round < 3000; ++round) {
    std::string text, needle;
    for (int i = rng() % 40; i > 0; --i) text += alphabet[rng() % 9];
    for (int i = 1 + rng() % 4; i > 0; --i) needle += alphabet[rng() % 9];
    const bool matchCase = rng() % 2;
    const Pos from = static_cast<Pos>(rng() % (text.size() + 2));
    ASSERT_EQ(SearchDown(text, from, needle, matchCase), NaiveDown(text, from, needle, matchCase))
        << text << " / " << needle << " from " << from;
    // Upwards: the last match that starts at from - 2 or before.
    Pos expected = -1;
    for (Pos i = 0; i <= from - 2; ++i)
      if (NaiveDown(text, i, needle, matchCase) == i) expected = i;
    ASSERT_EQ(SearchUp(text, from, needle, matchCase), expected) << text << " / " << needle;
  }
}

class FindTest : public ::testing::Test {
 protected:
  BufferEdit& Open(const std::string& text) { return t.NewWindow(text).Buffer(); }
  std::vector<std::string> Messages() const {
    std::vector<std::string> out;
    for (const auto& m : t.messages.shown()) out.push_back(m.text);
    return out;
  }
  FindState& f() { return t.app.editing.find; }

  TestApp t;
};

TEST_F(FindTest, FindNextWalksTheMatchesAndStopsWithoutWrapping) {
  BufferEdit& e = Open("Cat cat CAT dog");
  f().FindWhat = "cat";
  ASSERT_TRUE(mnuSFindNext(t.app));
  EXPECT_EQ(e.SelStart(), 0);
  EXPECT_EQ(e.SelLength(), 3);
  ASSERT_TRUE(mnuSFindNext(t.app));  // the match at the caret was the last one: skipped
  EXPECT_EQ(e.SelStart(), 4);
  ASSERT_TRUE(mnuSFindNext(t.app));
  EXPECT_EQ(e.SelStart(), 8);
  EXPECT_TRUE(Messages().empty());

  ASSERT_TRUE(mnuSFindNext(t.app));
  EXPECT_TRUE(f().FindFinished);
  EXPECT_EQ(Messages(), std::vector<std::string>{"Tessarine has finished searching the document."});
  EXPECT_EQ(t.messages.shown()[0].title, "Tessarine");
  EXPECT_EQ(t.messages.shown()[0].buttons, MsgButtons::OK);
  EXPECT_EQ(e.SelStart(), 8);  // the selection stays
  EXPECT_EQ(e.SelLength(), 3);

  f().FindMatchCase = 1;
  e.SetSelStart(0);
  f().NewSearch = true;
  ASSERT_TRUE(mnuSFindNext(t.app));
  EXPECT_EQ(e.SelStart(), 4);
}

TEST_F(FindTest, ASelectionIsSkippedOnlyWhenItWasTheLastMatch) {
  BufferEdit& e = Open("ab ab ab");
  e.Select(3, 2);  // selected by hand
  FindText(t.app, e.SelStart(), e.Text(), "ab", 1, false);
  EXPECT_EQ(e.SelStart(), 3);
  FindText(t.app, e.SelStart(), e.Text(), "ab", 1, false);
  EXPECT_EQ(e.SelStart(), 6);
  // A new search from the dialog takes the caret as it stands.
  e.Select(3, 2);
  f().LastFoundStart = 3;
  f().NewSearch = true;
  FindText(t.app, e.SelStart(), e.Text(), "ab", 1, false);
  EXPECT_EQ(e.SelStart(), 3);
  EXPECT_FALSE(f().NewSearch);
}

TEST_F(FindTest, UpwardsSkipsThePieceAtTheCaretAndFinishesAtTheStart) {
  BufferEdit& e = Open("xa ya za");
  e.SetSelStart(8);
  f().FindDirection = 0;
  f().FindWhat = "a";
  mnuSFindNext(t.app);
  EXPECT_EQ(e.SelStart(), 4);  // the "a" just before the caret is passed over
  mnuSFindNext(t.app);
  EXPECT_EQ(e.SelStart(), 1);
  mnuSFindNext(t.app);
  EXPECT_TRUE(f().FindFinished);

  e.SetSelStart(0);
  FindText(t.app, 0, e.Text(), "x", 0, false);
  EXPECT_TRUE(f().FindFinished);
  EXPECT_EQ(Messages().size(), 2u);
}

TEST_F(FindTest, UpwardsOnALongTextFindsMatchesAcrossItsReadingWindows) {
  std::string text(300000, '.');
  // Around where the windows read back from the end meet, and at the very start.
  for (const Pos at : {0, 300000 - 2 - 65536 - 1, 300000 - 2 - 65536 - 3 * 65536 - 2})
    text.replace(static_cast<size_t>(at), 4, "abcd");
  BufferEdit& e = Open(text);
  e.SetSelStart(e.Length());
  f().FindDirection = 0;
  f().FindWhat = "ABCD";
  for (Pos from = e.Length() + 1;;) {
    mnuSFindNext(t.app);
    if (f().FindFinished) break;
    ASSERT_EQ(e.SelStart(), SearchUp(text, from, "abcd", false));
    from = e.SelStart() + 1;  // the match the caret stands on is passed over
  }
  EXPECT_EQ(e.SelStart(), 0);
}

TEST_F(FindTest, PageStructureNeedlesAreSilent) {
  BufferEdit& e = Open("<html><head><title>t</title></head><body>x</body></html>");
  FindText(t.app, 0, e.Text(), "</head>", 1, false);
  EXPECT_EQ(e.SelText(), "</head>");
  FindText(t.app, e.SelStart(), e.Text(), "<HEAD>", 1, false);
  EXPECT_FALSE(f().FindFinished);
  FindText(t.app, 0, e.Text(), "<body", 1, false);
  EXPECT_EQ(e.SelStart(), 35);
  FindText(t.app, 0, e.Text(), "</title >", 1, false);  // not one of them
  EXPECT_TRUE(f().FindFinished);
  EXPECT_EQ(Messages().size(), 1u);
}

TEST_F(FindTest, ReplaceAllCountsItsReplacements) {
  BufferEdit& e = Open("one fish two fish red fish");
  FindReplaceInputs in{"fish", "fishes", true, false};
  EXPECT_TRUE(cmdReplaceAll(t.app, in));
  // A replacement holding the needle isn't replaced again: the search goes on behind it.
  EXPECT_EQ(e.Text(), "one fishes two fishes red fishes");
  EXPECT_EQ(Messages(), std::vector<std::string>{"Tessarine has completed searching the "
                                                 "document.  A total of 3 replacements were made"});
  EXPECT_EQ(f().ReplaceCount, 0);
  EXPECT_FALSE(f().FindFinished);
  EXPECT_EQ(f().FindWhat, "fish");
  // Starting from the caret: nothing left behind it.
  e.SetSelStart(0);
  FindReplaceInputs none{"whale", "x", true, false};
  EXPECT_TRUE(cmdReplaceAll(t.app, none));
  EXPECT_EQ(Messages().back(), "Tessarine has finished searching the document.");
  EXPECT_TRUE(t.Changed(*t.app.ActiveDocument()));
}

TEST_F(FindTest, ReplaceAllUpwardsStepsOverItsOwnReplacement) {
  BufferEdit& e = Open("b b bx");
  f().FindDirection = 0;
  e.SetSelStart(6);
  FindReplaceInputs in{"b", "ba", false, false};
  EXPECT_TRUE(cmdReplaceAll(t.app, in));
  EXPECT_EQ(e.Text(), "ba ba bax");
  EXPECT_EQ(Messages().back(),
            "Tessarine has completed searching the document.  A total of 3 "
            "replacements were made");
}

TEST_F(FindTest, ReplaceAllWithNothingFindsNothingAndAnEmptyBoxDoesNothing) {
  BufferEdit& e = Open("aaaa");
  // Deleting leaves the caret on the last match's start, which the next search steps past.
  EXPECT_TRUE(cmdReplaceAll(t.app, {"a", "", true, false}));
  EXPECT_EQ(e.Text(), "aa");
  EXPECT_FALSE(cmdReplaceAll(t.app, {"", "x", true, false}));
  EXPECT_EQ(e.Text(), "aa");
}

// The page-structure needles miss without a word; Replace All must still end at the miss
// (ctest's timeout catches the loop it once was), whatever the direction, case or text.
TEST_F(FindTest, ReplaceAllEndsForThePageStructureNeedles) {
  const std::string page = "<html><HEAD><title>t</title></head><body>x</BODY></html>";
  for (const char* needle : {"<HEAD>", "</head>", "<Title>", "<body"})
    for (const std::string& text : {std::string(), page})
      for (int direction : {0, 1})
        for (bool matchCase : {false, true}) {
          BufferEdit& e = Open(text);
          if (direction == 0) e.SetSelStart(e.Length());
          f().FindDirection = static_cast<std::int16_t>(direction);
          f().FindMatchCase = matchCase;
          EXPECT_TRUE(cmdReplaceAll(t.app, {needle, "[x]", direction == 1, matchCase}));
          const std::string after = e.Text();
          // At most the one match of each needle in the page was replaced.
          EXPECT_LE(after.size(), text.size() + 3) << needle;
          if (text.empty()) {
            EXPECT_EQ(after, "") << needle;
          }
        }
}

// Replace All against a plain walk over a string: down from the caret, a search starts one
// past the last match's start when the caret stands on it, and a replacement goes in at the
// match, leaving the caret behind it.
struct PlainReplaceAll {
  std::string text;
  std::int64_t count = 0;
};

PlainReplaceAll ReplaceAllDownPlainly(std::string text, Pos caret, const std::string& needle,
                                      const std::string& replacement, bool matchCase) {
  PlainReplaceAll out;
  Pos last = -1;
  for (;;) {
    const Pos from = caret == last ? caret + 1 : caret;
    const Pos p =
        from > static_cast<Pos>(text.size()) ? -1 : NaiveDown(text, from, needle, matchCase);
    if (p < 0) break;
    text.replace(static_cast<size_t>(p), needle.size(), replacement);
    last = p;
    caret = p + static_cast<Pos>(replacement.size());
    ++out.count;
  }
  out.text = std::move(text);
  return out;
}

// The count that the closing message names; 0 for the plain finished message.
std::int64_t CountInSummary(const std::string& message) {
  const auto at = message.find("A total of ");
  return at == std::string::npos ? 0 : std::stoll(message.substr(at + 11));
}

TEST_F(FindTest, ReplaceAllEndsAndAgreesWithAPlainReplaceForRandomTexts) {
  std::mt19937 rng(21);
  const char alphabet[] = "aAbB<>/";
  auto random = [&](int least, int most) {
    std::string s;
    for (int i = least + static_cast<int>(rng() % (most - least + 1)); i > 0; --i)
      s += alphabet[rng() % 7];
    return s;
  };
  for (int round = 0; round < 2000; ++round) {
    const std::string text = random(0, 30), needle = random(1, 3), replacement = random(0, 4);
    const bool matchCase = rng() % 2, down = rng() % 2;
    BufferEdit& e = Open(text);
    const Pos caret = static_cast<Pos>(rng() % (text.size() + 1));
    e.SetSelStart(caret);
    f() = FindState{};
    f().FindDirection = down ? 1 : 0;
    f().FindMatchCase = matchCase;
    const size_t shownBefore = t.messages.shown().size();
    ASSERT_TRUE(cmdReplaceAll(t.app, {needle, replacement, down, matchCase}));
    ASSERT_EQ(t.messages.shown().size(), shownBefore + 1) << text << " / " << needle;
    const std::int64_t count = CountInSummary(t.messages.shown().back().text);
    const std::string context = "'" + text + "' / '" + needle + "' -> '" + replacement + "'";
    // Every replacement changes the length by the same step.
    ASSERT_EQ(static_cast<std::int64_t>(e.Length()) - static_cast<std::int64_t>(text.size()),
              count * (static_cast<std::int64_t>(replacement.size()) -
                       static_cast<std::int64_t>(needle.size())))
        << context;
    if (!down) continue;
    const PlainReplaceAll plain =
        ReplaceAllDownPlainly(text, caret, needle, replacement, matchCase);
    ASSERT_EQ(count, plain.count) << context;
    ASSERT_EQ(e.Text(), plain.text) << context;
  }
}

TEST_F(FindTest, ReplaceWritesOverAnySelectionOrFindsFirst) {
  BufferEdit& e = Open("alpha beta");
  e.Select(0, 5);
  cmdReplace(t.app, {"beta", "gamma", true, false});
  EXPECT_EQ(e.Text(), "gamma beta");
  cmdReplace(t.app, {"beta", "gamma", true, false});
  EXPECT_EQ(e.SelText(), "beta");
  cmdReplace(t.app, {"beta", "gamma", true, false});
  EXPECT_EQ(e.Text(), "gamma gamma");
}

TEST_F(FindTest, DialogTakesTheSelectionAndCancelKeepsItsValues) {
  BufferEdit& e = Open("some words");
  FindReplaceInputs in = LoadFindReplace(t.app);
  EXPECT_EQ(f().FindDirection, 1);
  e.Select(5, 5);
  PrepareFindDialog(t.app, in);
  EXPECT_EQ(in.txtFind, "words");
  EXPECT_TRUE(f().NewSearch);
  e.SetSelStart(0);
  PrepareFindDialog(t.app, in);  // no selection: the box keeps its text
  EXPECT_EQ(in.txtFind, "words");
  in.chkCase = true;
  cmdCancel(t.app, in);
  EXPECT_EQ(f().FindWhat, "words");
  EXPECT_EQ(f().FindMatchCase, 1);
  f().FindWhat.clear();
  EXPECT_FALSE(mnuSFindNext(t.app));  // nothing to find again: the dialog opens instead
}

TEST_F(FindTest, FindBoxSearchesDownIgnoringCaseAndKeepsFiveEntries) {
  BufferEdit& e = Open("Alpha beta ALPHA");
  f().FindDirection = 0;
  f().FindMatchCase = 1;
  std::vector<std::string> history = {"x", "ALPHA", "y", "z", "w"};
  EXPECT_TRUE(QuickFind(t.app, "alpha", history));
  EXPECT_EQ(e.SelStart(), 0);
  EXPECT_EQ(f().FindWhat, "alpha");
  EXPECT_EQ(history, (std::vector<std::string>{"alpha", "x", "y", "z", "w"}));
  EXPECT_EQ(t.store.GetSetting("Miscellaneous", "SearchKeyword1", "?"), "alpha");
  EXPECT_EQ(t.store.GetSetting("Miscellaneous", "SearchKeyword5", "?"), "w");

  // Already first: searched, the list stays.
  t.store.SaveSetting("Miscellaneous", "SearchKeyword2", "kept");
  EXPECT_FALSE(QuickFind(t.app, "alpha", history));
  EXPECT_EQ(e.SelStart(), 11);
  EXPECT_EQ(t.store.GetSetting("Miscellaneous", "SearchKeyword2", "?"), "kept");

  std::vector<std::string> few = {"one"};
  EXPECT_TRUE(QuickFind(t.app, "two", few));
  EXPECT_EQ(few, (std::vector<std::string>{"two", "one"}));
  EXPECT_EQ(t.store.GetSetting("Miscellaneous", "SearchKeyword3", "?"), "");
  EXPECT_FALSE(QuickFind(t.app, "", few));
}

}  // namespace
}  // namespace tessarine
