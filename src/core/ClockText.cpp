#include "core/ClockText.h"

#include <cstdio>

namespace tessarine {

namespace {
const char* const kMonths[] = {"January",   "February", "March",    "April",
                               "May",       "June",     "July",     "August",
                               "September", "October",  "November", "December"};
}

std::string ClockPanelText(const std::tm& t) {
  const int hour12 = t.tm_hour % 12 == 0 ? 12 : t.tm_hour % 12;
  char buf[32];
  std::snprintf(buf, sizeof buf, "%d:%02d %s", hour12, t.tm_min, t.tm_hour < 12 ? "AM" : "PM");
  return buf;
}

std::string ClockInsertText(const std::tm& t) {
  char date[64];
  std::snprintf(date, sizeof date, "%s %02d, %04d ", kMonths[(t.tm_mon % 12 + 12) % 12], t.tm_mday,
                t.tm_year + 1900);
  return std::string(date) + "  " + ClockPanelText(t);
}

}  // namespace tessarine
