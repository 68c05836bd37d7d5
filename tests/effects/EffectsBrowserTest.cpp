// The generated scripts, run in headless Chromium: the page is written as the editor would
// leave it, loaded, and its document read back after the scripts ran.

#include <gtest/gtest.h>

#include <regex>

#include "effects/BrowserHarness.h"
#include "effects/DigitalClock.h"
#include "effects/JumpMenu.h"
#include "effects/PersonalGreeting.h"

namespace tessarine {
namespace {

using testing::DumpDom;
using testing::InnerOf;
using testing::TempDir;
using testing::WriteAll;

const char* const kPlaceholder =
    "<span style=\"font-size:8pt;color:yellow;background-color:blue;\">Digital clock will be "
    "displayed here</span>";

// Current browsers keep document.all but make it test false; the clock's span is written
// only where it tests true, as in the browsers the script was written for. This stands in
// for such a browser.
const char* const kTruthyDocumentAll =
    "<script>Object.defineProperty(document, 'all', {value: {}, configurable: true});</script>";

class EffectsBrowser : public ::testing::Test {
 protected:
  void SetUp() override {
    if (testing::Chromium().empty()) GTEST_SKIP() << "chromium is not installed";
  }
  TempDir dir;

  // The clock as the picker leaves it: everything at the caret in the body.
  std::string ClockPage(const DigitalClock& clock, const std::string& headExtra) {
    return "<HTML>\r\n<HEAD>\r\n<TITLE>Clock</TITLE>\r\n" + headExtra + "</HEAD>\r\n<BODY>\r\n" +
           clock.Script() + "\r\n" + clock.Markup() + "</BODY>\r\n</HTML>\r\n";
  }
  std::string LoadClock(const DigitalClock& clock, const std::string& headExtra) {
    WriteAll(dir / "clock.htm", ClockPage(clock, headExtra));
    return InnerOf(DumpDom("file://" + (dir / "clock.htm"), 2500), "spnClock");
  }
};

TEST_F(EffectsBrowser, ClockSpanHoldsTheTimeForEachChoice) {
  const std::string day = "(Sunday|Monday|Tuesday|Wednesday|Thursday|Friday|Saturday)";
  const std::string month =
      "(January|February|March|April|May|June|July|August|September|October|November|December)";
  struct Case {
    ClockShows shows;
    const char* format;
    bool dayOfWeek, military, seconds, ampm, timeFirst;
    std::string pattern;
  };
  const Case cases[] = {
      {ClockShows::Date, "November 28, 2001", false, false, false, false, false,
       month + " \\d{1,2}, \\d{4}"},
      {ClockShows::Date, "28/11/2001", true, false, false, false, false,
       day + ", \\d\\d/\\d{2,3}/\\d{4}"},
      {ClockShows::Time, "", false, true, true, false, false, "\\d{1,2}:\\d\\d:\\d\\d"},
      {ClockShows::DateAndTime, "11/28/01", false, false, false, true, true,
       "\\d{1,2}:\\d\\d (AM|PM) &nbsp; \\d{2,3}/\\d\\d/\\d\\d"},
  };
  for (const Case& k : cases) {
    DigitalClock c;
    c.shows = k.shows;
    c.dateFormat = k.format;
    c.dayOfWeek = k.dayOfWeek;
    c.militaryTime = k.military;
    c.showSeconds = k.seconds;
    c.showAmPm = k.ampm;
    c.timeBeforeDate = k.timeFirst;
    c.fontSize = "12";
    const std::string shown = LoadClock(c, kTruthyDocumentAll);
    EXPECT_TRUE(std::regex_match(shown, std::regex(k.pattern)))
        << "format '" << k.format << "' showed: " << shown;
  }
}

TEST_F(EffectsBrowser, ClockKeepsItsPlaceholderWhereDocumentAllTestsFalse) {
  DigitalClock c;
  c.shows = ClockShows::Time;
  c.fontSize = "12";
  EXPECT_EQ(LoadClock(c, ""), kPlaceholder);
}

TEST_F(EffectsBrowser, ClockWithTheDanglingDateFormatNeverRuns) {
  // "28-11-2001" adds no date text, and the clock line ends in " + ".
  DigitalClock c;
  c.dateFormat = "28-11-2001";
  c.fontSize = "12";
  EXPECT_EQ(LoadClock(c, kTruthyDocumentAll), kPlaceholder);
}

TEST_F(EffectsBrowser, QuoteInTheGreetingBreaksTheWholeScript) {
  // The visitor cancels the question; the visit count still shows, unless the script is
  // broken: the greeting is written unescaped into a single-quoted string.
  const std::pair<const char*, bool> cases[] = {
      {"Hi", true}, {"Hi y'all", false}, {"Hi</script>", false}};
  for (const auto& [greeting, runs] : cases) {
    SCOPED_TRACE(greeting);
    PersonalGreeting g;
    g.greeting = greeting;
    g.showVisits = true;
    WriteAll(dir / "greet.htm",
             "<HTML><HEAD><script>window.prompt = function() { return null; };</script>" +
                 g.Script() + "</HEAD><BODY>" + g.Calls() + "</BODY></HTML>");
    const std::string dom = DumpDom("file://" + (dir / "greet.htm"), 500);
    ASSERT_NE(dom.find("</body>"), std::string::npos);
    EXPECT_EQ(dom.find("</script>Welcome to our Web site!") != std::string::npos, runs) << dom;
  }
}

class EffectsServedBrowser : public EffectsBrowser {
 protected:
  void SetUp() override {
    EffectsBrowser::SetUp();
    if (IsSkipped()) return;
    if (testing::FindProgram({"python3"}).empty()) GTEST_SKIP() << "python3 is not installed";
    server = std::make_unique<testing::LoopbackServer>(dir.path());
    ASSERT_TRUE(server->ready());
  }
  std::unique_ptr<testing::LoopbackServer> server;
};

// The visitor answers "Ada" to the question, by the popup box or by the form.
std::string GreetingPage(const PersonalGreeting& g) {
  return "<HTML>\r\n<HEAD>\r\n<script>window.prompt = function() { return 'Ada'; };</script>\r\n" +
         g.Script() + "</HEAD>\r\n<BODY>\r\n" + g.Calls() +
         "<script>if (document.forms.length && getCookie('OrlendaUsername') == null) { var f = "
         "document.forms[0]; f.txtName.value = 'Ada'; f.elements[1].click(); }</script>\r\n"
         "</BODY>\r\n</HTML>\r\n";
}

// Visits the greeting page in a frame, visits it again a second later, and copies what
// the second visit wrote into this page.
const char* const kTwoVisits =
    "<HTML><BODY><iframe id=\"visit\" src=\"greet.htm\"></iframe><div id=\"secondVisit\"></div>"
    "<script>var visit = document.getElementById('visit');"
    "setTimeout(function() { visit.src = 'greet.htm?again'; }, 1000);"
    "setTimeout(function() { document.getElementById('secondVisit').innerHTML = "
    "visit.contentDocument.body.innerHTML; }, 2000);</script></BODY></HTML>";

TEST_F(EffectsServedBrowser, GreetingReadsItsCookiesOnTheSecondVisit) {
  WriteAll(dir / "visits.htm", kTwoVisits);
  for (const std::string& method : GreetingAskMethods()) {
    SCOPED_TRACE(method);
    PersonalGreeting g;
    g.askMethod = method;
    g.greeting = "Hi";
    g.showVisits = true;
    g.showLastVisit = true;
    WriteAll(dir / "greet.htm", GreetingPage(g));
    const std::string second = InnerOf(DumpDom(server->Url("visits.htm"), 4000), "secondVisit");
    EXPECT_NE(second.find("</script>Hi Ada! "), std::string::npos) << second;
    // Answering reloads the page, which counts as a visit too unless the reload cut the
    // first one short: two or three.
    std::smatch count;
    ASSERT_TRUE(std::regex_search(second, count,
                                  std::regex("You have visited this Web site (\\d+) times\\.")))
        << second;
    EXPECT_GE(std::stoi(count[1]), 2);
    EXPECT_LE(std::stoi(count[1]), 3);
    EXPECT_TRUE(std::regex_search(
        second, std::regex("You last visited this Web site on \\w+ \\w+ \\d+ \\d{4} "
                           "\\d\\d:\\d\\d:\\d\\d")));
    EXPECT_EQ(second.find("<form>"), std::string::npos);
  }
}

TEST_F(EffectsServedBrowser, GreetingFirstVisitAsksWithTheForm) {
  PersonalGreeting g;
  g.askMethod = "Web page Form";
  g.askText = "Who are you?";
  g.showVisits = true;
  WriteAll(dir / "first.htm",
           "<HTML><HEAD>" + g.Script() + "</HEAD><BODY>" + g.Calls() + "</BODY></HTML>");
  const std::string dom = DumpDom(server->Url("first.htm"), 1000);
  EXPECT_NE(dom.find("<form>Who are you?<input type=\"text\" name=\"txtName\""), std::string::npos)
      << dom;
  EXPECT_NE(dom.find("Welcome to our Web site!  This is your first visit."), std::string::npos);
}

// A menu page in one frame drives another frame, named "main", to a page that says so.
std::string JumpFrames() {
  return "<HTML><BODY><iframe name=\"menu\" src=\"menu.htm\"></iframe>"
         "<iframe name=\"main\" src=\"start.htm\"></iframe><p id=\"mainPage\"></p>"
         "<script>setTimeout(function() { document.getElementById('mainPage').textContent = "
         "frames['main'].location.pathname; }, 1500);</script></BODY></HTML>";
}

std::string ChooseAndGo(int option) {
  return "<script>onload = function() { var f = document.forms[0]; f.elements[0].selectedIndex = " +
         std::to_string(option) + "; f.elements['Submit'].click(); };</script>";
}

TEST_F(EffectsServedBrowser, JumpMenuOptionNavigatesTheNamedFrame) {
  struct Case {
    const char* target;
    int option;
    const char* mainFrameShows;  // or empty when the whole page was replaced
    const char* pageBody;
  };
  const Case cases[] = {
      {"main", 2, "/news.htm", nullptr},
      {"main", 0, "/home.htm", nullptr},
      // The exact comparison makes "BLANK" a frame name; there is no such frame.
      {"BLANK", 2, "/start.htm", nullptr},
      // frames['self'] is the window's own "self": the menu's parent page goes.
      {"self", 2, nullptr, "news.htm"},
  };
  WriteAll(dir / "frames.htm", JumpFrames());
  for (const char* page : {"start.htm", "home.htm", "news.htm"})
    WriteAll(dir / page, std::string("<HTML><BODY>") + page + "</BODY></HTML>");
  for (const Case& k : cases) {
    SCOPED_TRACE(std::string(k.target) + " " + std::to_string(k.option));
    JumpMenu m;
    m.rows = {{"Home", "home.htm"}, {kJumpMenuSeparator, ""}, {"News", "news.htm"}};
    m.target = k.target;
    WriteAll(dir / "menu.htm", "<HTML>\r\n<HEAD>\r\n" + m.Script() + "\r\n</HEAD>\r\n<BODY>\r\n" +
                                   m.Form() + ChooseAndGo(k.option) + "\r\n</BODY>\r\n</HTML>\r\n");
    const std::string dom = DumpDom(server->Url("frames.htm"), 3000);
    if (k.mainFrameShows)
      EXPECT_EQ(InnerOf(dom, "mainPage"), k.mainFrameShows) << dom;
    else
      EXPECT_NE(dom.find(std::string("<body>") + k.pageBody + "</body>"), std::string::npos) << dom;
  }
}

}  // namespace
}  // namespace tessarine
