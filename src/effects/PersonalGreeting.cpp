#include "effects/PersonalGreeting.h"

#include "core/Application.h"
#include "core/TextServices.h"

namespace tessarine {

namespace {

const char* const kCrLf = "\r\n";

const char* const kCookieFunctions[] = {
    "<SCRIPT LANGUAGE='JavaScript'>",
    "<!--",
    "function getCookie(CookieName)",
    "{",
    "   var strCookieName = CookieName + '=';",
    "   var intCookieNameLength = strCookieName.length;",
    "   var intCookieLength = document.cookie.length;",
    "   var i = 0;",
    "",
    "   while (i < intCookieLength)",
    "   {",
    "       var j = i + intCookieNameLength;",
    "       if (document.cookie.substring(i, j) == strCookieName)",
    "           return getCookieValue(j);",
    "",
    "       i = document.cookie.indexOf(' ', i) + 1;",
    "       if (i == 0)",
    "           break;",
    "   }",
    "   return null;",
    "}",
    "",
    "function getCookieValue(intPos)",
    "{",
    "   var strEndOfCookie = document.cookie.indexOf (';', intPos);",
    "   if (strEndOfCookie == -1)",
    "       strEndOfCookie = document.cookie.length;",
    "",
    "   return unescape(document.cookie.substring(intPos, strEndOfCookie));",
    "}",
    "",
    "function setCookie(name, value)",
    "{",
    "   var argv = setCookie.arguments;",
    "   var argc = setCookie.arguments.length;",
    "   var expires = (argc > 2) ? argv[2] : null;",
    "   var path = (argc > 3) ? argv[3] : null;",
    "   var domain = (argc > 4) ? argv[4] : null;",
    "   var secure = (argc > 5) ? argv[5] : false;",
    "   document.cookie = name + '=' + escape (value) + ((expires == null) ? '' : ('; expires=' "
    "+ expires.toGMTString())) + ((path == null) ? '' : ('; path=' + path)) + ((domain == null) "
    "? '' : ('; domain=' + domain)) + ((secure == true) ? '; secure' : '');",
    "}",
    "",
    "function showUserCount()",
    "{",
    "   var expdate = new Date();",
    "   var numVisits;",
    "   expdate.setTime(expdate.getTime() +  (24 * 60 * 60 * 1000 * 31));",
    "",
    "   if(!(numVisits = getCookie('OrlendaUserCount')))",
    "       numVisits = 0;",
    "",
    "   numVisits++;",
    "   setCookie('OrlendaUserCount', numVisits, expdate);",
    "   if (numVisits == 1)",
    "       document.write('Welcome to our Web site!  This is your first visit.');",
    "   else",
    "       document.write('You have visited this Web site ' + numVisits + ' times.');",
    "}",
    "",
    "function showLastVisit()",
    "{",
    "   var expdate = new Date();",
    "   var currentDate = new Date;",
    "   var lastVisitDate;",
    "",
    "   expdate.setTime(expdate.getTime() +  (24 * 60 * 60 * 1000 * 31));",
    "",
    "   lastVisitDate = getCookie('OrlendaLastVisit')",
    "",
    "   if (lastVisitDate != null)",
    "       document.write('You last visited this Web site on ' + lastVisitDate + '.');",
    "",
    "   setCookie('OrlendaLastVisit', currentDate, expdate);",
    "}",
    "",
    "function showUsername()",
    "{",
    "   if(getCookie('OrlendaUsername') != null)",
};

const char* const kSetUsername[] = {
    "}",
    "",
    "function setUsername(username)",
    "{",
    "   var expdate = new Date();",
    "   expdate.setTime (expdate.getTime() + (24 * 60 * 60 * 1000 * 31));",
    "   if (username != '')",
    "   {",
    "       setCookie('OrlendaUsername', username, expdate);",
    "       window.history.go(0);",
    "   }",
    "   else",
    "       alert('Please enter your name.');",
    "}",
    "// -->",
    "</SCRIPT>",
};

std::string CallBlock(const char* call) {
  return std::string("<SCRIPT Language='JavaScript'>") + kCrLf + call + kCrLf + "</SCRIPT>" +
         kCrLf + "<br>" + kCrLf + kCrLf;
}

}  // namespace

const std::vector<std::string>& GreetingAskMethods() {
  static const std::vector<std::string> methods = {"Popup box", "Web page Form"};
  return methods;
}

CheckResult PersonalGreeting::CheckPage(int page) const {
  if (page == 1 && askText.empty())
    return WizardCheck{"Please enter text for the name entry form in the box below.", "askText"};
  if (page == 2 && greeting.empty())
    return WizardCheck{"Please enter text for the greeting in the box below.", "greetingText"};
  return std::nullopt;
}

std::string PersonalGreeting::Script() const {
  const std::string ask = askText.empty() ? "Please enter your name:" : askText;
  std::string hello = greeting;
  if (hello.empty() || hello.back() != ' ') hello += ' ';

  std::string script;
  for (const char* line : kCookieFunctions) script += std::string(line) + kCrLf;
  // Neither text is escaped: a quote in either ends the script's string.
  script += "       document.write('" + hello + "' + getCookie('OrlendaUsername') + '! ');" + kCrLf;
  script += std::string("   else") + kCrLf;
  if (askMethod == "Popup box") {
    script += "       var retVal = window.prompt('" + ask + "','')" + kCrLf;
    script += std::string("       if (retVal != null) {setUsername(retVal)};") + kCrLf;
  } else {
    script += "       document.write('<form>" + ask +
              "<input type=text name=txtName onkeypress=\\'if (event.keyCode ==13) "
              "setUsername(form.txtName.value)\\'>' + '<br><br><input type=button value=Save "
              "onClick=\\'setUsername(form.txtName.value)\\'></form>');" +
              kCrLf;
  }
  for (const char* line : kSetUsername) script += std::string(line) + kCrLf;
  return script;
}

std::string PersonalGreeting::Calls() const {
  std::string body = std::string("<br><br>") + kCrLf + CallBlock("showUsername()");
  if (showVisits) body += CallBlock("showUserCount()");
  if (showLastVisit) body += CallBlock("showLastVisit()");
  return body;
}

void PersonalGreeting_Done(Application& app, const PersonalGreeting& form) {
  std::string head = form.Script(), body = form.Calls();
  InsertInHeadAndBody(app, head, body);
}

}  // namespace tessarine
