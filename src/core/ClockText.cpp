#include "core/ClockText.h"

#include "core/DateFormat.h"

namespace tessarine {

std::string ClockPanelText(const std::tm& t) {
  return FormatDate(t, "h:mm AM/PM");
}

std::string ClockInsertText(const std::tm& t) {
  return FormatDate(t, "mmmm dd, yyyy ") + "  " + ClockPanelText(t);
}

}  // namespace tessarine
