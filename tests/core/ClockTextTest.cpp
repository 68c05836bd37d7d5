#include <gtest/gtest.h>

#include "core/ClockText.h"

namespace tessarine {
namespace {

std::tm At(int year, int month, int day, int hour, int minute) {
  std::tm t{};
  t.tm_year = year - 1900;
  t.tm_mon = month - 1;
  t.tm_mday = day;
  t.tm_hour = hour;
  t.tm_min = minute;
  return t;
}

TEST(ClockText, DateThenTwoBlanksThenTwelveHourTime) {
  EXPECT_EQ(ClockInsertText(At(2026, 3, 7, 9, 5)), "March 07, 2026   9:05 AM");
  EXPECT_EQ(ClockInsertText(At(1999, 12, 31, 23, 59)), "December 31, 1999   11:59 PM");
  // Midnight and noon are both 12 on this clock.
  EXPECT_EQ(ClockPanelText(At(2026, 1, 1, 0, 0)), "12:00 AM");
  EXPECT_EQ(ClockPanelText(At(2026, 1, 1, 12, 30)), "12:30 PM");
}

}  // namespace
}  // namespace tessarine
