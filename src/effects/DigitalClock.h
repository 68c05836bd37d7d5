#pragma once
// The digital clock: a script that writes the date, the time or both into a span once a
// second, with a LAYER for browsers that have document.layers.

#include <string>
#include <vector>

#include "conventions/WizardCheck.h"

namespace tessarine {

enum class ClockShows { Date = 0, Time = 1, DateAndTime = 2 };

struct DigitalClock {
  ClockShows shows = ClockShows::Date;
  std::string dateFormat;  // an item of DigitalClockDateFormats(), or empty when none chosen
  bool dayOfWeek = false;
  bool militaryTime = false;
  bool showSeconds = false;
  bool showAmPm = false;
  bool timeBeforeDate = false;
  std::string backgroundColor;  // "#" and six hex digits once picked, else empty
  std::string fontColor;
  std::string font = "Arial";
  std::string fontSize;
  std::string fontStyle = "Normal";
  std::string padding = "2";

  // The date expression; only meaningful when a date is shown.
  std::string DateExpression() const;
  std::string TimeExpression() const;
  // The style text of the span; it starts with a semicolon.
  std::string Style() const;
  std::string Script() const;  // HeadInsert
  std::string Markup() const;  // BodyInsert
};

const std::vector<std::string>& DigitalClockDateFormats();
const std::vector<std::string>& DigitalClockFonts();
const std::vector<std::string>& DigitalClockFontSizes();
const std::vector<std::string>& DigitalClockFontStyles();

// The wizard's four pages; page 5 means finished.
constexpr int kClockLastPage = 4;
constexpr int kClockFinished = 5;

// The page that Next shows from `page`: time only skips the date format, date only the
// time format.
int NextClockPage(int page, ClockShows shows);
int PreviousClockPage(int page, ClockShows shows);
// The number shown in the heading: pages shown so far, not the page number.
int ClockStepNumber(int page, ClockShows shows);
std::string ClockHeading(int page, ClockShows shows);
std::string ClockSubHeading(int page);
// On arriving at page 3 or 4 a date needs its format; failing, the wizard goes back to 2.
CheckResult CheckClockPage(int page, const DigitalClock& clock);

}  // namespace tessarine
