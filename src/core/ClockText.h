#pragma once
// The status bar clock's insertion: "mmmm dd, yyyy " then two blanks then "h:mm AM/PM".

#include <ctime>
#include <string>

namespace tessarine {

std::string ClockInsertText(const std::tm& t);
// The clock panel's own short form, "h:mm AM/PM".
std::string ClockPanelText(const std::tm& t);

}  // namespace tessarine
