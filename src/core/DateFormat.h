#pragma once
// Dates and times formatted by the classic pattern language of the field's date stamps:
// d dd ddd dddd, m mm mmm mmmm (minutes right after an hour), y yy yyyy, h hh, n nn, s ss,
// w, q, AM/PM am/pm A/P a/p, "quoted" and \-escaped literals. Letters in any case; English
// names; anything else is copied.

#include <ctime>
#include <string>
#include <string_view>

namespace tessarine {

std::string FormatDate(const std::tm& t, std::string_view pattern);

}  // namespace tessarine
