#pragma once
// The log statistics wizard's run: its checks on the log's path, then the count, the
// report in the program's folder, and the report opened in the default viewer.

#include <string>

#include "conventions/WizardCheck.h"

namespace tessarine {

class Application;

struct AccessStatsInput {
  std::string logPath;  // as typed; trimmed when opened
};

CheckResult ValidateAccessStats(const AccessStatsInput& input);

// Counts the log, writes accessstats.html (and percntbar.gif where it is missing) into
// `reportFolder` and opens the report. False, after the message, when the log cannot be
// opened. A report that cannot be written gives no message, and is not opened.
bool RunAccessStats(Application& app, const AccessStatsInput& input,
                    const std::string& reportFolder);

// Writes the bar image into `folder` unless one is there. False when it cannot.
bool EnsurePercentBarImage(const std::string& folder);

}  // namespace tessarine
