#include "sitetools/AccessStatsWizard.h"

#include <filesystem>

#include "core/Application.h"
#include "core/FileSave.h"
#include "platform/Desktop.h"
#include "platform/MessageBoxes.h"
#include "sitetools/AccessLogStats.h"
#include "sitetools/AccessStatsReport.h"
#include "sitetools/SiteText.h"

namespace tessarine {

CheckResult ValidateAccessStats(const AccessStatsInput& input) {
  if (input.logPath.empty())
    return WizardCheck{"Please enter the Access Log path and filename.", "logPath"};
  if (LowerAscii(input.logPath).starts_with("http://"))
    return WizardCheck{
        "Please enter the path and filename of the Access Log found on your computer's hard "
        "drive.",
        "logPath"};
  return std::nullopt;
}

bool EnsurePercentBarImage(const std::string& folder) {
  const std::filesystem::path image = std::filesystem::path(folder) / kPercentBarName;
  std::error_code error;
  if (std::filesystem::exists(image, error)) return true;
  return WriteFileReplacing(image.string(), PercentBarImage(), {}) == 0;
}

bool RunAccessStats(Application& app, const AccessStatsInput& input,
                    const std::string& reportFolder) {
  AccessLogCounter counter;
  if (CountAccessLogFile(TrimBlanks(input.logPath), counter) == LogReadResult::NotFound) {
    app.messages.Show(
        "File not found.  Please enter the correct path and filename in the box below.",
        MsgButtons::OK, MsgIcon::Exclamation, app.title);
    return false;
  }
  // A read error part way keeps what was counted, as the loop skips what fails.
  const std::string report = (std::filesystem::path(reportFolder) / kAccessReportName).string();
  EnsurePercentBarImage(reportFolder);
  if (WriteFileReplacing(report, AccessStatsReport(counter.Stats()), {}) == 0)
    app.shell.OpenInDefaultViewer(report);
  return true;
}

}  // namespace tessarine
