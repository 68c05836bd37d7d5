#pragma once
// The date stamp dialog: a text, one blank and the present date in a chosen form.

#include <ctime>
#include <string>
#include <vector>

#include "conventions/WizardCheck.h"

namespace tessarine {

class Application;

struct DateTime {
  std::string formatRow;                               // the chosen row
  std::string leadingText = "This page last updated";  // text before the date

  CheckResult Validate() const;
  // The stamp for `now`; empty when no row's test holds.
  std::string Build(const std::tm& now) const;
};

// The rows, with their fixed sample dates.
const std::vector<std::string>& DateTimeRows();

// OK: writes the stamp at the caret. On a failed check it shows the message and returns it.
CheckResult DateTime_OK(Application& app, const DateTime& form);

}  // namespace tessarine
