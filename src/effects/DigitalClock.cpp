#include "effects/DigitalClock.h"

namespace tessarine {

namespace {

const char* const kCrLf = "\r\n";

// The start of the script, up to and including "var strClock".
const char* const kClockStart[] = {
    "<SCRIPT LANGUAGE='JavaScript'>",
    "function DigitalClock()",
    "{",
    "",
    "   var newDate = new Date();",
    "   var intDay = newDate.getDay();",
    "   var intMonth = newDate.getMonth();",
    "   var intWeekday = newDate.getDate();",
    "   var intYear = newDate.getYear();",
    "   var intHours = newDate.getHours();",
    "   var intMinutes = newDate.getMinutes();",
    "   var intSeconds = newDate.getSeconds();",
    "   var strAMPM = 'AM';",
    "",
    "   var aryDayName = new "
    "Array('Sunday','Monday','Tuesday','Wednesday','Thursday','Friday','Saturday');",
    "   var aryMonth = new "
    "Array('January','February','March','April','May','June','July','August','September','"
    "October','November','December');",
    "",
    "   var int24Hours = intHours;",
    "",
    "   if (intHours > 11)",
    "   {",
    "       strAMPM = 'PM';",
    "       intHours = intHours - 12;",
    "   }",
    "",
    "   if (intHours == 0)",
    "       intHours = 12;",
    "",
    "   if (intMinutes  <= 9)",
    "       intMinutes  = '0' + intMinutes;",
    "",
    "   if (intSeconds <= 9)",
    "      intSeconds = '0' + intSeconds;",
    "",
    "   if (intWeekday <= 9)",
    "       var strDayNumber = '0' + intWeekday;",
    "   else",
    "       var strDayNumber = intWeekday;",
    "",
    "   if (intYear < 200)",
    "   {",
    "       intYear = intYear + 1900;",
    "   }",
    "",
    "    if (intMonth <= 9)",
    "       var strMonthNumber = '0' + (intMonth + 1);",
    "   else",
    "       var strMonthNumber = intMonth + 1;",
    "",
    "   var strDayName = new String(aryDayName[intDay]);",
    "   var strDayNameShort = strDayName.substring(0, 3);",
    "",
    "   var strMonthName = new String(aryMonth[intMonth]);",
    "   var strMonthNameShort = strMonthName.substring(0, 3);",
    "",
    "   var strYear = new String(intYear);",
    "   var strYearShort = strYear.substring(2, 4);",
    "   var strClock = '';",
    "",
};

struct DatePart {
  const char* item;
  const char* expression;
};
// In the order the items are tested. "28-11-2001" has no row of its own: its test was
// written against "28-11-01", so choosing it adds nothing.
const DatePart kDateParts[] = {
    {"11/28/01", "strMonthNumber + '/' + strDayNumber + '/' + strYearShort"},
    {"11/28/2001", "strMonthNumber + '/' + strDayNumber + '/' + strYear"},
    {"11-28-01", "strMonthNumber + '-' + strDayNumber + '-' + strYearShort"},
    {"11-28-2001", "strMonthNumber + '-' + strDayNumber + '-' + strYear"},
    {"28/11/01", "strDayNumber + '/' + strMonthNumber + '/' + strYearShort"},
    {"28/11/2001", "strDayNumber + '/' + strMonthNumber + '/' + strYear"},
    {"28-11-01", "strDayNumber + '-' + strMonthNumber + '-' + strYearShort"},
    {"November 28, 2001", "strMonthName + ' ' + intWeekday + ', ' + intYear"},
    {"28 November 2001", "intWeekday + ' ' + strMonthName + ' ' + strYear"},
    {"November 2001", "strMonthName + ' ' + intYear"},
    {"November 28", "strMonthName + ' ' + intWeekday"},
};

const char* const kStepNames[] = {": Select Date and/or Time", ": Set Date format",
                                  ": Set Time format", ": Set clock properties"};
const char* const kSubHeadings[] = {
    "From the choices below, select the item you wish to be displayed on your Web page: date "
    "only, time only or both.",
    "Select the date format you wish to be displayed on your Web page.",
    "Set the format you wish the time to be displayed on your Web page.",
    "Set the font and background properties of your date/time special effect."};

}  // namespace

const std::vector<std::string>& DigitalClockDateFormats() {
  static const std::vector<std::string> formats = {
      "November 28, 2001", "28 November 2001", "November 2001", "November 28",
      "11/28/01",          "11-28-01",         "11/28/2001",    "11-28-2001",
      "28/11/01",          "28-11-01",         "28/11/2001",    "28-11-2001"};
  return formats;
}

const std::vector<std::string>& DigitalClockFonts() {
  static const std::vector<std::string> fonts = {
      "Arial",         "Courier", "Courier New", "Terminal",        "MS Serif",
      "MS Sans Serif", "Symbol",  "Modern",      "Times New Roman", "Wingdings"};
  return fonts;
}

const std::vector<std::string>& DigitalClockFontSizes() {
  static const std::vector<std::string> sizes = {"4",  "6",  "8",  "9",  "10", "11",
                                                 "12", "14", "16", "18", "20", "22",
                                                 "24", "28", "30", "36", "48", "72"};
  return sizes;
}

const std::vector<std::string>& DigitalClockFontStyles() {
  static const std::vector<std::string> styles = {"Normal", "Bold", "Italic", "Bold Italic"};
  return styles;
}

std::string DigitalClock::DateExpression() const {
  std::string d = dayOfWeek ? "strDayName + ', ' + " : "'' + ";
  for (const DatePart& part : kDateParts)
    if (dateFormat == part.item) {
      d += part.expression;
      break;
    }
  return d;
}

std::string DigitalClock::TimeExpression() const {
  if (shows == ClockShows::Date) return "''";
  std::string t = militaryTime ? "int24Hours + ':' + intMinutes" : "intHours + ':' + intMinutes";
  if (showSeconds) t += " + ':' + intSeconds";
  if (showAmPm) t += " + ' ' + strAMPM";
  return t;
}

std::string DigitalClock::Style() const {
  std::string s;
  if (!backgroundColor.empty()) s += ";background-color:" + backgroundColor;
  if (!fontColor.empty()) s += ";color:" + fontColor;
  if (fontStyle == "Bold")
    s += ";font-weight:bold";
  else if (fontStyle == "Italic")
    s += ";font-style:italic";
  else if (fontStyle == "Bold Italic")
    s += ";font-weight:bold;font-style:italic";
  s += ";font-family:" + font;
  s += ";font-size:" + fontSize + "pt";
  s += ";padding:" + padding;
  return s;
}

std::string DigitalClock::Script() const {
  std::string script;
  for (const char* line : kClockStart) script += std::string(line) + kCrLf;

  std::string clock;
  switch (shows) {
    case ClockShows::Date:
      clock = DateExpression();
      break;
    case ClockShows::Time:
      clock = TimeExpression();
      break;
    case ClockShows::DateAndTime:
      clock = timeBeforeDate ? TimeExpression() + " + ' &nbsp; ' + " + DateExpression()
                             : DateExpression() + " + ' &nbsp; ' + " + TimeExpression();
      break;
  }
  // No semicolon: the line break ends the statement.
  script += " strClock = " + clock + kCrLf + kCrLf;

  const std::string q = "\"";
  const std::string style = Style();
  const std::string tail[] = {
      " if (document.layers)",
      "   {",
      "       strClock = " + q + "<span style='" + style + "'>" + q + " + strClock + " + q +
          "</span>" + q,
      "       document.layers.lyrClock.document.write(strClock);",
      "       document.layers.lyrClock.document.close();",
      "   }",
      "   else if (document.all)",
      "       spnClock.innerHTML = strClock;",
      "",
      "   setTimeout('DigitalClock()',1000)",
      "}",
      "",
      "window.onload = DigitalClock;",
      "</SCRIPT>",
  };
  for (const std::string& line : tail) script += line + kCrLf;
  return script;
}

std::string DigitalClock::Markup() const {
  return std::string(kCrLf) + "<LAYER ID='lyrClock' bgcolor='" + backgroundColor + "'></LAYER>" +
         kCrLf + "<SPAN ID='spnClock' style='" + Style() +
         "'><span style='font-size:8pt;color:yellow;background-color:blue;'>Digital clock will "
         "be displayed here</span></SPAN>" +
         kCrLf;
}

int NextClockPage(int page, ClockShows shows) {
  ++page;
  if (page == 2 && shows == ClockShows::Time) ++page;
  if (page == 3 && shows == ClockShows::Date) ++page;
  return page;
}

int PreviousClockPage(int page, ClockShows shows) {
  --page;
  if (page == 3 && shows == ClockShows::Date) --page;
  if (page == 2 && shows == ClockShows::Time) --page;
  return page < 1 ? 1 : page;
}

int ClockStepNumber(int page, ClockShows shows) {
  int shown = 0;
  for (int p = 1; p <= page && p <= kClockLastPage; p = NextClockPage(p, shows)) ++shown;
  return shown;
}

std::string ClockHeading(int page, ClockShows shows) {
  if (page < 1 || page > kClockLastPage) return "";
  return "Digital Clock - Step " + std::to_string(ClockStepNumber(page, shows)) +
         kStepNames[page - 1];
}

std::string ClockSubHeading(int page) {
  if (page < 1 || page > kClockLastPage) return "";
  return kSubHeadings[page - 1];
}

CheckResult CheckClockPage(int page, const DigitalClock& clock) {
  if ((page == 3 || page == 4) && clock.dateFormat.empty() && clock.shows != ClockShows::Time)
    return WizardCheck{"Please select a Date format from the list below.", "dateFormatList"};
  return std::nullopt;
}

}  // namespace tessarine
