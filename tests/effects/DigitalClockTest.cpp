// The clock's script and markup, byte for byte, and the wizard's page flow.

#include "effects/DigitalClock.h"

#include <gtest/gtest.h>

#include "effects/EffectsTestSupport.h"

namespace tessarine {
namespace {

using testing::CrLf;
using testing::LineStarting;

const char* const kFixedStart = R"(<SCRIPT LANGUAGE='JavaScript'>
function DigitalClock()
{

   var newDate = new Date();
   var intDay = newDate.getDay();
   var intMonth = newDate.getMonth();
   var intWeekday = newDate.getDate();
   var intYear = newDate.getYear();
   var intHours = newDate.getHours();
   var intMinutes = newDate.getMinutes();
   var intSeconds = newDate.getSeconds();
   var strAMPM = 'AM';

   var aryDayName = new Array('Sunday','Monday','Tuesday','Wednesday','Thursday','Friday','Saturday');
   var aryMonth = new Array('January','February','March','April','May','June','July','August','September','October','November','December');

   var int24Hours = intHours;

   if (intHours > 11)
   {
       strAMPM = 'PM';
       intHours = intHours - 12;
   }

   if (intHours == 0)
       intHours = 12;

   if (intMinutes  <= 9)
       intMinutes  = '0' + intMinutes;

   if (intSeconds <= 9)
      intSeconds = '0' + intSeconds;

   if (intWeekday <= 9)
       var strDayNumber = '0' + intWeekday;
   else
       var strDayNumber = intWeekday;

   if (intYear < 200)
   {
       intYear = intYear + 1900;
   }

    if (intMonth <= 9)
       var strMonthNumber = '0' + (intMonth + 1);
   else
       var strMonthNumber = intMonth + 1;

   var strDayName = new String(aryDayName[intDay]);
   var strDayNameShort = strDayName.substring(0, 3);

   var strMonthName = new String(aryMonth[intMonth]);
   var strMonthNameShort = strMonthName.substring(0, 3);

   var strYear = new String(intYear);
   var strYearShort = strYear.substring(2, 4);
   var strClock = '';

)";

TEST(DigitalClockText, WholeScriptAndMarkupForBothWithColours) {
  DigitalClock c;
  c.shows = ClockShows::DateAndTime;
  c.dateFormat = "11/28/01";
  c.dayOfWeek = true;
  c.showSeconds = true;
  c.showAmPm = true;
  c.timeBeforeDate = true;
  c.backgroundColor = "#000080";
  c.fontColor = "#FFFF00";
  c.font = "Courier New";
  c.fontSize = "14";
  c.fontStyle = "Bold";
  c.padding = "4";

  const std::string style =
      ";background-color:#000080;color:#FFFF00;font-weight:bold;font-family:Courier "
      "New;font-size:14pt;padding:4";
  EXPECT_EQ(c.Script(),
            CrLf(std::string(kFixedStart) +
                 " strClock = intHours + ':' + intMinutes + ':' + intSeconds + ' ' + strAMPM + "
                 "' &nbsp; ' + strDayName + ', ' + strMonthNumber + '/' + strDayNumber + '/' + "
                 "strYearShort\n"
                 "\n"
                 " if (document.layers)\n"
                 "   {\n"
                 "       strClock = \"<span style='" +
                 style +
                 "'>\" + strClock + \"</span>\"\n"
                 "       document.layers.lyrClock.document.write(strClock);\n"
                 "       document.layers.lyrClock.document.close();\n"
                 "   }\n"
                 "   else if (document.all)\n"
                 "       spnClock.innerHTML = strClock;\n"
                 "\n"
                 "   setTimeout('DigitalClock()',1000)\n"
                 "}\n"
                 "\n"
                 "window.onload = DigitalClock;\n"
                 "</SCRIPT>\n"));
  EXPECT_EQ(c.Markup(),
            CrLf("\n<LAYER ID='lyrClock' bgcolor='#000080'></LAYER>\n<SPAN ID='spnClock' style='" +
                 style +
                 "'><span style='font-size:8pt;color:yellow;background-color:blue;'>Digital "
                 "clock will be displayed here</span></SPAN>\n"));
}

TEST(DigitalClockText, EveryDateFormatGivesItsExpression) {
  const std::pair<const char*, const char*> cases[] = {
      {"November 28, 2001", "strMonthName + ' ' + intWeekday + ', ' + intYear"},
      {"28 November 2001", "intWeekday + ' ' + strMonthName + ' ' + strYear"},
      {"November 2001", "strMonthName + ' ' + intYear"},
      {"November 28", "strMonthName + ' ' + intWeekday"},
      {"11/28/01", "strMonthNumber + '/' + strDayNumber + '/' + strYearShort"},
      {"11-28-01", "strMonthNumber + '-' + strDayNumber + '-' + strYearShort"},
      {"11/28/2001", "strMonthNumber + '/' + strDayNumber + '/' + strYear"},
      {"11-28-2001", "strMonthNumber + '-' + strDayNumber + '-' + strYear"},
      {"28/11/01", "strDayNumber + '/' + strMonthNumber + '/' + strYearShort"},
      {"28-11-01", "strDayNumber + '-' + strMonthNumber + '-' + strYearShort"},
      {"28/11/2001", "strDayNumber + '/' + strMonthNumber + '/' + strYear"},
      // Its test was written against "28-11-01": nothing is added, the line dangles.
      {"28-11-2001", ""},
  };
  ASSERT_EQ(std::size(cases), DigitalClockDateFormats().size());
  for (const auto& [item, expression] : cases) {
    SCOPED_TRACE(item);
    DigitalClock c;
    c.dateFormat = item;
    EXPECT_EQ(LineStarting(c.Script(), " strClock = "),
              std::string(" strClock = '' + ") + expression);
    c.dayOfWeek = true;
    EXPECT_EQ(c.DateExpression(), std::string("strDayName + ', ' + ") + expression);
  }
}

TEST(DigitalClockText, ClockLineForEachChoice) {
  struct Case {
    ClockShows shows;
    bool military, seconds, ampm, timeFirst;
    const char* line;
  };
  const Case cases[] = {
      {ClockShows::Date, false, false, false, false,
       " strClock = '' + strMonthName + ' ' + intWeekday"},
      {ClockShows::Time, true, true, false, false,
       " strClock = int24Hours + ':' + intMinutes + ':' + intSeconds"},
      {ClockShows::Time, false, false, true, false,
       " strClock = intHours + ':' + intMinutes + ' ' + strAMPM"},
      {ClockShows::DateAndTime, false, false, false, false,
       " strClock = '' + strMonthName + ' ' + intWeekday + ' &nbsp; ' + intHours + ':' + "
       "intMinutes"},
      {ClockShows::DateAndTime, true, false, false, true,
       " strClock = int24Hours + ':' + intMinutes + ' &nbsp; ' + '' + strMonthName + ' ' + "
       "intWeekday"},
  };
  for (const Case& k : cases) {
    SCOPED_TRACE(k.line);
    DigitalClock c;
    c.shows = k.shows;
    c.dateFormat = "November 28";
    c.militaryTime = k.military;
    c.showSeconds = k.seconds;
    c.showAmPm = k.ampm;
    c.timeBeforeDate = k.timeFirst;
    EXPECT_EQ(LineStarting(c.Script(), " strClock = "), k.line);
  }
}

TEST(DigitalClockText, StyleFollowsColoursAndFontStyle) {
  const std::pair<const char*, const char*> styles[] = {
      {"Normal", ""},
      {"Bold", ";font-weight:bold"},
      {"Italic", ";font-style:italic"},
      {"Bold Italic", ";font-weight:bold;font-style:italic"},
  };
  for (const auto& [fontStyle, added] : styles) {
    DigitalClock c;
    c.fontStyle = fontStyle;
    c.fontSize = "10";
    EXPECT_EQ(c.Style(), std::string(added) + ";font-family:Arial;font-size:10pt;padding:2");
  }
  DigitalClock plain;
  plain.fontSize = "12";
  EXPECT_EQ(LineStarting(plain.Markup(), "<LAYER"), "<LAYER ID='lyrClock' bgcolor=''></LAYER>");
  DigitalClock font;
  font.fontColor = "#FF0000";
  EXPECT_EQ(font.Style(), ";color:#FF0000;font-family:Arial;font-size:pt;padding:2");
}

TEST(DigitalClockPages, TimeOnlySkipsFormatAndDateOnlySkipsTime) {
  struct Case {
    ClockShows shows;
    std::vector<int> pages;
  };
  const Case cases[] = {{ClockShows::Date, {1, 2, 4, 5}},
                        {ClockShows::Time, {1, 3, 4, 5}},
                        {ClockShows::DateAndTime, {1, 2, 3, 4, 5}}};
  for (const Case& k : cases) {
    std::vector<int> forward = {1};
    while (forward.back() < kClockFinished)
      forward.push_back(NextClockPage(forward.back(), k.shows));
    EXPECT_EQ(forward, k.pages);
    std::vector<int> back = {kClockLastPage};
    while (back.back() > 1) back.push_back(PreviousClockPage(back.back(), k.shows));
    std::vector<int> expectedBack(k.pages.rbegin() + 1, k.pages.rend());
    EXPECT_EQ(back, expectedBack);
  }
}

TEST(DigitalClockPages, HeadingCountsShownPages) {
  EXPECT_EQ(ClockHeading(3, ClockShows::Time), "Digital Clock - Step 2: Set Time format");
  EXPECT_EQ(ClockHeading(4, ClockShows::Date), "Digital Clock - Step 3: Set clock properties");
  EXPECT_EQ(ClockHeading(4, ClockShows::DateAndTime),
            "Digital Clock - Step 4: Set clock properties");
  EXPECT_EQ(ClockHeading(1, ClockShows::Time), "Digital Clock - Step 1: Select Date and/or Time");
}

TEST(DigitalClockPages, DateNeedsAFormatBeyondPageTwo) {
  DigitalClock c;
  c.shows = ClockShows::DateAndTime;
  ASSERT_TRUE(CheckClockPage(3, c));
  EXPECT_EQ(CheckClockPage(3, c)->message, "Please select a Date format from the list below.");
  EXPECT_TRUE(CheckClockPage(4, c));
  EXPECT_FALSE(CheckClockPage(2, c));
  c.shows = ClockShows::Time;
  EXPECT_FALSE(CheckClockPage(3, c));
  EXPECT_FALSE(CheckClockPage(4, c));
  c.shows = ClockShows::Date;
  c.dateFormat = "11/28/01";
  EXPECT_FALSE(CheckClockPage(4, c));
}

}  // namespace
}  // namespace tessarine
