// What the user sees of a colouring pass: hidden control, status, hourglass, Esc, the
// abandoned pass, the dispatch by name, and the insertion colour while typing.

#include <gtest/gtest.h>

#include "core/ColorizeRun.h"
#include "core/Startup.h"
#include "core/Styles.h"
#include "core/TestApp.h"

namespace tessarine {
namespace {

using testing::TempDir;
using testing::TestApp;

const std::string kPleaseWait =
    "Please wait while tags are being colorized...  Press Esc to cancel";
const std::string kReady = "Press F1 for help";
const std::string kLine = "<B>x</B> plain text\r\n";  // 21 bytes

// Well over several chunks of the pass.
std::string BigPage() {
  std::string s;
  while (s.size() < 300 * 1024) s += kLine;
  return s;
}

constexpr Style kPlain = MakeStyle(StyleKind::Plain);
constexpr Style kTag = MakeStyle(StyleKind::Tag);

TEST(ColorizeRun, DuringAPassTheControlIsHiddenAndTheUserAskedToWait) {
  TestApp t;
  const std::string page = BigPage();
  auto& w = t.NewWindow(page);
  w.Buffer().Select(5, 3);
  struct Seen {
    bool visible;
    std::string status;
    MousePointer pointer;
    int inProgress;
  };
  std::vector<Seen> seen;
  t.frame.onProcessEvents = [&] {
    seen.push_back({w.Buffer().IsVisible(), t.frame.StatusText(), t.frame.mousePointer,
                    t.app.colorizing.ColorizingInProgress});
  };
  ColorizeTags(t.app, w);

  ASSERT_GE(seen.size(), 2u);
  for (const Seen& s : seen) {
    EXPECT_FALSE(s.visible);
    EXPECT_EQ(s.status, kPleaseWait);
    EXPECT_EQ(s.pointer, MousePointer::Hourglass);
    EXPECT_EQ(s.inProgress, 1);
  }
  // One yield per chunk of text, not one per character.
  const long chunks = static_cast<long>(page.size() / (64 * 1024));
  EXPECT_GE(t.frame.eventYields, chunks);
  EXPECT_LE(t.frame.eventYields, chunks + 2);

  EXPECT_TRUE(w.Buffer().IsVisible());
  EXPECT_EQ(t.frame.StatusText(), kReady);
  EXPECT_EQ(t.frame.mousePointer, MousePointer::Default);
  EXPECT_EQ(t.app.colorizing.ColorizingInProgress, 0);
  EXPECT_EQ(w.Buffer().SelStart(), 5);
  EXPECT_EQ(w.Buffer().SelLength(), 0);
  EXPECT_FALSE(t.Changed(w));
  const Pos last = static_cast<Pos>(page.rfind("</B>"));
  EXPECT_EQ(w.Buffer().StyleAt(0), kTag);
  EXPECT_EQ(w.Buffer().StyleAt(3), kPlain);
  EXPECT_EQ(w.Buffer().StyleAt(last), kTag);
}

TEST(ColorizeRun, AnEmptyDocumentEndsAtOnceWithTheHelpText) {
  TestApp t;
  auto& w = t.NewWindow();
  mnuColorize(t.app, false);
  EXPECT_EQ(t.frame.StatusText(), kReady);
  EXPECT_EQ(t.frame.mousePointer, MousePointer::Default);
  EXPECT_EQ(t.app.colorizing.ColorizingInProgress, 0);
  EXPECT_TRUE(w.Buffer().IsVisible());
}

TEST(ColorizeRun, EscDuringAPassKeepsTheColoursSoFarAndLeavesTheRestPlain) {
  TestApp t;
  const std::string page = BigPage();
  auto& w = t.NewWindow(page);
  w.Buffer().SetSelStart(40);
  int yields = 0;
  t.frame.onProcessEvents = [&] {
    OnDocumentKeyPress(t.app, 'a');  // other keys do not stop the pass
    if (++yields == 2) OnDocumentKeyPress(t.app, 27);
  };
  ColorizeTags(t.app, w);

  EXPECT_EQ(yields, 2);
  EXPECT_EQ(w.Buffer().SelStart(), 0);
  EXPECT_EQ(t.app.colorizing.ColorizingInProgress, 0);
  EXPECT_FALSE(t.app.colorizing.CancelColorizing);
  EXPECT_EQ(t.frame.mousePointer, MousePointer::Default);
  EXPECT_EQ(t.frame.StatusText(), kPleaseWait);
  EXPECT_FALSE(w.Buffer().IsVisible());  // the caller shows it again
  EXPECT_EQ(w.Buffer().StyleAt(0), kTag);
  EXPECT_EQ(w.Buffer().StyleAt(static_cast<Pos>(page.rfind("<B>"))), kPlain);

  // The refresh command shows the control again and, with no Esc, colours it all.
  t.frame.onProcessEvents = nullptr;
  mnuColorize(t.app, false);
  EXPECT_TRUE(w.Buffer().IsVisible());
  EXPECT_EQ(w.Buffer().StyleAt(static_cast<Pos>(page.rfind("<B>"))), kTag);
  EXPECT_EQ(t.frame.StatusText(), kReady);
}

TEST(ColorizeRun, AnEscPressedBeforeAPassDoesNotStopIt) {
  TestApp t;
  auto& w = t.NewWindow(BigPage());
  OnDocumentKeyPress(t.app, 27);
  ColorizeTags(t.app, w);
  EXPECT_EQ(t.frame.StatusText(), kReady);
  EXPECT_TRUE(w.Buffer().IsVisible());
}

TEST(ColorizeRun, EscInAScriptPassLeavesTheSelectionWhereItStands) {
  TestApp t;
  std::string script;
  while (script.size() < 200 * 1024) script += "x # c\n";
  auto& w = t.NewWindow(script);
  w.SetCaption("/srv/run.pl");
  int yields = 0;
  t.frame.onProcessEvents = [&] {
    if (++yields == 2) OnDocumentKeyPress(t.app, 27);
  };
  mnuColorize(t.app, false);
  EXPECT_EQ(t.app.colorizing.ColorizingInProgress, 0);
  EXPECT_GT(w.Buffer().SelStart(), 0);
  EXPECT_EQ(w.Buffer().SelText(), "# c\n");  // the last span the pass wrote
  EXPECT_EQ(w.Buffer().StyleAt(2), MakeStyle(StyleKind::ScriptComment));
  EXPECT_EQ(w.Buffer().StyleAt(static_cast<Pos>(script.size()) - 2), kPlain);
  EXPECT_TRUE(w.Buffer().IsVisible());
}

TEST(ColorizeRun, AnAbandonedPassLeavesTheDocumentDeafToChanges) {
  TestApp t;
  auto& w = t.NewWindow("<I>a</I> < b");
  w.Buffer().SetSelStart(2);
  ColorizeTags(t.app, w);
  EXPECT_EQ(t.app.colorizing.ColorizingInProgress, 1);
  EXPECT_EQ(t.frame.mousePointer, MousePointer::Hourglass);
  EXPECT_EQ(t.frame.StatusText(), kPleaseWait);
  EXPECT_FALSE(w.Buffer().IsVisible());
  EXPECT_EQ(w.Buffer().StyleAt(0), kTag);  // what was laid before the walk stays

  w.Buffer().SetSelStart(w.Buffer().Length());
  w.Buffer().Type(" >");
  EXPECT_FALSE(t.Changed(w));

  // The next pass that ends normally mends it.
  mnuColorize(t.app, false);
  EXPECT_TRUE(w.Buffer().IsVisible());
  EXPECT_EQ(t.app.colorizing.ColorizingInProgress, 0);
  EXPECT_EQ(t.frame.mousePointer, MousePointer::Default);
  w.Buffer().Type("!");
  EXPECT_TRUE(t.Changed(w));
}

TEST(ColorizeRun, MenuRefreshRestoresVisibilityAfterAnAbandonedPass) {
  TestApp t;
  auto& w = t.NewWindow("a < b");
  mnuColorize(t.app, true);
  EXPECT_EQ(t.app.colorizing.ColorizingInProgress, 1);
  EXPECT_TRUE(w.Buffer().IsVisible());
}

TEST(ColorizeRun, ScriptNamesAreComparedExactlyExceptAtTheToolbar) {
  const std::string text = "<B>x</B>\n# c\n";
  const Pos hash = static_cast<Pos>(text.find('#'));
  struct Case {
    const char* caption;
    bool fromToolbar;
    bool script;
  };
  for (const Case& c :
       {Case{"/w/x.CGI", false, false}, Case{"/w/x.CGI", true, true}, Case{"/w/x.cgi", false, true},
        Case{"/w/x.PL", false, false}, Case{"/w/x.Pl", true, true}, Case{"/w/magicgi", false, true},
        Case{"/w/x.pls", true, false}, Case{"Untitled:1", true, false}}) {
    SCOPED_TRACE(std::string(c.caption) + (c.fromToolbar ? " toolbar" : " menu"));
    TestApp t;
    auto& w = t.NewWindow(text);
    w.SetCaption(c.caption);
    mnuColorize(t.app, c.fromToolbar);
    EXPECT_EQ(w.Buffer().StyleAt(0), c.script ? kPlain : kTag);
    EXPECT_EQ(w.Buffer().StyleAt(hash), c.script ? MakeStyle(StyleKind::ScriptComment) : kPlain);
    EXPECT_TRUE(w.Buffer().IsVisible());
  }
}

TEST(ColorizeRun, AWindowClosedDuringAPassIsLeftAlone) {
  TestApp t;
  auto& other = t.NewWindow("<P>");
  auto& w = t.NewWindow(BigPage());
  bool closed = false;
  t.frame.onProcessEvents = [&] {
    if (!closed) closed = w.RequestClose();
  };
  mnuColorize(t.app, false);
  EXPECT_TRUE(closed);
  EXPECT_EQ(t.frame.Windows().size(), 1u);
  EXPECT_EQ(t.app.colorizing.ColorizingInProgress, 0);
  EXPECT_EQ(t.frame.mousePointer, MousePointer::Default);
  EXPECT_TRUE(other.Buffer().IsVisible());
  other.Buffer().Type("x");
  EXPECT_TRUE(t.Changed(other));
}

TEST(ColorizeRun, AWindowReplacedDuringTheOpeningPassKeepsItsOwnState) {
  TestApp t;
  TempDir dir;
  testing::WriteAll(dir / "big.html", BigPage());
  DocumentWindow* replacement = nullptr;
  t.frame.onProcessEvents = [&] {
    if (replacement) return;
    ASSERT_TRUE(t.app.ActiveDocument()->RequestClose());
    auto& fresh = t.NewWindow();
    // Typing is silent during a pass; mark it changed as an import does.
    t.app.documents.State(t.app.documents.SlotOf(&fresh)).Changed = true;
    replacement = &fresh;
  };
  EXPECT_TRUE(OpenFile(t.app, dir / "big.html"));
  ASSERT_NE(replacement, nullptr);
  ASSERT_EQ(t.frame.Windows().size(), 1u);
  EXPECT_EQ(replacement->Caption(), "Untitled:1");
  EXPECT_TRUE(t.Changed(*replacement));
  EXPECT_EQ(t.app.colorizing.ColorizingInProgress, 0);
}

struct InsertionColour : ::testing::Test {
  TestApp t;
  HeadlessDocumentWindow* w = nullptr;
  // A document coloured as a tag throughout, caret at the end.
  BufferEdit& Open(const std::string& text, Style style = kTag) {
    w = &t.NewWindow(text);
    w->Buffer().FillStyle(0, w->Buffer().Length(), style);
    w->Buffer().SetSelStart(w->Buffer().Length());
    return w->Buffer();
  }
  bool InQuote() { return t.app.documents.Form(t.app.documents.SlotOf(w)).InQuote; }
};

TEST_F(InsertionColour, AngleBracketsTypedByHandStayBlack) {
  BufferEdit& e = Open("<B>");
  ASSERT_EQ(e.InsertionStyle(), kTag);
  OnLessThanKeyDown(t.app, *w);
  e.Type("<");
  EXPECT_EQ(e.StyleAt(3), kPlain);

  BufferEdit& f = Open("<B");
  OnGreaterThanKeyUp(t.app, *w);
  f.Type("x");
  EXPECT_EQ(f.StyleAt(2), kPlain);
}

TEST_F(InsertionColour, QuoteInsideATagFollowsTheCountOfQuotesBeforeIt) {
  // An even count clears the colour at once.
  BufferEdit& e = Open("<A ALT='it' HREF=");
  OnQuoteKeyDown(t.app, *w);
  EXPECT_EQ(e.InsertionStyle(), kPlain);
  EXPECT_FALSE(InQuote());

  // An odd count waits for the key to come up.
  const Style quote = MakeStyle(StyleKind::Quote);
  BufferEdit& f = Open("<A HREF=\"x", quote);
  OnQuoteKeyDown(t.app, *w);
  EXPECT_TRUE(InQuote());
  EXPECT_EQ(f.InsertionStyle(), quote);
  f.Type("\"");
  EXPECT_EQ(f.StyleAt(10), quote);
  OnQuoteKeyUp(t.app, *w);
  EXPECT_FALSE(InQuote());
  EXPECT_EQ(f.InsertionStyle(), kPlain);
}

TEST_F(InsertionColour, QuoteOutsideATagChangesNothing) {
  for (const char* text : {"<B>x", "plain", "a > b"}) {
    SCOPED_TRACE(text);
    BufferEdit& e = Open(text);
    OnQuoteKeyDown(t.app, *w);
    EXPECT_FALSE(InQuote());
    EXPECT_EQ(e.InsertionStyle(), kTag);
    OnQuoteKeyUp(t.app, *w);  // without InQuote: nothing
    EXPECT_EQ(e.InsertionStyle(), kTag);
  }
}

}  // namespace
}  // namespace tessarine
