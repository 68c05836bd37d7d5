// The greeting's cookie script and calls, byte for byte, and where they land.

#include "effects/PersonalGreeting.h"

#include <gtest/gtest.h>

#include "core/TestApp.h"
#include "effects/EffectsTestSupport.h"

namespace tessarine {
namespace {

using testing::CrLf;
using testing::LineStarting;

const char* const kBeforeGreeting = R"(<SCRIPT LANGUAGE='JavaScript'>
<!--
function getCookie(CookieName)
{
   var strCookieName = CookieName + '=';
   var intCookieNameLength = strCookieName.length;
   var intCookieLength = document.cookie.length;
   var i = 0;

   while (i < intCookieLength)
   {
       var j = i + intCookieNameLength;
       if (document.cookie.substring(i, j) == strCookieName)
           return getCookieValue(j);

       i = document.cookie.indexOf(' ', i) + 1;
       if (i == 0)
           break;
   }
   return null;
}

function getCookieValue(intPos)
{
   var strEndOfCookie = document.cookie.indexOf (';', intPos);
   if (strEndOfCookie == -1)
       strEndOfCookie = document.cookie.length;

   return unescape(document.cookie.substring(intPos, strEndOfCookie));
}

function setCookie(name, value)
{
   var argv = setCookie.arguments;
   var argc = setCookie.arguments.length;
   var expires = (argc > 2) ? argv[2] : null;
   var path = (argc > 3) ? argv[3] : null;
   var domain = (argc > 4) ? argv[4] : null;
   var secure = (argc > 5) ? argv[5] : false;
   document.cookie = name + '=' + escape (value) + ((expires == null) ? '' : ('; expires=' + expires.toGMTString())) + ((path == null) ? '' : ('; path=' + path)) + ((domain == null) ? '' : ('; domain=' + domain)) + ((secure == true) ? '; secure' : '');
}

function showUserCount()
{
   var expdate = new Date();
   var numVisits;
   expdate.setTime(expdate.getTime() +  (24 * 60 * 60 * 1000 * 31));

   if(!(numVisits = getCookie('OrlendaUserCount')))
       numVisits = 0;

   numVisits++;
   setCookie('OrlendaUserCount', numVisits, expdate);
   if (numVisits == 1)
       document.write('Welcome to our Web site!  This is your first visit.');
   else
       document.write('You have visited this Web site ' + numVisits + ' times.');
}

function showLastVisit()
{
   var expdate = new Date();
   var currentDate = new Date;
   var lastVisitDate;

   expdate.setTime(expdate.getTime() +  (24 * 60 * 60 * 1000 * 31));

   lastVisitDate = getCookie('OrlendaLastVisit')

   if (lastVisitDate != null)
       document.write('You last visited this Web site on ' + lastVisitDate + '.');

   setCookie('OrlendaLastVisit', currentDate, expdate);
}

function showUsername()
{
   if(getCookie('OrlendaUsername') != null)
)";

const char* const kAfterAsking = R"(}

function setUsername(username)
{
   var expdate = new Date();
   expdate.setTime (expdate.getTime() + (24 * 60 * 60 * 1000 * 31));
   if (username != '')
   {
       setCookie('OrlendaUsername', username, expdate);
       window.history.go(0);
   }
   else
       alert('Please enter your name.');
}
// -->
</SCRIPT>
)";

TEST(PersonalGreetingText, WholeScriptForPopupBox) {
  PersonalGreeting g;
  EXPECT_EQ(g.Script(), CrLf(std::string(kBeforeGreeting) +
                             "       document.write('Hello, ' + getCookie('OrlendaUsername') + "
                             "'! ');\n"
                             "   else\n"
                             "       var retVal = window.prompt('Please enter your name:','')\n"
                             "       if (retVal != null) {setUsername(retVal)};\n" +
                             kAfterAsking));
}

TEST(PersonalGreetingText, WebPageFormAsksInOneLineWithEscapedQuotes) {
  PersonalGreeting g;
  g.askMethod = "Web page Form";
  g.askText = "Your name?";
  const std::string script = g.Script();
  EXPECT_EQ(LineStarting(script, "       document.write('<form>"),
            "       document.write('<form>Your name?<input type=text name=txtName "
            "onkeypress=\\'if (event.keyCode ==13) setUsername(form.txtName.value)\\'>' + "
            "'<br><br><input type=button value=Save onClick=\\'setUsername(form.txtName.value)\\'>"
            "</form>');");
  EXPECT_EQ(script.find("window.prompt"), std::string::npos);
  // The asking line stands between "else" and the closing brace.
  EXPECT_NE(script.find("   else\r\n       document.write('<form>"), std::string::npos);
  EXPECT_NE(script.find("</form>');\r\n}\r\n"), std::string::npos);
}

TEST(PersonalGreetingText, GreetingGetsOneTrailingBlank) {
  const std::pair<const char*, const char*> cases[] = {
      {"Hi", "Hi "}, {"Hello, ", "Hello, "}, {"Welcome back  ", "Welcome back  "}};
  for (const auto& [typed, written] : cases) {
    PersonalGreeting g;
    g.greeting = typed;
    EXPECT_EQ(LineStarting(g.Script(), "       document.write('" + std::string(written) + "'"),
              "       document.write('" + std::string(written) +
                  "' + getCookie('OrlendaUsername') + '! ');")
        << typed;
  }
  // An empty ask text falls back to the default question.
  PersonalGreeting empty;
  empty.askText.clear();
  EXPECT_NE(empty.Script().find("window.prompt('Please enter your name:','')"), std::string::npos);
}

TEST(PersonalGreetingText, CallsFollowTheBoxes) {
  const std::string username =
      "<SCRIPT Language='JavaScript'>\nshowUsername()\n</SCRIPT>\n<br>\n\n";
  const std::string count = "<SCRIPT Language='JavaScript'>\nshowUserCount()\n</SCRIPT>\n<br>\n\n";
  const std::string last = "<SCRIPT Language='JavaScript'>\nshowLastVisit()\n</SCRIPT>\n<br>\n\n";
  PersonalGreeting g;
  EXPECT_EQ(g.Calls(), CrLf("<br><br>\n" + username));
  g.showLastVisit = true;
  EXPECT_EQ(g.Calls(), CrLf("<br><br>\n" + username + last));
  g.showVisits = true;
  EXPECT_EQ(g.Calls(), CrLf("<br><br>\n" + username + count + last));
  // The whole script is carried whichever boxes are set.
  EXPECT_EQ(g.Script(), PersonalGreeting().Script());
}

TEST(PersonalGreetingText, PagesRefuseEmptyTexts) {
  PersonalGreeting g;
  g.askText.clear();
  g.greeting.clear();
  ASSERT_TRUE(g.CheckPage(1));
  EXPECT_EQ(g.CheckPage(1)->message, "Please enter text for the name entry form in the box below.");
  ASSERT_TRUE(g.CheckPage(2));
  EXPECT_EQ(g.CheckPage(2)->message, "Please enter text for the greeting in the box below.");
  EXPECT_FALSE(g.CheckPage(3));
  EXPECT_FALSE(PersonalGreeting().CheckPage(1));
  EXPECT_FALSE(PersonalGreeting().CheckPage(2));
}

TEST(PersonalGreetingText, DoneWritesScriptToHeadAndCallsToBody) {
  testing::TestApp t;
  BufferEdit& edit =
      t.NewWindow("<HTML>\r\n<HEAD>\r\n</HEAD>\r\n<BODY>\r\nX\r\n</BODY>\r\n</HTML>").Buffer();
  edit.Select(static_cast<Pos>(edit.Text().find("X")), 0);
  PersonalGreeting g;
  PersonalGreeting_Done(t.app, g);
  const std::string text = edit.Text();
  const std::size_t script = text.find(g.Script());
  const std::size_t headEnd = text.find("</HEAD>");
  const std::size_t calls = text.find(g.Calls() + "X");
  ASSERT_NE(script, std::string::npos);
  EXPECT_LT(script, headEnd);
  ASSERT_NE(calls, std::string::npos);
  EXPECT_GT(calls, text.find("<BODY>"));
}

}  // namespace
}  // namespace tessarine
