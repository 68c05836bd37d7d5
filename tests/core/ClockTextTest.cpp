#include <gtest/gtest.h>

#include <limits>

#include "core/ClockText.h"
#include "core/DateFormat.h"
#include "core/TestApp.h"

namespace tessarine {
namespace {

using testing::At;

TEST(ClockText, DateThenTwoBlanksThenTwelveHourTime) {
  EXPECT_EQ(ClockInsertText(At(2026, 3, 7, 9, 5)), "March 07, 2026   9:05 AM");
  EXPECT_EQ(ClockInsertText(At(1999, 12, 31, 23, 59)), "December 31, 1999   11:59 PM");
  // Midnight and noon are both 12 on this clock.
  EXPECT_EQ(ClockPanelText(At(2026, 1, 1, 0, 0)), "12:00 AM");
  EXPECT_EQ(ClockPanelText(At(2026, 1, 1, 12, 30)), "12:30 PM");
}

TEST(DateFormat, PatternsOfTheDateStamps) {
  std::tm t = At(2002, 1, 5, 15, 7);
  t.tm_sec = 4;
  t.tm_wday = 6;
  t.tm_yday = 4;
  EXPECT_EQ(FormatDate(t, "mmmm dd, yyyy "), "January 05, 2002 ");
  EXPECT_EQ(FormatDate(t, "hh:mm AM/PM"), "03:07 PM");
  EXPECT_EQ(FormatDate(t, "h:mm am/pm"), "3:07 pm");
  EXPECT_EQ(FormatDate(t, "m/d/yy h:nn A/P"), "1/5/02 3:07 P");
  EXPECT_EQ(FormatDate(t, "dddd, mmm d yyyy"), "Saturday, Jan 5 2002");
  EXPECT_EQ(FormatDate(t, "ddd dd-mm-yyyy hh:nn:ss"), "Sat 05-01-2002 15:07:04");
  // Letters in any case; quoted and escaped letters are copied.
  EXPECT_EQ(FormatDate(t, "MMMM D, YYYY"), "January 5, 2002");
  EXPECT_EQ(FormatDate(t, "\\d \\of \\m: d"), "d of m: 5");
  EXPECT_EQ(FormatDate(t, "\"Day\" d"), "Day 5");
  EXPECT_EQ(FormatDate(t, "y q w"), "5 1 7");
  // Without a marker the hour runs to 23; with one, midnight is 12.
  EXPECT_EQ(FormatDate(At(2002, 1, 5, 0, 0), "hh:nn"), "00:00");
  EXPECT_EQ(FormatDate(At(2002, 1, 5, 0, 0), "h AM/PM"), "12 AM");
}

TEST(DateFormat, ExtremeFieldsAreCountedOnNotOverflowed) {
  std::tm t{};
  t.tm_year = std::numeric_limits<int>::max();
  t.tm_yday = std::numeric_limits<int>::max();
  t.tm_mon = std::numeric_limits<int>::min();
  t.tm_wday = std::numeric_limits<int>::min();
  EXPECT_EQ(FormatDate(t, "yyyy y"), "2147485547 2147483648");
  EXPECT_EQ(FormatDate(t, "yy"), "47");
  // Months and weekdays wrap into their names.
  EXPECT_EQ(FormatDate(t, "mmm ddd"), "May Fri");
}

}  // namespace
}  // namespace tessarine
